#pragma once

#include "common/colouringOptions.h"
#include "document/linkPass.h"
#include "document/paintList.h"
#include "document/structureTree.h"
#include "document/tagPass.h"

#include <QString>

/// From this length on, in characters, a document is not coloured.
inline constexpr qsizetype UncolouredLength = 64000;

/// The full colouring pass over a text, apart from any window: it turns the text into paints and structure nodes, and
/// stops wherever pending events may run.
///
///     SyntaxScanner scanner(text, options);
///     while (scanner.advance()) {
///         ... let events run, then pass on what they brought: scanner.cancel(), scanner.setStructureShown(...)
///     }
///     surface.setFormats(scanner.paints().formats(options));
class SyntaxScanner
{
public:
    SyntaxScanner(const QString &text, const ColouringOptions &options);
    SyntaxScanner(const SyntaxScanner &) = delete;
    SyntaxScanner &operator=(const SyntaxScanner &) = delete;

    /// Goes on to the next place at which pending events may run, and is true there: each tag, each value and each link
    /// is one. False once the pass is over.
    bool advance();

    /// Lets the pass end early: no further tag and no further link is coloured; the rest of the pass runs as ever.
    void cancel() { m_cancelled = true; }

    /// Whether the tags from here on make nodes; not until told so.
    void setStructureShown(bool shown) { m_structureShown = shown; }

    /// What has been painted so far. A text that is coloured is painted in the default format first, so that each of
    /// its characters has a whole format. Of one that is too large the paints leave alone what is bold.
    const PaintList &paints() const { return m_paints; }
    const StructureTree &structure() const { return m_structure; }

private:
    enum class Stage { Start, Tags, Links, End };

    bool isColoured() const { return m_text.size() < UncolouredLength; }
    void start();
    void colourAspCode();
    void startLinks();
    void finish();

    const QString m_text;
    const ColouringOptions m_options;
    PaintList m_paints;
    StructureTree m_structure;
    TagPass m_tags;
    LinkPass m_links;
    Stage m_stage = Stage::Start;
    bool m_cancelled = false;
    bool m_structureShown = false;
};
