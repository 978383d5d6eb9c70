#pragma once

#include "common/habits.h"

#include <span>

class MainCommands;

/// What a command does when it is chosen.
struct CommandAction {
    enum class Kind {
        Head,      ///< opens the menu under it
        Separator, ///< a line between entries
        Run,       ///< calls one of the handlers
        Form,      ///< loads and shows a form of the session
        ModalForm, ///< the same as a modal box
        Wrap,      ///< puts a pair of tags around the selection
        Nothing,   ///< is there without a command behind it
    };
    Kind kind = Kind::Nothing;
    void (MainCommands::*run)() = nullptr;
    const char *form = "";
    const char *open = ""; ///< the opening text of a pair
    const char *close = "";
};

/// When a command is enabled.
enum class Needs { Nothing, Document, Project };

/// One entry of the menus and pop-ups, in their order.
struct MenuCommand {
    const char *name; ///< the control's name, with its index in an array of entries
    const char *menu; ///< the menu it stands in; "bar" for the menu bar, "popup" for a menu of its own
    const char *caption;
    const char *shortcut; ///< as in "Ctrl+S"; empty for none
    const char *icon;     ///< the name of its drawing; empty for none
    Needs needs;
    CommandAction action;
    bool Habits::*hand = nullptr; ///< the rule of the user's that it belongs to: it is there only with that
};

/// One button of a toolbar, in the order of the toolbars, or one entry of a button's drop-down list.
struct ToolCommand {
    const char *bar;
    const char *key; ///< what it is known by within its bar
    const char *toolTip;
    const char *icon;
    const char *twin; ///< the menu entry whose shortcut the tool tip names; a shortcut of its own in brackets; empty
    Needs needs;
    CommandAction action;
};

/// A second name of a menu entry.
struct CommandAlias {
    const char *alias;
    const char *name;
};

std::span<const MenuCommand> menuCommands();
std::span<const CommandAlias> commandAliases();
std::span<const ToolCommand> toolCommands();
/// The entries of the drop-down lists: `bar` is the toolbar, whose button with a list holds them.
std::span<const ToolCommand> dropCommands();
