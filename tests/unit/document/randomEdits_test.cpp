// Edits of every kind, at random: the history of edits leads back through all texts, and forward again.
#include "document/documentHistory.h"
#include "document/pairedNames.h"
#include "services/clock.h"
#include "surface/editSurface.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace
{
class SteppedClock final : public Clock
{
public:
    QDateTime now() override { return QDateTime::fromMSecsSinceEpoch(milliseconds); }
    qint64 milliseconds = 0;
};

class RandomEdits
{
public:
    explicit RandomEdits(unsigned seed) : m_random(seed)
    {
        m_edit.setText(QStringLiteral("<div>\r\n<p>one <b>two</b></p>\r\n</div>"));
        m_history = editStepHistory(m_edit, m_clock, true);
        QObject::connect(&m_edit, &EditSurface::SelChange, &m_edit, [this] { m_history->selectionMoved(); });
        QObject::connect(&m_edit, &EditSurface::Change, &m_edit, [this] { changed(); });
        m_trail.push_back(sum());
    }

    void step()
    {
        m_clock.milliseconds += below(20) == 0 ? 1500 : 80;
        select(below(4) == 0 ? 1 + below(12) : 0);
        switch (below(14)) {
        case 0:
            paste(QStringLiteral("pasted\r\n<i>text</i>"));
            break;
        case 1:
            commit();
            break;
        case 2:
            pass();
            break;
        case 3:
            reload();
            break;
        case 4:
            severalPlaces();
            break;
        case 5:
            rename();
            break;
        case 6:
            undoAndRedo();
            break;
        case 7:
            moveLines();
            break;
        case 8:
            remove();
            break;
        default:
            type();
        }
        endOfEvent();
        if (m_edit.textLength() > 4000)
            cut();
    }

    /// Back as far as it goes and forward to where it was. Every text on the way is one that there was, in that order.
    void goThrough()
    {
        std::vector<size_t> back{sum()};
        size_t seen = m_trail.size();
        while (m_history->possible().undo) {
            m_history->undo(false);
            back.push_back(sum());
            while (seen > 0 && m_trail[seen - 1] != back.back())
                --seen;
            ASSERT_GT(seen, 0U) << "a text that never was, " << back.size() << " steps back";
        }
        const bool all = back.size() <= EditHistory::MostSteps;
        EXPECT_TRUE(!all || back.back() == m_trail.front());
        for (size_t step = back.size() - 1; step > 0; --step) {
            ASSERT_TRUE(m_history->possible().redo);
            m_history->redo(false);
            ASSERT_EQ(sum(), back[step - 1]) << step;
        }
        EXPECT_FALSE(m_history->possible().redo);
        steps = back.size() - 1;
    }

    size_t steps = 0;

private:
    qsizetype below(qsizetype bound) { return static_cast<qsizetype>(m_random() % static_cast<quint64>(bound)); }

    void changed()
    {
        if (m_following)
            return;
        m_following = true;
        m_history->setLinked(m_pairs.follow(m_edit));
        m_following = false;
        m_history->changed(false);
    }

    void select(qsizetype length)
    {
        m_edit.setSelStart(below(m_edit.textLength() + 1));
        m_edit.setSelLength(length);
    }

    void key(const QString &text)
    {
        m_history->keyDown();
        m_history->setTyping(true);
        m_pairs.beforeKey(m_edit);
        m_edit.setSelText(text);
        m_history->setTyping(false);
    }

    void type()
    {
        const QString words = QStringLiteral("word of text <b>x</b> ");
        for (qsizetype left = 1 + below(8), at = below(words.size()); left > 0; --left, ++at) {
            key(words.mid(at % words.size(), 1));
            m_clock.milliseconds += 60;
            endOfEvent();
        }
    }

    void remove()
    {
        for (qsizetype left = 1 + below(5); left > 0; --left) {
            if (m_edit.SelLength() == 0)
                m_edit.setSelLength(1);
            key({});
            endOfEvent();
        }
    }

    void paste(const QString &text)
    {
        m_history->keyDown();
        m_edit.setSelText(text);
        m_history->take(selection());
    }

    void commit() // by an input method: several characters, and no key
    {
        m_history->setTyping(false);
        m_edit.setSelText(QStringLiteral("字字"));
    }

    void pass() // while the user can change nothing
    {
        m_edit.setLocked(true);
        for (int i = 0; i < 3; ++i) {
            select(2);
            m_edit.setSelText(QStringLiteral("  "));
        }
        m_edit.setLocked(false);
        m_history->take(selection());
    }

    void reload()
    {
        if (below(10) == 0)
            m_edit.setText(QStringLiteral("<ul>\r\n<li>new</li>\r\n</ul>"));
    }

    void severalPlaces()
    {
        const QString replaced = m_edit.Text().replace(QStringLiteral("o"), QStringLiteral("0"));
        m_edit.setSelStart(0);
        m_edit.setSelLength(m_edit.textLength());
        m_edit.setSelText(replaced);
    }

    void rename() // with the partner, which is a second place
    {
        const qsizetype bracket = m_edit.Text().indexOf(u'<', below(m_edit.textLength() + 1));
        if (bracket < 0)
            return;
        m_edit.setSelStart(bracket + 1);
        for (const char *letter : {"x", "y"}) {
            key(QString::fromLatin1(letter));
            endOfEvent();
        }
    }

    void moveLines()
    {
        m_history->keyDown();
        const QString text = m_edit.Text();
        const qsizetype end = text.indexOf(QStringLiteral("\r\n"));
        if (end < 0)
            return;
        m_edit.setSelStart(0);
        m_edit.setSelLength(end + 2);
        m_edit.setSelText({});
        m_edit.setSelStart(m_edit.textLength());
        m_edit.setSelText(QStringLiteral("\r\n") + text.first(end));
        m_history->take(selection());
    }

    void cut()
    {
        m_edit.setSelStart(500);
        m_edit.setSelLength(m_edit.textLength());
        paste({});
        endOfEvent();
    }

    void undoAndRedo()
    {
        for (qsizetype left = 1 + below(6); left > 0 && m_history->possible().undo; --left)
            m_history->undo(false);
        for (qsizetype left = below(4); left > 0 && m_history->possible().redo; --left)
            m_history->redo(false);
        const size_t text = sum();
        if (m_history->possible().redo) { // what comes next ends the branch
            m_edit.setSelText(QStringLiteral("#"));
            while (m_trail.size() > 1 && m_trail.back() != text)
                m_trail.pop_back();
        }
    }

    /// What the event loop does between two events: a step that is not typing ends there.
    void endOfEvent()
    {
        QCoreApplication::sendPostedEvents();
        if (m_trail.back() != sum())
            m_trail.push_back(sum());
    }

    /// Stands for the text.
    size_t sum() const { return qHash(m_edit.Text()); }
    TextSelection selection() const { return {m_edit.SelStart(), m_edit.SelLength()}; }

    std::mt19937_64 m_random;
    SteppedClock m_clock;
    EditSurface m_edit;
    std::unique_ptr<DocumentHistory> m_history;
    PairedNames m_pairs;
    std::vector<size_t> m_trail; ///< the texts of the branch, one for each event
    bool m_following = false;
};

int edits()
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue("TAGWRIGHTER_RANDOM_EDITS", &given);
    return given ? number : 4000;
}

TEST(RandomEditsOfEveryKind, LeadBackAndForwardAgain)
{
    RandomEdits random(20261122);
    for (int edit = 0; edit < edits(); ++edit)
        random.step();
    random.goThrough();
    EXPECT_GT(random.steps, static_cast<size_t>(std::min(edits() / 2, 15'000)));
}
} // namespace
