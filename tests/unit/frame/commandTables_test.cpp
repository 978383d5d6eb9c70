#include "frame/frmMdiTables.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QKeySequence>
#include <QSet>
#include <QString>
#include <string>

namespace
{
using Kind = CommandAction::Kind;

/// The toolbars, in their order.
const QStringList bars{QStringLiteral("tbrMain"),        QStringLiteral("tbrFontStyles"), QStringLiteral("tbrInsert"),
                       QStringLiteral("tbrCode"),        QStringLiteral("tbrHelp"),       QStringLiteral("tbrBrowser"),
                       QStringLiteral("tbrUnsavedFiles")};

const MenuCommand *entryNamed(const std::string &name)
{
    for (const MenuCommand &command : menuCommands())
        if (name == command.name)
            return &command;
    return nullptr;
}

bool isEntry(const MenuCommand &command)
{
    return command.action.kind != Kind::Separator;
}

QStringList keysOf(std::span<const ToolCommand> table, const QString &bar)
{
    QStringList keys;
    for (const ToolCommand &command : table)
        if (bar == QLatin1String(command.bar) && command.action.kind != Kind::Separator)
            keys.append(QLatin1String(command.key));
    return keys;
}

/// A command behind it, or the frank word that it waits for one.
bool hasHandler(const CommandAction &action)
{
    switch (action.kind) {
    case Kind::Run:
        return action.run != nullptr;
    case Kind::Form:
    case Kind::ModalForm:
        return std::string(action.form).starts_with("frm");
    case Kind::Wrap:
        return *action.open == '<';
    default:
        return true;
    }
}
} // namespace

TEST(CommandTables, everyEntryHasANameOfItsKindAndACaption)
{
    for (const MenuCommand &command : menuCommands()) {
        EXPECT_TRUE(std::string(command.name).starts_with("mnu")) << command.name;
        QString caption = QLatin1String(command.caption);
        EXPECT_LE(caption.count(u'&'), 1) << command.name;
        caption.remove(u'&');
        EXPECT_EQ(caption.isEmpty(), !isEntry(command)) << command.name;
        EXPECT_EQ(caption, caption.trimmed()) << command.name;
        EXPECT_TRUE(caption.isEmpty() || caption[0].isUpper()) << command.name;
    }
}

TEST(CommandTables, noMenuHasACaptionTwice)
{
    QSet<QString> captions;
    for (const MenuCommand &command : menuCommands()) {
        if (!isEntry(command))
            continue;
        const QString caption =
            QLatin1String(command.menu) + u'/' + QString(QLatin1String(command.caption)).remove(u'&');
        EXPECT_FALSE(captions.contains(caption)) << qPrintable(caption);
        captions.insert(caption);
    }
}

/// Dots tell that a dialog follows. These entries never had them.
TEST(CommandTables, entriesThatShowAFormEndInDots)
{
    const QSet<QString> without{QStringLiteral("mnuScriptLibrary"),     QStringLiteral("mnuInsDateTime"),
                                QStringLiteral("mnuInsertFromLibrary"), QStringLiteral("mnuInsTable"),
                                QStringLiteral("mnuInsSpecChar"),       QStringLiteral("mnuCheckPage"),
                                QStringLiteral("mnuPrjProperties"),     QStringLiteral("mnuPopupSiteProjectLayout")};
    for (const MenuCommand &command : menuCommands()) {
        const bool showsForm = command.action.kind == Kind::Form || command.action.kind == Kind::ModalForm;
        const bool hasDots = std::string(command.caption).ends_with("...");
        EXPECT_TRUE(!showsForm || hasDots != without.contains(QLatin1String(command.name))) << command.name;
    }
}

/// A line parts two entries. The one behind the add-ins' manager parts it from the add-ins, which no table knows.
TEST(CommandTables, linesStandBetweenEntries)
{
    QHash<QString, const MenuCommand *> last;
    for (const MenuCommand &command : menuCommands()) {
        const MenuCommand *before = last.value(QLatin1String(command.menu));
        EXPECT_TRUE(isEntry(command) || (before && isEntry(*before))) << command.name;
        last.insert(QLatin1String(command.menu), &command);
    }
    for (const MenuCommand *command : last)
        EXPECT_TRUE(isEntry(*command) || std::string(command->name) == "mnuAddInList(0)") << command->name;
}

TEST(CommandTables, aSecondNameIsNewAndStandsForAnEntry)
{
    for (const CommandAlias &alias : commandAliases()) {
        EXPECT_FALSE(entryNamed(alias.alias)) << alias.alias;
        EXPECT_TRUE(entryNamed(alias.name)) << alias.alias;
    }
}

TEST(CommandTables, namesAreUnique)
{
    QSet<QString> names;
    for (const MenuCommand &command : menuCommands()) {
        const QString name = QLatin1String(command.name);
        EXPECT_FALSE(names.contains(name)) << command.name;
        names.insert(name);
    }
    for (const QString &bar : bars) {
        const QStringList keys = keysOf(toolCommands(), bar);
        EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << qPrintable(bar);
    }
}

TEST(CommandTables, everyEntryStandsInAMenuMadeBeforeIt)
{
    QSet<QString> heads{QStringLiteral("bar"), QStringLiteral("popup")};
    for (const MenuCommand &command : menuCommands()) {
        EXPECT_TRUE(heads.contains(QLatin1String(command.menu))) << command.name;
        if (command.action.kind == Kind::Head)
            heads.insert(QLatin1String(command.name));
    }
}

/// A command of a rule takes the key of one that it shares it with, but never that of another rule's.
TEST(CommandTables, noTwoCommandsHaveOneShortcut)
{
    QSet<QString> always;
    QSet<QString> byRule;
    const auto take = [](QSet<QString> &shortcuts, const QString &text, const char *name) {
        const QKeySequence sequence(text);
        ASSERT_EQ(sequence.count(), 1) << name;
        EXPECT_FALSE(shortcuts.contains(sequence.toString())) << name;
        shortcuts.insert(sequence.toString());
    };
    for (const MenuCommand &command : menuCommands())
        if (*command.shortcut)
            take(command.hand ? byRule : always, QLatin1String(command.shortcut), command.name);
    for (const ToolCommand &command : toolCommands())
        if (*command.twin == '(') {
            const QString own = QString::fromLatin1(command.twin + 1).chopped(1);
            take(always, own, command.key);
            EXPECT_FALSE(byRule.contains(QKeySequence(own).toString())) << command.key;
        }
}

TEST(CommandTables, noShortcutTakesAKeyThatTheDocumentGivesAMeaning)
{
    for (const MenuCommand &command : menuCommands())
        for (const char *key : {"F1", "F6", "Tab", "Return", "Shift+F1", "Ctrl+Return"})
            EXPECT_STRNE(command.shortcut, key) << command.name;
}

TEST(CommandTables, everyCommandHasAHandler)
{
    for (const MenuCommand &command : menuCommands())
        EXPECT_TRUE(hasHandler(command.action)) << command.name;
    for (const auto table : {toolCommands(), dropCommands()})
        for (const ToolCommand &command : table)
            EXPECT_TRUE(hasHandler(command.action)) << command.bar << command.key;
}

TEST(CommandTables, acceleratorsAreUniqueInTheMenuBar)
{
    QSet<QChar> marks;
    for (const MenuCommand &command : menuCommands()) {
        if (std::string(command.menu) != "bar")
            continue;
        const QString caption = QLatin1String(command.caption);
        const QChar mark = caption[caption.indexOf(u'&') + 1].toLower();
        EXPECT_FALSE(marks.contains(mark)) << command.name;
        marks.insert(mark);
    }
}

TEST(CommandTables, theKeysOfAToolbarStandTogether)
{
    QStringList found;
    for (const ToolCommand &command : toolCommands())
        if (found.isEmpty() || found.last() != QLatin1String(command.bar))
            found.append(QLatin1String(command.bar));
    EXPECT_EQ(found, bars);
}

TEST(CommandTables, everyKeyHasAPictureAndATipAndLinesStandBetweenThem)
{
    const ToolCommand *before = nullptr;
    const auto isKey = [](const ToolCommand &command) { return command.action.kind != Kind::Separator; };
    for (const ToolCommand &command : toolCommands()) {
        EXPECT_EQ(*command.icon != 0, isKey(command)) << command.bar << command.key;
        EXPECT_EQ(*command.toolTip != 0, isKey(command)) << command.bar << command.key;
        const bool begins = !before || std::string(before->bar) != command.bar;
        EXPECT_TRUE(isKey(command) || (!begins && isKey(*before))) << command.bar;
        EXPECT_TRUE(!begins || !before || isKey(*before)) << command.bar;
        before = &command;
    }
    EXPECT_TRUE(before && isKey(*before));
}

/// The tip of a key names the shortcut of its twin in the menus, so both have to do the same.
TEST(CommandTables, aKeyDoesWhatItsTwinInTheMenusDoes)
{
    for (const ToolCommand &command : toolCommands()) {
        if (*command.twin == 0 || *command.twin == '(')
            continue;
        const MenuCommand *twin = entryNamed(command.twin);
        ASSERT_TRUE(twin) << command.twin;
        EXPECT_TRUE(command.action.kind == twin->action.kind && command.action.run == twin->action.run) << command.key;
        EXPECT_STREQ(command.action.form, twin->action.form) << command.key;
        EXPECT_STREQ(command.action.open, twin->action.open) << command.key;
        EXPECT_STREQ(command.action.close, twin->action.close) << command.key;
    }
}

TEST(CommandTables, aListDropsDownFromTheOneKeyOfItsBar)
{
    for (const ToolCommand &command : dropCommands()) {
        EXPECT_EQ(keysOf(toolCommands(), QLatin1String(command.bar)).size(), 1) << command.bar;
        EXPECT_NE(*command.toolTip, 0) << command.key; // its caption there
    }
    const QStringList keys = keysOf(dropCommands(), QStringLiteral("tbrHelp"));
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), static_cast<qsizetype>(dropCommands().size()));
}

TEST(CommandTables, theCommandsThatNeedADocumentAreTheListedOnes)
{
    const QSet<QString> expected{"mnuClose",          "mnuSave",           "mnuSaveAs",         "mnuSaveAll",
                                 "mnuSavetoInternet", "mnuProperties",     "mnuViewPage",       "mnuPrint",
                                 "mnuScriptLibrary",  "mnuEdit",           "mnuInsert",         "mnuFormat",
                                 "mnuTools",          "mnuUnsaved",        "mnuBrwNavigate(0)", "mnuBrwNavigate(1)",
                                 "mnuBrwNavigate(2)", "mnuBrwNavigate(3)", "mnuPrintPreview"};
    QSet<QString> needing;
    for (const MenuCommand &command : menuCommands())
        if (isEntry(command) && command.needs == Needs::Document)
            needing.insert(QLatin1String(command.name));
    EXPECT_EQ(needing, expected);
}

TEST(CommandTables, buttonsThatActOnNoDocumentAreFewAndNamed)
{
    QSet<QString> free;
    for (const ToolCommand &command : toolCommands())
        if (command.action.kind != Kind::Separator && command.needs == Needs::Nothing)
            free.insert(QLatin1String(command.key));
    EXPECT_EQ(free, QSet<QString>({"New", "Open", "OpenFromNet", "Help", "UnsavedFiles"}));
}
