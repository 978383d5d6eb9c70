#include "document/syntaxTip.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

namespace
{
TEST(TipFormats, PickOutTheNameAndTheHintsOneToTheRight)
{
    const TipFormats formats = tipFormats(u"<img src=[URL] alt=[text]>");
    //                                      0123456789012345678901234
    EXPECT_EQ(formats.bold, (TextSelection{1, 3}));
    EXPECT_EQ(formats.italic, (QList<TextSelection>{{10, 5}, {20, 6}}));
}

TEST(TipFormats, TakeAllOfATextWithoutBlanksForItsName)
{
    EXPECT_EQ(tipFormats(u"<br>").bold, (TextSelection{1, 3}));
    EXPECT_EQ(tipFormats(u"<br>").italic, QList<TextSelection>());
}

TEST(TipFormats, PassOverAHintThatIsNotClosed)
{
    EXPECT_EQ(tipFormats(u"<a b=[x").italic, QList<TextSelection>());
    EXPECT_EQ(tipFormats(u"<a ]b=[x").italic, QList<TextSelection>()) << "a bracket before it does not close it";
}

class SyntaxTipTest : public testing::Test
{
protected:
    QTextCharFormat formatAt(int position)
    {
        QTextCursor cursor(tip.document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }

    QWidget window;
    SyntaxTip tip{&window};
};

TEST_F(SyntaxTipTest, ShowsTheFormats)
{
    tip.setSyntax(QStringLiteral("<a b=[x] c>"));
    //                            01234567890
    for (int at = 0; at < 11; ++at) {
        EXPECT_EQ(formatAt(at).fontWeight() == QFont::Bold, at == 1) << at;
        EXPECT_EQ(formatAt(at).fontItalic(), at >= 6 && at <= 8) << at;
    }
    EXPECT_EQ(tip.textCursor().position(), 0);
}

TEST_F(SyntaxTipTest, CutsItsFormatsToTheText)
{
    tip.setSyntax(QStringLiteral("<a b=[x]"));
    EXPECT_TRUE(formatAt(7).fontItalic());
    tip.setSyntax({});
    EXPECT_EQ(tip.toPlainText(), QString());
}

TEST_F(SyntaxTipTest, TellsAClickAndTheFocus)
{
    QSignalSpy clicks(&tip, &SyntaxTip::clicked);
    QSignalSpy focus(&tip, &SyntaxTip::gotFocus);
    window.show();
    window.activateWindow();
    QTest::mousePress(tip.viewport(), Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(focus.count(), 0);
    tip.setFocus();
    QApplication::processEvents();
    EXPECT_EQ(focus.count(), 1);
}
} // namespace
