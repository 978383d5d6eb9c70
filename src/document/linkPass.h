#pragma once

#include "document/paintList.h"

#include <QString>

/// The colouring of link texts: one walk through the text for each prefix that a link can start with.
class LinkPass
{
public:
    /// What is handed in must outlive the pass.
    LinkPass(QStringView text, PaintList &paints) : m_text(text), m_paints(paints) {}

    /// Goes on to the next place at which pending events may run, and is true there; false once the pass is over.
    /// `cancelled` ends the walk of the prefix that is sought just now.
    bool advance(bool cancelled);

private:
    bool ColourLinkPrefix();
    bool toNextPlace();
    void toNextPrefix();

    QStringView m_text;
    PaintList &m_paints;
    bool m_started = false;
    std::size_t m_prefix = 0;
    qsizetype m_position = 1; // where the next link of this prefix is sought, from 1
};
