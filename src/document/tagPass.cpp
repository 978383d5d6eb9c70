#include "document/tagPass.h"

#include "common/text.h"

TagPass::TagPass(QStringView text, PaintList &paints, StructureTree &structure)
    : m_text(text),
      m_paints(paints),
      m_structure(structure),
      m_opening(text, u"<"),
      m_closing(text, u">"),
      m_secondOpening(text, u"<"),
      m_lineEndInTag(text, u"\r"),
      m_lineEnd(text, u"\r"),
      m_blank(text, u" "),
      m_commentEnd(text, u"-->")
{
}

bool TagPass::advance(bool cancelled, bool structureShown)
{
    switch (m_place) {
    case Place::Start:
        toNextTag();
        break;
    case Place::AtTag:
        if (cancelled || !findTag()) {
            m_place = Place::End;
        } else {
            colourTag(structureShown);
            toNextValue();
        }
        break;
    case Place::AtValue:
        colourValue();
        break;
    case Place::End:
        break;
    }
    return m_place != Place::End;
}

void TagPass::toNextTag()
{
    const bool wentBackToTheStart = m_pos == 0 && m_place != Place::Start;
    m_place = m_pos >= m_text.size() || wentBackToTheStart ? Place::End : Place::AtTag;
}

bool TagPass::findTag()
{
    m_lt = m_opening.Find(m_pos + 1) - 1;
    m_gt = m_closing.Find(m_pos + 1);
    if (m_lt == -1)
        return false;
    m_gt = repairedEnd(m_gt);
    return true;
}

// A second "<" ahead of the ">" means that the tag was never closed: it is taken to end at a line end or a blank. They
// are sought from where the pass stands and not from the tag, so that one ahead of the tag can win.
qsizetype TagPass::repairedEnd(qsizetype gt)
{
    const qsizetype second = gt <= m_lt ? 0 : m_secondOpening.Find(m_lt + 2);
    if (second == 0 || second > gt)
        return gt;
    if (m_lt == 0) // the cut that looks for the line end would have to start before the text
        return gt;
    const qsizetype lineEnd = m_lineEndInTag.Find(m_lt);
    if (lineEnd > 0 && lineEnd < gt)
        return m_lineEnd.Find(m_pos + 1);
    return m_blank.Find(m_pos + 1);
}

void TagPass::colourTag(bool structureShown)
{
    m_tag = m_gt < m_lt ? QStringView() : m_text.mid(m_lt, m_gt - m_lt);
    m_paints.add(m_lt, m_tag.size(), TagPaint);
    if (structureShown)
        m_structure.AddStructureNode(m_tag, m_lt, m_tag.size());
    m_pos = m_gt;
    colourAttributes();
    m_valueSearch = 1;
}

void TagPass::colourAttributes()
{
    const qsizetype blank = Find(m_tag, u" ").value_or(0);
    if (blank > 0)
        m_paints.add(m_lt + blank, m_gt - m_lt - blank - 1, AttributePaint);
}

void TagPass::toNextValue()
{
    m_place = Place::AtValue;
    if (m_valueSearch != m_tag.size())
        return;
    colourComment();
    toNextTag();
}

void TagPass::colourValue()
{
    const qsizetype equals = Find(m_tag, u"=", m_valueSearch).value_or(0);
    if (equals == 0) {
        colourComment();
        toNextTag();
        return;
    }
    const bool quoted = equals < m_tag.size() && m_tag[equals] == u'"';
    qsizetype end = Find(m_tag, quoted ? u"\"" : u" ", equals + 2).value_or(0);
    if (end == 0)
        end = m_tag.size() - 1;
    m_paints.add(m_lt + equals, end - equals, ValuePaint);
    m_valueSearch = m_valueSearch == m_tag.size() - 1 ? m_tag.size() : end;
    toNextValue();
}

void TagPass::colourComment()
{
    if (!m_tag.contains(u"<!-"))
        return;
    const qsizetype commentEnd = m_commentEnd.Find(m_lt + 1);
    if (commentEnd == 0) {
        m_paints.add(m_lt, m_gt - m_lt, CommentPaint);
    } else {
        m_paints.add(m_lt, commentEnd + 2 - m_lt, CommentPaint);
        m_pos = commentEnd + 2;
    }
}
