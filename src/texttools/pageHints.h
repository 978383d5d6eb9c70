#pragma once

#include "texttools/pageAttributes.h"
#include "texttools/pageTree.h"

/// What is right and could be better: what the source alone lets one see.
class PageHints
{
public:
    PageHints(QStringView text, PageProblems &problems) : m_text(text), m_problems(problems) {}

    void startTag(const html::Token &token, const PageTree::Opened &opened, const PageAttributes &attributes);
    void endTag(const html::Token &token);
    void text() { m_linkFilled = true; }

private:
    void checkHeading(const html::Token &token);
    void checkWords(const PageAttributes &attributes, const html::Token &token, const PageTree::Opened &opened);
    QStringView nameOf(const html::Token &token) const { return m_text.mid(token.name.start, token.name.length); }

    QStringView m_text;
    PageProblems &m_problems;
    html::Range m_link; ///< the start tag of the link that is open; length 0 for none
    bool m_linkFilled = false;
    bool m_pictureInLink = false;
    int m_heading = 0; ///< the level of the last heading; 0 before the first
};
