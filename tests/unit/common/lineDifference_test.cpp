#include "common/lineDifference.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
QString text(const char *lines)
{
    return QString::fromUtf8(lines).replace(u'/', QStringLiteral("\r\n"));
}

struct Row {
    const char *from;
    const char *to;
    const char *told; // lines parted by "/"
};

TEST(LineDifference, TellsWhatWentAndWhatCame)
{
    const Row rows[] = {
        {"a/b/c", "a/b/c", ""},        {"", "", ""},
        {"a/b/c", "a/x/c", "- b/+ x"}, {"a/b/c", "a/c", "- b"},
        {"a/c", "a/b/c", "+ b"},       {"a", "b", "- a/+ b"},
        {"", "a", "- /+ a"},           {"a/b/c/d/e", "a/c/x/e", "- b/- d/+ x"},
        {"a/b", "a/b/", "+ "},
    };
    for (const Row &row : rows)
        EXPECT_EQ(lineDifference(text(row.from), text(row.to)).join(u'/'), QString::fromUtf8(row.told))
            << row.from << " > " << row.to;
}

TEST(LineDifference, TakesEveryKindOfBreakForOne)
{
    EXPECT_TRUE(lineDifference(QStringLiteral("a\nb\rc"), QStringLiteral("a\r\nb\r\nc")).isEmpty());
}

/// The lines that stay: the text's, without those that are told with that sign.
QStringList staying(QStringList lines, const QStringList &told, QChar sign)
{
    for (const QString &line : told)
        if (line.startsWith(sign))
            lines.removeOne(line.mid(2));
    lines.sort();
    return lines;
}

TEST(LineDifference, LeavesTheSameLinesOnBothSides)
{
    QRandomGenerator random(20261122);
    for (int i = 0; i < 2000; ++i) {
        QStringList from;
        QStringList to;
        for (int line = random.bounded(12); line > 0; --line)
            from << QString(QChar(u'a' + random.bounded(4)));
        for (int line = random.bounded(12); line > 0; --line)
            to << QString(QChar(u'a' + random.bounded(4)));
        const QStringList told = lineDifference(from.join(u'\n'), to.join(u'\n'));
        if (from.isEmpty() || to.isEmpty())
            continue; // no line and one empty line are the same text
        EXPECT_EQ(staying(from, told, u'-'), staying(to, told, u'+'))
            << qPrintable(from.join(u'/') + u'>' + to.join(u'/'));
    }
}

TEST(LineDifference, TellsTextsWithNothingInCommonAtOnce)
{
    QStringList from;
    QStringList to;
    for (int i = 0; i < 20000; ++i) {
        from << QStringLiteral("a%1").arg(i);
        to << QStringLiteral("b%1").arg(i);
    }
    EXPECT_EQ(lineDifference(from.join(u'\n'), to.join(u'\n')).size(), 40000);
}
} // namespace
