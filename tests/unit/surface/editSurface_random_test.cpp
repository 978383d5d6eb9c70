// The surface beside a plain string that is edited the same way, over thousands of steps.
#include "surfaceFixture.h"

#include <QRandomGenerator>

namespace
{
/// What the surface is to hold: a string, a caret or selection in it, and the operations on both.
struct Model {
    QString text;
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype snapped(qsizetype place) const
    {
        const bool inBreak = place > 0 && place < text.size() && text[place] == u'\n';
        const bool inPair = place > 0 && place < text.size() && text[place].isLowSurrogate();
        return inBreak || inPair ? place - 1 : place;
    }
    void select(qsizetype from, qsizetype count)
    {
        start = snapped(std::min(from, text.size()));
        length = snapped(std::min(start + count, text.size())) - start;
    }
    void put(QString what)
    {
        what.replace(u'\r', QStringLiteral("\r\n"));
        text.replace(start, length, what);
        start += what.size();
        length = 0;
    }
    void erase(qsizetype from, qsizetype to)
    {
        if (length > 0)
            return put(QString());
        text.remove(from, to - from);
        start = from;
    }
    void backspace() { erase(start - std::min(start, widthAt(start - 2)), start); }
    void deleteNext() { erase(start, start + std::min(text.size() - start, widthAt(start))); }

private:
    /// How many characters go as one: two for a break or a pair whose first one is at `place`.
    qsizetype widthAt(qsizetype place) const
    {
        const QStringView two = QStringView(text).mid(std::max(place, qsizetype(0)), 2);
        return place >= 0 && (two == u"\r\n" || two == u"\U0001F600") ? 2 : 1;
    }
};

class RandomSteps : public EditSurfaceTest
{
protected:
    QString piece()
    {
        static const QStringList pieces = {
            QStringLiteral("a"),
            QStringLiteral("word "),
            QStringLiteral("\t"),
            QStringLiteral("\r"),
            QStringLiteral("\r\r<b>"),
            QStringLiteral("\u00A0"),
            QStringLiteral("\u2028"),
            QStringLiteral("\u2029x"),
            QStringLiteral("\uFDD0"),
            QStringLiteral("\u2424"),
            QString(QChar(0)),
            QStringLiteral("\U0001F600"),
            QString(),
            QStringLiteral("\uFDD1\u2028\u2028"),
        };
        return pieces[m_random.bounded(static_cast<int>(pieces.size()))];
    }
    qsizetype place() { return m_model.snapped(m_random.bounded(static_cast<int>(m_model.text.size()) + 1)); }

    void setAnew()
    {
        QString text;
        for (int i = m_random.bounded(60); i > 0; --i)
            text += piece();
        surface.setText(text);
        m_model = Model();
        m_model.put(text);
        m_model.select(0, 0);
    }
    void selectAnywhere()
    {
        const qsizetype start = place();
        m_model.select(start, m_random.bounded(2) ? 0 : m_random.bounded(30));
        select(start, m_model.length);
    }
    void write()
    {
        const QString text = piece();
        surface.setSelText(text);
        m_model.put(text);
    }
    void typeCharacter()
    {
        static const QString typed = QStringLiteral("ab<> \u00A0\u2028\u2424\r");
        const QChar c = typed[m_random.bounded(static_cast<int>(typed.size()))];
        sendCharacter(c);
        m_model.put(c);
    }
    void erase()
    {
        if (m_random.bounded(2)) {
            sendKey(Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b"));
            m_model.backspace();
        } else {
            sendKey(Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
            m_model.deleteNext();
        }
    }
    void colour()
    {
        const auto value = static_cast<ColourValue>(m_random.bounded(3)) * 0x1122U;
        surface.setFormats({{place(), m_random.bounded(40), {value, m_random.bounded(2) == 1, {}}},
                            {place(), m_random.bounded(5), {{}, {}, m_random.bounded(2) == 1}}});
    }
    void step(int number)
    {
        if (number % 400 == 0)
            return setAnew();
        const int kind = m_random.bounded(10);
        kind < 3 ? selectAnywhere() : kind < 5 ? write() : kind < 7 ? typeCharacter() : kind < 9 ? erase() : colour();
    }

    QRandomGenerator m_random{20260301};
    Model m_model;
};

TEST_F(RandomSteps, TheSurfaceAgreesWithAPlainString)
{
    QSignalSpy changes(&surface, &EditSurface::Change);
    for (int number = 0; number < 8000; ++number) {
        const QString before = surface.Text();
        changes.clear();
        step(number);
        ASSERT_EQ(surface.textLength(), m_model.text.size()) << number;
        ASSERT_EQ(selection(), Selection(m_model.start, m_model.length)) << number;
        ASSERT_EQ(surface.lineCount(), m_model.text.count(u'\n') + 1) << number;
        ASSERT_EQ(surface.SelText(), m_model.text.mid(m_model.start, m_model.length)) << number;
        if (m_random.bounded(3) == 0) {
            ASSERT_EQ(surface.Text(), m_model.text) << number;
        }
        if (before != m_model.text) {
            ASSERT_EQ(changes.count(), 1) << number;
        }
    }
    EXPECT_EQ(surface.Text(), m_model.text);
}
} // namespace
