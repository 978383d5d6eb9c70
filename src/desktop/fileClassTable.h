#pragma once

#include <array>

/// How the program stands to a kind of file.
enum class FileClassUse {
    Owned,     ///< a type of the program's own, which it opens
    Data,      ///< a type of the program's own that is not opened from the desktop
    TakenOver, ///< a type of the desktop's, which the program opens before all others
    Offered,   ///< a type of the desktop's, for which the program is one more to choose
};

struct FileClass {
    const char *extension;   ///< without the dot
    const char *className;   ///< as the program itself names the kind
    const char *description; ///< as the user reads it
    const char *mimeType;    ///< as the desktop names the kind
    int icon;                ///< number of the program's icon for it, 0 for none
    FileClassUse use;
};

inline constexpr std::array<FileClass, 6> fileClassTable = {{
    {"tpl", "Tagwrighter.Template", "Tagwrighter Template", "application/x-tagwrighter-template", 2,
     FileClassUse::Owned},
    {"tsp", "Tagwrighter.Project", "Tagwrighter Project", "application/x-tagwrighter-project", 4, FileClassUse::Owned},
    {"tcb", "Tagwrighter.CodeLibrary", "Tagwrighter Code Library", "application/x-tagwrighter-code-library", 3,
     FileClassUse::Data},
    {"ctp", "Tagwrighter.CombinedTemplate", "Tagwrighter Combined Template",
     "application/x-tagwrighter-combined-template", 5, FileClassUse::Owned},
    {"css", "Tagwrighter.StyleSheet", "Tagwrighter Style Sheet", "text/css", 6, FileClassUse::TakenOver},
    {"htm", "", "", "text/html", 0, FileClassUse::Offered},
}};
