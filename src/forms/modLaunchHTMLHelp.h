#pragma once

#include <QString>

struct ProgramContext;

/// Shows a topic of the help by its path, as in "::/topics/Index.htm". The caller's window stays open and in use; a
/// topic that is missing is the help's own affair.
void OpenHelpTopic(ProgramContext &context, const QString &topic);
