#include "drive/properties.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "drive/controlAdapter.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "drive/toolbars.h"
#include "forms/form.h"
#include "frame/application.h"

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QMenu>
#include <QToolBar>
#include <QVariant>
#include <QWidget>

namespace drive
{
namespace
{
template <class Owner>
struct Property {
    const char *name;
    QString (*read)(const Owner &owner);
};

constexpr Property<Document> documentProperties[] = {
    {"DocSavePath", [](const Document &document) { return document.DocSavePath; }},
    {"boolDirty", [](const Document &document) { return truth(document.boolDirty); }},
    {"NewDoc", [](const Document &document) { return truth(document.NewDoc); }},
    {"UndoPosition", [](const Document &document) { return QString::number(document.UndoPosition()); }},
    {"DocNumber", [](const Document &document) { return QString::number(document.DocNumber); }},
    {"DocKeyDescription", [](const Document &document) { return document.DocKeyDescription; }},
    {"IsInUnicode", [](const Document &document) { return truth(document.IsInUnicode); }},
    {"InternetOriginURL", [](const Document &document) { return document.InternetOriginURL; }},
    {"UnsuccessfulClose", [](const Document &document) { return truth(document.UnsuccessfulClose); }},
};

template <class Owner, std::size_t size>
std::optional<QString> propertyOf(const Property<Owner> (&properties)[size], const Owner &owner, const QString &name)
{
    for (const Property<Owner> &property : properties)
        if (name == QLatin1String(property.name))
            return property.read(owner);
    return std::nullopt;
}

/// What an object offers under the name itself.
std::optional<QString> ownProperty(const QObject &object, const QString &name)
{
    const QVariant value = object.property(name.toUtf8().constData());
    if (!value.isValid())
        return std::nullopt;
    if (value.typeId() == QMetaType::Bool)
        return truth(value.toBool());
    if (value.typeId() == QMetaType::QColor)
        return colourName(
            colourOf(value.value<QColor>().red(), value.value<QColor>().green(), value.value<QColor>().blue()));
    return name.endsWith(QStringLiteral("Color")) ? colourName(value.toUInt()) : value.toString();
}

bool isEnabled(Stage &stage, const Form &form)
{
    if (form.Name() == QStringLiteral("frmMdi"))
        return stage.program().context().mainWindow->Enabled();
    return form.window() && form.window()->isEnabled();
}

bool hasFocus(const Form &form)
{
    const QWidget *focus = QApplication::focusWidget();
    return form.window()->isActiveWindow() && (form.window()->isWindow() || form.window()->isAncestorOf(focus));
}

std::optional<QString> formProperty(Stage &stage, Form &form, const QString &property)
{
    if (property == QStringLiteral("Visible"))
        return truth(form.Visible());
    if (property == QStringLiteral("Caption") || property == QStringLiteral("Text"))
        return form.Caption();
    if (!form.isLoaded())
        return std::nullopt;
    if (property == QStringLiteral("Enabled"))
        return truth(isEnabled(stage, form));
    if (property == QStringLiteral("Focus"))
        return truth(hasFocus(form));
    const PointerShape pointer = stage.program().context().screenPointer.MousePointer();
    if (property == QStringLiteral("MousePointer") && pointer != PointerShape::Default)
        return QString::number(static_cast<int>(pointer));
    if (const Document *document = documentOf(form))
        if (auto value = propertyOf(documentProperties, *document, property))
            return value;
    if (auto value = ownProperty(form, property))
        return value;
    return readProperty(*form.window(), property);
}

constexpr Property<TextSurface> surfaceProperties[] = {
    {"WordWrap", [](const TextSurface &surface) { return truth(surface.wrapToWindow()); }},
    {"LineCount", [](const TextSurface &surface) { return QString::number(surface.lineCount()); }},
};

constexpr Property<QAction> entryProperties[] = {
    {"Visible", [](const QAction &entry) { return truth(isEntryShown(entry)); }},
    {"Checked", [](const QAction &entry) { return truth(entry.isChecked()); }},
    {"Value", [](const QAction &entry) { return QString::number(entry.isChecked() ? 1 : 0); }},
};

std::optional<QString> controlProperty(QObject &control, const QString &property)
{
    if (const auto *entry = qobject_cast<QAction *>(&control))
        if (auto value = propertyOf(entryProperties, *entry, property))
            return value;
    if (const auto *surface = dynamic_cast<TextSurface *>(&control))
        if (auto value = propertyOf(surfaceProperties, *surface, property))
            return value;
    if (const auto *bar = qobject_cast<QToolBar *>(&control))
        if (auto value = toolBarProperty(*bar, property))
            return value;
    if (auto value = readProperty(control, property))
        return value;
    return ownProperty(control, property);
}
} // namespace

std::optional<QString> tryReadTarget(Stage &stage, const Target &target, const QString &property)
{
    return target.control ? controlProperty(*target.control, property) : formProperty(stage, *target.form, property);
}

QString readTarget(Stage &stage, const Target &target, const QString &property)
{
    const auto value = tryReadTarget(stage, target, property);
    if (value)
        return *value;
    if (!target.control && !target.form->isLoaded())
        stage.referee.fail(QStringLiteral("%1 loaded").arg(target.name), QStringLiteral("it not loaded"));
    stage.referee.wrong(QStringLiteral("%1 has no property %2").arg(target.name, property));
}

QStringList dumpForm(Stage &stage, Form &form)
{
    QStringList lines;
    for (const QString &name : controlNames(stage, form)) {
        QObject *control = findControl(stage, form, name);
        if (!control)
            continue;
        QString line = QStringLiteral("%1.%2").arg(form.Name(), name);
        for (const QString &property : propertyNames(*control))
            if (const auto value = tryReadTarget(stage, {name, &form, control}, property))
                line += QStringLiteral(" %1=%2").arg(property, quoted(*value));
        lines.append(line);
    }
    return lines;
}
} // namespace drive
