#include "drive/testDeskForm.h"

#include "services/clock.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/helpViewer.h"
#include "services/launcher.h"
#include "services/messageBoxes.h"
#include "services/random.h"
#include "services/services.h"
#include "services/timer.h"
#include "services/yielder.h"
#include "widgets/controls.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <cstdlib>

namespace drive
{
namespace
{
constexpr int StepsOfPass = 10;

template <class Value, class Told>
QString toldOr(const std::optional<Value> &value, const Told &told)
{
    return value ? told(*value) : QStringLiteral("left");
}
} // namespace

frmTestDesk::frmTestDesk(ProgramContext &context) : Form(context, QStringLiteral("frmTestDesk"))
{
    setCaption(QStringLiteral("Test"));
}

void frmTestDesk::Form_Load()
{
    using namespace ui;
    txtName = text(QStringLiteral("txtName"));
    chkOn = check(QStringLiteral("chkOn"), QStringLiteral("&On"), [this] { note(QStringLiteral("chkOn_Click")); });
    txtLog = textArea(QStringLiteral("txtLog"));
    txtLog->setReadOnly(true);
    setContent(column({rows({row(QStringLiteral("&Name:"), txtName)}), chkOn, line(boxButtons()), line(deskButtons()),
                       Node(txtLog).stretched()}));
    onLostFocus(txtName, [this] { note(QStringLiteral("txtName_LostFocus")); });
    tmrBeat = new Timer(
        services().timers, QStringLiteral("tmrBeat"), [this] { note(QStringLiteral("tmrBeat_Timer")); }, window());
    tmrBeat->setInterval(500);
    buildMenuAndBar();
    auto *shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+J")), window());
    connect(shortcut, &QShortcut::activated, this, [this] { note(QStringLiteral("Ctrl+J")); });
    window()->setAcceptDrops(true);
    txtName->setAcceptDrops(false);
    txtLog->setAcceptDrops(false);
}

QList<ui::Node> frmTestDesk::boxButtons()
{
    using namespace ui;
    const auto named = [this](const char *name, const char *caption, void (frmTestDesk::*click)()) {
        return Node(button(QLatin1String(name), QLatin1String(caption), [this, click] { (this->*click)(); }));
    };
    return {named("cmdBox", "&Box", &frmTestDesk::cmdBox_Click),
            named("cmdOpen", "O&pen", &frmTestDesk::cmdOpen_Click),
            named("cmdSave", "&Save", &frmTestDesk::cmdSave_Click),
            named("cmdColour", "&Colour", &frmTestDesk::cmdColour_Click),
            named("cmdFolder", "&Folder", &frmTestDesk::cmdFolder_Click),
            named("cmdFont", "Fon&t", &frmTestDesk::cmdFont_Click),
            named("cmdPrint", "P&rint", &frmTestDesk::cmdPrint_Click)};
}

QList<ui::Node> frmTestDesk::deskButtons()
{
    using namespace ui;
    const auto named = [](const char *name, const char *caption, const Handler &click) {
        return Node(button(QLatin1String(name), QLatin1String(caption), click));
    };
    return {named("cmdLaunch", "&Launch", [this] { cmdLaunch_Click(); }),
            named("cmdHelp", "&Help", [this] { services().help.show(txtName->text()); }),
            named("cmdContents", "Contents", [this] { services().help.contents(); }),
            named("cmdIndex", "Index", [this] { services().help.index(); }),
            named("cmdRead", "Read", [this] { cmdRead_Click(); }),
            named("cmdWrite", "Write", [this] { cmdWrite_Click(); }),
            named("cmdNow", "Now", [this] { note(services().clock.now().toString(Qt::ISODate)); }),
            named("cmdRandom", "Random", [this] { note(QString::number(services().random.below(1000000))); }),
            named("cmdBeat", "Beat", [this] { tmrBeat->setEnabled(!tmrBeat->Enabled()); }),
            named("cmdModal", "&Modal", [this] { cmdModal_Click(); }),
            named("cmdPass", "Pass", [this] { cmdPass_Click(); }),
            named("cmdCrash", "Crash", [] { std::abort(); }),
            named("cmdLeave", "Leave", [] { std::_Exit(0); })};
}

void frmTestDesk::buildMenuAndBar()
{
    auto *bar = new QToolBar(window());
    bar->setObjectName(QStringLiteral("tbrTest"));
    static_cast<QVBoxLayout *>(window()->layout())->insertWidget(0, bar);
    addTool(*bar, QStringLiteral("Stop"), QStringLiteral("Stop it"));
    addTool(*bar, QStringLiteral("Pick"), QStringLiteral("Pick one"));

    mnuPop = new QMenu(window());
    mnuPop->setObjectName(QStringLiteral("mnuPop"));
    QAction *entry =
        mnuPop->addAction(QStringLiteral("&One"), this, [this] { note(QStringLiteral("mnuPopOne_Click")); });
    entry->setObjectName(QStringLiteral("mnuPopOne"));
    entry->setEnabled(false);
    connect(mnuPop, &QMenu::aboutToShow, entry, [this, entry] { entry->setEnabled(chkOn->isChecked()); });
    auto *pick = static_cast<QToolButton *>(bar->widgetForAction(bar->actions().last()));
    pick->setMenu(mnuPop);
    pick->setPopupMode(QToolButton::MenuButtonPopup);
}

void frmTestDesk::addTool(QToolBar &bar, const QString &key, const QString &caption)
{
    QAction *tool = bar.addAction(caption, this, [this, key] { note(QStringLiteral("tbrTest_ButtonClick ") + key); });
    tool->setObjectName(QStringLiteral("tbrTest(%1)").arg(key));
    tool->setData(key);
    tool->setCheckable(key == QStringLiteral("Stop"));
}

void frmTestDesk::Form_Activate()
{
    if (txtLog)
        note(QStringLiteral("Form_Activate"));
}

void frmTestDesk::Form_Deactivate()
{
    if (txtLog)
        note(QStringLiteral("Form_Deactivate"));
}

bool frmTestDesk::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == window() && (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove)) {
        static_cast<QDragMoveEvent *>(event)->acceptProposedAction();
        return true;
    }
    if (watched == window() && event->type() == QEvent::Drop) {
        const QMimeData *data = static_cast<QDropEvent *>(event)->mimeData();
        for (const QUrl &url : data->urls())
            note(QStringLiteral("file ") + url.toLocalFile());
        if (data->hasText() && !data->hasUrls())
            note(QStringLiteral("text ") + data->text());
        return true;
    }
    return Form::eventFilter(watched, event);
}

void frmTestDesk::note(const QString &what)
{
    txtLog->appendPlainText(what);
    m_stopPass = m_stopPass || what == QStringLiteral("Ctrl+J");
}

void frmTestDesk::cmdBox_Click()
{
    const auto answer = services().messageBoxes.show({QStringLiteral("Ask"), QStringLiteral("Do it?\r\nReally?"),
                                                      MessageIcon::Exclamation, MessageButtons::YesNoCancel});
    const bool yes = answer == MessageAnswer::Yes;
    note(yes ? QStringLiteral("yes") : answer == MessageAnswer::No ? QStringLiteral("no") : QStringLiteral("cancel"));
}

void frmTestDesk::cmdOpen_Click()
{
    const auto result =
        services().commonDialogs.showOpen({QStringLiteral("Open it"), QStringLiteral("Pages|*.htm|All|*.*"), 2,
                                           QStringLiteral("/start"), txtName->text()});
    note(toldOr(result, [](const FileDialogResult &file) {
        return QStringLiteral("%1 %2").arg(file.fileName).arg(file.filterIndex);
    }));
}

void frmTestDesk::cmdSave_Click()
{
    const auto result = services().commonDialogs.showSave({QString(), QString(), 1, QString(), txtName->text()});
    note(toldOr(result, [](const FileDialogResult &file) { return file.fileName; }));
}

void frmTestDesk::cmdColour_Click()
{
    const auto colour = services().commonDialogs.showColour(255);
    note(toldOr(colour, [](ColourValue value) { return QString::number(value); }));
}

void frmTestDesk::cmdFolder_Click()
{
    const auto folder = services().commonDialogs.showFolder(QStringLiteral("Where"), QStringLiteral("/start"));
    note(toldOr(folder, [](const QString &path) { return path; }));
}

void frmTestDesk::cmdFont_Click()
{
    const auto font = services().commonDialogs.showFont({QStringLiteral("Serif"), 12});
    note(toldOr(
        font, [](const FontChoice &choice) { return QStringLiteral("%1 %2").arg(choice.family).arg(choice.points); }));
}

void frmTestDesk::cmdPrint_Click()
{
    note(toldOr(services().commonDialogs.showPrint(), [](int copies) { return QString::number(copies); }));
}

void frmTestDesk::cmdLaunch_Click()
{
    note(services().launcher.start(txtName->text()) ? QStringLiteral("started") : QStringLiteral("not started"));
}

void frmTestDesk::cmdRead_Click()
{
    const FileContents contents = services().files.readAll(txtName->text());
    note(contents.error ? QStringLiteral("error %1").arg(contents.error->code) : QString::fromUtf8(contents.bytes));
}

void frmTestDesk::cmdWrite_Click()
{
    const auto error = services().files.writeWhole(txtName->text(), QByteArrayLiteral("written"));
    note(error ? QStringLiteral("error %1").arg(error->code) : QStringLiteral("written"));
}

void frmTestDesk::cmdModal_Click()
{
    frmTestBox box(context());
    box.ShowModal();
    note(QStringLiteral("left by ") + box.chosen);
}

void frmTestDesk::cmdPass_Click()
{
    m_stopPass = false;
    int step = 0;
    services().yielder.beginPass();
    while (step < StepsOfPass && !m_stopPass) {
        ++step;
        services().yielder.yield();
    }
    note(QStringLiteral("%1 steps").arg(step));
}

void frmTestBox::Form_Load()
{
    using namespace ui;
    chosen.clear();
    const auto leave = [this](const QString &by) {
        chosen = by;
        Unload();
    };
    QPushButton *cmdOK =
        button(QStringLiteral("cmdOK"), QStringLiteral("OK"), [leave] { leave(QStringLiteral("cmdOK")); });
    QPushButton *cmdCancel =
        button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), [leave] { leave(QStringLiteral("cmdCancel")); });
    QPushButton *cmdMore = button(QStringLiteral("cmdMore"), QStringLiteral("More"), [this] {
        frmTestBox inner(context());
        inner.ShowModal();
    });
    setContent(column({buttons({cmdOK, cmdCancel, cmdMore})}));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}
} // namespace drive
