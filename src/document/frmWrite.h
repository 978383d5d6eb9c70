#pragma once

#include "common/document.h"
#include "document/typedColouring.h"
#include "document/undoHistory.h"
#include "platform/mdiForm.h"

class EditSurface;
class QPoint;
class Timer;
struct SurfaceCharacter;
struct SurfaceKey;
struct SurfaceMouse;

/// A document window. The window is the document: it holds the source in its edit surface, and the document's
/// properties.
class frmWrite final : public MdiForm, public Document
{
    Q_OBJECT
public:
    explicit frmWrite(ProgramContext &context);

    QString documentCaption() const override { return Caption(); }
    void setDocumentCaption(const QString &caption) override { setCaption(caption); }
    TextSurface &txtEdit() override;
    bool unload() override { return Unload(); }
    void activate() override;
    void DocSelUpdate() override;
    void DocSelUpdate(const QString &path) override;
    bool autoSaveEnabled() const override;
    void setAutoSaveEnabled(bool enabled) override;
    void CheckWordWrapSettings() override;

    void UndoRedoChange() override;
    void Undo() override;
    void Redo() override;
    UndoRedo IsUndoRedoPossible() const override;
    int UndoPosition() const override { return m_history.UndoPosition(); }
    void IndentText(bool indent) override;
    void OptimiseSyntax() override;

    void UpdateLineInformation() override;
    void ExternalCallColourCode() override;
    /// Colours the document and rebuilds the structure tree, whatever else is on show.
    void ExternalInitiateColourCodeAndDocStructure();

    /// A long pass over the text is running: changes are its own, and the line information stays as it is.
    bool ColouringActive = false;
    /// A key or a click asked the running pass to stop.
    bool CancelColouring = false;
    Timer &refreshTimer() { return *tmrRefresh; }

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void detachWindow() override;

private:
    void buildSurface();
    void buildTimers();
    void takeNumber();
    void enterSelector();
    void addTab(const QString &caption);

    void RecolourDocument();
    void tmrRefresh_Timer();
    void restore(const UndoSnapshot &snapshot);
    void take(const TextSelection &selection);

    void txtEdit_Change();
    void txtEdit_KeyDown(SurfaceKey &key);
    void txtEdit_MouseUp(SurfaceMouse &mouse);
    void showPopup(const QPoint &point);
    void txtEdit_KeyPress(SurfaceCharacter &character);
    void txtEdit_GotFocus();
    void txtEdit_LostFocus();
    bool leavesForPane(const SurfaceKey &key);
    bool opensPopup(const SurfaceKey &key);
    bool indentByTab(const SurfaceKey &key);
    bool startIndentedLine();
    bool runEditingKey(int key);

    EditSurface *m_edit = nullptr;
    Timer *tmrRefresh = nullptr;
    Timer *tmrAutoSave = nullptr;
    UndoHistory m_history;
    TypedColouring m_typed;
    bool m_unloading = false; ///< activation leaves this document out
};
