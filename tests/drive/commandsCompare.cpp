// Looking at what two controls have in common, at what is not there, and at pictures of controls.
#include "common/document.h"
#include "drive/commands.h"
#include "drive/controlParts.h"
#include "drive/properties.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <algorithm>

namespace drive
{
namespace
{
void expectSame(Stage &stage, const Line &line)
{
    const auto &words = line.words;
    const QString first = readTarget(stage, findTarget(stage, words[0]), words[1]);
    const QString second = readTarget(stage, findTarget(stage, words[2]), words[3]);
    if (first != second)
        stage.referee.fail(QStringLiteral("%1 %2 and %3 %4 the same").arg(words[0], words[1], words[2], words[3]),
                           QStringLiteral("%1 and %2").arg(quoted(first), quotedAgainst(first, second)));
}

void expectAbsent(Stage &stage, const Line &line)
{
    if (isOnShow(stage, line.words[0]))
        stage.referee.fail(QStringLiteral("no %1 on show").arg(line.words[0]), QStringLiteral("it on show"));
}

int pixelOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const int pixel = word.toInt(&ok);
    if (!ok || pixel < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number of a pixel").arg(word));
    return pixel;
}

void expectPixel(Stage &stage, const Line &line)
{
    const Target target = findTarget(stage, line.words[0]);
    auto *widget = qobject_cast<QWidget *>(target.control ? target.control : target.form->window());
    if (!widget)
        stage.referee.wrong(QStringLiteral("%1 has no picture").arg(target.name));
    const QPoint at(pixelOf(stage, line.words[1]), pixelOf(stage, line.words[2]));
    const QColor expected(line.words[3]);
    if (!parseHashColour(line.words[3]))
        stage.referee.wrong(QStringLiteral("%1 is no colour such as #FF8000").arg(line.words[3]));
    const QString what =
        QStringLiteral("%1 at %2, %3 in %4").arg(target.name).arg(at.x()).arg(at.y()).arg(line.words[3]);
    if (!widget->rect().contains(at))
        stage.referee.fail(what, QStringLiteral("a control of %1 x %2").arg(widget->width()).arg(widget->height()));
    const QPixmap picture = widget->grab();
    const QPointF inPicture = QPointF(at) * picture.devicePixelRatio();
    const QColor got = picture.toImage().pixelColor(inPicture.toPoint());
    if (got.rgb() != expected.rgb())
        stage.referee.fail(what, got.name().toUpper());
}

qsizetype positionOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const qsizetype position = word.toLongLong(&ok);
    if (!ok || position < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number from 0 on").arg(word));
    return position;
}

constexpr std::pair<const char *, MarkKind> markNames[] = {
    {"match", MarkKind::Match},      {"pair", MarkKind::Pair},       {"error", MarkKind::Error},
    {"hint", MarkKind::Hint},        {"changed", MarkKind::Changed}, {"colour", MarkKind::Colour},
    {"line", MarkKind::CurrentLine},
};

QString toldAs(const MarkedRange &mark)
{
    const QString place = QStringLiteral("%1 of %2").arg(mark.start).arg(mark.length);
    return mark.tip.isEmpty() ? place : place + QStringLiteral(" (%1)").arg(mark.tip);
}

QString told(const QList<MarkedRange> &marks)
{
    QStringList places;
    for (const MarkedRange &mark : marks)
        places.append(toldAs(mark));
    return places.isEmpty() ? QStringLiteral("none") : places.join(QStringLiteral(", "));
}

/// The marks of the kind that a word names.
QList<MarkedRange> marksNamed(Stage &stage, const QString &name)
{
    const auto *const kind = std::find_if(std::begin(markNames), std::end(markNames),
                                          [&](const auto &known) { return name == QLatin1String(known.first); });
    if (kind == std::end(markNames))
        stage.referee.wrong(QStringLiteral("%1 is no kind of mark").arg(name));
    QList<MarkedRange> marks = stage.activeDocument().txtEdit().markedRanges();
    marks.removeIf([&](const MarkedRange &mark) { return mark.kind != kind->second; });
    return marks;
}

void expectMarked(Stage &stage, const Line &line)
{
    const qsizetype start = positionOf(stage, line.words[0]);
    const qsizetype length = positionOf(stage, line.words[1]);
    const QList<MarkedRange> marks = marksNamed(stage, line.words[2]);
    const bool found = std::any_of(marks.begin(), marks.end(), [&](const MarkedRange &mark) {
        const bool hasTip = line.words.size() < 4 || mark.tip == line.words[3];
        return mark.start == start && mark.length == length && hasTip;
    });
    if (!found)
        stage.referee.fail(QStringLiteral("%1 of %2 marked as %3").arg(line.words[0], line.words[1], line.words[2]),
                           told(marks));
}

void expectNotMarked(Stage &stage, const Line &line)
{
    const QList<MarkedRange> marks = marksNamed(stage, line.words[0]);
    if (!marks.isEmpty())
        stage.referee.fail(QStringLiteral("nothing marked as %1").arg(line.words[0]), told(marks));
}

constexpr Command commands[] = {
    {"expect-same", 4, 4, expectSame},
    {"expect-absent", 1, 1, expectAbsent},
    {"expect-pixel", 4, 4, expectPixel},
    {"expect-marked", 3, 4, expectMarked},
    {"expect-not-marked", 1, 1, expectNotMarked},
};
} // namespace

std::span<const Command> compareCommands()
{
    return commands;
}
} // namespace drive
