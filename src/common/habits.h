#pragma once

/// Where the program keeps to the ways that it has always had, and where it does as today's editors do. Each member is
/// one rule and named after its setting; false is the classic way.
struct Habits {
    bool HabitUndo = false;      ///< one history of edits, without branches
    bool HabitColouring = false; ///< texts of any size are coloured, the part on show first
    bool HabitFocus = false;     ///< only the user moves the focus
    bool HabitPreview = false;   ///< the preview shows the text as it stands, beside its files
    bool HabitSave = false;      ///< a save writes the text alone; automatic saving writes what has changed
    bool HabitKeys = false;      ///< Enter replaces a selection, Tab goes by the width of the indentation
    bool HabitPaths = false;     ///< paths are truly relative
    bool HabitMarkup = false;    ///< dialogs write today's HTML
    bool HabitChecker = false;   ///< a correction hits the marked word and can be undone
    bool HabitStart = false;     ///< one instance, which opens what it is given and nothing else
    bool HabitDesktop = false;   ///< file associations are written at the user's word only
    bool HabitStructure = false; ///< the structure tree is nested, up to date and tells of errors
    bool HabitFind = false;      ///< searches go round, mark and count
    bool HabitAssistant = false; ///< the assistant offers what fits at the caret
    bool HabitNewPage = false;   ///< a new page is one of today
    bool HabitDialogs = false;   ///< several files at once, every kind of picture, complete images
    bool HabitScripts = false;   ///< scripts and styles are read as what they are

    bool HandsClose = false;         ///< end tags write themselves
    bool HandsPair = false;          ///< a tag's partner follows a change of its name
    bool HandsMatch = false;         ///< the tag at the caret and its partner are shown
    bool HandsComment = false;       ///< lines are commented by a key
    bool HandsLines = false;         ///< lines are moved, doubled and taken away by keys
    bool HandsAbbreviations = false; ///< abbreviations open into elements
    bool HandsPictures = false;      ///< a dropped or pasted picture writes its element
    bool HandsColours = false;       ///< colours in the source are shown
    bool HandsFollow = false;        ///< Ctrl and a click follow an address
    bool HandsPalette = false;       ///< files and commands are found by a few letters

    bool operator==(const Habits &) const = default;
};
