#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// What the program prints for a command line that only asks about the program, which is one of "--help", "-h" and
/// "--version" by itself; nothing for any other.
std::optional<QString> answerToCommandLine(const QStringList &arguments, const QString &version);

/// The text behind the program's name as one line, as the program takes it: one path, quoted or not. A path that is
/// relative to the folder the program was started in is made absolute.
QString commandLineText(const QStringList &arguments);

/// How a file named on the command line is opened.
enum class CommandLineAction { Template, Project, CombinedTemplate, Document };

struct CommandLineFile {
    QString path;
    CommandLineAction action = CommandLineAction::Document;
    int line = 0; ///< that the caret is to go to, from 1; 0 for none
    bool operator==(const CommandLineFile &) const = default;
};

/// The one file that the command line's text names. With a double quote in front, that one goes and one at the end too;
/// nothing is split at blanks. The extension decides in any case of its letters.
CommandLineFile commandLineFile(const QString &text);

/// The same line where it may name several files: each path that is relative is made absolute and stands in double
/// quotes if it holds a blank.
QString commandLineOfFiles(const QStringList &arguments);

/// All files that such a line names. A path may stand in double quotes; behind it may be ":LINE" or ":LINE:COLUMN", and
/// in front of it a word "+LINE". A path that is there counts as it stands, blanks and colons included, be it several
/// words or the whole line.
QList<CommandLineFile> commandLineFiles(const QString &text, const std::function<bool(const QString &)> &exists);

struct Habits;
/// What stands behind the program's name as one line, and the files that such a line names, by the rule that holds: one
/// file, or several.
QString commandLineOf(const QStringList &arguments, const Habits &habits);
QList<CommandLineFile> filesOfCommandLine(const QString &line, const Habits &habits,
                                          const std::function<bool(const QString &)> &exists);

class FileCommands;
/// Opens a file that the command line names.
void OpenCommandLineFile(FileCommands &files, const CommandLineFile &file);
