#include "document/frmWrite.h"

#include "common/fileCommands.h"
#include "common/fileFormatText.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "common/unsavedText.h"
#include "document/colourSquares.h"
#include "document/documentHistory.h"
#include "document/documentStructure.h"
#include "document/tagMarks.h"
#include "document/viewingPanes.h"
#include "services/editorSettings.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "surface/editSurface.h"

#include <QVBoxLayout>

namespace
{
constexpr int FirstRefreshMilliseconds =
    1; ///< a new window is coloured at once; the first pass sets the usual interval
constexpr int AutoSaveMilliseconds = 60000;
constexpr int LivePreviewMilliseconds = 500;
} // namespace

frmWrite::frmWrite(ProgramContext &context) : MdiForm(context, QStringLiteral("frmWrite")) {}

frmWrite::~frmWrite() = default;

TextSurface &frmWrite::txtEdit()
{
    return *m_edit;
}

void frmWrite::Form_Load()
{
    buildPanes();
    buildTimers();
    buildAssistant();
    takeNumber();
    if (frmMdi().OpenDocumentCount == 1)
        frmMdi().SetDocumentControlsEnabled(true);
    CheckWordWrapSettings();
    DocSelUpdate();
    enterSelector();
    frmMdi().SetStatusReady();
    tmrAutoSave->setEnabled(settings::isOn(services().settings, settings::AutoSaveUse));
    SplitEditingPreviewWindows();
    RepositionEditingandPreviewWindows();
    UndoRedoChange();
}

void frmWrite::buildSurface()
{
    m_edit = new EditSurface;
    m_edit->setObjectName(QStringLiteral("txtEdit"));
    m_edit->setAccessibleName(QStringLiteral("Source"));
    m_edit->setFrameStyle(QFrame::NoFrame);
    m_panes->pane(0)->layout()->addWidget(m_edit);
    m_edit->setContextMenuPolicy(Qt::NoContextMenu);
    connect(m_edit, &EditSurface::Change, this, &frmWrite::txtEdit_Change);
    connect(m_edit, &EditSurface::gotFocus, this, &frmWrite::txtEdit_GotFocus);
    connect(m_edit, &EditSurface::lostFocus, this, &frmWrite::txtEdit_LostFocus);
    connect(m_edit, &EditSurface::SelChange, this, [this] { m_history->selectionMoved(); });
    m_tagMarks =
        std::make_unique<TagMarks>(*m_edit, services().timers, [this] { return context().state.habits.HandsMatch; });
    connect(m_edit, &EditSurface::SelChange, this, [this] { m_tagMarks->follow(); });
    connect(m_edit, &EditSurface::Change, this, [this] { m_tagMarks->textChanged(); });
    m_edit->setHooks(surfaceHooks());
    m_structure = new DocumentStructure(*this, *m_edit, context());
    m_structure->setParent(m_edit);
    m_colourSquares = new ColourSquares(*this, *m_edit, context());
    m_colourSquares->setParent(m_edit);
    applyEditorSettings();
}

void frmWrite::buildTimers()
{
    tmrRefresh = new Timer(
        services().timers, QStringLiteral("tmrRefresh"), [this] { tmrRefresh_Timer(); }, window());
    tmrRefresh->setInterval(FirstRefreshMilliseconds);
    const auto autoSave = [this] {
        if (context().files)
            context().files->autoSaveTick(*this);
    };
    tmrAutoSave = new Timer(services().timers, QStringLiteral("tmrAutoSave"), autoSave, window());
    tmrAutoSave->setInterval(AutoSaveMilliseconds);
    const auto preview = [this] { tmrUpdateLiveSplitPreview_Timer(); };
    tmrUpdateLiveSplitPreview =
        new Timer(services().timers, QStringLiteral("tmrUpdateLiveSplitPreview"), preview, window());
    tmrUpdateLiveSplitPreview->setInterval(LivePreviewMilliseconds);
}

void frmWrite::takeNumber()
{
    ++frmMdi().OpenDocumentCount;
    ++frmMdi().NextDocumentNumber;
    setCaption(QStringLiteral("Untitled") + QString::number(frmMdi().NextDocumentNumber));
    DocNumber = frmMdi().NextDocumentNumber;
}

void frmWrite::enterSelector()
{
    frmMdi().showDocumentTabs(true);
    if (settings::read(services().settings, settings::DocSelBarVis) == u"True")
        frmMdi().showDocumentSelector(true);
}

void frmWrite::DocSelUpdate()
{
    addTab(Caption());
}

void frmWrite::DocSelUpdate(const QString &path)
{
    if (path.isEmpty()) {
        DocSelUpdate();
        return;
    }
    frmMdi().removeDocumentTab(QString::number(DocNumber) + QStringLiteral("Key"));
    addTab(FileNameOnly(path));
}

void frmWrite::addTab(const QString &caption)
{
    DocKeyDescription = QString::number(DocNumber) + QStringLiteral("Key");
    frmMdi().addDocumentTab(DocKeyDescription, caption);
    if (frmMdi().activeDocument() == this)
        frmMdi().selectDocumentTab(DocKeyDescription);
}

QFont frmWrite::editorFont() const
{
    return m_edit->font();
}

void frmWrite::applyEditorSettings()
{
    m_edit->setFont(::editorFont(services().settings));
    m_edit->setTabWidth(tabWidth(services().settings));
    followHabits();
    m_tagMarks->follow();
    m_structure->bringUp();
    m_colourSquares->bringUp();
}

void frmWrite::CheckWordWrapSettings()
{
    m_edit->setWrapToWindow(frmMdi().WordWrap);
}

bool frmWrite::autoSaveEnabled() const
{
    return tmrAutoSave->Enabled();
}

void frmWrite::setAutoSaveEnabled(bool enabled)
{
    tmrAutoSave->setEnabled(enabled);
}

void frmWrite::setRefreshEnabled(bool enabled)
{
    tmrRefresh->setEnabled(enabled);
}

void frmWrite::activate()
{
    bringToFront();
    m_edit->SetFocus();
}

void frmWrite::Form_Activate()
{
    if (m_unloading)
        return;
    if (context().unsavedText)
        context().unsavedText->noteActivation();
    if (context().files)
        context().files->lookAtFile(*this);
    frmMdi().selectDocumentTab(DocKeyDescription);
    frmMdi().showFileFormat(fileFormatText(*this));
    frmMdi().documentInFront();
    m_structure->bringUp();
    CheckWordWrapSettings();
    UpdateLineInformation();
    SplitEditingPreviewWindows();
    RepositionEditingandPreviewWindows();
}

bool frmWrite::Form_QueryUnload()
{
    return !context().files || context().files->mayClose(*this);
}

void frmWrite::Form_Unload()
{
    m_unloading = true;
    if (context().unsavedText)
        context().unsavedText->forget(*this);
    if (context().files)
        context().files->forgetFile(*this);
    if (--frmMdi().OpenDocumentCount == 0) {
        frmMdi().SetDocumentControlsEnabled(false);
        frmMdi().showDocumentTabs(false);
        frmMdi().SetStatusText(
            QStringLiteral("There are no documents open. Choose New or Open from the File menu to begin."));
        frmMdi().clearStructureTree();
        frmMdi().showFileFormat({});
    }
    frmMdi().removeDocumentTab(DocKeyDescription);
}

void frmWrite::detachWindow()
{
    // The next document becomes the active one when this one's window has gone, and takes the focus then.
    MdiForm::detachWindow();
    if (Document *next = frmMdi().activeDocument())
        next->txtEdit().SetFocus();
}
