#pragma once

#include <QString>
#include <QStringList>
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
    bool operator==(const CommandLineFile &) const = default;
};

/// The one file that the command line's text names. With a double quote in front, that one goes and one at the end too;
/// nothing is split at blanks. The extension decides in any case of its letters.
CommandLineFile commandLineFile(const QString &text);

class FileCommands;
/// Opens what the command line's text names.
void OpenCommandLineFile(FileCommands &files, const QString &text);
