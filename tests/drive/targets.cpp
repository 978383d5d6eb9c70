#include "drive/targets.h"

#include "common/mainWindow.h"
#include "drive/script.h"
#include "drive/stage.h"
#include "drive/told.h"
#include "drive/toolbars.h"
#include "forms/form.h"
#include "frame/application.h"

#include <QAction>
#include <QMenu>
#include <QRegularExpression>
#include <QToolBar>
#include <QWidget>

namespace drive
{
namespace
{
TargetName parsedName(Stage &stage, const QString &text)
{
    const auto name = parseTargetName(text);
    if (!name)
        stage.referee.wrong(QStringLiteral("%1 is no target: FORM or FORM.CONTROL is needed").arg(text));
    return *name;
}

QList<Document *> documents(Stage &stage)
{
    MainWindow *window = stage.program().context().mainWindow;
    return window ? window->openDocuments() : QList<Document *>();
}

/// The document that a name stands for; nothing if there are not so many.
Document *findDocument(Stage &stage, const TargetName &name)
{
    const auto open = documents(stage);
    if (name.document > 0)
        return name.document <= open.size() ? open[name.document - 1] : nullptr;
    MainWindow *window = stage.program().context().mainWindow;
    return window ? window->activeDocument() : nullptr;
}

QString formNames(Stage &stage)
{
    QStringList names;
    const auto loaded = stage.program().forms().loaded();
    for (const Form *form : loaded)
        names.append(form->Name());
    return names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "));
}

/// Nothing for a document that is not there, which is no mistake of the script's.
Form *formOf(Stage &stage, const TargetName &name)
{
    if (name.isDocument())
        return dynamic_cast<Form *>(findDocument(stage, name));
    Form *form = stage.program().forms().loaded(name.form);
    if (!form)
        form = stage.program().form(name.form);
    if (!form)
        stage.referee.wrong(
            QStringLiteral("there is no form %1; the loaded ones are %2").arg(name.form, formNames(stage)));
    return form;
}

/// Whether an object under a form's window is the form's own: the windows of dialogs and documents lie in the main
/// window's, and their controls in theirs.
bool isOwn(Stage &stage, Form &form, const QObject &object)
{
    const auto loaded = stage.program().forms().loaded();
    for (const QObject *place = &object; place && place != form.window(); place = place->parent())
        for (const Form *other : loaded)
            if (other != &form && other->window() == place)
                return false;
    return true;
}

QObject *ownControl(Stage &stage, Form &form, const QString &name)
{
    QObject *control = form.control(name);
    if (!control || !form.window() || isOwn(stage, form, *control))
        return control;
    const auto namesakes = form.window()->findChildren<QObject *>(name);
    for (QObject *namesake : namesakes)
        if (isOwn(stage, form, *namesake))
            return namesake;
    return nullptr;
}

/// Whether it is the name of a control, not one that the toolkit gives to parts of its own.
bool isName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(u'_') && !name.startsWith(QStringLiteral("qt_"));
}

QObject *controlOf(Stage &stage, Form &form, const QString &name)
{
    QObject *control = findControl(stage, form, name);
    if (!control)
        stage.referee.wrong(QStringLiteral("%1 has no control %2; it has %3")
                                .arg(form.Name(), name, controlNames(stage, form).join(QStringLiteral(", "))));
    return control;
}

QString missingForm(Stage &stage, const TargetName &name)
{
    if (!name.isDocument())
        return QStringLiteral("it not loaded");
    return QStringLiteral("%1 documents").arg(documents(stage).size());
}
} // namespace

Target findTarget(Stage &stage, const QString &text)
{
    const TargetName name = parsedName(stage, text);
    Form *form = formOf(stage, name);
    if (!form || (!name.control.isEmpty() && !form->isLoaded()))
        stage.referee.fail(QStringLiteral("the form of %1 loaded").arg(text), missingForm(stage, name));
    return {text, form, name.control.isEmpty() ? nullptr : controlOf(stage, *form, name.control)};
}

std::optional<Target> awaitTarget(Stage &stage, const QString &text)
{
    const TargetName name = parsedName(stage, text);
    Form *form = formOf(stage, name);
    if (!form || (!name.control.isEmpty() && !form->isLoaded()))
        return std::nullopt;
    return Target{text, form, name.control.isEmpty() ? nullptr : controlOf(stage, *form, name.control)};
}

std::optional<Target> awaitForm(Stage &stage, const QString &text)
{
    Form *form = formOf(stage, parsedName(stage, text));
    return form && form->isLoaded() ? std::optional(Target{text, form, nullptr}) : std::nullopt;
}

Form &findForm(Stage &stage, const QString &text)
{
    const Target target = findTarget(stage, text);
    if (target.control)
        stage.referee.wrong(QStringLiteral("%1 is to be a form alone").arg(text));
    return *target.form;
}

Target findTimer(Stage &stage, const QString &name)
{
    if (name.contains(u'.'))
        return findTarget(stage, name);
    MainWindow *window = stage.program().context().mainWindow;
    auto *document = dynamic_cast<Form *>(window ? window->activeDocument() : nullptr);
    if (QObject *timer = document ? findControl(stage, *document, name) : nullptr)
        return {name, document, timer};
    return findTarget(stage, QStringLiteral("frmMdi.") + name);
}

Document *documentOf(Form &form)
{
    return dynamic_cast<Document *>(&form);
}

QObject *findControl(Stage &stage, Form &form, const QString &name)
{
    QObject *control = ownControl(stage, form, name);
    if (!control) {
        static const QRegularExpression button(QStringLiteral(R"(^([A-Za-z]\w*)\((.*)\)$)"));
        const auto match = button.match(name);
        auto *bar = match.hasMatch() ? qobject_cast<QToolBar *>(ownControl(stage, form, match.captured(1))) : nullptr;
        control = bar ? findToolButton(*bar, match.captured(2)) : nullptr;
    }
    if (auto *menu = qobject_cast<QMenu *>(control))
        return menu->menuAction();
    return control;
}

QStringList controlNames(Stage &stage, Form &form)
{
    QStringList names;
    if (!form.window())
        return names;
    const auto objects = form.window()->findChildren<QObject *>();
    for (const QObject *object : objects)
        if (isName(object->objectName()) && isOwn(stage, form, *object))
            names.append(object->objectName());
    names.removeDuplicates();
    names.sort();
    return names;
}

bool isEntryShown(const QAction &entry)
{
    const auto places = entry.associatedObjects();
    for (QObject *place : places) {
        if (const auto *menu = qobject_cast<QMenu *>(place); menu && !isEntryShown(*menu->menuAction()))
            return false;
        if (const auto *bar = qobject_cast<QToolBar *>(place); bar && !bar->isVisible())
            return false;
    }
    return entry.isVisible();
}

std::optional<int> findNamed(const QList<Named> &things, const QString &name)
{
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber && number >= 0 && number < things.size())
        return number;
    for (int i = 0; i < things.size(); ++i)
        if (!things[i].key.isEmpty() && things[i].key == name)
            return i;
    for (int i = 0; i < things.size(); ++i)
        if (things[i].text == name || withoutAccelerator(things[i].text) == name)
            return i;
    return std::nullopt;
}

QString withoutAccelerator(const QString &caption)
{
    QString plain;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && ++i == caption.size())
            break;
        plain += caption[i];
    }
    return plain;
}
} // namespace drive
