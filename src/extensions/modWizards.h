#pragma once

#include <QString>
#include <QStringList>
#include <optional>

struct ProgramContext;

/// Wizards: tasks of a component of their own, which write pages, or parts of them.

/// The names in the component's list, each of which a ";" ends. What no ";" follows is no name.
QStringList wizardNames(const QString &list);

/// Asks the component for its wizards. Nothing if there is none, or it failed.
std::optional<QStringList> availableWizards(ProgramContext &context);

/// Tells that the component is not to be had.
void tellNoWizards(ProgramContext &context);

/// Runs a wizard, counted from 1, and puts what it writes where it belongs: into a new document, or in place of the
/// selection of the document that was active when it started. A failure is told.
void RunWizard(ProgramContext &context, int index);

/// Runs the wizard for pages of frames, the first one, and shows what it writes as a new document.
void RunFramesWizard(ProgramContext &context);
