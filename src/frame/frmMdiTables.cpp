// The tables of the main window's commands.
#include "frame/frmMdiTables.h"

#include "frame/frmMdiCommands.h"

namespace
{
using C = MainCommands;
using K = CommandAction::Kind;

constexpr CommandAction head()
{
    return {.kind = K::Head};
}
constexpr CommandAction runs(void (C::*handler)())
{
    return {.kind = K::Run, .run = handler};
}
constexpr CommandAction shows(const char *form)
{
    return {.kind = K::Form, .form = form};
}
constexpr CommandAction showsModal(const char *form)
{
    return {.kind = K::ModalForm, .form = form};
}
constexpr CommandAction wraps(const char *open, const char *close)
{
    return {.kind = K::Wrap, .open = open, .close = close};
}
constexpr CommandAction nothing()
{
    return {.kind = K::Nothing};
}
constexpr MenuCommand line(const char *name, const char *menu)
{
    return {name, menu, "", "", "", Needs::Nothing, {.kind = K::Separator}};
}

constexpr Needs Doc = Needs::Document;
constexpr Needs Prj = Needs::Project;
constexpr Needs Any = Needs::Nothing;

// clang-format off
constexpr MenuCommand menuTable[] = {
    {"mnuFile", "bar", "&File", "", "", Any, head()},
    {"mnuNew", "mnuFile", "&New...", "", "file-plus", Any, shows("frmNew")},
    {"mnuOpen", "mnuFile", "&Open...", "Ctrl+O", "folder-open", Any, runs(&C::mnuOpen_Click)},
    {"mnuOpenFromInternet", "mnuFile", "Open from &Internet...", "", "cloud-download", Any, shows("frmOpenFromInternet")},
    {"mnuImportRTF", "mnuFile", "Import &Rich Text Format File...", "", "", Any, nothing()},
    {"mnuClose", "mnuFile", "&Close", "Ctrl+W", "", Doc, runs(&C::mnuClose_Click)},
    line("mnuDashProject", "mnuFile"),
    {"mnuNewSiteProject", "mnuFile", "New Site Project...", "", "", Any, showsModal("frmNewProject")},
    line("mnuDashSave", "mnuFile"),
    {"mnuSave", "mnuFile", "&Save", "Ctrl+S", "save", Doc, runs(&C::mnuSave_Click)},
    {"mnuSaveAs", "mnuFile", "Save &As...", "Ctrl+Shift+S", "", Doc, runs(&C::mnuSaveAs_Click)},
    {"mnuSaveAll", "mnuFile", "Save Al&l", "Ctrl+Alt+S", "save-all", Doc, runs(&C::mnuSaveAll_Click)},
    {"mnuSavetoInternet", "mnuFile", "Save to In&ternet...", "", "cloud-upload", Doc, shows("frmSavetoInternet")},
    line("mnuDashWizards", "mnuFile"),
    {"mnuWizards", "mnuFile", "&Wizards...", "", "", Any, runs(&C::mnuWizards_Click)},
    {"mnuUpload", "mnuFile", "P&ublish files on Internet...", "", "", Any, runs(&C::mnuUpload_Click)},
    line("mnuDashProperties", "mnuFile"),
    {"mnuProperties", "mnuFile", "Properties...", "Alt+Return", "", Doc, shows("frmProperties")},
    {"mnuViewPage", "mnuFile", "&View Page in Browser...", "Ctrl+Shift+P", "globe", Doc, runs(&C::mnuViewPage_Click)},
    {"mnuPrint", "mnuFile", "&Print...", "Ctrl+P", "printer", Doc, runs(&C::mnuPrint_Click)},
    {"mnuPrintPreview", "mnuFile", "Print Previe&w...", "Ctrl+Shift+F2", "", Doc, shows("frmPrintPreview")},
    line("mnuDashUpdates", "mnuFile"),
    {"mnuRecentFile(1)", "mnuFile", "RecentFile1", "", "", Any, runs(&C::mnuRecentFile_Click<1>)},
    {"mnuRecentFile(2)", "mnuFile", "RecentFile2", "", "", Any, runs(&C::mnuRecentFile_Click<2>)},
    {"mnuRecentFile(3)", "mnuFile", "RecentFile3", "", "", Any, runs(&C::mnuRecentFile_Click<3>)},
    {"mnuRecentFile(4)", "mnuFile", "RecentFile4", "", "", Any, runs(&C::mnuRecentFile_Click<4>)},
    line("mnuDashExit", "mnuFile"),
    {"mnuExit", "mnuFile", "E&xit", "Ctrl+Q", "", Any, runs(&C::mnuExit_Click)},

    {"mnuEdit", "bar", "&Edit", "", "", Doc, head()},
    {"mnuUndo", "mnuEdit", "&Undo", "Ctrl+Z", "undo-2", Any, runs(&C::mnuUndo_Click)},
    {"mnuRedo", "mnuEdit", "&Redo", "Ctrl+Y", "redo-2", Any, runs(&C::mnuRedo_Click)},
    line("mnuDashClipboard", "mnuEdit"),
    {"mnuCut", "mnuEdit", "Cu&t", "Ctrl+X", "scissors", Any, runs(&C::mnuCut_Click)},
    {"mnuCopy", "mnuEdit", "&Copy", "Ctrl+C", "copy", Any, runs(&C::mnuCopy_Click)},
    {"mnuPaste", "mnuEdit", "&Paste", "Ctrl+V", "clipboard-paste", Any, runs(&C::mnuPaste_Click)},
    {"mnuSelectAll", "mnuEdit", "Select &All", "Ctrl+A", "", Any, runs(&C::mnuSelectAll_Click)},
    line("mnuDashFind", "mnuEdit"),
    {"mnuFind", "mnuEdit", "&Find...", "Ctrl+F", "search", Any, shows("frmFind")},
    {"mnuReplace", "mnuEdit", "R&eplace...", "Ctrl+H", "replace", Any, runs(&C::mnuReplace_Click)},
    {"mnuFindNext", "mnuEdit", "Find Ne&xt", "F3", "", Any, runs(&C::mnuFindNext_Click)},
    {"mnuFindPrevious", "mnuEdit", "Find Pre&vious", "Shift+F3", "", Any, runs(&C::mnuFindPrevious_Click)},
    {"mnuChangeURI", "mnuEdit", "Change Root Directory...", "", "", Any, shows("frmChangeRootDirectory")},
    line("mnuDashGoto", "mnuEdit"),
    {"mnuGoto", "mnuEdit", "&Go To Line...", "Ctrl+G", "", Any, shows("frmGoToLine")},
    {"mnuGotoCharacter", "mnuEdit", "Go To &Character...", "Ctrl+Shift+G", "", Any, shows("frmGoToCharacter")},
    {"mnuPreviousTag", "mnuEdit", "&Previous Element", "F11", "", Any, runs(&C::mnuPreviousTag_Click)},
    {"mnuNextTag", "mnuEdit", "&Next Element", "F12", "", Any, runs(&C::mnuNextTag_Click)},
    line("mnuDashLibrary", "mnuEdit"),
    {"mnuAddToCodeLibrary", "mnuEdit", "Add Code Selection to Library...", "", "", Any, shows("frmAddToCodeLib")},

    {"mnuHands", "mnuEdit", "&Hands", "", "", Any, head()},
    {"mnuToggleComment", "mnuHands", "&Comment or Uncomment Lines", "Ctrl+/", "", Any, runs(&C::mnuToggleComment_Click), &Habits::HandsComment},
    {"mnuMoveLinesUp", "mnuHands", "Move Lines &Up", "Alt+Up", "", Any, runs(&C::mnuMoveLinesUp_Click), &Habits::HandsLines},
    {"mnuMoveLinesDown", "mnuHands", "Move Lines &Down", "Alt+Down", "", Any, runs(&C::mnuMoveLinesDown_Click), &Habits::HandsLines},
    {"mnuDoubleLines", "mnuHands", "D&ouble Lines", "Ctrl+D", "", Any, runs(&C::mnuDoubleLines_Click), &Habits::HandsLines},
    {"mnuRemoveLines", "mnuHands", "&Remove Lines", "Ctrl+Shift+K", "", Any, runs(&C::mnuRemoveLines_Click), &Habits::HandsLines},
    {"mnuCloseElement", "mnuHands", "C&lose Element", "", "", Any, runs(&C::mnuCloseElement_Click), &Habits::HandsClose},
    {"mnuGoToPartner", "mnuHands", "Go To &Partner", "Ctrl+M", "", Any, runs(&C::mnuGoToPartner_Click), &Habits::HandsMatch},
    {"mnuRenameElement", "mnuHands", "Rena&me Element", "", "", Any, runs(&C::mnuRenameElement_Click), &Habits::HandsPair},
    {"mnuExpandAbbreviation", "mnuHands", "&Expand Abbreviation", "", "", Any, runs(&C::mnuExpandAbbreviation_Click), &Habits::HandsAbbreviations},
    {"mnuWrapAbbreviation", "mnuHands", "&Wrap With Abbreviation...", "Ctrl+Shift+A", "", Any, shows("frmWrapAbbreviation"), &Habits::HandsAbbreviations},
    {"mnuPastePicture", "mnuHands", "Paste P&icture...", "", "image", Any, runs(&C::mnuPastePicture_Click), &Habits::HandsPictures},
    {"mnuChangeColour", "mnuHands", "Chan&ge Colour...", "", "palette", Any, runs(&C::mnuChangeColour_Click), &Habits::HandsColours},
    {"mnuFollowLink", "mnuHands", "&Follow Link", "", "", Any, runs(&C::mnuFollowLink_Click), &Habits::HandsFollow},
    {"mnuGoToFile", "mnuHands", "Go &To File...", "Ctrl+P", "", Any, runs(&C::mnuGoToFile_Click), &Habits::HandsPalette},
    {"mnuRunCommand", "mnuHands", "Ru&n Command...", "Ctrl+Shift+P", "", Any, runs(&C::mnuRunCommand_Click), &Habits::HandsPalette},

    {"mnuView", "bar", "&View", "", "", Any, head()},
    {"mnuShowbar", "mnuView", "&Address Bar", "", "", Any, runs(&C::mnuShowbar_Click)},
    {"mnuShowPrjWindow", "mnuView", "Task &Manager Pane", "", "", Any, runs(&C::mnuShowPrjWindow_Click)},
    {"mnuShowCodeBar", "mnuView", "&Code and Font Selection Toolbar", "", "", Any, runs(&C::mnuShowCodeBar_Click)},
    {"mnuShowDocSelBar", "mnuView", "&Document Selection Bar", "", "", Any, runs(&C::mnuShowDocSelBar_Click)},
    {"mnuShowStatusBar", "mnuView", "S&tatus Bar", "", "", Any, runs(&C::mnuShowStatusBar_Click)},
    line("mnuDashSplit", "mnuView"),
    {"mnuSplitEditingWindows", "mnuView", "&Split Code Editing and Preview Windows", "", "", Any, runs(&C::mnuSplitEditingWindows_Click)},
    {"mnuBrwNavigate(0)", "mnuView", "Sto&p Internal Browser", "", "", Doc, runs(&C::stopBrowser)},
    {"mnuBrwNavigate(1)", "mnuView", "&Refresh Internal Browser", "F5", "", Doc, runs(&C::refreshBrowser)},
    {"mnuBrwNavigate(2)", "mnuView", "Navigate Internal Browser &Forwards", "", "", Doc, runs(&C::browserForward)},
    {"mnuBrwNavigate(3)", "mnuView", "Navigate Internal Browser &Backwards", "", "", Doc, runs(&C::browserBack)},
    line("mnuDashScripts", "mnuView"),
    {"mnuScriptLibrary", "mnuView", "Code &Library", "", "library", Doc, shows("frmCodeLibrary")},
    line("mnuDashWrap", "mnuView"),
    {"mnuWordWrap", "mnuView", "Word &Wrap Text", "", "", Any, runs(&C::mnuWordWrap_Click)},

    {"mnuInsert", "bar", "&Insert", "", "", Doc, head()},
    {"mnuInsDateTime", "mnuInsert", "&Date and Time", "", "", Any, shows("frmDateTime")},
    {"mnuInsBreak", "mnuInsert", "Line &Break...", "", "", Any, wraps("<br>", "")},
    {"mnuInsHorizontalRule", "mnuInsert", "Horizontal &Rule...", "", "", Any, shows("frmInsHorizontalRule")},
    line("mnuDashForms", "mnuInsert"),
    {"mnuInsFormObject", "mnuInsert", "Form...", "", "", Any, head()},
    {"mnuInsFormField", "mnuInsFormObject", "Form &Field...", "", "", Any, shows("frmFormField")},
    {"mnuInsTxtBox", "mnuInsFormObject", "Text &Box...", "", "text-cursor-input", Any, shows("frmFormTextbox")},
    {"mnuInsTxtMulti", "mnuInsFormObject", "Text &Area...", "", "letter-text", Any, shows("frmFormTextArea")},
    {"mnuInsCombo", "mnuInsFormObject", "&List Selection...", "", "square-chevron-down", Any, shows("frmFormMenu")},
    {"mnuInsCheck", "mnuInsFormObject", "&Check Box...", "", "square-check-big", Any, shows("frmFormCheck")},
    {"mnuInsOptionBox", "mnuInsFormObject", "&Radio Button...", "", "circle-dot", Any, shows("frmFormRadioButton")},
    {"mnuButton", "mnuInsFormObject", "&Button...", "", "rectangle-horizontal", Any, shows("frmFormButton")},
    {"mnuInsHidden", "mnuInsFormObject", "&Hidden Field...", "", "", Any, shows("frmFormHidden")},
    line("mnuDashMedia", "mnuInsert"),
    {"mnuInsImg", "mnuInsert", "&Image...", "", "image", Any, shows("frmInsImage")},
    {"mnuInsVideo", "mnuInsert", "&Video...", "", "", Any, shows("frmInsVideo")},
    {"mnuInsSound", "mnuInsert", "Background &Sound...", "", "", Any, shows("frmInsBgSound")},
    {"mnuInsImageMap", "mnuInsert", "Image &Map...", "", "map", Any, shows("frmInsImageMap")},
    {"mnuInsHyperlink", "mnuInsert", "&Hyperlink...", "Ctrl+K", "link", Any, shows("frmInsHyperlink")},
    {"mnuInsExternalCSS", "mnuInsert", "External Style Sheet...", "", "", Any, runs(&C::mnuInsExternalCSS_Click)},
    {"mnuInsertFromLibrary", "mnuInsert", "Code from Library", "", "library", Any, shows("frmCodeLibrary")},
    {"mnuInsObject", "mnuInsert", "&Object...", "", "", Any, shows("frmInsObject")},
    {"mnuInsJavaApplet", "mnuInsert", "&Java Applet...", "", "", Any, shows("frmInsJavaApplet")},
    line("mnuDashBlocks", "mnuInsert"),
    {"mnuInsBullet", "mnuInsert", "Bullets and Numbering...", "", "list", Any, shows("frmInsList")},
    {"mnuInsTable", "mnuInsert", "&Table", "", "table", Any, shows("frmInsTable")},
    {"mnuInsFramesPage", "mnuInsert", "Frames Page", "", "", Any, runs(&C::mnuInsFramesPage_Click)},
    {"mnuInsDHTMLMenu", "mnuInsert", "DHTML Navigation Menu...", "", "square-menu", Any, shows("frmInsertDHTMLMenu")},
    line("mnuDashCodes", "mnuInsert"),
    {"mnuInsSpecChar", "mnuInsert", "Character &Entity Code", "", "omega", Any, shows("frmInsSpecChar")},
    {"mnuInsColourCode", "mnuInsert", "C&olour Code", "", "palette", Any, runs(&C::mnuInsColourCode_Click)},
    {"mnuInsComment", "mnuInsert", "Code Co&mment...", "", "", Any, shows("frmInsCodeComment")},

    {"mnuFormat", "bar", "F&ormat", "", "", Doc, head()},
    {"mnuChangeFont", "mnuFormat", "&Font...", "", "type", Any, shows("frmFont")},
    {"mnuChangeCase", "mnuFormat", "Change Cas&e...", "", "", Any, shows("frmChangeCase")},
    line("mnuDashPaths", "mnuFormat"),
    {"mnuOmitBasePath", "mnuFormat", "Exclude Base File Path", "", "", Any, runs(&C::mnuOmitBasePath_Click)},
    line("mnuDashIndent", "mnuFormat"),
    {"mnuIndent", "mnuFormat", "&Indent Code Selection", "", "list-indent-increase", Any, runs(&C::mnuIndent_Click)},
    {"mnuOutdent", "mnuFormat", "&Outdent Code Selection", "", "list-indent-decrease", Any, runs(&C::mnuOutdent_Click)},
    line("mnuDashStyles", "mnuFormat"),
    {"mnuBold", "mnuFormat", "&Bold Text", "Ctrl+B", "bold", Any, wraps("<b>", "</b>")},
    {"mnuItalic", "mnuFormat", "&Italic Text", "Ctrl+I", "italic", Any, wraps("<i>", "</i>")},
    {"mnuUnderline", "mnuFormat", "&Underlined Text", "Ctrl+U", "underline", Any, wraps("<u>", "</u>")},

    {"mnuTools", "bar", "&Tools", "", "", Doc, head()},
    {"mnuCheckSyntax", "mnuTools", "Check Syntax...", "", "list-checks", Any, shows("frmSyntaxCheck")},
    {"mnuCheckPage", "mnuTools", "Check &Page", "", "", Any, shows("frmPageCheck")},
    {"mnuCodeOptimise", "mnuTools", "Optimise Syntax for Readability", "", "", Any, runs(&C::mnuCodeOptimise_Click)},
    {"mnuSpelling", "mnuTools", "&Spelling...", "", "", Any, nothing()},
    {"mnuWordCount", "mnuTools", "&Word Count...", "", "", Any, shows("frmWordCount")},
    line("mnuDashSelectors", "mnuTools"),
    {"mnuColourSelector", "mnuTools", "Colour Selection &Palette...", "", "palette", Any, runs(&C::mnuInsColourCode_Click)},
    {"mnuSymbolSelector", "mnuTools", "Character &Entity Code Selector...", "", "omega", Any, shows("frmInsSpecChar")},
    line("mnuDashOptions", "mnuTools"),
    {"mnuOptions", "mnuTools", "&Options...", "", "settings", Any, shows("frmOptions")},

    {"mnuSiteProjectHead", "bar", "&Projects", "", "", Any, head()},
    {"mnuNewProject", "mnuSiteProjectHead", "New Site Project...", "", "", Any, showsModal("frmNewProject")},
    {"mnuOpenProject", "mnuSiteProjectHead", "Open Site Project...", "", "", Any, runs(&C::mnuOpenProject_Click)},
    line("mnuDashFiles", "mnuSiteProjectHead"),
    {"mnuAddSiteEditorFile", "mnuSiteProjectHead", "Add Editor File...", "", "", Prj, runs(&C::addEditorFile)},
    {"mnuAddSiteOtherFile", "mnuSiteProjectHead", "Add Other File...", "", "", Prj, runs(&C::addOtherFile)},
    {"mnuRemoveSiteEditorFile", "mnuSiteProjectHead", "Remove Editor File", "", "", Prj, runs(&C::removeEditorFile)},
    {"mnuRemoveSiteOtherFile", "mnuSiteProjectHead", "Remove Other File", "", "", Prj, runs(&C::removeOtherFile)},
    line("mnuDashProjectSave", "mnuSiteProjectHead"),
    {"mnuProjectSave", "mnuSiteProjectHead", "Save Site Project", "", "", Prj, runs(&C::saveProject)},
    {"mnuCloseProject", "mnuSiteProjectHead", "Close Site Project...", "", "", Prj, runs(&C::mnuCloseProject_Click)},
    line("mnuDashProjectProperties", "mnuSiteProjectHead"),
    {"mnuPrjProperties", "mnuSiteProjectHead", "Project Properties", "", "", Prj, showsModal("frmPrjProperties")},
    {"mnuSiteProjectMap", "mnuSiteProjectHead", "View Site Project Map...", "", "network", Prj, shows("frmProjectLayout")},

    {"mnuAddIns", "bar", "&Add-Ins", "", "", Any, head()},
    {"mnuAddInManager", "mnuAddIns", "Add-In Manager...", "", "", Any, shows("frmAddInManager")},
    line("mnuAddInList(0)", "mnuAddIns"),

    {"mnuWindow", "bar", "&Window", "", "", Any, head()},
    {"mnuWinTile", "mnuWindow", "Tile &Horizontally", "", "", Any, runs(&C::mnuWinTile_Click)},
    {"mnuWinTileVert", "mnuWindow", "Tile &Vertically", "", "", Any, runs(&C::mnuWinTileVert_Click)},
    {"mnuWinCascade", "mnuWindow", "&Cascade", "", "", Any, runs(&C::mnuWinCascade_Click)},
    {"mnuWinArrangeIcons", "mnuWindow", "&Arrange Icons", "", "", Any, runs(&C::mnuWinArrangeIcons_Click)},
    line("mnuDashUnsaved", "mnuWindow"),
    {"mnuUnsaved", "mnuWindow", "Unsaved Documents...", "", "file-pen", Doc, shows("frmUnsavedFiles")},

    {"mnuHelp", "bar", "&Help", "", "", Any, head()},
    {"mnuHelpContents", "mnuHelp", "&Contents...", "", "circle-help", Any, runs(&C::mnuHelpContents_Click)},
    {"mnuHelpIndex", "mnuHelp", "&Index...", "", "", Any, runs(&C::mnuHelpIndex_Click)},
    {"mnuWhatsThisMode", "mnuHelp", "What's This Mode", "", "", Any, runs(&C::mnuWhatsThisMode_Click)},
    line("mnuDashWebsite", "mnuHelp"),
    {"mnuHarblineWebsite", "mnuHelp", "Visit Harbline's Website...", "", "", Any, runs(&C::mnuHarblineWebsite_Click)},
    {"mnuCustomerBenefits", "mnuHelp", "My Customer Benefits Program...", "", "", Any, runs(&C::mnuCustomerBenefits_Click)},
    line("mnuDashReference", "mnuHelp"),
    {"mnuHtmLangReg", "mnuHelp", "Language &Reference...", "", "book-open", Any, runs(&C::mnuHtmLangReg_Click)},
    {"mnuTutorial", "mnuHelp", "Creating Webpages &Tutorial...", "", "", Any, runs(&C::mnuTutorial_Click)},
    line("mnuDashAbout", "mnuHelp"),
    {"mnuAbout", "mnuHelp", "&About...", "", "", Any, shows("frmAbout")},
    {"mnuUpdate", "mnuHelp", "Check for Free Updates...", "", "", Any, runs(&C::mnuUpdate_Click)},

    {"mnuPopup", "popup", "&Options", "", "", Any, head()},
    {"mnuPopupUndo", "mnuPopup", "Undo last action", "", "undo-2", Any, runs(&C::mnuUndo_Click)},
    {"mnuPopupRedo", "mnuPopup", "Redo last action", "", "redo-2", Any, runs(&C::mnuRedo_Click)},
    line("mnuDashPClipboard", "mnuPopup"),
    {"mnuPCut", "mnuPopup", "Cu&t", "", "scissors", Any, runs(&C::mnuCut_Click)},
    {"mnuPCopy", "mnuPopup", "&Copy", "", "copy", Any, runs(&C::mnuCopy_Click)},
    {"mnuPPaste", "mnuPopup", "&Paste", "", "clipboard-paste", Any, runs(&C::mnuPaste_Click)},
    line("mnuDashPDocument", "mnuPopup"),
    {"mnuPCheckSyntax", "mnuPopup", "Check Syntax...", "", "list-checks", Any, shows("frmSyntaxCheck")},
    {"mnuPSave", "mnuPopup", "Save Document", "", "save", Any, runs(&C::mnuSave_Click)},
    {"mnuPBrowserView", "mnuPopup", "View Page in Browser", "", "globe", Any, runs(&C::mnuViewPage_Click)},
    {"mnuPopupSiteProjectLayout", "mnuPopup", "View Site Project Layout", "", "network", Any, shows("frmProjectLayout")},

    {"mnuPopupEditorFiles", "popup", "Editor Files", "", "", Any, head()},
    {"mnuEditorFileAdd", "mnuPopupEditorFiles", "Add Editor File...", "", "", Prj, runs(&C::addEditorFile)},
    {"mnuEditorFileRem", "mnuPopupEditorFiles", "Remove Editor File", "", "", Prj, runs(&C::removeEditorFile)},
    line("mnuDashEditorFiles", "mnuPopupEditorFiles"),
    {"mnuEditorFileSavePrj", "mnuPopupEditorFiles", "Save Site Project", "", "", Prj, runs(&C::saveProject)},

    {"mnuPopupOtherFiles", "popup", "Other Files", "", "", Any, head()},
    {"mnuOtherFileAdd", "mnuPopupOtherFiles", "Add Other File...", "", "", Prj, runs(&C::addOtherFile)},
    {"mnuOtherFileRem", "mnuPopupOtherFiles", "Remove Other File", "", "", Prj, runs(&C::removeOtherFile)},
    line("mnuDashOtherFiles", "mnuPopupOtherFiles"),
    {"mnuOtherFileSavePrj", "mnuPopupOtherFiles", "Save Site Project", "", "", Prj, runs(&C::saveProject)},

    {"mnuAddressBar", "popup", "Address Bar", "", "", Any, head()},
    {"mnuHideAddressBar", "mnuAddressBar", "Hide Address Bar", "", "", Any, runs(&C::mnuHideAddressBar_Click)},
};

constexpr CommandAlias aliasTable[] = {
    {"mnuAddEditFile", "mnuAddSiteEditorFile"},
    {"mnuAddOtrFile", "mnuAddSiteOtherFile"},
    {"mnuRemPrjFile", "mnuRemoveSiteEditorFile"},
    {"mnuRemOtrFile", "mnuRemoveSiteOtherFile"},
};

constexpr ToolCommand toolTable[] = {
    {"tbrMain", "New", "New blank page", "file-plus", "(Ctrl+N)", Any, runs(&C::newBlankDocument)},
    {"tbrMain", "Open", "Open", "folder-open", "mnuOpen", Any, runs(&C::mnuOpen_Click)},
    {"tbrMain", "Save", "Save", "save", "mnuSave", Doc, runs(&C::mnuSave_Click)},
    {"tbrMain", "SaveAll", "Save all", "save-all", "mnuSaveAll", Doc, runs(&C::mnuSaveAll_Click)},
    {"tbrMain", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrMain", "OpenFromNet", "Open from Internet", "cloud-download", "", Any, shows("frmOpenFromInternet")},
    {"tbrMain", "SaveToNet", "Save to Internet", "cloud-upload", "", Doc, shows("frmSavetoInternet")},
    {"tbrMain", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrMain", "Print", "Print", "printer", "mnuPrint", Doc, runs(&C::mnuPrint_Click)},
    {"tbrMain", "ViewPage", "View page in browser", "globe", "mnuViewPage", Doc, runs(&C::mnuViewPage_Click)},
    {"tbrMain", "SiteLayout", "View site project map", "network", "", Prj, shows("frmProjectLayout")},
    {"tbrMain", "Syntax", "Check syntax", "list-checks", "", Doc, shows("frmSyntaxCheck")},
    {"tbrMain", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrMain", "Cut", "Cut", "scissors", "mnuCut", Doc, runs(&C::mnuCut_Click)},
    {"tbrMain", "Copy", "Copy", "copy", "mnuCopy", Doc, runs(&C::mnuCopy_Click)},
    {"tbrMain", "Paste", "Paste", "clipboard-paste", "mnuPaste", Doc, runs(&C::mnuPaste_Click)},
    {"tbrMain", "Delete", "Delete selection", "trash-2", "", Doc, runs(&C::deleteSelection)},
    {"tbrMain", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrMain", "Undo", "Undo", "undo-2", "mnuUndo", Doc, runs(&C::mnuUndo_Click)},
    {"tbrMain", "Redo", "Redo", "redo-2", "mnuRedo", Doc, runs(&C::mnuRedo_Click)},
    {"tbrMain", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrMain", "Find", "Find", "search", "mnuFind", Doc, shows("frmFind")},
    {"tbrMain", "Replace", "Replace", "replace", "mnuReplace", Doc, runs(&C::mnuReplace_Click)},

    {"tbrFontStyles", "Bold", "Bold", "bold", "mnuBold", Doc, wraps("<b>", "</b>")},
    {"tbrFontStyles", "Italics", "Italics", "italic", "mnuItalic", Doc, wraps("<i>", "</i>")},
    {"tbrFontStyles", "Underline", "Underline", "underline", "mnuUnderline", Doc, wraps("<u>", "</u>")},
    {"tbrFontStyles", "Monotype", "Monotype", "type", "", Doc, wraps("<tt>", "</tt>")},
    {"tbrFontStyles", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrFontStyles", "Left", "Align left", "text-align-start", "", Doc, wraps("<div align=\"left\">", "</div>")},
    {"tbrFontStyles", "Center", "Centre", "text-align-center", "", Doc, wraps("<div align=\"center\">", "</div>")},
    {"tbrFontStyles", "Right", "Align right", "text-align-end", "", Doc, wraps("<div align=\"right\">", "</div>")},
    {"tbrFontStyles", "Justify", "Justify", "text-align-justify", "", Doc, wraps("<div align=\"justify\">", "</div>")},
    {"tbrFontStyles", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrFontStyles", "BulletsNumbering", "Bullets and numbering", "list", "", Doc, shows("frmInsList")},
    {"tbrFontStyles", "Indent", "Indent selection", "list-indent-increase", "", Doc, runs(&C::mnuIndent_Click)},
    {"tbrFontStyles", "Outdent", "Outdent selection", "list-indent-decrease", "", Doc, runs(&C::mnuOutdent_Click)},

    {"tbrInsert", "Table", "Table", "table", "", Doc, shows("frmSelInsertTable")},
    {"tbrInsert", "InsHyperlink", "Hyperlink", "link", "mnuInsHyperlink", Doc, shows("frmInsHyperlink")},
    {"tbrInsert", "InsImage", "Image", "image", "", Doc, shows("frmInsImage")},
    {"tbrInsert", "ImageMap", "Image map", "map", "", Doc, shows("frmInsImageMap")},
    {"tbrInsert", "SpecChar", "Character entity code", "omega", "", Doc, shows("frmInsSpecChar")},
    {"tbrInsert", "DHTMLMenu", "DHTML navigation menu", "square-menu", "", Doc, shows("frmInsertDHTMLMenu")},
    {"tbrInsert", "ColourCode", "Colour code", "palette", "", Doc, runs(&C::mnuInsColourCode_Click)},
    {"tbrInsert", "CodeLibrary", "Code library", "library", "", Doc, shows("frmCodeLibrary")},
    {"tbrInsert", "-", "", "", "", Any, {.kind = K::Separator}},
    {"tbrInsert", "InsFormButton", "Button", "rectangle-horizontal", "", Doc, shows("frmFormButton")},
    {"tbrInsert", "InsFormCheck", "Check box", "square-check-big", "", Doc, shows("frmFormCheck")},
    {"tbrInsert", "InsFormListSel", "List selection", "square-chevron-down", "", Doc, shows("frmFormMenu")},
    {"tbrInsert", "InsFormRadio", "Radio button", "circle-dot", "", Doc, shows("frmFormRadioButton")},
    {"tbrInsert", "InsFormText", "Text box", "text-cursor-input", "", Doc, shows("frmFormTextbox")},
    {"tbrInsert", "InsFormTextArea", "Text area", "letter-text", "", Doc, shows("frmFormTextArea")},

    {"tbrCode", "Bold", "Bold", "bold", "", Doc, wraps("<b>", "</b>")},
    {"tbrCode", "Italic", "Italic", "italic", "", Doc, wraps("<i>", "</i>")},
    {"tbrCode", "Underline", "Underline", "underline", "", Doc, wraps("<u>", "</u>")},
    {"tbrCode", "Address", "Address", "contact", "", Doc, wraps("<address>", "</address>")},
    {"tbrCode", "Blockquote", "Blockquote", "text-quote", "", Doc, wraps("<blockquote>", "</blockquote>")},
    {"tbrCode", "Citation", "Citation", "quote", "", Doc, wraps("<cite>", "</cite>")},
    {"tbrCode", "Code", "Code", "code-xml", "", Doc, wraps("<code>", "</code>")},
    {"tbrCode", "Definition", "Definition", "book-a", "", Doc, wraps("<dfn>", "</dfn>")},
    {"tbrCode", "Emphasis", "Emphasis", "highlighter", "", Doc, wraps("<em>", "</em>")},
    {"tbrCode", "KeyboardInput", "Keyboard input", "keyboard", "", Doc, wraps("<kbd>", "</kbd>")},
    {"tbrCode", "Monospaced", "Monospaced", "type", "", Doc, wraps("<tt>", "</tt>")},
    {"tbrCode", "Preformatted", "Preformatted", "square-code", "", Doc, wraps("<pre>", "</pre>")},
    {"tbrCode", "Sample", "Sample", "square-terminal", "", Doc, wraps("<samp>", "</samp>")},
    {"tbrCode", "Strikethrough", "Strikethrough", "strikethrough", "", Doc, wraps("<strike>", "</strike>")},
    {"tbrCode", "Strong", "Strong", "type-outline", "", Doc, wraps("<strong>", "</strong>")},
    {"tbrCode", "Subscript", "Subscript", "subscript", "", Doc, wraps("<sub>", "</sub>")},
    {"tbrCode", "Superscript", "Superscript", "superscript", "", Doc, wraps("<sup>", "</sup>")},
    {"tbrCode", "Variable", "Variable", "variable", "", Doc, wraps("<var>", "</var>")},

    {"tbrHelp", "Help", "Help contents", "circle-help", "", Any, runs(&C::mnuHelpContents_Click)},

    {"tbrBrowser", "Forward", "Forward", "arrow-right", "", Doc, runs(&C::browserForward)},
    {"tbrBrowser", "Back", "Back", "arrow-left", "", Doc, runs(&C::browserBack)},
    {"tbrBrowser", "Stop", "Stop", "x", "", Doc, runs(&C::stopBrowser)},
    {"tbrBrowser", "Refresh", "Refresh", "rotate-cw", "mnuBrwNavigate(1)", Doc, runs(&C::refreshBrowser)},

    {"tbrUnsavedFiles", "UnsavedFiles", "Unsaved documents", "file-pen", "", Any, shows("frmUnsavedFiles")},
};

constexpr ToolCommand dropTable[] = {
    {"tbrHelp", "Contents", "Contents", "circle-help", "", Any, runs(&C::mnuHelpContents_Click)},
    {"tbrHelp", "Index", "Index", "", "", Any, runs(&C::mnuHelpIndex_Click)},
    {"tbrHelp", "Reference", "Language reference", "book-open", "", Any, runs(&C::mnuHtmLangReg_Click)},
    {"tbrHelp", "Tutorial", "Creating webpages tutorial", "", "", Any, runs(&C::mnuTutorial_Click)},
    {"tbrHelp", "Website", "Harbline's website", "", "", Any, runs(&C::mnuHarblineWebsite_Click)},
    {"tbrHelp", "Benefits", "Customer benefits", "", "", Any, runs(&C::openBenefitsPage)},
    {"tbrHelp", "Library", "Online library", "", "", Any, runs(&C::openLibraryPage)},
};
// clang-format on
} // namespace

std::span<const MenuCommand> menuCommands()
{
    return menuTable;
}

std::span<const CommandAlias> commandAliases()
{
    return aliasTable;
}

std::span<const ToolCommand> toolCommands()
{
    return toolTable;
}

std::span<const ToolCommand> dropCommands()
{
    return dropTable;
}
