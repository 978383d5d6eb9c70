#include "shell/commandLine.h"

#include "common/fileCommands.h"
#include "common/paths.h"

#include <QDir>

std::optional<QString> answerToCommandLine(const QStringList &arguments, const QString &version)
{
    if (arguments.size() != 1)
        return std::nullopt;
    const QString &option = arguments.first();
    if (option == u"--version")
        return QStringLiteral("Tagwrighter %1\n").arg(version);
    if (option == u"--help" || option == u"-h")
        return QStringLiteral("Usage: tagwrighter [FILE]\n"
                              "An editor of web pages for those who write HTML by hand.\n\n"
                              "FILE is a page or any other text, a template (.tpl, .ctp) or a site project (.tsp).\n\n"
                              "  --help     tells this\n"
                              "  --version  tells the version\n");
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

void OpenCommandLineFile(FileCommands &files, const QString &text)
{
    const CommandLineFile file = commandLineFile(text);
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
