#include "document/structureTree.h"

#include "common/text.h"

#include <algorithm>
#include <array>

namespace
{
struct ElementRow {
    QLatin1String opening; // holds a "<" in front and nowhere else
    QLatin1String image;
    QLatin1String text;
};

// The first row of which the opening stands anywhere in the tag decides.
const std::array ElementRows = {
    ElementRow{QLatin1String("<!-"), QLatin1String("Comment"), QLatin1String("Comment")},
    ElementRow{QLatin1String("<b "), QLatin1String("FontBold"), QLatin1String("Bold")},
    ElementRow{QLatin1String("<b>"), QLatin1String("FontBold"), QLatin1String("Bold")},
    ElementRow{QLatin1String("<i "), QLatin1String("FontItalic"), QLatin1String("Italic")},
    ElementRow{QLatin1String("<i>"), QLatin1String("FontItalic"), QLatin1String("Italic")},
    ElementRow{QLatin1String("<u "), QLatin1String("FontUnderline"), QLatin1String("Underline")},
    ElementRow{QLatin1String("<u>"), QLatin1String("FontUnderline"), QLatin1String("Underline")},
    ElementRow{QLatin1String("<h1"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<h2"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<h3"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<h4"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<h5"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<h6"), QLatin1String("Heading"), QLatin1String("Heading ")},
    ElementRow{QLatin1String("<a "), QLatin1String("Hyperlink"), QLatin1String("Hyperlink")},
    ElementRow{QLatin1String("<a>"), QLatin1String("Hyperlink"), QLatin1String("Hyperlink")},
    ElementRow{QLatin1String("<img "), QLatin1String("Image"), QLatin1String("Image")},
    ElementRow{QLatin1String("<br "), QLatin1String("LineBreak"), QLatin1String("Line Break")},
    ElementRow{QLatin1String("<br>"), QLatin1String("LineBreak"), QLatin1String("Line Break")},
    ElementRow{QLatin1String("<hr "), QLatin1String("HorizontalRule"), QLatin1String("Horizontal Rule")},
    ElementRow{QLatin1String("<hr>"), QLatin1String("HorizontalRule"), QLatin1String("Horizontal Rule")},
    ElementRow{QLatin1String("<form "), QLatin1String("FormObject"), QLatin1String("Form Field")},
    ElementRow{QLatin1String("<form>"), QLatin1String("FormObject"), QLatin1String("Form Field")},
    ElementRow{QLatin1String("<table "), QLatin1String("Table"), QLatin1String("Table")},
    ElementRow{QLatin1String("<table>"), QLatin1String("Table"), QLatin1String("Table")},
};

struct AlignmentRow {
    QLatin1String word;
    QLatin1String image;
    QLatin1String text;
};

constexpr std::array AlignmentRows = {
    AlignmentRow{QLatin1String("right"), QLatin1String("AlignRight"), QLatin1String("Align Right")},
    AlignmentRow{QLatin1String("center"), QLatin1String("AlignCentre"), QLatin1String("Align Center")},
    AlignmentRow{QLatin1String("left"), QLatin1String("AlignLeft"), QLatin1String("Align Left")},
    AlignmentRow{QLatin1String("justify"), QLatin1String("AlignJustify"), QLatin1String("Align Justify")},
};

// What is sought in a tag starts with "<", of which a tag rarely holds a second one.
bool holds(QStringView lowered, QLatin1String opening)
{
    qsizetype i = lowered.indexOf(u'<');
    while (i >= 0 && !lowered.mid(i).startsWith(opening))
        i = lowered.indexOf(u'<', i + 1);
    return i >= 0;
}

bool isParagraphOrDivision(QStringView lowered)
{
    return holds(lowered, QLatin1String("<p ")) || holds(lowered, QLatin1String("<p>")) ||
           holds(lowered, QLatin1String("<div"));
}

const ElementRow *elementRow(QStringView lowered)
{
    const ElementRow *best = nullptr;
    for (qsizetype i = lowered.indexOf(u'<'); i >= 0; i = lowered.indexOf(u'<', i + 1)) {
        const ElementRow *end = best ? best : ElementRows.data() + ElementRows.size();
        const ElementRow *row = std::find_if(ElementRows.data(), end, [here = lowered.mid(i)](const ElementRow &each) {
            return here.startsWith(each.opening);
        });
        best = row == end ? best : row;
    }
    return best;
}

QString elementText(const ElementRow *row, QStringView tag, const QString &lowered)
{
    if (!row)
        return lowered;
    if (row->image == QLatin1String("Heading"))
        return row->text + tag.mid(2, 1).toString();
    return row->text;
}

} // namespace

QString StructureNode::key() const
{
    return QString::number(start) + u',' + QString::number(length) + u'*';
}

StructureTree::StructureTree(QStringView text)
    : m_paragraphEnd(text, u"</p>", NextOccurrence::Case::Lower),
      m_closedParagraph(text, u"<p>"),
      m_spacedParagraph(text, u"<p ")
{
}

void StructureTree::AddStructureNode(QStringView tag, qsizetype start, qsizetype length)
{
    const QString lowered = LCase(tag);
    if (isParagraphOrDivision(lowered)) {
        if (holds(lowered, QLatin1String("<p")))
            addParagraph(start, length);
        if (lowered.contains(QLatin1String("align=")))
            addAlignment(lowered, start);
        return;
    }
    const ElementRow *row = elementRow(lowered);
    add(start, length, elementText(row, tag, lowered), row ? row->image : QLatin1String("Element"));
}

// Whether a paragraph tag written in lower case stands in the document up to `end`, its last character from 1.
bool StructureTree::paragraphStandsBefore(qsizetype end)
{
    const auto standsBefore = [end](qsizetype place) { return place > 0 && place + 2 <= end; };
    return standsBefore(m_closedParagraph.Find(1)) || standsBefore(m_spacedParagraph.Find(1));
}

void StructureTree::addParagraph(qsizetype start, qsizetype length)
{
    const qsizetype end = m_paragraphEnd.Find(start + 2);
    if (end > 0 && paragraphStandsBefore(end))
        m_close = end;
    add(start, m_close < 1 ? length : m_close - start + 3, QStringLiteral("Paragraph"), QLatin1String("Paragraph"));
}

void StructureTree::addAlignment(QStringView lowered, qsizetype start)
{
    const qsizetype attribute = Find(lowered, u" align=").value_or(0);
    m_alignment = Mid(lowered, attribute, 15).value_or(m_alignment);
    const auto *const row = std::find_if(AlignmentRows.begin(), AlignmentRows.end(),
                                         [this](const AlignmentRow &each) { return m_alignment.contains(each.word); });
    if (row == AlignmentRows.end())
        return;
    const bool isParagraph = holds(lowered, QLatin1String("<p"));
    add(start + attribute, 6, row->text, row->image, isParagraph ? lastNode() : -1);
}

void StructureTree::add(qsizetype start, qsizetype length, const QString &text, QLatin1String image, qsizetype parent)
{
    if (m_keys.contains({start, length}))
        return;
    m_keys.insert({start, length});
    m_nodes.push_back({start, length, text, image, parent});
}

TextSelection selectionOfNode(QStringView key)
{
    const qsizetype comma = key.indexOf(u',');
    const qsizetype star = key.indexOf(u'*');
    return {key.left(comma).toLongLong(), key.mid(comma + 1, star - comma - 1).toLongLong()};
}
