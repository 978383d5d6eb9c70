// The making of the main window's controls; what they show is restored later.
#include "frame/frmMdi.h"

#include "common/fileCommands.h"
#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/inputGate.h"
#include "frame/documentMarks.h"
#include "frame/documentStatus.h"
#include "frame/documentSwitch.h"
#include "frame/frmMdiCommands.h"
#include "frame/frmMdiPane.h"
#include "frame/numberedEntries.h"
#include "insertion/modFontTags.h"
#include "project/fileReference.h"
#include "project/localPage.h"
#include "project/modProjectFileCtrl.h"
#include "project/projectPage.h"
#include "services/services.h"
#include "services/timer.h"
#include "widgets/controlWatch.h"
#include "widgets/controls.h"
#include "widgets/coolBar.h"
#include "widgets/nodeTree.h"
#include "widgets/programIcon.h"
#include "widgets/sidePane.h"
#include "widgets/tabStrip.h"

#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace
{
constexpr int StatusMilliseconds = 3000;
constexpr int Gap = 4;
constexpr QSize DesignSize(1100, 720);
} // namespace

void frmMdi::buildControls()
{
    OpenDocumentCount = 0;
    m_gate = new InputGate(*window(), [this] { raiseDialogs(); });
    m_commands->build(*frame());
    m_pane = new TaskManagerPane(context());
    connect(m_pane, &TaskManagerPane::closeChosen, this,
            [this] { showBar(QStringLiteral("mnuShowPrjWindow"), false); });
    connect(m_pane, &TaskManagerPane::popupWanted, this, &frmMdi::PopupMenu);
    followProject();
    connect(m_pane->treStructure, &NodeTree::nodeClicked, this, &frmMdi::treStructure_NodeClick);
    buildFontCombos();
    buildAddressPanel();
    buildBands();
    buildDocumentSelector();
    buildStatusBar();
    layOut();
    m_documentSwitch = new DocumentSwitch(*window(), *m_commands->menu(QStringLiteral("mnuWindow")), *this);
    numberEntries(*m_commands->menu(QStringLiteral("mnuFile")), m_commands->recentFiles());
    buildKeyboard();
    new DocumentMarks(*window(), *tabDocSel, *this, context().state.habits);
    window()->resize(DesignSize);
}

void frmMdi::followProject()
{
    ProjectPage *page = m_pane->projectPage();
    m_project->setPage(page);
    connect(page, &ProjectPage::fileChosen, this, [this](const QString &path, bool isEditorFile) {
        if (!isEditorFile)
            InsertFileReference(context(), path);
        else if (context().files)
            context().files->OpenDocumentFile(path, false);
    });
    connect(page, &ProjectPage::removeWanted, this,
            [this](bool editorFiles) { editorFiles ? m_project->RemoveEditorFile() : m_project->RemoveOtherFile(); });
    connect(page, &ProjectPage::filesDropped, this,
            [this](const QStringList &paths, bool editorFiles) { m_project->AddFiles(paths, editorFiles); });
    connect(m_pane->localPage(), &LocalPage::fileChosen, this,
            [this](const QString &path) { InsertFileReference(context(), path); });
}

void frmMdi::layOut()
{
    auto *area = new QMdiArea;
    area->setObjectName(QStringLiteral("mdiArea"));
    area->setFrameShape(QFrame::NoFrame);
    area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    context().forms.setMdiArea(area);

    auto *documents = new QVBoxLayout;
    documents->setSpacing(0);
    documents->addWidget(area, 1);
    documents->addWidget(picDocSelector);

    m_middle = new QHBoxLayout;
    m_middle->setSpacing(0);
    m_middle->addWidget(m_pane->picProject());
    m_middle->addLayout(documents, 1);

    auto *client = new QWidget;
    auto *layout = new QVBoxLayout(client);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(cbrMain);
    layout->addLayout(m_middle, 1);
    frame()->setCentralWidget(client);
}

void frmMdi::buildFontCombos()
{
    cboFont = ui::combo(QStringLiteral("cboFont"), {}, {}, [this] { cboFont_Click(); });
    cboFont->setAccessibleName(QStringLiteral("Font"));
    cboFont->setToolTip(QStringLiteral("Font"));
    cboFont->setMinimumContentsLength(8);
    cboFont->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(cboFont->lineEdit(), &QLineEdit::textEdited, this, [this] { m_fontTyped = true; });
    connect(cboFont->lineEdit(), &QLineEdit::returnPressed, this, [this] { cboFont_LostFocus(); });
    ui::onLostFocus(cboFont->lineEdit(), [this] { cboFont_LostFocus(); });

    cboSize = ui::combo(QStringLiteral("cboSize"), pointSizes(), {}, [this] { cboSize_Click(); });
    cboSize->setAccessibleName(QStringLiteral("Point size"));
    cboSize->setToolTip(QStringLiteral("Point size"));
    cboSize->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(cboSize->lineEdit(), &QLineEdit::returnPressed, this, [this] { cboSize_Click(); });

    cboFontSize = ui::dropList(QStringLiteral("cboFontSize"), headingNames());
    connect(cboFontSize, &QComboBox::activated, this, [this] { cboFontSize_Click(); }); // the same level again, too
    cboFontSize->setAccessibleName(QStringLiteral("Heading"));
    cboFontSize->setToolTip(QStringLiteral("Heading"));
    guardFontCombos();
}

/// Each row that these lists pass writes a tag, so a wheel that turns over them on its way must not pass any.
void frmMdi::guardFontCombos()
{
    for (QComboBox *combo : {cboFont, cboSize, cboFontSize})
        new ControlWatch(combo, QEvent::Wheel, [](const QEvent &) { return true; });
}

void frmMdi::buildAddressPanel()
{
    picAddress = new QWidget;
    picAddress->setObjectName(QStringLiteral("picAddress"));
    picAddress->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *layout = new QHBoxLayout(picAddress);
    layout->setContentsMargins(Gap, 2, Gap, 2);
    layout->setSpacing(Gap);
    QLabel *lblMsgAddress = ui::label(QStringLiteral("lblMsgAddress"), QStringLiteral("Address:"));
    cboAddress = ui::combo(QStringLiteral("cboAddress"));
    cboAddress->setAccessibleName(QStringLiteral("Address"));
    cboAddress->setMinimumContentsLength(12);
    cboAddress->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    lblMsgAddress->setBuddy(cboAddress);
    QPushButton *cmdGo = ui::button(QStringLiteral("cmdGo"), QStringLiteral("Go"), [this] { cmdGo_Click(); });
    cmdGo->setAutoDefault(false);
    connect(cboAddress->lineEdit(), &QLineEdit::returnPressed, this, [this] { cmdGo_Click(); });
    layout->addWidget(lblMsgAddress);
    layout->addWidget(cboAddress, 1);
    layout->addWidget(cmdGo);
    picAddress->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(picAddress, &QWidget::customContextMenuRequested, this, [this](const QPoint &point) {
        PopupMenu(QStringLiteral("mnuAddressBar"), picAddress->mapToGlobal(point));
    });
}

void frmMdi::buildBands()
{
    cbrMain = new CoolBar;
    cbrMain->setObjectName(QStringLiteral("cbrMain"));
    const auto bar = [this](const char *name) { return m_commands->toolBar(QLatin1String(name)); };
    QToolBar *tbrCode = bar("tbrCode");
    QAction *first = tbrCode->actions().constFirst();
    for (QComboBox *combo : {cboFontSize, cboFont, cboSize})
        tbrCode->insertWidget(first, combo);
    tbrCode->insertSeparator(first);
    cbrMain->addBand(bar("tbrMain"), true);
    cbrMain->addBand(bar("tbrFontStyles"), false);
    cbrMain->addBand(bar("tbrInsert"), true);
    cbrMain->addBand(tbrCode, false);
    cbrMain->addBand(bar("tbrHelp"), true);
    cbrMain->addBand(picAddress, false);
    cbrMain->addBand(bar("tbrBrowser"), false);
    followInsertBar();
}

void frmMdi::buildDocumentSelector()
{
    picDocSelector = new QWidget;
    picDocSelector->setObjectName(QStringLiteral("picDocSelector"));
    fmeDocSelDiv = new QFrame;
    fmeDocSelDiv->setObjectName(QStringLiteral("fmeDocSelDiv"));
    fmeDocSelDiv->setFrameShape(QFrame::HLine);
    fmeDocSelDiv->setFrameShadow(QFrame::Plain);
    fmeDocSelDiv->setForegroundRole(QPalette::Mid);
    tabDocSel = ui::keyedTabs(QStringLiteral("tabDocSel"), [this](int) { tabDocSel_Click(); });
    tabDocSel->setAccessibleName(QStringLiteral("Open documents"));
    tabDocSel->setShape(QTabBar::RoundedSouth);
    tabDocSel->setDrawBase(false);
    tabDocSel->setVisible(false);

    auto *strip = new QHBoxLayout;
    strip->setSpacing(Gap);
    strip->addWidget(tabDocSel, 1);
    strip->addStretch();
    strip->addWidget(m_commands->toolBar(QStringLiteral("tbrUnsavedFiles")));
    auto *layout = new QVBoxLayout(picDocSelector);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(fmeDocSelDiv);
    layout->addLayout(strip);
}

void frmMdi::buildStatusBar()
{
    StatusBar1 = frame()->statusBar();
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    m_message = ui::label(QStringLiteral("lblStatusMessage"), {});
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_message->setIndent(Gap);
    StatusBar1->addWidget(m_message, 1);
    m_documentStatus = new DocumentStatus(*StatusBar1, *this);
    tmrResetBar = new Timer(
        services().timers, QStringLiteral("tmrResetBar"),
        [this] {
            m_keptStatus.clear();
            SetStatusReady();
            tmrResetBar->setEnabled(false);
        },
        window());
    tmrResetBar->setInterval(StatusMilliseconds);
}
