#include "drive/monkey.h"

#include "common/mainWindow.h"
#include "drive/controlAdapter.h"
#include "drive/input.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "drive/toolbars.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/timer.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QToolBar>
#include <algorithm>

namespace drive
{
namespace
{
constexpr int PatienceWithForms = 25; ///< steps in a modal form until its user is keen to leave it

QStringList words(std::initializer_list<QString> list)
{
    return list;
}

/// The words as a script has them.
QByteArray written(const QStringList &words)
{
    QStringList all;
    for (const QString &word : words) {
        const bool plain = !word.isEmpty() && !word.contains(u' ') && quoted(word) == u'"' + word + u'"' &&
                           !word.startsWith(QStringLiteral("<<")) && !word.startsWith(u'#');
        all.append(plain ? word : quoted(word));
    }
    return all.join(u' ').toUtf8() + '\n';
}

MainWindow *mainWindowOf(Stage &stage)
{
    return stage.isRunning() ? stage.program().context().mainWindow : nullptr;
}

/// The form's name as a target has it; nothing for a document that is not the active one.
QString targetOf(Stage &stage, Form &form)
{
    Document *document = documentOf(form);
    if (!document)
        return form.Name();
    return mainWindowOf(stage)->activeDocument() == document ? QStringLiteral("doc") : QString();
}

bool isFileMenuEnd(const QString &name)
{
    return name == QStringLiteral("mnuExit");
}

/// The controls of a form that a user can act on now, by their names.
QList<std::pair<QString, QObject *>> usableControls(Stage &stage, Form &form)
{
    QList<std::pair<QString, QObject *>> usableOnes;
    const QStringList names = controlNames(stage, form);
    for (const QString &name : names) {
        QObject *control = findControl(stage, form, name);
        auto *widget = qobject_cast<QWidget *>(control);
        if (widget && !qobject_cast<QMenu *>(control) && !qobject_cast<QToolBar *>(control) && usable(*widget).done)
            usableOnes.append({name, control});
    }
    return usableOnes;
}
} // namespace

Monkey::Monkey(quint32 seed, int steps, const QString &written) : m_words(seed), m_left(steps), m_file(written)
{
    if (!written.isEmpty())
        m_file.open(QIODevice::WriteOnly);
}

Line Monkey::note(const QStringList &words)
{
    if (m_file.isOpen()) {
        m_file.write(written(words));
        m_file.flush();
    }
    Line line;
    line.number = ++m_number;
    line.command = words.front();
    line.words = words.sliced(1);
    return line;
}

std::optional<Line> Monkey::next(Stage &stage, Form *modal)
{
    if (m_left-- <= 0)
        return std::nullopt;
    m_modalSteps = modal == m_modal ? m_modalSteps + 1 : 0;
    m_modal = modal;
    QStringList line;
    for (int attempt = 0; attempt < 20 && line.isEmpty(); ++attempt)
        line = modal ? inForm(stage, *modal) : anywhere(stage);
    return note(line.isEmpty() ? words({QStringLiteral("pass"), QStringLiteral("1")}) : line);
}

std::optional<Line> Monkey::answerTo(const MessageBox &box)
{
    QStringList buttons;
    for (const MessageAnswer answer :
         {MessageAnswer::OK, MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel, MessageAnswer::Retry})
        if (hasButton(box.buttons, answer))
            buttons.append(answerName(answer));
    // A box that offers to try again would go on for as long as it is told to.
    buttons.removeAll(m_words.onceIn(3) ? QString() : QStringLiteral("Retry"));
    return note({QStringLiteral("answer"), m_words.oneOf(buttons)});
}

std::optional<Line> Monkey::answerTo(DialogKind kind)
{
    if (m_words.onceIn(5))
        return note({QStringLiteral("choose-cancel")});
    switch (kind) {
    case DialogKind::Open:
        return note({QStringLiteral("choose"), m_words.page()});
    case DialogKind::Save:
        return note({QStringLiteral("choose"), m_words.newFile(), QString::number(1 + m_words.below(3))});
    case DialogKind::Colour:
        return note({QStringLiteral("choose-colour"), QStringLiteral("#12AB%1").arg(10 + m_words.below(80))});
    case DialogKind::Folder:
        return note({QStringLiteral("choose-folder"),
                     m_words.onceIn(3) ? QStringLiteral("%SITE%/new folder") : QStringLiteral("%SITE%")});
    case DialogKind::Font:
        return note(
            {QStringLiteral("choose-font"), QStringLiteral("DejaVu Sans"), QString::number(6 + m_words.below(30))});
    case DialogKind::Print:
        return note({QStringLiteral("choose-copies"), QStringLiteral("2")});
    }
    return std::nullopt;
}

QStringList Monkey::anywhere(Stage &stage)
{
    if (!stage.isRunning())
        return {QStringLiteral("restart")};
    if (m_words.onceIn(400))
        return {QStringLiteral("exit")};
    const int choice = m_words.below(100);
    if (choice < 26)
        return writing();
    if (choice < 45)
        return byMenu(stage);
    if (choice < 57)
        return byTool(stage);
    if (choice < 72)
        return inDocument(stage);
    if (choice < 80)
        return inTime(stage);
    return inSomeForm(stage);
}

QStringList Monkey::writing()
{
    if (m_words.onceIn(2))
        return {QStringLiteral("type"), m_words.text()};
    QStringList line{QStringLiteral("key")};
    for (int i = m_words.below(3); i >= 0; --i)
        line.append(m_words.chord());
    return line;
}

QStringList Monkey::byMenu(Stage &stage)
{
    Form *mainForm = stage.program().form(QStringLiteral("frmMdi"));
    if (!mainForm || !mainForm->isLoaded())
        return {};
    QStringList entries;
    const QStringList names = controlNames(stage, *mainForm);
    for (const QString &name : names) {
        const auto *entry = qobject_cast<QAction *>(findControl(stage, *mainForm, name));
        if (entry && name.startsWith(QStringLiteral("mnu")) && !entry->menu<QMenu *>() && entry->isVisible() &&
            entry->isEnabled() && !isFileMenuEnd(name))
            entries.append(name);
    }
    return entries.isEmpty() ? QStringList() : words({QStringLiteral("menu"), m_words.oneOf(entries)});
}

QStringList Monkey::byTool(Stage &stage)
{
    Form *mainForm = stage.program().form(QStringLiteral("frmMdi"));
    if (!mainForm || !mainForm->window())
        return {};
    QList<QToolBar *> bars = mainForm->window()->findChildren<QToolBar *>();
    bars.removeIf([](const QToolBar *bar) { return bar->objectName().isEmpty() || !bar->isVisible(); });
    if (bars.isEmpty())
        return {};
    const QToolBar &bar = *bars[m_words.below(static_cast<int>(bars.size()))];
    QStringList keys;
    const auto actions = bar.actions();
    for (const QAction *action : actions)
        if (!action->isSeparator() && action->isEnabled() && action->isVisible())
            keys.append(keyOfToolButton(bar, *action));
    keys.removeAll(QString());
    if (keys.isEmpty())
        return {};
    QStringList line{QStringLiteral("tool"), bar.objectName(), m_words.oneOf(keys)};
    if (m_words.onceIn(4))
        line.append(QString::number(m_words.below(6)));
    return line;
}

QStringList Monkey::inDocument(Stage &stage)
{
    const auto documents = mainWindowOf(stage)->openDocuments();
    const int count = static_cast<int>(documents.size());
    if (count == 0 || (count < 4 && m_words.onceIn(8)))
        return {QStringLiteral("menu"), m_words.onceIn(3) ? QStringLiteral("mnuNew") : QStringLiteral("mnuOpen")};
    const QString any = QStringLiteral("doc(%1)").arg(1 + m_words.below(count));
    Document *active = mainWindowOf(stage)->activeDocument();
    const int length = active ? static_cast<int>(active->txtEdit().textLength()) : 0;
    switch (m_words.below(9)) {
    case 0:
    case 1:
    case 2:
        return {QStringLiteral("select"), QString::number(m_words.below(length + 1)),
                QString::number(m_words.onceIn(2) ? 0 : m_words.below(40))};
    case 3:
        return {QStringLiteral("focus"), any};
    case 4:
        return m_words.onceIn(count > 4 ? 1 : 4) ? words({QStringLiteral("close"), any})
                                                 : words({QStringLiteral("expect-undo-leads-back")});
    case 5:
        return inText();
    case 6:
        return {QStringLiteral("clipboard"), m_words.text()};
    case 7:
        return m_words.onceIn(4)
                   ? words({QStringLiteral("size"), QStringLiteral("frmMdi"), QString::number(500 + m_words.below(700)),
                            QString::number(400 + m_words.below(400))})
                   : words({QStringLiteral("drop"), QStringLiteral("doc.txtEdit"), QStringLiteral("text"),
                            m_words.text()});
    default:
        return {QStringLiteral("expect-undo-leads-back")};
    }
}

/// The mouse in the text, with and without what extends a selection.
QStringList Monkey::inText()
{
    static const QStringList acts = {QStringLiteral("click"),   QStringLiteral("dblclick"), QStringLiteral("press"),
                                     QStringLiteral("release"), QStringLiteral("move"),     QStringLiteral("rclick")};
    QStringList line{QStringLiteral("mouse"), QStringLiteral("doc.txtEdit"), m_words.oneOf(acts),
                     QString::number(m_words.below(500)), QString::number(m_words.below(400))};
    if (m_words.onceIn(4))
        line.append(m_words.oneOf({QStringLiteral("Shift"), QStringLiteral("Ctrl"), QStringLiteral("Alt")}));
    return line;
}

QStringList Monkey::inTime(Stage &stage)
{
    if (m_words.onceIn(3))
        return {QStringLiteral("pass"), m_words.oneOf({QStringLiteral("0.1"), QStringLiteral("1"), QStringLiteral("3"),
                                                       QStringLiteral("12"), QStringLiteral("70")})};
    QStringList timers;
    for (const QString &name : {QStringLiteral("doc"), QStringLiteral("frmMdi")}) {
        const auto form =
            mainWindowOf(stage)->activeDocument() || name != u"doc" ? awaitForm(stage, name) : std::nullopt;
        if (!form)
            continue;
        const auto parts = form->form->findChildren<QObject *>();
        for (const QObject *part : parts) {
            const auto *timer = dynamic_cast<const Timer *>(part);
            if (timer && timer->Enabled() && timer->Interval() > 0 && !timer->objectName().isEmpty())
                timers.append(name + u'.' + timer->objectName());
        }
    }
    return timers.isEmpty() ? QStringList() : words({QStringLiteral("tick"), m_words.oneOf(timers)});
}

/// In the main window, the active document, or a form that stands beside them.
QStringList Monkey::inSomeForm(Stage &stage)
{
    QList<Form *> forms;
    const auto loaded = stage.program().forms().loaded();
    for (Form *form : loaded)
        if (form->Visible() && takesInput(stage, *form))
            forms.append(form);
    return forms.isEmpty() ? QStringList() : inForm(stage, *forms[m_words.below(static_cast<int>(forms.size()))]);
}

QStringList Monkey::inForm(Stage &stage, Form &form)
{
    const QString target = targetOf(stage, form);
    if (target.isEmpty())
        return {};
    const bool aside = target != u"doc" && target != u"frmMdi";
    if (aside && (m_words.onceIn(12) || (m_modal && m_modalSteps > PatienceWithForms)))
        return leaving(stage, form);
    if (aside && m_words.onceIn(8))
        return writing();
    const auto controls = usableControls(stage, form);
    if (controls.isEmpty())
        return aside ? leaving(stage, form) : QStringList();
    const auto &[name, control] = controls[m_words.below(static_cast<int>(controls.size()))];
    return onControl(target + u'.' + name, *control);
}

QStringList Monkey::onControl(const QString &target, QObject &control)
{
    const auto row = [&](int rows) { return QString::number(m_words.below(std::max(rows, 1))); };
    if (m_words.onceIn(6))
        return mouse(target, *qobject_cast<QWidget *>(&control));
    if (qobject_cast<QAbstractButton *>(&control))
        return {QStringLiteral("click"), target};
    if (const auto *combo = qobject_cast<QComboBox *>(&control))
        return combo->isEditable() && m_words.onceIn(2) ? words({QStringLiteral("set"), target, m_words.fieldText()})
                                                        : words({QStringLiteral("pick"), target, row(combo->count())});
    if (qobject_cast<QLineEdit *>(&control))
        return {QStringLiteral("set"), target, m_words.fieldText()};
    if (const auto *tabs = qobject_cast<QTabBar *>(&control))
        return {QStringLiteral("pick"), target, row(tabs->count())};
    if (const auto *view = qobject_cast<QAbstractItemView *>(&control)) {
        const int rows = view->model() ? view->model()->rowCount(view->rootIndex()) : 0;
        if (view->inherits("QTreeView") && m_words.onceIn(2))
            return {QStringLiteral("node"), target, u'#' + row(rows * 2),
                    m_words.oneOf({QStringLiteral("click"), QStringLiteral("dblclick"), QStringLiteral("enter")})};
        return {m_words.onceIn(4) ? QStringLiteral("dblpick") : QStringLiteral("pick"), target, row(rows)};
    }
    if (m_words.onceIn(2))
        return {QStringLiteral("focus"), target};
    return mouse(target, *qobject_cast<QWidget *>(&control));
}

QStringList Monkey::mouse(const QString &target, const QWidget &widget)
{
    static const QStringList acts = {QStringLiteral("click"), QStringLiteral("dblclick"), QStringLiteral("press"),
                                     QStringLiteral("move"), QStringLiteral("release")};
    return {QStringLiteral("mouse"), target, m_words.oneOf(acts), QString::number(m_words.below(widget.width())),
            QString::number(m_words.below(widget.height()))};
}

QStringList Monkey::leaving(Stage &stage, Form &form)
{
    const QString target = targetOf(stage, form);
    switch (m_words.below(4)) {
    case 0:
        return {QStringLiteral("key"), QStringLiteral("Escape")};
    case 1:
        return {QStringLiteral("key"), QStringLiteral("Enter")};
    case 2:
        for (const QString &name : {QStringLiteral("cmdOK"), QStringLiteral("cmdOk"), QStringLiteral("cmdCancel")})
            if (form.control(name) && m_words.onceIn(2))
                return {QStringLiteral("click"), target + u'.' + name};
        [[fallthrough]];
    default:
        return {QStringLiteral("close"), target};
    }
}
} // namespace drive
