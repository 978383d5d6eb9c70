#include "document/assistantSite.h"

#include "common/document.h"
#include "common/html/tokenizer.h"
#include "common/paths.h"
#include "common/siteProject.h"
#include "document/assistantOffers.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/services.h"

#include <QUrl>

#include <algorithm>

namespace
{
constexpr qint64 LargestSheet = qint64(1) << 20;
constexpr qsizetype MostSheets = 50;

QString projectFolder(const ProgramContext &context)
{
    return context.project && context.project->isOpen() ? folderOf(context.project->path()) : QString();
}

/// Where a path of the page leads to; empty for an address, and for a page without a folder.
QString localPath(const ProgramContext &context, const Document &document, const QString &path)
{
    if (path.contains(QStringLiteral("//")) || path.contains(u':'))
        return {};
    const QString plain = QUrl::fromPercentEncoding(path.section(u'?', 0, 0).section(u'#', 0, 0).toUtf8());
    if (plain.startsWith(u'/')) {
        const QString root = projectFolder(context);
        return root.isEmpty() ? QString() : joinPath(root, plain.mid(1));
    }
    return document.DocSavePath.isEmpty() ? QString() : joinPath(folderOf(document.DocSavePath), plain);
}

QString attributeOf(const html::Tokenizer &tokens, const html::Token &tag, QStringView name)
{
    for (const html::Attribute &attribute : tag.attributes)
        if (tokens.textOf(attribute.name).compare(name, Qt::CaseInsensitive) == 0)
            return tokens.textOf(attribute.value).toString();
    return {};
}

struct PageSheets {
    QStringList linked;
    QStringList written;
};

PageSheets sheetsOf(QStringView page)
{
    PageSheets sheets;
    html::Tokenizer tokens(page);
    bool inStyle = false;
    for (const html::Token *token = &tokens.next(); token->kind != html::TokenKind::End; token = &tokens.next()) {
        if (token->kind == html::TokenKind::RawText && inStyle)
            sheets.written.append(tokens.textOf(token->range).toString());
        if (token->kind != html::TokenKind::StartTag)
            continue;
        const QStringView name = tokens.textOf(token->name);
        inStyle = name.compare(u"style", Qt::CaseInsensitive) == 0;
        if (inStyle || name.compare(u"script", Qt::CaseInsensitive) == 0)
            tokens.setMode(inStyle ? html::TextMode::Raw : html::TextMode::Script, name);
        else if (name.compare(u"link", Qt::CaseInsensitive) == 0 &&
                 attributeOf(tokens, *token, u"rel").contains(QStringLiteral("stylesheet"), Qt::CaseInsensitive))
            sheets.linked.append(attributeOf(tokens, *token, u"href"));
    }
    return sheets;
}

QStringList sheetFiles(const ProgramContext &context, const Document &document, const QStringList &linked)
{
    QStringList files;
    for (const QString &path : linked)
        files.append(localPath(context, document, path));
    if (context.project && context.project->isOpen())
        for (const ProjectItem &item : context.project->editorFiles() + context.project->otherFiles())
            if (GetFileExtension(item.key).toLower() == u"css")
                files.append(item.key);
    files.removeAll(QString());
    files.removeDuplicates();
    return files.first(std::min(files.size(), MostSheets));
}
} // namespace

QStringList styleNames(const ProgramContext &context, const Document &document, QChar sign)
{
    const PageSheets sheets = sheetsOf(document.txtEdit().Text());
    QStringList names;
    for (const QString &sheet : sheets.written)
        names += namesInStyleSheet(sheet, sign);
    FileSystem &files = context.services.files;
    for (const QString &path : sheetFiles(context, document, sheets.linked)) {
        if (files.size(path).value_or(LargestSheet) >= LargestSheet)
            continue;
        names += namesInStyleSheet(QString::fromUtf8(files.readAll(path).bytes), sign);
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

QStringList siteFiles(const ProgramContext &context, const Document &document, const QString &folder)
{
    const QString path = localPath(context, document, folder);
    if (path.isEmpty())
        return {};
    QStringList names;
    for (const FolderEntry &entry : context.services.files.list(path).entries) {
        if (entry.name.startsWith(u'.'))
            continue;
        const QString written = QString::fromLatin1(QUrl::toPercentEncoding(entry.name, "!$&'()*+,;=:@"));
        names.append(entry.isFolder ? written + u'/' : written);
    }
    return names;
}
