#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class Document;
class Form;
class QAction;
class QObject;
class QToolBar;
class QWidget;

namespace drive
{
class Stage;

/// A form, or one of its controls, timers, menu entries, toolbars and toolbar buttons.
struct Target {
    QString name; ///< as the script writes it
    Form *form = nullptr;
    QObject *control = nullptr; ///< nothing for a form alone
};

/// What a target's name stands for. The script is wrong if there is no such form or control, and fails if the control's
/// form is not loaded or the document is not there.
Target findTarget(Stage &stage, const QString &text);
/// The same for one that may come yet; nothing as long as its form is not loaded.
std::optional<Target> awaitTarget(Stage &stage, const QString &text);

/// The form of a target alone, whatever control it names; nothing as long as it is not loaded.
std::optional<Target> awaitForm(Stage &stage, const QString &text);

/// The form of a target that is to be a form alone.
Form &findForm(Stage &stage, const QString &text);
/// A timer by its name: one of the active document or the main window, or a target like any other.
Target findTimer(Stage &stage, const QString &name);

/// The document that a form is; nothing for other forms.
Document *documentOf(Form &form);

/// A form's control by its name, toolbar buttons by their key, text or number too: "tbrMain(Save)".
QObject *findControl(Stage &stage, Form &form, const QString &name);
/// The names of a form's controls, in the order of the alphabet.
QStringList controlNames(Stage &stage, Form &form);

/// Whether a menu entry or toolbar button shows: it and all that it stands in.
bool isEntryShown(const QAction &entry);

/// One of several things by its 0-based number, its key or its text. Nothing if it is none of them.
struct Named {
    QString key;
    QString text;
};
std::optional<int> findNamed(const QList<Named> &things, const QString &name);

/// A caption without the marks of its accelerator.
QString withoutAccelerator(const QString &caption);
} // namespace drive
