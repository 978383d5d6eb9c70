#include "files/printLayout.h"

#include "widgets/printedPage.h"

#include <algorithm>
#include <utility>

namespace
{
const QString AverageCharacters = QStringLiteral("aeiouAEIOU.");

/// Whether the text is too wide. Of a very long one, only a part many times as long as a line is measured.
bool isWider(QStringView text, qreal width, const std::function<qreal(const QString &)> &textWidth)
{
    constexpr qsizetype Long = 4096;
    return (text.size() > Long && textWidth(text.first(Long).toString()) > width) || textWidth(text.toString()) > width;
}

/// How many characters of the text fit into the width: what the average character promises, and fewer where these are
/// wider. At least one.
qsizetype fitting(QStringView text, qreal width, const std::function<qreal(const QString &)> &textWidth)
{
    const qreal average = textWidth(AverageCharacters) / static_cast<qreal>(AverageCharacters.size());
    qsizetype count = average > 0 ? static_cast<qsizetype>(width / average) : text.size();
    count = std::clamp<qsizetype>(count, 1, text.size());
    while (count > 1 && textWidth(text.first(count).toString()) > width)
        --count;
    return count;
}

/// Where the part that starts with `text` ends: at the last blank within the characters that fit, or just behind them.
qsizetype breakIn(QStringView text, qsizetype count)
{
    const qsizetype blank = text.first(std::min(count + 1, text.size())).lastIndexOf(u' ');
    const bool onlyIndentation = text.first(std::max<qsizetype>(blank, 0)).trimmed().isEmpty();
    return onlyIndentation ? count : blank;
}

/// The formats of a range of the source, as ranges counted from its start.
void collectFormats(const TextSurface &source, qsizetype start, qsizetype length, qsizetype origin,
                    QList<FormatRange> &ranges)
{
    const TextFormat format = source.formatOf(start, length);
    if (length > 1 && (!format.colour || !format.bold || !format.underline)) {
        collectFormats(source, start, length / 2, origin, ranges);
        collectFormats(source, start + length / 2, length - length / 2, origin, ranges);
        return;
    }
    if (!ranges.isEmpty() && ranges.last().format == format)
        ranges.last().length += length;
    else
        ranges.append({start - origin, length, format});
}

/// Lays out one source line after the other.
class Pages
{
public:
    Pages(const TextSurface &source, const Paper &paper, const PrintChoices &choices)
        : m_source(source),
          m_paper(paper),
          m_choices(choices),
          m_perPage(printed::linesOfPage(paper.size.height(), paper.lineHeight)),
          m_width(paper.size.width())
    {
        if (choices.lineNumbers)
            m_width -= printed::numberColumn(source.lineCount(), paper.textWidth(QStringLiteral("0")));
    }

    void add(const QString &line, int number, qsizetype start)
    {
        const bool tabs = line.contains(u'\t');
        const QString shown = tabs ? withoutTabs(line, m_choices.tabWidth) : line;
        const QList<qsizetype> places = tabs && m_choices.colours ? placesOf(line) : QList<qsizetype>();
        for (const LinePart &part : brokenLine(shown, m_width, m_paper.textWidth)) {
            PrintedLine onPaper{shown.mid(part.start, part.length), part.start == 0 ? number : 0};
            if (tabs && m_choices.colours && part.length > 0)
                addFormats(onPaper, part, places, start);
            else if (m_choices.colours && part.length > 0)
                collectFormats(m_source, start + part.start, part.length, start + part.start, onPaper.formats);
            place(onPaper);
        }
    }

    QList<PrintedPage> take() { return std::move(m_pages); }

private:
    /// Where each character of a line stands on paper, where its tabs are blanks, and where its end does.
    QList<qsizetype> placesOf(const QString &line) const
    {
        QList<qsizetype> places{0};
        for (const QChar character : line)
            places.append(places.last() +
                          (character == u'\t' ? m_choices.tabWidth - places.last() % m_choices.tabWidth : 1));
        return places;
    }

    /// The formats of a part of a line with tabs, which starts at `start` of the source.
    void addFormats(PrintedLine &onPaper, const LinePart &part, const QList<qsizetype> &places, qsizetype start) const
    {
        const auto characterAt = [&places](qsizetype place) {
            return std::upper_bound(places.begin(), places.end(), place) - places.begin() - 1;
        };
        const qsizetype first = characterAt(part.start);
        const qsizetype last = characterAt(part.start + part.length - 1);
        QList<FormatRange> ranges;
        collectFormats(m_source, start + first, last - first + 1, start, ranges);
        for (const FormatRange &range : std::as_const(ranges)) {
            const qsizetype from = std::max<qsizetype>(places[range.start], part.start);
            const qsizetype to = std::min<qsizetype>(places[range.start + range.length], part.start + part.length);
            onPaper.formats.append({from - part.start, to - from, range.format});
        }
    }

    void place(const PrintedLine &line)
    {
        if (m_pages.isEmpty() || m_pages.last().lines.size() >= m_perPage)
            m_pages.append(PrintedPage());
        m_pages.last().lines.append(line);
    }

    const TextSurface &m_source;
    const Paper &m_paper;
    PrintChoices m_choices;
    int m_perPage;
    qreal m_width;
    QList<PrintedPage> m_pages;
};
} // namespace

qsizetype CountDocumentLines(const QString &text)
{
    return text.count(u'\r') + 1;
}

QList<LinePart> brokenLine(const QString &line, qreal width, const std::function<qreal(const QString &)> &textWidth)
{
    QList<LinePart> parts;
    qsizetype start = 0;
    for (QStringView rest = line; isWider(rest, width, textWidth); rest = QStringView(line).sliced(start)) {
        const qsizetype length = breakIn(rest, fitting(rest, width, textWidth));
        if (length >= rest.size())
            break;
        parts.append({start, length});
        start += length;
        while (start < line.size() && line[start] == u' ')
            ++start;
        if (start == line.size()) // nothing but blanks behind the break
            return parts;
    }
    parts.append({start, line.size() - start});
    return parts;
}

QString withoutTabs(const QString &line, int tabWidth)
{
    QString shown;
    for (const QChar character : line) {
        if (character == u'\t')
            shown += QString(tabWidth - shown.size() % tabWidth, u' ');
        else
            shown += character;
    }
    return shown;
}

QList<PrintedPage> laidOutPages(const TextSurface &source, const Paper &paper, const PrintChoices &choices)
{
    const QString text = source.Text();
    Pages pages(source, paper, choices);
    qsizetype start = 0;
    for (int number = 1; start >= 0; ++number) {
        const qsizetype end = text.indexOf(u'\r', start);
        pages.add(text.mid(start, end < 0 ? -1 : end - start), number, start);
        start = end < 0 ? -1 : end + 2; // behind the carriage return and its line feed
    }
    return pages.take();
}
