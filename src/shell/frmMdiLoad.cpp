// The main window's load, in the fixed order in which its state is restored, and its bars.
#include "shell/frmMdi.h"

#include "common/fileCommands.h"
#include "document/modDocument.h"
#include "platform/formRuntime.h"
#include "platform/inputGate.h"
#include "platform/services.h"
#include "platform/timer.h"
#include "shell/commandLine.h"
#include "shell/frmMdiCommands.h"
#include "shell/settings.h"

#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QStatusBar>
#include <QTabBar>
#include <QVBoxLayout>

namespace
{
constexpr int StatusMilliseconds = 3000;

ColourValue storedColour(SettingsStore &store, const settings::Key &key)
{
    return static_cast<ColourValue>(settings::readStored(store, key).toLongLong());
}
} // namespace

void frmMdi::Form_Load()
{
    buildControls();
    if (context().state.AlreadyStarted) {
        // A reference to the window after its unload would bring it back: such a ghost ends at once.
        context().end();
        return;
    }
    restoreState();
    openCommandLineFile();
    decideWelcome();
    context().state.AlreadyStarted = true;
}

void frmMdi::buildControls()
{
    OpenDocumentCount = 0;
    auto *client = new QWidget;
    auto *layout = new QVBoxLayout(client);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *area = new QMdiArea;
    area->setObjectName(QStringLiteral("mdiArea"));
    area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    layout->addWidget(area, 1);
    frame()->setCentralWidget(client);
    context().forms.setMdiArea(area);
    m_gate = new InputGate(*window(), [this] { raiseDialogs(); });
    m_commands->build(*frame());
    buildDocumentSelector();
    layout->addWidget(picDocSelector);
    buildStatusBar();
    window()->resize(1100, 720);
}

void frmMdi::buildDocumentSelector()
{
    picDocSelector = new QWidget;
    picDocSelector->setObjectName(QStringLiteral("picDocSelector"));
    auto *layout = new QVBoxLayout(picDocSelector);
    layout->setContentsMargins(0, 0, 0, 0);
    tabDocSel = new QTabBar;
    tabDocSel->setObjectName(QStringLiteral("tabDocSel"));
    tabDocSel->setAccessibleName(QStringLiteral("Open documents"));
    tabDocSel->setShape(QTabBar::RoundedSouth);
    tabDocSel->setExpanding(false);
    tabDocSel->setVisible(false);
    layout->addWidget(tabDocSel);
    connect(tabDocSel, &QTabBar::currentChanged, this, [this] { tabDocSel_Click(); });
}

void frmMdi::buildStatusBar()
{
    StatusBar1 = frame()->statusBar();
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    m_message = new QLabel;
    m_message->setObjectName(QStringLiteral("lblStatusMessage"));
    m_message->setTextFormat(Qt::PlainText);
    StatusBar1->addWidget(m_message, 1);
    m_fileFormat = new QLabel;
    m_fileFormat->setObjectName(QStringLiteral("lblFileFormat"));
    StatusBar1->addPermanentWidget(m_fileFormat);
    tmrResetBar = new Timer(
        services().timers, QStringLiteral("tmrResetBar"),
        [this] {
            SetStatusReady();
            tmrResetBar->setEnabled(false);
        },
        window());
    tmrResetBar->setInterval(StatusMilliseconds);
}

void frmMdi::restoreState()
{
    readColouringOptions();
    WordWrap = settings::isOn(services().settings, settings::WordWrap);
    setWordWrapChecked(WordWrap);
    SetDocumentControlsEnabled(false);
    SetStatusReady();
    restoreBars();
    restorePlacement();
}

void frmMdi::readColouringOptions()
{
    SettingsStore &store = services().settings;
    colouring.ColourCodeSyntax = settings::isOn(store, settings::ColourCodeSyntax);
    colouring.ColourCodeHyperlink = settings::isOn(store, settings::ColourCodeHyperlink);
    colouring.ColourCodeUpdateTime = settings::read(store, settings::ColourCodeUpdateTime).toShort();
    colouring.ColourCodeTag = storedColour(store, settings::ColourCodeTag);
    colouring.ColourCodeAttribute = storedColour(store, settings::ColourCodeAttribute);
    colouring.ColourCodeValue = storedColour(store, settings::ColourCodeValue);
    colouring.ColourASPCode = storedColour(store, settings::ColourASPCode);
    colouring.ColourCodeComment = storedColour(store, settings::ColourCodeComment);
    colouring.ColourCodeURL = storedColour(store, settings::ColourCodeURL);
}

void frmMdi::restoreBars()
{
    SettingsStore &store = services().settings;
    picDocSelector->setVisible(settings::isOn(store, settings::DocSelBarVis));
    StatusBar1->setVisible(settings::isOn(store, settings::StatusBarVis));
    settings::writeBoolean(store, settings::SplitEditPreview, settings::isOn(store, settings::SplitEditPreview));
}

void frmMdi::restorePlacement()
{
    SettingsStore &store = services().settings;
    if (settings::read(store, settings::WinState) != u"0") {
        window()->setWindowState(Qt::WindowMaximized);
        return;
    }
    const auto pixels = [&store](const settings::Key &key) { return qRound(settings::read(store, key).toDouble()); };
    const int top = pixels(settings::WinTop);
    const int left = pixels(settings::WinLeft);
    const int height = pixels(settings::WinHeight);
    const int width = pixels(settings::WinWidth);
    window()->move(left, top);
    window()->resize(width, height);
}

void frmMdi::openCommandLineFile()
{
    FileCommands *files = context().files;
    if (m_commandLine.isEmpty() || !files)
        return;
    OpenCommandLineFile(*files, m_commandLine);
}

void frmMdi::decideWelcome()
{
    if (!settings::isOn(services().settings, settings::WelcomeScreen)) {
        NewBlankDocument(context());
        FillBlankDocument(context());
        setEnabled(true);
        if (Document *document = activeDocument())
            document->txtEdit().SetFocus();
        return;
    }
    setEnabled(false);
    Form &welcome = context().form(QStringLiteral("frmWelcome"));
    welcome.Load();
    presentWindow();
    welcome.Show();
}
