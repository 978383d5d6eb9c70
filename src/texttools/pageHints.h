#pragma once

#include "texttools/pageAttributes.h"
#include "texttools/pageTree.h"

/// What is right and could be better: what the source alone lets one see.
class PageHints
{
public:
    /// All that is known of what has been read.
    struct State {
        html::Range link; ///< the start tag of the link that is open; length 0 for none
        bool linkFilled = false;
        bool pictureInLink = false;
        int heading = 0; ///< the level of the last heading; 0 before the first

        bool isSame(const State &older, const PageShift &shift) const
        {
            return linkFilled == older.linkFilled && pictureInLink == older.pictureInLink && heading == older.heading &&
                   shift.moved(older.link) == link;
        }
        void move(const PageShift &shift) { shift.move(link); }
    };

    PageHints(QStringView text, PageProblems &problems) : m_text(text), m_problems(problems) {}
    const State &state() const { return m_state; }
    void setState(const State &state) { m_state = state; }

    void startTag(const html::Token &token, const PageTree::Opened &opened, const PageAttributes &attributes);
    void endTag(const html::Token &token);
    void text() { m_state.linkFilled = true; }

private:
    void checkFrame(const html::Token &token, const PageAttributes &attributes);
    void checkHeading(const html::Token &token);
    void checkWords(const PageAttributes &attributes, const html::Token &token, const PageTree::Opened &opened);
    QStringView nameOf(const html::Token &token) const { return m_text.mid(token.name.start, token.name.length); }

    QStringView m_text;
    PageProblems &m_problems;
    State m_state;
};
