#include "document/assistantWords.h"

#include "plainEdit.h"
#include "randomTexts.h"
#include "surface/editSurface.h"

#include <gtest/gtest.h>

namespace
{
QString str(const char16_t *text)
{
    return QString::fromUtf16(text);
}

/// The word at the place of the "|" in a text.
QString wordAtMark(const char16_t *marked)
{
    QString text = str(marked);
    const qsizetype caret = text.indexOf(u'|');
    EditSurface surface;
    surface.setText(text.remove(caret, 1));
    surface.setSelStart(caret);
    return WordAtCaret(surface, surface.SelStart() + 1);
}

TEST(WordAtCaret, IsWhatStandsInFrontOfTheCaret)
{
    const struct {
        const char16_t *marked;
        const char16_t *word;
    } rows[] = {
        {u"|", u""},
        {u"<ta|", u"<ta"},
        {u"<ta|ble", u"<ta"}, // as far as the caret
        {u"a <ta|", u"<ta"},
        {u"a\r\n<ta|", u"<ta"},
        {u"a b\r\n<ta|", u"<ta"},
        {u"a\r\nb <ta|", u"<ta"},
        {u"a\r\n<ta|\r\nb", u"<ta"}, // the break behind the caret is not one before it
        {u"a|\r\nb", u"a"},
        {u"<b><ta|", u"<b><ta"}, // a word is parted by blanks and breaks alone
        {u"x\"y|", u"x\"y"},
        {u" a|", u"a"}, // a blank at the very start counts as none
        {u"a\tb|", u"a\tb"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(wordAtMark(row.marked), str(row.word)) << qPrintable(str(row.marked));
}

TEST(WordAtCaret, GoesBackOverABlankOrABracketToTheWordBefore)
{
    const struct {
        const char16_t *marked;
        const char16_t *word;
    } rows[] = {
        {u"<|", u"<"}, // nothing stands before it
        {u"<table |", u"<table"},
        {u"<table    |", u"<table"},
        {u"a <table |", u"<table"},
        {u"ab <|", u"ab"},
        {u"ab<|", u"ab"},
        {u"a<|", u"a"}, // the place behind a first character is its own
        {u"a |", u"a"},
        {u" |", u""},
        {u"  |", u""},
        {u"\r\n<|", u""}, // the line before is no word
        {u"ab\r\n<|", u""},
        {u"ab\r\n |", u""},
        {u"a\r\nb  |", u"b"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(wordAtMark(row.marked), str(row.word)) << qPrintable(str(row.marked));
}

TEST(WordAtCaret, IsNothingInFrontOfABlank)
{
    EXPECT_EQ(wordAtMark(u"<ta| b"), QString());
    EXPECT_EQ(wordAtMark(u"| b"), QString());
}

/// The rules step by step over the whole text.
QString referenceWord(const QString &text, int pos)
{
    if (text.isEmpty())
        return {};
    bool back = false;
    if (pos > 1 && (reference::mid(text, pos - 1, 1) == u"<" || reference::mid(text, pos - 1, 1) == u" ")) {
        back = true;
        pos -= 2;
        if (pos < 2)
            pos = 1;
        else
            while (pos >= 2 && reference::mid(text, pos, 1) == u" ")
                --pos;
    }
    const QString left = text.left(pos);
    const int blank = static_cast<int>(left.lastIndexOf(u' ')) + 1;
    const int line = static_cast<int>(left.lastIndexOf(QStringLiteral("\r\n"))) + 1;
    const int start = blank < line ? line + 2 : (blank == 1 ? 0 : blank) + 1;
    if (back)
        ++pos;
    QString word;
    attempt([&] { word = reference::mid(text, start, pos - start); });
    while (word.startsWith(u' '))
        word.remove(0, 1);
    while (word.endsWith(u' '))
        word.chop(1);
    return word;
}

TEST(WordAtCaret, HoldsToItsRulesAtEveryPlaceOfRandomTexts)
{
    RandomTexts random(7);
    const QStringList pieces{QStringLiteral("<"), QStringLiteral(">"), QStringLiteral("a"),  QStringLiteral("\""),
                             QStringLiteral(" "), QStringLiteral(" "), QStringLiteral("\t"), QStringLiteral("\r\n")};
    for (int round = 0; round < 300; ++round) {
        const QString text = random.text(pieces, 30);
        EditSurface surface;
        surface.setText(text);
        for (int caret = 0; caret <= text.size(); ++caret) {
            surface.setSelStart(caret);
            const auto pos = static_cast<int>(surface.SelStart()) + 1;
            ASSERT_EQ(WordAtCaret(surface, pos), referenceWord(text, pos)) << qPrintable(text) << " at " << caret;
        }
    }
}

TEST(WordAtCaret, FindsAFarBeginning)
{
    EditSurface surface;
    const QString far(300'000, u'x');
    surface.setText(QStringLiteral("a ") + far);
    EXPECT_EQ(WordAtCaret(surface, surface.textLength() + 1), far);
    surface.setText(QStringLiteral("word") + QString(300'000, u' '));
    EXPECT_EQ(WordAtCaret(surface, surface.textLength() + 1), QStringLiteral("word"));
}

TEST(WordAtCharacter, ReachesToQuotesBlanksAndBreaks)
{
    EditSurface surface;
    surface.setText(QStringLiteral("see \"http://a.b/<c>\" or\r\nwww.x.y"));
    //                              0123 4567890123456789 012 3 4567890
    EXPECT_EQ(WordAtCharacter(surface, 10), QStringLiteral("http://a.b/<c>"));
    EXPECT_EQ(WordAtCharacter(surface, 19), QStringLiteral("http://a.b/<c>"))
        << "the character before it is the word's";
    EXPECT_EQ(WordAtCharacter(surface, 5), QString()) << "the character before it is the quote";
    EXPECT_EQ(WordAtCharacter(surface, 2), QStringLiteral("see"));
    EXPECT_EQ(WordAtCharacter(surface, 27), QStringLiteral("www.x.y"));
    EXPECT_EQ(WordAtCharacter(surface, 32), QStringLiteral("www.x.y")) << "behind the last character";
    EXPECT_EQ(WordAtCharacter(surface, 0), QString());
    EXPECT_EQ(WordAtCharacter(surface, 99), QString());
}

TEST(LinkIn, StartsAtTheFirstPrefixOfTheList)
{
    const struct {
        const char16_t *word;
        const char16_t *link;
    } rows[] = {
        {u"http://a.b", u"http://a.b"},
        {u"HTTP://A.B", u"HTTP://A.B"},
        {u"href=http://a.b/c", u"http://a.b/c"},
        {u"http://www.a.b", u"www.a.b"}, // "www." is looked for before all others
        {u"https://a.b", u"https://a.b"},
        {u"mailto:ftp:x", u"mailto:ftp:x"},
        {u"ftp:mailto:x", u"mailto:x"},
        {u"(file:///x", u"file:///x"},
        {u"file:x", u""},
        {u"xNews:a", u"News:a"},
        {u"plain", u""},
        {u"", u""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(linkIn(str(row.word)), str(row.link));
}
} // namespace
