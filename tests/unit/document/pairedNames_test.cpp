#include "document/pairedNames.h"

#include "document/tagPairs.h"
#include "surface/editSurface.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    qsizetype start;
    qsizetype length;
    const char *typed;
    const char *result;
    qsizetype caret;
};

void type(PairedNames &names, EditSurface &edit, const QString &text)
{
    for (const QChar c : text) {
        names.beforeKey(edit);
        edit.setSelText(QString(c));
        names.follow(edit);
    }
}

TEST(PairedNames, FollowWhatIsTypedInEither)
{
    const Row rows[] = {
        {"<b>x</b>", 2, 0, "ig", "<big>x</big>", 4},
        {"<b>x</b>", 7, 0, "ig", "<big>x</big>", 11},
        {"<b>x</b>", 1, 1, "i", "<i>x</i>", 2},
        {"<b a=1>x</b>", 2, 0, "1", "<b1 a=1>x</b1>", 3},
        {"<b a=1>x</b>", 2, 0, " ", "<b  a=1>x</b>", 3},        // the name ends there
        {"<b><b>x</b></b>", 5, 0, "r", "<b><br>x</br></b>", 6}, // the inner one's
        {"<br>x", 3, 0, "x", "<brx>x", 4},                      // there is no partner
        {"<b>x</b>", 3, 0, "y", "<b>yx</b>", 4},                // that is text
        {"x</b>", 4, 0, "i", "x</bi>", 5},
        {"<script>'<b></b>'</script>", 11, 0, "i", "<script>'<bi></b>'</script>", 12}, // no tags there
    };
    for (const Row &row : rows) {
        EditSurface edit;
        edit.setText(QString::fromLatin1(row.text));
        edit.setSelStart(row.start);
        edit.setSelLength(row.length);
        PairedNames names;
        type(names, edit, QString::fromLatin1(row.typed));
        EXPECT_EQ(edit.Text(), QString::fromLatin1(row.result)) << row.text << ' ' << row.start;
        EXPECT_EQ(edit.SelStart(), row.caret) << row.text;
        EXPECT_EQ(edit.SelLength(), 0) << row.text;
    }
}

TEST(PairedNames, LeaveWhatNoKeyHasChanged)
{
    EditSurface edit;
    edit.setText(QStringLiteral("<b>x</b>"));
    PairedNames names;
    edit.setSelStart(2);
    type(names, edit, QStringLiteral("i"));
    edit.setSelText(QStringLiteral("g")); // by the program
    names.follow(edit);
    EXPECT_EQ(edit.Text(), QStringLiteral("<big>x</bi>"));
    type(names, edit, QStringLiteral("s")); // the two are no partners any more
    EXPECT_EQ(edit.Text(), QStringLiteral("<bigs>x</bi>"));
}

/// In a page of a megabyte, no key but the first one in a name looks through it.
TEST(PairedNames, AreQuickInALargePage)
{
    EditSurface edit;
    const QString rows = QStringLiteral("<p class=\"a\">one <b>two</b> three</p>\r\n").repeated(27'000);
    edit.setText(QStringLiteral("<div>") + rows + QStringLiteral("</div>"));
    edit.setSelStart(4);
    PairedNames names;
    QElapsedTimer clock;
    clock.start();
    names.beforeKey(edit);
    const qint64 first = clock.restart();
    edit.setSelText(QStringLiteral("s"));
    names.follow(edit);
    type(names, edit, QString(50, u'x'));
    EXPECT_TRUE(edit.Text().endsWith(QStringLiteral("</divs") + QString(50, u'x') + u'>'));
    RecordProperty("firstKeyMilliseconds", int(first));
    EXPECT_LT(clock.elapsed(), 51 * 10);
    edit.setSelStart(100'000);
    clock.restart();
    for (int i = 0; i < 1000; ++i)
        names.beforeKey(edit);
    EXPECT_LT(clock.elapsed(), 100); // text between tags is told by what stands around the caret
}

TEST(ElementAround, IsTheInnermostWithBothTags)
{
    const QString text = QStringLiteral("<div><br><p>one<b>two</b></div>");
    EXPECT_EQ(elementAround(text, 19)->tag.name, QStringLiteral("b"));
    EXPECT_EQ(elementAround(text, 13)->tag.name, QStringLiteral("div")); // the paragraph has no end tag
    EXPECT_FALSE(elementAround(QStringLiteral("one"), 1));
}
} // namespace
