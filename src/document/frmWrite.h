#pragma once

#include "common/document.h"
#include "common/textSelection.h"
#include "document/pairedNames.h"
#include "document/typedColouring.h"
#include "forms/mdiForm.h"

#include <QPointer>
#include <memory>
#include <optional>

class CodeAssistant;
class ColourSquares;
class DocumentHistory;
class DocumentStructure;
class EditSurface;
class SlicedColouring;
class NoticeBar;
class PreviewCaret;
class QPoint;
class QUrl;
class TagMarks;
class Timer;
class ViewingPanes;
class WebBrowser;
struct SurfaceCharacter;
struct SurfaceHooks;
struct SurfaceKey;
struct SurfaceMouse;

/// A document window. The window is the document: it holds the source in its edit surface, and the document's
/// properties.
class frmWrite final : public MdiForm, public Document
{
    Q_OBJECT
    Q_PROPERTY(bool IsSplit MEMBER IsSplit)
public:
    explicit frmWrite(ProgramContext &context);
    ~frmWrite() override;

    QString documentCaption() const override { return Caption(); }
    void setDocumentCaption(const QString &caption) override { setCaption(caption); }
    TextSurface &txtEdit() override;
    bool unload() override { return Unload(); }
    void activate() override;
    void sendToBack() override { MdiForm::sendToBack(); }
    void DocSelUpdate() override;
    void DocSelUpdate(const QString &path) override;
    bool autoSaveEnabled() const override;
    void setAutoSaveEnabled(bool enabled) override;
    void CheckWordWrapSettings() override;
    QFont editorFont() const override;
    void applyEditorSettings() override;
    Browser *brwWebBrowser() override;
    void SplitEditingPreviewWindows() override;
    void RepositionEditingandPreviewWindows() override;

    void UndoRedoChange() override;
    void UndoRedoStep() override;
    void Undo() override;
    void Redo() override;
    UndoRedo IsUndoRedoPossible() const override;
    int UndoPosition() const override;
    void beginHistory() override;
    void IndentText(bool indent) override;
    void OptimiseSyntax() override;

    void UpdateLineInformation() override;
    void setRefreshEnabled(bool enabled) override;
    void ExternalCallColourCode() override;
    /// Colours the document and rebuilds the structure tree, whatever else is on show.
    void ExternalInitiateColourCodeAndDocStructure();

    /// A long pass over the text is running: changes are its own, and the line information stays as it is.
    bool ColouringActive = false;
    /// A key or a click asked the running pass to stop.
    bool CancelColouring = false;
    /// The preview stands below the source; otherwise one of the two fills the window.
    bool IsSplit = false;
    Timer &refreshTimer() { return *tmrRefresh; }

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void detachWindow() override;

private:
    void buildPanes();
    void buildBrowser();
    void buildNotices();
    void tellSetAside();
    void showNotice();
    void buildSurface();
    void buildTimers();
    void buildAssistant();
    SurfaceHooks surfaceHooks();
    void takeNumber();
    void enterSelector();
    void addTab(const QString &caption);

    void RecolourDocument();
    void tmrRefresh_Timer();
    void tmrUpdateLiveSplitPreview_Timer();
    void Form_Resize();
    void tabWindowDisplay_Click(int tab);
    void leadFocus();
    void brwWebBrowser_Navigation();
    bool maySendForm(const QUrl &where);
    void brwWebBrowser_OtherHosts(bool shown);
    void brwWebBrowser_StartAnew();
    void showOtherHosts(bool shown);
    void followHabits();
    void noteClean(std::optional<bool> clean);
    TextSelection selection() const;

    void txtEdit_Change();
    void txtEdit_KeyDown(SurfaceKey &key);
    void txtEdit_KeyPress(SurfaceCharacter &character);
    void txtEdit_KeyUp();
    void txtEdit_MouseMove(const SurfaceMouse &mouse);
    void txtEdit_MouseUp(const SurfaceMouse &mouse);
    void txtEdit_Click();
    void txtEdit_GotFocus();
    void txtEdit_LostFocus();
    void txtEdit_TextDropped(const QString &text);
    void txtEdit_FilesDropped(const QStringList &paths, qsizetype place);
    void openFiles(const QStringList &paths);
    void tmrLineCount_Timer();
    void showPopup(const QPoint &point);
    void setHoverLink(const QString &link);

    // The steps of a key that goes down, in their order. A key that a step has used up has the code 0 from there on.
    void stopColouring(const SurfaceKey &key);
    void colourInSlices();
    void assist(SurfaceKey &key);
    void closeAssistant(const SurfaceKey &key);
    void indentByTab(SurfaceKey &key);
    void breakLine(SurfaceKey &key);
    void recordStep(const SurfaceKey &key);
    void leaveTagBehind(QStringView typed);
    void leaveForPane(SurfaceKey &key);
    void openPopup(SurfaceKey &key);
    void enterNotice(SurfaceKey &key);
    void openHelp(SurfaceKey &key);
    void runEditingKey(SurfaceKey &key);
    bool startIndentedLine();
    bool replaceByLine();
    void fillWithThreeBlanks();
    void fillToNextStop();
    void indentBySteps(bool indent);
    void indentLines(bool indent);
    bool openAbbreviation();
    void writeEndTag();
    void expectName();
    bool followName();

    NoticeBar *m_noticeBar = nullptr;
    ViewingPanes *m_panes = nullptr;
    EditSurface *m_edit = nullptr;
    QPointer<SlicedColouring> m_slices; ///< of the surface that is there
    WebBrowser *m_browser = nullptr;
    PreviewCaret *m_previewCaret = nullptr;
    std::optional<bool> m_otherHostsTold; ///< what the line above the text has told of them last
    Timer *tmrRefresh = nullptr;
    Timer *tmrUpdateLiveSplitPreview = nullptr;
    Timer *tmrAutoSave = nullptr;
    Timer *tmrLineCount = nullptr;
    CodeAssistant *m_assistant = nullptr;
    std::unique_ptr<DocumentHistory> m_history;
    std::unique_ptr<TagMarks> m_tagMarks;
    DocumentStructure *m_structure = nullptr;
    ColourSquares *m_colourSquares = nullptr;
    bool m_keepsEdits = false; ///< the history is one of edits
    bool m_tagEnds = false;    ///< the next change is a ">" that was typed
    TypedColouring m_typed;
    PairedNames m_pairedNames;
    bool m_followsName = false;     ///< a tag's partner is taking its name: one change with the key's
    QString HoverLink;              ///< the address under the pointer while Ctrl is held; empty otherwise
    bool m_followsTarget = false;   ///< it is the target of a link, which may be a page of this machine
    qsizetype FirstVisibleLine = 0; ///< when the line information was last brought up to date
    bool SkipLineUpdate = false; ///< set by every key but Delete: the change it makes leaves the line information alone
    bool m_unloading = false;    ///< activation leaves this document out
    bool m_resized = false;      ///< the window has had its first resize
};
