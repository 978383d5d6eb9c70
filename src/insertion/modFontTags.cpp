#include "insertion/modFontTags.h"

#include "insertion/modCode.h"

#include <algorithm>

namespace
{
struct SizeStep {
    int upTo;  ///< the largest point size of the step
    int exact; ///< the point size that the step stands for
};

constexpr SizeStep steps[] = {{7, 7}, {11, 10}, {13, 12}, {16, 14}, {21, 18}, {30, 24}};
constexpr int LargestExact = 36;

const QString EndTag = QStringLiteral("</font>");
} // namespace

QString pointSizeAttributes(int points)
{
    int number = 1;
    int exact = LargestExact;
    for (const SizeStep &step : steps) {
        if (points <= step.upTo) {
            exact = step.exact;
            break;
        }
        ++number;
    }
    const QString size = QStringLiteral(" size=%1").arg(number);
    return points == exact ? size : size + QStringLiteral(" style=\"font-size: %1pt\"").arg(points);
}

QStringList pointSizes()
{
    return QStringLiteral("7 8 9 10 11 12 14 16 18 20 22 24 26 28 36 48 72").split(u' ');
}

QStringList headingNames()
{
    QStringList names{QStringLiteral("Normal")};
    for (int level = 1; level <= 6; ++level)
        names.append(QStringLiteral("Heading %1").arg(level));
    return names;
}

int headingLevel(const QString &name)
{
    return static_cast<int>(std::max<qsizetype>(headingNames().indexOf(name), 0));
}

void ApplyFontFace(ProgramContext &context, const QString &face)
{
    if (!face.isEmpty())
        wrapPlainly(context, QStringLiteral("<font face=\"%1\">").arg(face), EndTag);
}

void ApplyPointSize(ProgramContext &context, const QString &points)
{
    bool isNumber = false;
    const int size = points.toInt(&isNumber);
    if (isNumber)
        wrapPlainly(context, QStringLiteral("<font%1>").arg(pointSizeAttributes(size)), EndTag);
}

void ApplyHeading(ProgramContext &context, int level)
{
    if (level >= 1 && level <= 6)
        WrapSelection(context, QStringLiteral("<h%1>").arg(level), QStringLiteral("</h%1>").arg(level));
}
