#include "shell/frmWelcome.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "files/modFileNames.h"
#include "files/modRecentFiles.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "shell/modNewControl.h"
#include "shell/tips.h"
#include "widgets/fileControls.h"
#include "widgets/layout.h"
#include "widgets/listView.h"
#include "widgets/programIcon.h"
#include "widgets/screenPointer.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabBar>

namespace
{
enum Page { QuickStart, New, Recent };

constexpr int StartsWithClearBox = 2;
constexpr int BeginMilliseconds = 1500;
constexpr int AnimationMilliseconds = 400;

const QString FirstHelpTopic = QStringLiteral("::/topics/Index.htm");

QLabel *iconLabel(const QString &name, const QString &icon)
{
    constexpr int size = 24;
    QLabel *label = ui::label(name, {});
    label->setPixmap(programIcon(icon).pixmap(size, size));
    return label;
}

MessageBox noLongerExistsBox(const QString &path)
{
    return {.title = QStringLiteral("File No Longer Exists"),
            .text = QStringLiteral("The file, \"") + path +
                    QStringLiteral("\", no longer exists. It may have been saved in a different location."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}
} // namespace

frmWelcome::frmWelcome(ProgramContext &context) : Form(context, QStringLiteral("frmWelcome"))
{
    setCaption(QStringLiteral("Welcome to Harbline's Tagwrighter"));
}

void frmWelcome::Form_Load()
{
    m_shown = false;
    offerFirstHelp();
    // The main window asks for this form whatever the spelling of the setting; in lower case, it is decided here.
    if (settings::read(services().settings, settings::WelcomeScreen).toLower() == u"false") {
        Unload();
        return;
    }
    m_shown = true;
    buildControls();
    FillNewDocumentList(services().settings, *dirTemplates, *lstNew);
    LoadWelcomeRecentList(services().settings, *lstRecent);
    ShowNextTip();
    frmMdi().SetStatusText(QStringLiteral("Welcome to Tagwrighter"));
    countStart();
}

void frmWelcome::offerFirstHelp()
{
    if (settings::read(services().settings, settings::FirstHelp).toLower() != u"false")
        return;
    settings::write(services().settings, settings::FirstHelp, QStringLiteral("true"));
    OpenHelpTopic(context(), FirstHelpTopic);
}

void frmWelcome::buildControls()
{
    tabWelcomeSelection =
        ui::tabStrip(QStringLiteral("tabWelcomeSelection"),
                     {QStringLiteral("Quick Start"), QStringLiteral("New"), QStringLiteral("Recent Files")});
    tabWelcomeSelection->setAccessibleName(QStringLiteral("Ways to begin"));
    chkShowOnStartup =
        ui::check(QStringLiteral("chkShowOnStartup"), QStringLiteral("&Don't show this window in the future"));
    setContent(ui::beside({
        ui::column({
            ui::Node(ui::pages(tabWelcomeSelection, QStringLiteral("picWelcomePanel"),
                               {quickStartPage(), newPage(), recentPage()}))
                .stretched(),
            ui::group(QStringLiteral("Tip of the Day"), tipLine()),
            chkShowOnStartup,
        }),
        buttonColumn(),
    }));
    window()->setMinimumSize(560, 420);
    setDefaultButton(cmdOK);
    bindKeys();
    buildTimers();
}

ui::Node frmWelcome::quickStartPage()
{
    optNew = ui::option(QStringLiteral("optNew"), QStringLiteral("Create a &new webpage..."));
    optTemplate = ui::option(QStringLiteral("optTemplate"), QStringLiteral("Create a new webpage from a &template..."));
    optOpen = ui::option(QStringLiteral("optOpen"), QStringLiteral("&Open an existing file..."));
    optRecent = ui::option(QStringLiteral("optRecent"), QStringLiteral("Work with a &recently opened file..."));
    optNew->setChecked(true);
    optTemplate->setShortcut({}); // its letter's key shows the next tip
    const auto beside = [](const char *image, const char *icon, QRadioButton *option) {
        return ui::line({iconLabel(QLatin1String(image), QLatin1String(icon)), ui::Node(option).stretched()});
    };
    return ui::group(QStringLiteral("What would you like to do?"),
                     ui::column({
                         beside("Image1", "file-plus", optNew),
                         beside("Image2", "file-code", optTemplate),
                         beside("Image3", "folder-open", optOpen),
                         beside("Image4", "file-text", optRecent),
                         ui::space(),
                     }),
                     QStringLiteral("fmeStart"));
}

ui::Node frmWelcome::newPage()
{
    lstNew = ui::listView(QStringLiteral("lstNew"), {QStringLiteral("Template Name"), QStringLiteral("Type")},
                          {.dblClick = [this](int) { cmdOK_Click(); }});
    lstNew->setHotTracking(settings::isOn(services().settings, settings::HotTrackingFiles));
    lstNew->setAccessibleName(QStringLiteral("Templates"));
    dirTemplates = ui::fileList(QStringLiteral("dirTemplates"), services().files);
    QLabel *lblNew = ui::label(QStringLiteral("lblNew"),
                               QStringLiteral("To create a new webpage from a template, choose the one from the list, "
                                              "then click OK."));
    lblNew->setWordWrap(true);
    return ui::column({ui::Node(lstNew).stretched(), lblNew, ui::hidden(dirTemplates)});
}

ui::Node frmWelcome::recentPage()
{
    lstRecent = ui::listView(QStringLiteral("lstRecent"), {QStringLiteral("File Name"), QStringLiteral("Path")},
                             {.dblClick = [this](int) { cmdOK_Click(); }});
    lstRecent->setHotTracking(settings::isOn(services().settings, settings::HotTrackingFiles));
    lstRecent->setAccessibleName(QStringLiteral("Recent files"));
    lstRecent->setSmallIcons({programIcon(QStringLiteral("file-text")), programIcon(QStringLiteral("network"))});
    QLabel *lblRecent =
        ui::label(QStringLiteral("lblRecent"),
                  QStringLiteral("To open a recent file, choose its name from the list, then click OK."));
    lblRecent->setWordWrap(true);
    return ui::column({ui::Node(lstRecent).stretched(), lblRecent});
}

ui::Node frmWelcome::tipLine()
{
    lblTipOfTheDay = ui::label(QStringLiteral("lblTipOfTheDay"), {});
    lblTipOfTheDay->setWordWrap(true);
    lblTipOfTheDay->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTipOfTheDay->setMinimumHeight(4 * lblTipOfTheDay->fontMetrics().lineSpacing()); // of the longest tips
    QLabel *lblNextTip =
        ui::label(QStringLiteral("lblNextTip"), QStringLiteral("Next tip (Alt+T)"), [this] { ShowNextTip(); });
    QLabel *lblHarblineWebsite = ui::label(QStringLiteral("lblHarblineWebsite"),
                                           QStringLiteral("Harbline's website (Alt+M)"), [this] { openMakerSite(); });
    for (QLabel *link : {lblNextTip, lblHarblineWebsite}) {
        link->setForegroundRole(QPalette::Link);
        link->setCursor(Qt::PointingHandCursor);
    }
    return ui::column({lblTipOfTheDay, ui::line({lblNextTip, ui::space(), lblHarblineWebsite})});
}

ui::Node frmWelcome::buttonColumn()
{
    cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [this] { Unload(); });
    setCancelButton(cmdCancel);
    const auto topic = [this](const char *name, const char *caption, const QString &path) {
        return ui::button(QLatin1String(name), QLatin1String(caption),
                          [this, path] { OpenHelpTopic(context(), path); });
    };
    return ui::buttons({
        cmdOK,
        cmdCancel,
        topic("cmdHelp", "Help", FirstHelpTopic),
        topic("cmdTutorial", "Tutorial", QStringLiteral("::/topics/tutorial/TutorialIndex.htm")),
        topic("cmdReference", "Reference", QStringLiteral("::/topics/reference/ReferenceIndex.htm")),
        topic("cmdCustomerBenefits", "Benefits", QStringLiteral("::/topics/customers.html")),
    });
}

void frmWelcome::bindKeys()
{
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_T), window()), &QShortcut::activated, this,
            &frmWelcome::ShowNextTip);
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_M), window()), &QShortcut::activated, this,
            &frmWelcome::openMakerSite);
}

/// The start options light up one after the other, once.
void frmWelcome::buildTimers()
{
    m_lit = -1;
    tmrBegin = new Timer(
        services().timers, QStringLiteral("tmrBegin"),
        [this] {
            tmrBegin->setEnabled(false);
            tmrAnimation->setEnabled(true);
        },
        window());
    tmrAnimation = new Timer(
        services().timers, QStringLiteral("tmrAnimation"), [this] { tmrAnimation_Timer(); }, window());
    tmrBegin->setInterval(BeginMilliseconds);
    tmrAnimation->setInterval(AnimationMilliseconds);
    tmrBegin->setEnabled(true);
}

void frmWelcome::tmrAnimation_Timer()
{
    const QList<QRadioButton *> options{optNew, optTemplate, optOpen, optRecent};
    if (m_lit >= 0)
        options[m_lit]->setPalette(QPalette());
    if (++m_lit >= options.size()) {
        tmrAnimation->setEnabled(false);
        return;
    }
    QPalette lit = options[m_lit]->palette();
    // Pure blue cannot be read on a dark ground, where the theme's colour of links takes its place.
    const bool dark = lit.color(QPalette::Window).lightness() < lit.color(QPalette::WindowText).lightness();
    lit.setColor(QPalette::WindowText, dark ? lit.color(QPalette::Link) : QColor(Qt::blue));
    options[m_lit]->setPalette(lit);
}

void frmWelcome::countStart()
{
    SettingsStore &store = services().settings;
    if (settings::read(store, settings::ProgramStarts).isEmpty())
        settings::write(store, settings::ProgramStarts, QStringLiteral("0"));
    const int starts = settings::read(store, settings::ProgramStarts).toInt();
    if (starts >= StartsWithClearBox)
        return;
    settings::write(store, settings::ProgramStarts, QString::number(starts + 1));
    chkShowOnStartup->setChecked(false);
}

void frmWelcome::ShowNextTip()
{
    int number = settings::read(services().settings, settings::TipOfTheDay).toInt() + 1;
    if (!tipOfTheDay(number))
        number = 1; // behind the last tip, they begin anew
    lblTipOfTheDay->setText(tipOfTheDay(number).value_or(QString()));
    settings::write(services().settings, settings::TipOfTheDay, QString::number(number));
}

void frmWelcome::Form_Activate()
{
    // From the event loop, so that the window that is left hears of it before one of its controls does.
    if (cmdOK)
        QMetaObject::invokeMethod(
            cmdOK, [button = cmdOK] { button->setFocus(); }, Qt::QueuedConnection);
}

void frmWelcome::cmdOK_Click()
{
    context().screenPointer.setMousePointer(PointerShape::Hourglass);
    switch (tabWelcomeSelection->currentIndex()) {
    case QuickStart:
        beginQuickly();
        break;
    case New:
        if (OpenSelectedTemplate(context(), *lstNew))
            Unload();
        break;
    case Recent:
        openRecent();
        break;
    }
    context().screenPointer.setMousePointer(PointerShape::Default);
}

void frmWelcome::beginQuickly()
{
    if (optNew->isChecked()) {
        openBlankDocument(context());
        Unload();
        if (Document *document = frmMdi().activeDocument())
            document->txtEdit().SetFocus();
    } else if (optTemplate->isChecked()) {
        showPage(New, *lstNew);
    } else if (optRecent->isChecked()) {
        showPage(Recent, *lstRecent);
    } else {
        Unload();
        context().screenPointer.setMousePointer(PointerShape::Default); // the dialog waits for the user
        context().files->ShowOpenDialog();
    }
}

void frmWelcome::showPage(int page, ListView &list)
{
    tabWelcomeSelection->setCurrentIndex(page);
    list.setFocus();
}

void frmWelcome::openRecent()
{
    const std::optional<int> row = lstRecent->selectedRow();
    if (!row)
        return;
    const QString path = lstRecent->rowAt(*row).subItems.value(0);
    if (!FileExists(services().files, path)) {
        context().screenPointer.setMousePointer(PointerShape::Default);
        services().messageBoxes.show(noLongerExistsBox(path));
        return;
    }
    if (GetFileExtension(path).toLower() == u"tsp")
        context().files->OpenProject(path);
    else
        context().files->OpenDocumentFile(path, false);
    Unload();
}

void frmWelcome::openMakerSite()
{
    services().launcher.openUrl(context().makerSite);
}

void frmWelcome::Form_Unload()
{
    frmMdi().setEnabled(true);
    frmMdi().SetStatusReady();
    if (m_shown)
        settings::writeBoolean(services().settings, settings::WelcomeScreen, !chkShowOnStartup->isChecked());
    cmdOK = nullptr;
}
