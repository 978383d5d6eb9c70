#pragma once

#include "document/afterChanges.h"

#include <QObject>

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
    void bringUp() { m_afterChanges.soon(); }
    /// Another document is in front now.
    void leave();

private:
    bool isWanted() const;
    void show();

    Document &m_document;
    EditSurface &m_edit;
    ProgramContext &m_context;
    bool m_marked = false;
    AfterChanges m_afterChanges;
};
