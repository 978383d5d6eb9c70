#pragma once

#include "common/textSelection.h"
#include "document/syntaxScanner.h"

#include <QPointer>

class EditSurface;
class frmWrite;
struct ProgramContext;

/// One full colouring pass over a document window, with the structure tree built in the same walk. The scanner finds
/// what to paint; this holds the window still meanwhile, lets events run and puts everything back.
///
/// While events run anything may happen: the document may be closed, or another text be put in by a command. The pass
/// then leaves everything alone and, in the second case, lets the timer bring the next one.
class ColouringPass
{
public:
    ColouringPass(frmWrite &form, ProgramContext &context);
    void run();
    /// The structure tree alone, at once; the window is left as it is.
    void fillTree();

private:
    void begin();
    bool scan();
    bool fillsTree() const;
    void addNewNodes();
    void paint();
    QList<FormatRange> formats() const;
    void restoreView();
    void end();

    ProgramContext &m_context;
    QPointer<frmWrite> m_form;
    QPointer<EditSurface> m_edit;
    SyntaxScanner m_scanner;
    TextSelection m_selection;
    qsizetype m_topLine = 0;
    std::size_t m_nodesShown = 0;
    bool m_wasDirty = false;
    bool m_textChanged = false; ///< by a command that ran while events did
};
