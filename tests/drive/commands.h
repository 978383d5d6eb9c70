#pragma once

#include "drive/script.h"

#include <optional>
#include <span>

namespace drive
{
class Stage;

/// What a script can say: a command's name, how many words may follow it, and what it does.
struct Command {
    const char *name;
    int fewest;
    int most;                                    ///< -1: any number
    void (*run)(Stage &stage, const Line &line); ///< the line's words have their marks replaced
};

std::span<const Command> lifeCommands();
std::span<const Command> menuCommands();
std::span<const Command> inputCommands();
std::span<const Command> controlCommands();
std::span<const Command> answerCommands();
std::span<const Command> lookCommands();
std::span<const Command> recordCommands();
std::span<const Command> compareCommands();
std::span<const Command> printCommands();
std::span<const Command> fileCommands();
std::span<const Command> otherHostCommands();
std::span<const Command> previewCommands();
std::span<const Command> outsideCommands();
std::span<const Command> freeCommands();

/// Nothing if there is no such command.
const Command *commandNamed(const QString &name);

/// The first line that no command stands behind, or that has too few words or too many.
std::optional<ScriptError> checkCommands(const std::vector<Line> &lines);
} // namespace drive
