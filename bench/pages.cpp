#include "pages.h"

#include <QRandomGenerator>
#include <QStringList>
#include <algorithm>

namespace
{
const QLatin1String crLf("\r\n");

/// Writes a page line by line, indented by its nesting.
class PageWriter
{
public:
    PageWriter(qsizetype characters, quint32 seed) : m_random(seed), m_characters(characters)
    {
        m_text.reserve(characters);
    }

    QString write()
    {
        line(QStringLiteral("<html>"));
        line(QStringLiteral("<head><title>") + words(4) + QStringLiteral("</title></head>"));
        line(QStringLiteral("<body bgcolor=\"#ffffff\" text=#000000>"));
        while (m_text.size() < m_characters - longestPart)
            part();
        while (!m_open.isEmpty())
            close();
        fill();
        return m_text;
    }

private:
    static constexpr qsizetype longestPart = 450;
    static constexpr qsizetype deepest = 12;

    void line(const QString &text) { m_text += QString(2 * m_open.size(), u' ') + text + crLf; }
    int number(int below) { return static_cast<int>(m_random.bounded(below)); }

    QString words(int count)
    {
        static const QStringList some = QStringLiteral("harbour light a of the ledger &amp; caf\u00E9 winter to in "
                                                       "morning, paper route &nbsp; northern stone is river. and table")
                                            .split(u' ');
        QStringList chosen;
        for (int i = 0; i < count; ++i)
            chosen << some[number(static_cast<int>(some.size()))];
        return chosen.join(u' ');
    }

    void part()
    {
        switch (number(12)) {
        case 0:
        case 1:
            return open();
        case 2:
        case 3:
            return m_open.isEmpty() ? open() : close();
        case 4:
            return table();
        case 5:
            return line(QStringLiteral("<!-- ") + words(3 + number(6)) + QStringLiteral(" > kept -->"));
        case 6:
            return link();
        case 7:
            return number(4) == 0 ? script() : style();
        default:
            return line(QStringLiteral("<p>") + words(6 + number(8)) + QStringLiteral(" <b>") + words(2) +
                        QStringLiteral("</b> ") + words(3) + QStringLiteral("</p>"));
        }
    }

    void open()
    {
        if (m_open.size() >= deepest)
            return close();
        const QString name = number(3) ? QStringLiteral("div") : QStringLiteral("span");
        line(QStringLiteral("<%1 class=\"box%2\" id=part%3>").arg(name).arg(number(9)).arg(number(9999)));
        m_open << name;
    }

    void close()
    {
        const QString name = m_open.takeLast();
        line(QStringLiteral("</%1>").arg(name));
    }

    void table()
    {
        line(QStringLiteral("<table border=\"0\" cellpadding=%1 width=\"100%\"><tr>").arg(number(9)));
        for (int i = 2 + number(3); i > 0; --i)
            line(QStringLiteral("<td align=\"left\" nowrap>%1</td>").arg(words(2)));
        line(QStringLiteral("</tr></table>"));
    }

    void link()
    {
        line(QStringLiteral("<a href=\"http://www.example.org/%1/page%2.htm\">%3</a> mailto:desk%1@example.org")
                 .arg(number(99))
                 .arg(number(999))
                 .arg(words(2)));
    }

    void script()
    {
        line(QStringLiteral("<script type=\"text/javascript\">"));
        line(QStringLiteral("for (var i = 0; i < %1; i++) { total += i > 3 ? \"%2\" : '<br>'; }")
                 .arg(number(99))
                 .arg(words(1)));
        line(QStringLiteral("</script>"));
    }

    void style()
    {
        line(QStringLiteral("<style> .box%1 { margin: %2px; color: #%3; } </style>")
                 .arg(number(9))
                 .arg(number(40))
                 .arg(number(0xFFFFFF), 6, 16, QLatin1Char('0')));
    }

    /// Brings the text to its length by a comment, and ends it.
    void fill()
    {
        const QString end = QStringLiteral("--></body></html>");
        m_text += QStringLiteral("<!--");
        m_text += QString(std::max(m_characters - m_text.size() - end.size(), qsizetype(0)), u'.') + end;
    }

    QRandomGenerator m_random;
    qsizetype m_characters;
    QString m_text;
    QStringList m_open;
};
} // namespace

QString page(qsizetype characters, quint32 seed)
{
    return PageWriter(characters, seed).write();
}
