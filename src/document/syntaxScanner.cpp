#include "document/syntaxScanner.h"

#include "common/text.h"

SyntaxScanner::SyntaxScanner(const QString &text, const ColouringOptions &options)
    : m_text(text),
      m_options(options),
      m_paints(m_text.size()),
      m_structure(m_text),
      m_tags(m_text, m_paints, m_structure),
      m_links(m_text, m_paints)
{
}

bool SyntaxScanner::advance()
{
    if (m_stage == Stage::Start)
        start();
    if (m_stage == Stage::Tags && !m_tags.advance(m_cancelled, m_structureShown)) {
        colourAspCode();
        startLinks();
    }
    if (m_stage == Stage::Links && !m_links.advance(m_cancelled))
        finish();
    return m_stage != Stage::End;
}

void SyntaxScanner::start()
{
    m_stage = Stage::Tags;
    if (isColoured())
        m_paints.add(0, m_text.size(), DefaultPaint);
    if (isColoured() && m_options.ColourCodeSyntax)
        return;
    colourAspCode();
    startLinks();
}

// Runs whatever the settings, the size and the user say, and over all that the tags painted.
void SyntaxScanner::colourAspCode()
{
    qsizetype end = 1;
    while (true) {
        const qsizetype begin = Find(m_text, u"<%", end).value_or(0);
        end = Find(m_text, u"%>", begin).value_or(0);
        if (begin == 0 || end == 0)
            return;
        m_paints.add(begin - 1, end - begin + 2, AspCodePaint);
    }
}

void SyntaxScanner::startLinks()
{
    if (isColoured() && m_options.ColourCodeHyperlink)
        m_stage = Stage::Links;
    else
        finish();
}

void SyntaxScanner::finish()
{
    m_stage = Stage::End;
    if (!isColoured())
        m_paints.add(0, m_text.size(), LargeDocumentPaint);
    else if (!m_text.startsWith(u'<'))
        m_paints.add(0, 1, FirstCharacterPaint);
}
