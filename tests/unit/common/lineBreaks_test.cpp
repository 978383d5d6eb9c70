#include "common/lineBreaks.h"

#include <QString>
#include <gtest/gtest.h>

namespace
{
struct Row {
    QString text;
    qsizetype crLf;
    qsizetype lf;
    qsizetype cr;
};
} // namespace

TEST(LineBreaks, AreCountedByTheirKinds)
{
    const Row rows[] = {
        {QString(), 0, 0, 0},
        {QStringLiteral("none"), 0, 0, 0},
        {QStringLiteral("\n"), 0, 1, 0},
        {QStringLiteral("\r"), 0, 0, 1},
        {QStringLiteral("\r\n"), 1, 0, 0},
        {QStringLiteral("\n\r"), 0, 1, 1},
        {QStringLiteral("\r\r\n\n"), 1, 1, 1},
        {QStringLiteral("a\r\nb\nc\rd\r\n"), 2, 1, 1},
    };
    for (const Row &row : rows) {
        const LineBreaks breaks = lineBreaksOf(row.text);
        EXPECT_EQ(breaks.crLf, row.crLf) << row.text.toUtf8().toPercentEncoding().constData();
        EXPECT_EQ(breaks.lf, row.lf) << row.text.toUtf8().toPercentEncoding().constData();
        EXPECT_EQ(breaks.cr, row.cr) << row.text.toUtf8().toPercentEncoding().constData();
        EXPECT_EQ(breaks.areAllCrLf(), row.lf + row.cr == 0);
    }
}

TEST(LineBreaks, AreCountedWhereverTheyStand)
{
    // Beside characters that differ from a break in one bit, in either half of them.
    const QString others =
        QStringLiteral("\t\b\u000B\u000C\u000E\u000F\u0002\u0005\u001A\u001D\u010A\u0D0D\u0A0A\u8000\uFFFD\u2028");
    for (qsizetype length = 1; length <= 40; ++length) {
        for (qsizetype place = 0; place < length; ++place) {
            QString text = others.repeated(3).first(length);
            EXPECT_EQ(nextBreak(text, place), length);
            text[place] = u'\n';
            EXPECT_EQ(lineBreaksOf(text).lf, 1) << length << ' ' << place;
            EXPECT_EQ(nextBreak(text, 0), place) << length;
            EXPECT_EQ(nextBreak(text, place), place) << length;
            EXPECT_EQ(nextBreak(text, place + 1), length) << length;
            text[place] = u'\r';
            EXPECT_EQ(lineBreaksOf(text).cr, 1) << length << ' ' << place;
            text.insert(place + 1, u'\n');
            const LineBreaks breaks = lineBreaksOf(text);
            EXPECT_EQ(breaks.crLf, 1) << length << ' ' << place;
            EXPECT_TRUE(breaks.areAllCrLf()) << length << ' ' << place;
        }
    }
}

TEST(LineBreaks, AreCountedInLongTexts)
{
    const LineBreaks feeds = lineBreaksOf(QString(200'000, u'\n'));
    EXPECT_EQ(feeds.lf, 200'000);
    EXPECT_EQ(feeds.crLf + feeds.cr, 0);
    // Pairs that stand across the places at which the counting starts anew, whatever those are.
    const LineBreaks pairs = lineBreaksOf(u'x' + QStringLiteral("\r\n").repeated(100'000));
    EXPECT_EQ(pairs.crLf, 100'000);
    EXPECT_TRUE(pairs.areAllCrLf());
}
