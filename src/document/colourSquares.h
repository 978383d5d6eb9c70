#pragma once

#include "document/afterChanges.h"

#include <QObject>

class Document;
class EditSurface;
struct MarkedRange;
struct ProgramContext;

/// Shows the colours in a document's source as small squares, where the user wants them; a click on one opens the
/// colour dialog, whose choice takes the value's place as one step of the history.
class ColourSquares final : public QObject
{
public:
    /// All have to outlive it; the surface is the document's.
    ColourSquares(Document &document, EditSurface &edit, ProgramContext &context);

    void bringUp() { m_afterChanges.soon(); } ///< the rules may be others
    void click(const MarkedRange &square);

private:
    bool isWanted() const;
    void show();

    Document &m_document;
    EditSurface &m_edit;
    ProgramContext &m_context;
    bool m_shown = false;
    AfterChanges m_afterChanges;
};

/// Opens the colour dialog for the colour at the active document's caret; nothing where there is none.
void ChangeColourAtCaret(ProgramContext &context);
