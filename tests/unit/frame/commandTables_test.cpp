#include "frame/frmMdiTables.h"

#include <gtest/gtest.h>

#include <QKeySequence>
#include <QSet>
#include <QString>
#include <string>

namespace
{
using Kind = CommandAction::Kind;

struct Entry {
    const char *menu;
    const char *name;
    const char *caption;
};

// clang-format off
constexpr Entry listed[] = {
    {"bar", "mnuFile", "&File"},
    {"mnuFile", "mnuNew", "&New..."},
    {"mnuFile", "mnuOpen", "&Open..."},
    {"mnuFile", "mnuOpenFromInternet", "Open from &Internet..."},
    {"mnuFile", "mnuImportRTF", "Import &Rich Text Format File..."},
    {"mnuFile", "mnuClose", "&Close"},
    {"mnuFile", "mnuNewSiteProject", "New Site Project..."},
    {"mnuFile", "mnuSave", "&Save"},
    {"mnuFile", "mnuSaveAs", "Save &As..."},
    {"mnuFile", "mnuSaveAll", "Save Al&l"},
    {"mnuFile", "mnuSavetoInternet", "Save to In&ternet..."},
    {"mnuFile", "mnuWizards", "&Wizards..."},
    {"mnuFile", "mnuUpload", "P&ublish files on Internet..."},
    {"mnuFile", "mnuProperties", "Properties..."},
    {"mnuFile", "mnuViewPage", "&View Page in Browser..."},
    {"mnuFile", "mnuPrint", "&Print..."},
    {"mnuFile", "mnuPrintPreview", "Print Previe&w..."},
    {"mnuFile", "mnuRecentFile(1)", "RecentFile1"},
    {"mnuFile", "mnuRecentFile(2)", "RecentFile2"},
    {"mnuFile", "mnuRecentFile(3)", "RecentFile3"},
    {"mnuFile", "mnuRecentFile(4)", "RecentFile4"},
    {"mnuFile", "mnuExit", "E&xit"},
    {"bar", "mnuEdit", "&Edit"},
    {"mnuEdit", "mnuUndo", "&Undo"},
    {"mnuEdit", "mnuRedo", "&Redo"},
    {"mnuEdit", "mnuCut", "Cu&t"},
    {"mnuEdit", "mnuCopy", "&Copy"},
    {"mnuEdit", "mnuPaste", "&Paste"},
    {"mnuEdit", "mnuSelectAll", "Select &All"},
    {"mnuEdit", "mnuFind", "&Find..."},
    {"mnuEdit", "mnuReplace", "R&eplace..."},
    {"mnuEdit", "mnuChangeURI", "Change Root Directory..."},
    {"mnuEdit", "mnuGoto", "&Go To Line..."},
    {"mnuEdit", "mnuGotoCharacter", "Go To &Character..."},
    {"mnuEdit", "mnuPreviousTag", "&Previous Element"},
    {"mnuEdit", "mnuNextTag", "&Next Element"},
    {"mnuEdit", "mnuAddToCodeLibrary", "Add Code Selection to Library..."},
    {"bar", "mnuView", "&View"},
    {"mnuView", "mnuShowbar", "&Address Bar"},
    {"mnuView", "mnuShowPrjWindow", "Task &Manager Pane"},
    {"mnuView", "mnuShowCodeBar", "&Code and Font Selection Toolbar"},
    {"mnuView", "mnuShowDocSelBar", "&Document Selection Bar"},
    {"mnuView", "mnuShowStatusBar", "S&tatus Bar"},
    {"mnuView", "mnuSplitEditingWindows", "&Split Code Editing and Preview Windows"},
    {"mnuView", "mnuBrwNavigate(0)", "Sto&p Internal Browser"},
    {"mnuView", "mnuBrwNavigate(1)", "&Refresh Internal Browser"},
    {"mnuView", "mnuBrwNavigate(2)", "Navigate Internal Browser &Forwards"},
    {"mnuView", "mnuBrwNavigate(3)", "Navigate Internal Browser &Backwards"},
    {"mnuView", "mnuScriptLibrary", "Code &Library"},
    {"mnuView", "mnuWordWrap", "Word &Wrap Text"},
    {"bar", "mnuInsert", "&Insert"},
    {"mnuInsert", "mnuInsDateTime", "&Date and Time"},
    {"mnuInsert", "mnuInsBreak", "Line &Break..."},
    {"mnuInsert", "mnuInsHorizontalRule", "Horizontal &Rule..."},
    {"mnuInsert", "mnuInsFormObject", "Form..."},
    {"mnuInsFormObject", "mnuInsFormField", "Form &Field..."},
    {"mnuInsFormObject", "mnuInsTxtBox", "Text &Box..."},
    {"mnuInsFormObject", "mnuInsTxtMulti", "Text &Area..."},
    {"mnuInsFormObject", "mnuInsCombo", "&List Selection..."},
    {"mnuInsFormObject", "mnuInsCheck", "&Check Box..."},
    {"mnuInsFormObject", "mnuInsOptionBox", "&Radio Button..."},
    {"mnuInsFormObject", "mnuButton", "&Button..."},
    {"mnuInsFormObject", "mnuInsHidden", "&Hidden Field..."},
    {"mnuInsert", "mnuInsImg", "&Image..."},
    {"mnuInsert", "mnuInsVideo", "&Video..."},
    {"mnuInsert", "mnuInsSound", "Background &Sound..."},
    {"mnuInsert", "mnuInsImageMap", "Image &Map..."},
    {"mnuInsert", "mnuInsHyperlink", "&Hyperlink..."},
    {"mnuInsert", "mnuInsExternalCSS", "External Style Sheet..."},
    {"mnuInsert", "mnuInsertFromLibrary", "Code from Library"},
    {"mnuInsert", "mnuInsObject", "&Object..."},
    {"mnuInsert", "mnuInsJavaApplet", "&Java Applet..."},
    {"mnuInsert", "mnuInsBullet", "Bullets and Numbering..."},
    {"mnuInsert", "mnuInsTable", "&Table"},
    {"mnuInsert", "mnuInsFramesPage", "Frames Page"},
    {"mnuInsert", "mnuInsDHTMLMenu", "DHTML Navigation Menu..."},
    {"mnuInsert", "mnuInsSpecChar", "Character &Entity Code"},
    {"mnuInsert", "mnuInsColourCode", "C&olour Code"},
    {"mnuInsert", "mnuInsComment", "Code Co&mment..."},
    {"bar", "mnuFormat", "F&ormat"},
    {"mnuFormat", "mnuChangeFont", "&Font..."},
    {"mnuFormat", "mnuChangeCase", "Change Cas&e..."},
    {"mnuFormat", "mnuOmitBasePath", "Exclude Base File Path"},
    {"mnuFormat", "mnuIndent", "&Indent Code Selection"},
    {"mnuFormat", "mnuOutdent", "&Outdent Code Selection"},
    {"mnuFormat", "mnuBold", "&Bold Text"},
    {"mnuFormat", "mnuItalic", "&Italic Text"},
    {"mnuFormat", "mnuUnderline", "&Underlined Text"},
    {"bar", "mnuTools", "&Tools"},
    {"mnuTools", "mnuCheckSyntax", "Check Syntax..."},
    {"mnuTools", "mnuCheckPage", "Check &Page"},
    {"mnuTools", "mnuCodeOptimise", "Optimise Syntax for Readability"},
    {"mnuTools", "mnuSpelling", "&Spelling..."},
    {"mnuTools", "mnuWordCount", "&Word Count..."},
    {"mnuTools", "mnuColourSelector", "Colour Selection &Palette..."},
    {"mnuTools", "mnuSymbolSelector", "Character &Entity Code Selector..."},
    {"mnuTools", "mnuOptions", "&Options..."},
    {"bar", "mnuSiteProjectHead", "&Projects"},
    {"mnuSiteProjectHead", "mnuNewProject", "New Site Project..."},
    {"mnuSiteProjectHead", "mnuOpenProject", "Open Site Project..."},
    {"mnuSiteProjectHead", "mnuAddSiteEditorFile", "Add Editor File..."},
    {"mnuSiteProjectHead", "mnuAddSiteOtherFile", "Add Other File..."},
    {"mnuSiteProjectHead", "mnuRemoveSiteEditorFile", "Remove Editor File"},
    {"mnuSiteProjectHead", "mnuRemoveSiteOtherFile", "Remove Other File"},
    {"mnuSiteProjectHead", "mnuProjectSave", "Save Site Project"},
    {"mnuSiteProjectHead", "mnuCloseProject", "Close Site Project..."},
    {"mnuSiteProjectHead", "mnuPrjProperties", "Project Properties"},
    {"mnuSiteProjectHead", "mnuSiteProjectMap", "View Site Project Map..."},
    {"bar", "mnuAddIns", "&Add-Ins"},
    {"mnuAddIns", "mnuAddInManager", "Add-In Manager..."},
    {"bar", "mnuWindow", "&Window"},
    {"mnuWindow", "mnuWinTile", "Tile &Horizontally"},
    {"mnuWindow", "mnuWinTileVert", "Tile &Vertically"},
    {"mnuWindow", "mnuWinCascade", "&Cascade"},
    {"mnuWindow", "mnuWinArrangeIcons", "&Arrange Icons"},
    {"mnuWindow", "mnuUnsaved", "Unsaved Documents..."},
    {"bar", "mnuHelp", "&Help"},
    {"mnuHelp", "mnuHelpContents", "&Contents..."},
    {"mnuHelp", "mnuHelpIndex", "&Index..."},
    {"mnuHelp", "mnuWhatsThisMode", "What's This Mode"},
    {"mnuHelp", "mnuHarblineWebsite", "Visit Harbline's Website..."},
    {"mnuHelp", "mnuCustomerBenefits", "My Customer Benefits Program..."},
    {"mnuHelp", "mnuHtmLangReg", "Language &Reference..."},
    {"mnuHelp", "mnuTutorial", "Creating Webpages &Tutorial..."},
    {"mnuHelp", "mnuAbout", "&About..."},
    {"mnuHelp", "mnuUpdate", "Check for Free Updates..."},
    {"popup", "mnuPopup", "&Options"},
    {"mnuPopup", "mnuPopupUndo", "Undo last action"},
    {"mnuPopup", "mnuPopupRedo", "Redo last action"},
    {"mnuPopup", "mnuPSave", "Save Document"},
    {"mnuPopup", "mnuPBrowserView", "View Page in Browser"},
    {"mnuPopup", "mnuPopupSiteProjectLayout", "View Site Project Layout"},
    {"mnuAddressBar", "mnuHideAddressBar", "Hide Address Bar"},
};

/// The keys of each toolbar, in the order in which a press is compared with them.
struct Keys {
    const char *bar;
    QStringList keys;
};
const Keys listedKeys[] = {
    {"tbrMain", {"New", "Open", "Save", "SaveAll", "OpenFromNet", "SaveToNet", "Print", "ViewPage", "SiteLayout", "Syntax", "Cut",
                 "Copy", "Paste", "Delete", "Undo", "Redo", "Find", "Replace"}},
    {"tbrInsert", {"Table", "InsHyperlink", "InsImage", "ImageMap", "SpecChar", "DHTMLMenu", "ColourCode", "CodeLibrary",
                   "InsFormButton", "InsFormCheck", "InsFormListSel", "InsFormRadio", "InsFormText", "InsFormTextArea"}},
    {"tbrFontStyles", {"Bold", "Italics", "Underline", "Monotype", "Left", "Center", "Right", "Justify", "BulletsNumbering",
                       "Indent", "Outdent"}},
    {"tbrCode", {"Bold", "Italic", "Underline", "Address", "Blockquote", "Citation", "Code", "Definition", "Emphasis",
                 "KeyboardInput", "Monospaced", "Preformatted", "Sample", "Strikethrough", "Strong", "Subscript", "Superscript",
                 "Variable"}},
    {"tbrBrowser", {"Forward", "Back", "Stop", "Refresh"}},
    {"tbrHelp", {"Help"}},
};
// clang-format on

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

TEST(CommandTables, entriesStandUnderTheirMenusWithTheirCaptions)
{
    for (const Entry &entry : listed) {
        const MenuCommand *command = entryNamed(entry.name);
        ASSERT_TRUE(command) << entry.name;
        EXPECT_STREQ(command->menu, entry.menu) << entry.name;
        EXPECT_STREQ(command->caption, entry.caption) << entry.name;
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
    for (const Keys &bar : listedKeys) {
        const QStringList keys = keysOf(toolCommands(), QLatin1String(bar.bar));
        EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), keys.size()) << bar.bar;
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

TEST(CommandTables, toolbarsHaveTheirKeysInOrder)
{
    for (const Keys &bar : listedKeys)
        EXPECT_EQ(keysOf(toolCommands(), QLatin1String(bar.bar)), bar.keys) << bar.bar;
    EXPECT_EQ(keysOf(dropCommands(), QStringLiteral("tbrHelp")),
              QStringList({"Contents", "Index", "Reference", "Tutorial", "Website", "Benefits", "Library"}));
    EXPECT_EQ(keysOf(toolCommands(), QStringLiteral("tbrUnsavedFiles")).size(), 1);
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
