#pragma once

#include "common/colouringOptions.h"
#include "common/habits.h"
#include "common/html/tokenizer.h"
#include "document/codeColours.h"

#include <QString>

/// The colours of a page, read by the standard's own rules, piece by piece: of any text, however long, and from any
/// place in it.
class PageColours
{
public:
    /// The rules say whether scripts and styles are coloured as what they are, and character references, too; else what
    /// stands in them is taken for markup.
    PageColours(const QString &text, const ColouringOptions &options, const Habits &habits);

    /// Goes to a place in front of `position` from which on, as far as can be told from what is nearby, the text can be
    /// read as from its start.
    void startNear(qsizetype position);

    /// Reads on to `until`, or a little further, and gives the formats of all that was read: they touch, do not overlap
    /// and leave no character out.
    QList<FormatRange> advance(qsizetype until) { return advance(until, m_at); }
    /// The same, but for formats in front of `shownFrom`.
    QList<FormatRange> advance(qsizetype until, qsizetype shownFrom);

    qsizetype place() const { return m_at; } ///< how far the text is read, from 0
    bool isAtEnd() const { return m_at >= m_text.size(); }
    const QString &text() const { return m_text; }

private:
    void step(qsizetype until);
    void readText(const html::Token &token, qsizetype until);
    void readCode(const html::Token &token, qsizetype until, bool isWhole);
    void readTag(const html::Token &token);
    void readComment(const html::Token &token);
    void paint(qsizetype from, qsizetype to, const Paint &look);
    void paintDeclaration(html::Range range);
    void paintReferences(qsizetype from, qsizetype to);
    void paintServerCode(qsizetype from, qsizetype to);
    QList<FormatRange> formats(qsizetype from) const;

    const QString m_text;
    const ColouringOptions m_options;
    const bool m_readsScripts;
    qsizetype m_at = 0;
    html::TextMode m_mode = html::TextMode::Markup;
    QString m_rawElement; ///< whose contents are being read; empty for none
    CodeColours m_code;
    bool m_seeksServerCode = true; ///< until one is found that does not end
    qsizetype m_serverEnd = 0;     ///< behind the "%>" of the server code painted last
    std::vector<PaintRange> m_paints;
};

/// The formats from the start of a line to another place of a text, as far as they can be told from what is nearby.
/// However long the text, or any one thing in it, no more is looked at.
QList<FormatRange> formatsNearby(const QString &text, qsizetype from, qsizetype to, const ColouringOptions &options,
                                 const Habits &habits);

/// The same for the whole text at once; nothing where scripts are taken for markup, which the pass over a whole text
/// has its own way of doing.
std::optional<QList<FormatRange>> pageFormats(const QString &text, const ColouringOptions &options,
                                              const Habits &habits);
