#pragma once

struct ProgramContext;

/// Starts the program with which the user publishes whole sites. Without one in the settings, the user is asked whether
/// to look for it, which the Options dialog does.
void RunPublishingProgram(ProgramContext &context);

/// Starts the updater that stands beside the program, where there is one.
void RunUpdater(ProgramContext &context);
