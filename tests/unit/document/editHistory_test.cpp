#include "document/editHistory.h"

#include <QRandomGenerator>
#include <QStringList>
#include <gtest/gtest.h>

namespace
{
using Kind = EditHistory::Kind;

/// A text with a caret whose changes are told as a document tells them.
class Page
{
public:
    explicit Page(const QString &text = {}) : m_text(text) { history.begin(m_text, {}, true); }

    void type(const QString &characters)
    {
        for (const QChar c : characters)
            put(QString(c), Kind::Typed);
    }
    void put(const QString &text, Kind kind)
    {
        m_text.replace(m_selection.start, m_selection.length, text);
        m_selection = {m_selection.start + text.size(), 0};
        history.changed(m_text, m_selection, kind, now);
    }
    void backspace()
    {
        m_text.remove(m_selection.start - 1, 1);
        m_selection = {m_selection.start - 1, 0};
        history.changed(m_text, m_selection, Kind::Typed, now);
    }
    void select(qsizetype start, qsizetype length = 0)
    {
        history.settle(); // as each key and click does
        m_selection = {start, length};
        history.selectionMoved(m_selection);
    }
    bool undo() { return restore(history.undo()); }
    bool redo() { return restore(history.redo()); }

    std::string text() const { return m_text.toStdString(); }
    const QString &string() const { return m_text; }
    TextSelection selection() const { return m_selection; }

    EditHistory history;
    qint64 now = 0;

private:
    bool restore(const std::optional<EditHistory::Restored> &step)
    {
        if (!step)
            return false;
        m_text.replace(step->start, step->length, step->text);
        m_selection = step->selection;
        EXPECT_EQ(m_text, history.text());
        return true;
    }

    QString m_text;
    TextSelection m_selection;
};

TEST(EditHistory, GoesBackWordByWord)
{
    Page page;
    page.type(QStringLiteral("one two  three"));
    EXPECT_TRUE(page.undo());
    EXPECT_EQ(page.text(), "one two");
    EXPECT_TRUE(page.undo());
    EXPECT_EQ(page.text(), "one");
    EXPECT_TRUE(page.undo());
    EXPECT_EQ(page.text(), "");
    EXPECT_FALSE(page.undo());
    for (const char *text : {"one", "one two", "one two  three"}) {
        EXPECT_TRUE(page.redo());
        EXPECT_EQ(page.text(), text);
    }
    EXPECT_FALSE(page.redo());
}

TEST(EditHistory, PartsTypingAtAPause)
{
    Page page;
    page.type(QStringLiteral("ab"));
    page.now += 999;
    page.type(QStringLiteral("c"));
    page.now += 1000;
    page.type(QStringLiteral("d"));
    EXPECT_TRUE(page.undo());
    EXPECT_EQ(page.text(), "abc");
    EXPECT_TRUE(page.undo());
    EXPECT_EQ(page.text(), "");
}

TEST(EditHistory, PartsTypingAtAnotherPlace)
{
    Page page;
    page.type(QStringLiteral("ab"));
    page.select(0);
    page.type(QStringLiteral("c"));
    EXPECT_EQ(page.text(), "cab");
    page.undo();
    EXPECT_EQ(page.text(), "ab");
    EXPECT_EQ(page.selection(), (TextSelection{0, 0}));
    // Away and back again is another place, too.
    page.redo();
    page.select(3);
    page.select(1);
    page.type(QStringLiteral("d"));
    page.undo();
    EXPECT_EQ(page.text(), "cab");
}

TEST(EditHistory, TakesWhatIsTakenBackTogether)
{
    Page page;
    page.type(QStringLiteral("abc"));
    page.backspace();
    page.backspace();
    page.undo();
    EXPECT_EQ(page.text(), "abc");
    page.undo();
    EXPECT_EQ(page.text(), "");
}

TEST(EditHistory, MakesOneStepOfWhatBelongsTogether)
{
    Page page(QStringLiteral("a b c"));
    for (const qsizetype place : {4, 2, 0}) {
        page.history.selectionMoved({place, 1});
        QString text = page.string();
        page.select(place, 1);
        page.put(QStringLiteral("xx"), Kind::Other);
        page.history.settle();
    }
    EXPECT_EQ(page.text(), "xx xx xx");
    page.undo();
    EXPECT_EQ(page.text(), "a xx xx"); // settled in between
    page.redo();
    page.put(QStringLiteral("1"), Kind::Other);
    page.put(QStringLiteral("2"), Kind::Other);
    page.undo();
    EXPECT_EQ(page.text(), "xx xx xx");
}

TEST(EditHistory, KeepsTypingApartFromTheRest)
{
    Page page;
    page.type(QStringLiteral("a"));
    page.put(QStringLiteral("<b></b>"), Kind::Other);
    page.type(QStringLiteral("c"));
    page.undo();
    EXPECT_EQ(page.text(), "a<b></b>");
    page.undo();
    EXPECT_EQ(page.text(), "a");
}

TEST(EditHistory, EndsTheRedoBranchAtANewEdit)
{
    Page page;
    page.type(QStringLiteral("a b"));
    page.undo();
    page.type(QStringLiteral("c"));
    EXPECT_FALSE(page.redo());
    EXPECT_EQ(page.text(), "ac");
    page.undo();
    EXPECT_EQ(page.text(), "a");
}

TEST(EditHistory, PutsCaretAndSelectionBack)
{
    Page page(QStringLiteral("one two three"));
    page.select(4, 3);
    page.put(QStringLiteral("2"), Kind::Other);
    page.select(0);
    page.undo();
    EXPECT_EQ(page.selection(), (TextSelection{4, 3}));
    page.redo();
    EXPECT_EQ(page.selection(), (TextSelection{5, 0}));
}

TEST(EditHistory, KnowsTheTextThatWasSaved)
{
    Page page;
    EXPECT_TRUE(page.history.isAtSaved());
    page.type(QStringLiteral("a"));
    EXPECT_FALSE(page.history.isAtSaved());
    page.history.noteSaved();
    page.type(QStringLiteral("b")); // a step of its own: the saved text lies in between
    page.undo();
    EXPECT_EQ(page.text(), "a");
    EXPECT_TRUE(page.history.isAtSaved());
    page.undo();
    EXPECT_FALSE(page.history.isAtSaved());
    page.type(QStringLiteral("c"));
    EXPECT_FALSE(page.history.isAtSaved()); // that text is gone with its branch
    page.undo();
    EXPECT_FALSE(page.history.isAtSaved());
}

TEST(EditHistory, PartsNoLineBreak)
{
    Page page(QStringLiteral("a\r\nb"));
    page.select(1);
    page.put(QStringLiteral("\r\n"), Kind::Other);
    const auto back = page.history.undo();
    ASSERT_TRUE(back);
    EXPECT_EQ(back->start, 1);
    EXPECT_EQ(back->length, 2);
    EXPECT_EQ(back->text, QString());
    Page other(QStringLiteral("\r\nx"));
    other.history.changed(QStringLiteral("\r\n\r\n"), {}, Kind::Other, 0);
    const auto step = other.history.undo();
    ASSERT_TRUE(step);
    EXPECT_EQ(step->start, 2);
    EXPECT_EQ(step->text, QStringLiteral("x"));
}

TEST(EditHistory, HoldsTenThousandStepsAndForgetsTheOldest)
{
    Page page;
    const int steps = 25'000;
    for (int i = 0; i < steps; ++i) {
        page.put(QStringLiteral("x"), Kind::Other);
        page.history.endStep();
    }
    std::size_t undone = 0;
    while (page.undo())
        ++undone;
    EXPECT_EQ(undone, EditHistory::MostSteps);
    EXPECT_GE(undone, 10'000U);
    EXPECT_EQ(page.string().size(), steps - static_cast<int>(undone));
}

/// Whatever was done, the way back and forward passes the same texts.
TEST(EditHistory, GoesBackAndForwardThroughAHundredThousandRandomEdits)
{
    QRandomGenerator random(20);
    const QStringList pieces{
        QStringLiteral("a"),   QStringLiteral("b"),        QStringLiteral(" "),      QStringLiteral("\r\n"),
        QStringLiteral("<p>"), QStringLiteral("</p>\r\n"), QStringLiteral("wörter"), QString()};
    const auto place = [&random](const QString &text, qsizetype from) {
        const qsizetype at = from + random.bounded(static_cast<int>(text.size() - from) + 1);
        const bool inBreak = at > 0 && at < text.size() && text[at - 1] == u'\r';
        return inBreak ? at - 1 : at;
    };
    for (int round = 0; round < 20; ++round) {
        Page page(QStringLiteral("<p>a</p>\r\n"));
        QStringList texts; // by position in the history
        for (int i = 0; i < 5000; ++i) {
            const int what = random.bounded(16);
            page.now += random.bounded(400);
            if (what < 2) {
                page.undo();
            } else if (what == 2) {
                page.redo();
            } else if (what < 5) {
                const qsizetype start = place(page.string(), 0);
                const qsizetype end =
                    what == 3 ? start : std::max(start, std::min(place(page.string(), start), start + 9));
                const bool inBreak = end > start && end < page.string().size() && page.string()[end - 1] == u'\r';
                page.select(start, (inBreak ? end - 1 : end) - start);
            } else if (what < 12) {
                page.type(QString(QChar(u'a' + random.bounded(2))));
            } else {
                page.put(pieces[random.bounded(static_cast<int>(pieces.size()))], Kind::Other);
                page.history.settle();
            }
        }
        const QString newest = [&page] {
            while (page.redo())
                ;
            return page.string();
        }();
        texts.prepend(newest);
        while (page.undo())
            texts.prepend(page.string());
        EXPECT_EQ(texts.constFirst().toStdString(), "<p>a</p>\r\n");
        for (const QString &text : std::as_const(texts)) {
            ASSERT_EQ(page.string(), text);
            if (text.constData() != texts.constLast().constData())
                page.redo();
        }
        EXPECT_EQ(page.string(), newest);
    }
}
} // namespace
