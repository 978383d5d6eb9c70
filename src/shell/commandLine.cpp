#include "shell/commandLine.h"

#include "common/fileBook.h"
#include "common/fileCommands.h"
#include "common/paths.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

std::optional<QString> answerToCommandLine(const QStringList &arguments, const QString &version)
{
    if (arguments.size() != 1)
        return std::nullopt;
    const QString &option = arguments.first();
    if (option == u"--version")
        return QStringLiteral("Tagwrighter %1\n").arg(version);
    if (option == u"--help" || option == u"-h")
        return QStringLiteral(
            "Usage: tagwrighter [FILE]\n"
            "   or: tagwrighter [--new-instance] [[+LINE] FILE[:LINE]]...\n"
            "An editor of web pages for those who write HTML by hand.\n\n"
            "FILE is a page or any other text, a template (.tpl, .ctp) or a site project (.tsp).\n\n"
            "The second form holds where you edit as today's editors do: several files open, each with\n"
            "the caret in its LINE, and in the program that runs already if there is one.\n\n"
            "  --new-instance  starts another program\n"
            "  --help, -h      tells this\n"
            "  --version       tells the version\n");
    return std::nullopt;
}

QString commandLineText(const QStringList &arguments)
{
    QString text = arguments.join(u' ');
    if (text.isEmpty() || text.startsWith(u'"') || !QDir::isRelativePath(text))
        return text;
    return QDir::cleanPath(QDir::current().absoluteFilePath(text));
}

CommandLineFile commandLineFile(const QString &text)
{
    QString path = text;
    if (path.startsWith(u'"')) {
        path.remove(0, 1);
        if (path.endsWith(u'"'))
            path.chop(1);
    }
    const QString extension = GetFileExtension(path).toLower();
    if (extension == u"tpl")
        return {path, CommandLineAction::Template};
    if (extension == u"tsp")
        return {path, CommandLineAction::Project};
    if (extension == u"ctp")
        return {path, CommandLineAction::CombinedTemplate};
    return {path, CommandLineAction::Document};
}

namespace
{
struct LineWord {
    QString text;
    bool quoted = false;
};

QList<LineWord> wordsOf(const QString &line)
{
    QList<LineWord> words;
    for (qsizetype at = 0; at < line.size();) {
        if (line[at] == u' ') {
            ++at;
            continue;
        }
        const bool quoted = line[at] == u'"';
        const qsizetype start = quoted ? at + 1 : at;
        qsizetype end = line.indexOf(quoted ? u'"' : u' ', start);
        end = end < 0 ? line.size() : end;
        at = quoted ? end + 1 : end;
        if (quoted && at < line.size() && line[at] == u':') // "a b.htm":12
            end = at = std::max(at, line.indexOf(u' ', at) < 0 ? line.size() : line.indexOf(u' ', at));
        words.append({line.sliced(start, end - start).remove(u'"'), quoted});
    }
    return words;
}

std::optional<int> lineBefore(const QString &word)
{
    bool isNumber = false;
    const int line = word.mid(1).toInt(&isNumber);
    return word.startsWith(u'+') && isNumber && line > 0 ? std::optional(line) : std::nullopt;
}

/// A path with the place behind it taken apart; nothing if there is no such file.
std::optional<CommandLineFile> fileOfWord(const QString &word, const std::function<bool(const QString &)> &exists)
{
    static const QRegularExpression line(QStringLiteral("^(.+):([0-9]{1,9})$"));
    static const QRegularExpression lineAndColumn(QStringLiteral("^(.+):([0-9]{1,9}):[0-9]+$"));
    if (exists(word))
        return commandLineFile(word);
    for (const QRegularExpression *place : {&line, &lineAndColumn}) {
        const QRegularExpressionMatch match = place->match(word);
        if (!match.hasMatch() || !exists(match.captured(1)))
            continue;
        CommandLineFile file = commandLineFile(match.captured(1));
        file.line = match.captured(2).toInt();
        return file;
    }
    return std::nullopt;
}

/// The file that the words from there on name, and how many of them do: as many as make up a path that is there.
std::pair<CommandLineFile, qsizetype> fileAt(const QList<LineWord> &words, qsizetype at,
                                             const std::function<bool(const QString &)> &exists)
{
    constexpr qsizetype mostWords = 32;
    const auto isPlain = [](const LineWord &word) { return !word.quoted; };
    const auto plainEnd = std::find_if_not(words.begin() + at, words.end(), isPlain);
    const qsizetype most = std::clamp<qsizetype>(plainEnd - (words.begin() + at), 1, mostWords);
    for (qsizetype count = most; count > 0; --count) {
        QStringList path;
        for (const LineWord &word : words.sliced(at, count))
            path.append(word.text);
        if (const auto file = fileOfWord(path.join(u' '), exists))
            return {*file, count};
    }
    return {commandLineFile(words[at].text), 1};
}
} // namespace

QString commandLineOfFiles(const QStringList &arguments)
{
    QStringList words;
    for (const QString &argument : arguments) {
        const bool isPath = !argument.isEmpty() && !lineBefore(argument);
        const QString word = isPath && QDir::isRelativePath(argument)
                                 ? QDir::cleanPath(QDir::current().absoluteFilePath(argument))
                                 : argument;
        words.append(word.contains(u' ') ? u'"' + word + u'"' : word);
    }
    return words.join(u' ');
}

QList<CommandLineFile> commandLineFiles(const QString &text, const std::function<bool(const QString &)> &exists)
{
    if (const CommandLineFile whole = commandLineFile(text); exists(whole.path))
        return {whole};
    const QList<LineWord> words = wordsOf(text);
    QList<CommandLineFile> files;
    int line = 0;
    for (qsizetype at = 0; at < words.size();) {
        const bool mayBeLine = !words[at].quoted && at + 1 < words.size();
        if (const auto before = mayBeLine ? lineBefore(words[at].text) : std::nullopt) {
            line = *before;
            ++at;
            continue;
        }
        auto [file, count] = fileAt(words, at, exists);
        file.line = file.line > 0 ? file.line : std::exchange(line, 0);
        files.append(file);
        at += count;
    }
    return files;
}

QString commandLineOf(const QStringList &arguments, const Habits &habits)
{
    return fileBook(habits).severalFiles ? commandLineOfFiles(arguments) : commandLineText(arguments);
}

QList<CommandLineFile> filesOfCommandLine(const QString &line, const Habits &habits,
                                          const std::function<bool(const QString &)> &exists)
{
    return fileBook(habits).severalFiles ? commandLineFiles(line, exists) : QList{commandLineFile(line)};
}

void OpenCommandLineFile(FileCommands &files, const CommandLineFile &file)
{
    switch (file.action) {
    case CommandLineAction::Template:
        files.OpenTemplateFile(file.path, true);
        break;
    case CommandLineAction::Project:
        files.OpenProject(file.path);
        break;
    case CommandLineAction::CombinedTemplate:
        files.OpenCombinedTemplate(file.path);
        break;
    case CommandLineAction::Document:
        files.OpenDocumentFile(file.path, false);
        break;
    }
}
