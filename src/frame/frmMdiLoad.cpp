// The main window's load, in the fixed order in which its state is restored.
#include "frame/frmMdi.h"

#include "common/fileCommands.h"
#include "common/programState.h"
#include "common/unsavedText.h"
#include "document/modDocument.h"
#include "extensions/modAddIns.h"
#include "files/modRecentFiles.h"
#include "forms/formRuntime.h"
#include "frame/frmMdiBands.h"
#include "frame/frmMdiCommands.h"
#include "frame/frmMdiPane.h"
#include "insertion/modFonts.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/commandLine.h"
#include "shell/frmWelcome.h"
#include "widgets/controls.h"
#include "widgets/coolBar.h"
#include "widgets/nodeTree.h"
#include "widgets/screenPlace.h"
#include "widgets/sidePane.h"
#include "widgets/tabStrip.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QMainWindow>
#include <QScreen>

#include <utility>

namespace
{
constexpr int TwipsPerPixel = 15;

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
    loadCodes();
    FillAddInMenu(context());
    const bool opened = openCommandLine(m_commandLine);
    if (context().state.ProgramEnded) // opening lets events run, and one of them was the end
        return;
    picAddress_Resize();
    if (context().state.StartedAnew || (opened && context().state.habits.HabitStart))
        goOnWithFile();
    else
        decideWelcome();
    context().state.AlreadyStarted = true;
    m_pane->refreshLocalFiles();
    tellStartFaults();
    offerHabits();
    openWaiting();
}

void frmMdi::restoreState()
{
    while (tabDocSel->count())
        tabDocSel->removeTab(0);
    fillFontCombos();
    m_pane->picProject()->setPaneWidth(
        qRound(settings::read(services().settings, settings::CodebarWidth).toDouble() / TwipsPerPixel));
    readColouringOptions();
    readWordWrap();
    sizeDocumentSelector();
    SetDocumentControlsEnabled(false);
    SetStatusReady();
    loadRecentLists();
    placePane();
    restoreBars();
    restoreSplit();
    restoreBands();
    restorePlacement();
}

void frmMdi::fillFontCombos()
{
    cboFontSize->setCurrentIndex(cboFontSize->findText(QStringLiteral("Normal")));
    SetNumbersOnly(cboSize);
    cboSize->setCurrentText(QStringLiteral("12"));
    cboFont->addItems(systemFonts());
    cboFont->setCurrentIndex(-1);
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

void frmMdi::readWordWrap()
{
    WordWrap = settings::isOn(services().settings, settings::WordWrap);
    setWordWrapChecked(WordWrap);
}

void frmMdi::sizeDocumentSelector()
{
    tabDocSel->setMaximumWidth(window()->screen()->size().width());
}

void frmMdi::loadRecentLists()
{
    showRecentFiles({});
    if (context().files)
        context().files->LoadRecentFilesMenu();
    LoadAddressHistory(context(), *cboAddress);
    cboAddress->clearEditText();
}

void frmMdi::placePane()
{
    const bool right =
        settings::read(services().settings, settings::TaskManagerAlignLeft).toLower() == QStringLiteral("false");
    SidePane *pane = m_pane->picProject();
    pane->setSide(right ? SidePane::Side::Right : SidePane::Side::Left);
    m_middle->setDirection(right ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight);
}

void frmMdi::restoreBars()
{
    SettingsStore &store = services().settings;
    setBarShown(QStringLiteral("mnuShowPrjWindow"), settings::isOn(store, settings::CodeWinVis));
    setBarShown(QStringLiteral("mnuShowCodeBar"), settings::isOn(store, settings::CodeBarVis));
    setBarShown(QStringLiteral("mnuShowbar"), settings::isOn(store, settings::AddrBarVisible));
    setBarShown(QStringLiteral("mnuShowDocSelBar"), settings::isOn(store, settings::DocSelBarVis));
    setBarShown(QStringLiteral("mnuShowStatusBar"), settings::isOn(store, settings::StatusBarVis));
}

void frmMdi::restoreSplit()
{
    const bool split = settings::isOn(services().settings, settings::SplitEditPreview);
    m_commands->action(QStringLiteral("mnuSplitEditingWindows"))->setChecked(split);
    settings::writeBoolean(services().settings, settings::SplitEditPreview, split);
}

void frmMdi::restoreBands()
{
    for (int band = 1; band <= cbrMain->Count(); ++band) {
        if (const auto newRow = bands::flagOf(settings::read(services().settings, settings::BarNewRow, band)))
            cbrMain->setNewRow(band, *newRow);
        if (const auto width = bands::widthOf(settings::read(services().settings, settings::BarWidth, band)))
            cbrMain->setWidth(band, *width);
    }
}

void frmMdi::restorePlacement()
{
    SettingsStore &store = services().settings;
    if (settings::read(store, settings::WinState) != u"0") {
        window()->setWindowState(Qt::WindowMaximized);
        return;
    }
    const auto pixels = [&store](const settings::Key &key) { return qRound(settings::read(store, key).toDouble()); };
    const QRect place(pixels(settings::WinLeft), pixels(settings::WinTop), pixels(settings::WinWidth),
                      pixels(settings::WinHeight));
    window()->resize(place.size());
    window()->move(reachablePlace(place, screenRooms()).topLeft());
}

void frmMdi::picAddress_Resize()
{
    picAddress->layout()->activate();
}

bool frmMdi::openCommandLine(const QString &commandLine)
{
    if (commandLine.isEmpty())
        return false;
    const auto exists = [this](const QString &path) { return services().files.exists(path); };
    bool opened = false;
    for (const CommandLineFile &file : filesOfCommandLine(commandLine, context().state.habits, exists)) {
        if (context().state.ProgramEnded) // opening lets events run
            break;
        if (!openCommandLineFile(file))
            continue;
        opened = true;
        if (file.line > 0)
            goToLine(file);
    }
    return opened;
}

/// A line behind the last one is the last one.
void frmMdi::goToLine(const CommandLineFile &file)
{
    Document *document = activeDocument();
    if (!document || document->DocSavePath != file.path)
        return;
    TextSurface &edit = document->txtEdit();
    const qsizetype line = std::min<qsizetype>(file.line, edit.lineCount()) - 1;
    if (const std::optional<qsizetype> start = edit.characterFromLine(line))
        edit.setSelStart(*start);
}

bool frmMdi::openCommandLineFile(const CommandLineFile &file)
{
    FileCommands *files = context().files;
    if (!files)
        return false;
    const bool missing = !services().files.exists(file.path);
    if (missing) { // what is told of it belongs over the main window
        if (Form *splash = context().forms.find(QStringLiteral("frmSplash")))
            splash->Hide();
        presentWindow();
    }
    OpenCommandLineFile(*files, file);
    const bool opened = file.action == CommandLineAction::Project || activeDocument();
    if (missing || !opened)
        keepStatus(QStringLiteral("The file \"%1\" could not be opened.").arg(file.path));
    return !missing && opened;
}

/// What was asked for is there, or about to come back: neither a blank page nor the Welcome screen gets in front of it.
void frmMdi::goOnWithFile()
{
    Document *opened = activeDocument();
    setEnabled(true);
    if (opened)
        opened->txtEdit().SetFocus();
    restoreUnsavedText(opened);
}

void frmMdi::takeOver(const QString &commandLine)
{
    m_waiting.append(commandLine);
    openWaiting();
}

/// A dialog that is up goes on first.
void frmMdi::openWaiting()
{
    if (!isLoaded() || !context().state.AlreadyStarted || !Enabled())
        return;
    const QStringList lines = std::exchange(m_waiting, {});
    for (const QString &line : lines)
        openCommandLine(line);
    if (lines.isEmpty())
        return;
    window()->setWindowState(window()->windowState() & ~Qt::WindowMinimized);
    window()->raise();
    window()->activateWindow();
}

void frmMdi::decideWelcome()
{
    Document *opened = m_commandLine.isEmpty() ? nullptr : activeDocument();
    if (!settings::isOn(services().settings, settings::WelcomeScreen)) {
        if (NewBlankDocument(context()))
            FillBlankDocument(context());
        setEnabled(true);
        if (Document *document = activeDocument())
            document->txtEdit().SetFocus();
        restoreUnsavedText(opened);
        return;
    }
    setEnabled(false);
    Form &welcome = context().forms.get<frmWelcome>();
    welcome.Load();
    presentWindow();
    if (context().state.ProgramEnded)
        return;
    restoreUnsavedText(opened);
    setEnabled(false); // making documents has given it back
    welcome.Show();
}

void frmMdi::restoreUnsavedText(Document *opened)
{
    const QString remark = context().unsavedText ? context().unsavedText->restore(opened) : QString();
    if (!remark.isEmpty())
        keepStatus(remark);
}
