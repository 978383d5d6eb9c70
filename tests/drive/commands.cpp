#include "drive/commands.h"

#include <algorithm>

namespace drive
{
namespace
{
std::vector<std::span<const Command>> allTables()
{
    return {lifeCommands(),      menuCommands(),    inputCommands(),   controlCommands(), answerCommands(),
            compareCommands(),   lookCommands(),    recordCommands(),  printCommands(),   fileCommands(),
            otherHostCommands(), previewCommands(), outsideCommands(), freeCommands()};
}

QString countOf(const Command &command)
{
    if (command.most < 0)
        return QStringLiteral("at least %1").arg(command.fewest);
    if (command.fewest == command.most)
        return QString::number(command.fewest);
    return QStringLiteral("%1 to %2").arg(command.fewest).arg(command.most);
}

QStringList commandNames()
{
    QStringList names;
    for (const auto &table : allTables())
        for (const Command &command : table)
            names.append(QLatin1String(command.name));
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<QString> wrongWith(const Line &line)
{
    const Command *command = commandNamed(line.command);
    if (!command)
        return QStringLiteral("there is no command %1; there are %2")
            .arg(line.command, commandNames().join(QStringLiteral(", ")));
    const qsizetype words = line.words.size();
    if (words >= command->fewest && (command->most < 0 || words <= command->most))
        return std::nullopt;
    return QStringLiteral("%1 takes %2 words, but has %3").arg(line.command, countOf(*command)).arg(words);
}
} // namespace

const Command *commandNamed(const QString &name)
{
    for (const auto &table : allTables())
        for (const Command &command : table)
            if (name == QLatin1String(command.name))
                return &command;
    return nullptr;
}

std::optional<ScriptError> checkCommands(const std::vector<Line> &lines)
{
    for (const Line &line : lines) {
        if (const auto reason = wrongWith(line))
            return ScriptError{line.number, *reason};
        if (auto error = checkCommands(line.block))
            return error;
    }
    return std::nullopt;
}
} // namespace drive
