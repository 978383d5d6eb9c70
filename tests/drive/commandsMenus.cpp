// Menus and toolbars.
#include "drive/commands.h"
#include "drive/menus.h"
#include "drive/toolbars.h"

namespace drive
{
namespace
{
void menu(Stage &stage, const Line &line)
{
    QString name = line.words[0];
    if (line.words.size() > 1)
        name += QStringLiteral("(%1)").arg(line.words[1]);
    chooseMenuEntry(stage, name);
}

void openOnly(Stage &stage, const Line &line)
{
    openMenu(stage, line.words[0]);
}

void tool(Stage &stage, const Line &line)
{
    if (line.words.size() > 2)
        pressToolDrop(stage, line.words[0], line.words[1], line.words[2]);
    else
        pressTool(stage, line.words[0], line.words[1]);
}

constexpr Command commands[] = {
    {"menu", 1, 2, menu},
    {"open-menu", 1, 1, openOnly},
    {"tool", 2, 3, tool},
};
} // namespace

std::span<const Command> menuCommands()
{
    return commands;
}
} // namespace drive
