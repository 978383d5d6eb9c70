#pragma once

#include <QObject>
#include <QTimer>

class Document;
class EditSurface;
struct ProgramContext;

/// Keeps the structure pane and the marks of wrong elements up to date with one document's text, where the user edits
/// by that rule; otherwise the colouring pass fills the pane, and nothing is marked.
class DocumentStructure final : public QObject
{
public:
    /// Both have to outlive it; the surface is the document's.
    DocumentStructure(Document &document, EditSurface &edit, ProgramContext &context);

    /// The document came to the front, or the rules are others.
    void bringUp();
    /// Another document is in front now.
    void leave();

private:
    void noteChange();
    void show();

    Document &m_document;
    EditSurface &m_edit;
    ProgramContext &m_context;
    QTimer m_soon;         ///< until what was typed is shown
    bool m_queued = false; ///< it is shown at the end of the event
    bool m_marked = false;
};
