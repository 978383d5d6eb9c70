#pragma once

#include <QString>

/// An entry of the user's code library: a piece of code and what is said of it.
struct CodeEntry {
    QString code;        ///< with the line break in front of the marker
    QString description; ///< with the line break at the file's end
    bool operator==(const CodeEntry &) const = default;
};

/// Reads the text of an entry's file. Without its marker, a line "[-\description-/]" in any case, there is nothing in
/// it.
CodeEntry readCodeEntry(const QString &text);
/// The text of the file that holds a piece of code.
QString codeEntryText(const QString &code, const QString &description);

/// Whether a title can be the name of an entry's file, on this system and on others.
bool isValidEntryTitle(const QString &title);
/// The name of the file to a title, and the title to the name: entries have the extension ".cde".
QString entryFileName(const QString &title);
QString entryTitle(const QString &fileName);
bool isEntryFile(const QString &fileName);
