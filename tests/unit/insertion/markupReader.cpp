#include "markupReader.h"

#include <QRandomGenerator>

namespace
{
class Reader
{
public:
    explicit Reader(const QString &text) : m_text(text) {}

    QList<ReadElement> elements()
    {
        QList<ReadElement> all;
        while (findTag())
            all.append(element());
        return all;
    }

private:
    bool findTag()
    {
        while (m_at < m_text.size() && !(m_text[m_at] == u'<' && at(m_at + 1).isLetter()))
            ++m_at;
        return m_at++ < m_text.size();
    }

    ReadElement element()
    {
        ReadElement element;
        element.name = word();
        while (m_at < m_text.size() && m_text[m_at] != u'>') {
            if (m_text[m_at].isSpace())
                ++m_at;
            else
                attribute(element);
        }
        element.end = ++m_at;
        return element;
    }

    void attribute(ReadElement &element)
    {
        const QString name = word();
        skipBlanks();
        if (at(m_at) != u'=') {
            element.attributes.insert(name, QString());
            return;
        }
        ++m_at;
        skipBlanks();
        element.attributes.insert(name, at(m_at) == u'"' ? quoted() : word());
    }

    void skipBlanks()
    {
        while (at(m_at).isSpace())
            ++m_at;
    }

    QString quoted()
    {
        const qsizetype start = ++m_at;
        while (m_at < m_text.size() && m_text[m_at] != u'"')
            ++m_at;
        return m_text.mid(start, m_at++ - start);
    }

    QString word()
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !m_text[m_at].isSpace() && m_text[m_at] != u'=' && m_text[m_at] != u'>')
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    QChar at(qsizetype place) const { return place < m_text.size() ? m_text[place] : QChar(); }

    const QString &m_text;
    qsizetype m_at = 0;
};
} // namespace

QList<ReadElement> elementsOf(const QString &text)
{
    return Reader(text).elements();
}

QString randomWords(QRandomGenerator &random)
{
    const QString letters = QStringLiteral("abc XYZ 019 -_.;:=&%'\u00E4\u4E2D");
    QString words;
    for (int length = random.bounded(12); length > 0; --length)
        words += letters[random.bounded(static_cast<int>(letters.size()))];
    return words;
}
