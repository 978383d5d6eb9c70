#include "common/textReader.h"

#include "surface/editSurface.h"

#include <gtest/gtest.h>

namespace
{
/// A surface that tells how much of its text was looked at.
class WatchedSurface final : public EditSurface
{
public:
    QString Text() const override
    {
        ++wholeReads;
        return EditSurface::Text();
    }
    QString textPart(qsizetype start, qsizetype length) const override
    {
        ++reads;
        return EditSurface::textPart(start, length);
    }

    mutable int reads = 0;
    mutable int wholeReads = 0;
};

QString numbers(int lines)
{
    QString text;
    for (int i = 0; i < lines; ++i)
        text += QString::number(i) + QStringLiteral("\r\n");
    return text;
}

TEST(TextReader, GivesEveryCharacterFromWhereverItStarts)
{
    WatchedSurface surface;
    const QString text = numbers(1000);
    surface.setText(text);
    for (const qsizetype start : {qsizetype(1), text.size() / 2, text.size()}) {
        TextReader backwards(surface);
        for (qsizetype at = start; at >= 1; --at)
            ASSERT_EQ(backwards.at(at), text[at - 1]) << start << ' ' << at;
        TextReader forwards(surface);
        for (qsizetype at = start; at <= text.size(); ++at)
            ASSERT_EQ(forwards.at(at), text[at - 1]) << start << ' ' << at;
    }
}

TEST(TextReader, LooksAtAFewPiecesOnly)
{
    WatchedSurface surface;
    surface.setText(numbers(100'000));
    TextReader reader(surface);
    const qsizetype middle = reader.length() / 2;
    for (qsizetype at = middle; at > middle - 100; --at)
        reader.at(at);
    EXPECT_EQ(surface.reads, 1);
    for (qsizetype at = middle; at >= 1; --at)
        reader.at(at);
    EXPECT_LT(surface.reads, 20);
    EXPECT_EQ(surface.wholeReads, 0);
}

TEST(TextReader, CutsPartsToTheText)
{
    EditSurface surface;
    surface.setText(QStringLiteral("abc"));
    const TextReader reader(surface);
    EXPECT_EQ(reader.mid(1, 3), QStringLiteral("abc"));
    EXPECT_EQ(reader.mid(2, 9), QStringLiteral("bc"));
    EXPECT_EQ(reader.mid(4, 1), QString());
    EXPECT_EQ(reader.mid(2, 0), QString());
    EXPECT_EQ(reader.mid(2, -1), QString());
}
} // namespace
