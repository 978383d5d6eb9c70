#include "help/helpFolder.h"

#include "common/paths.h"
#include "services/fileSystem.h"

namespace
{
const QString referenceIndex = QStringLiteral("topics/reference/ReferenceIndex.htm");

const QString builtInNotFound =
    QStringLiteral("<html><head><title>Topic not found</title></head><body><h1>Topic not found</h1>"
                   "<p>The help has no page on this subject, or its pages are not installed.</p></body></html>");

constexpr int deepest = 4; // folders below one another: a link that leads back up ends somewhere

bool isPage(const QString &name)
{
    return name.endsWith(QLatin1String(".htm")) || name.endsWith(QLatin1String(".html"));
}
} // namespace

HelpFolder::HelpFolder(const QStringList &folders, FileSystem &files) : m_folders(folders), m_files(files) {}

QString HelpFolder::startPage()
{
    return QStringLiteral("topics/Index.htm");
}

QString HelpFolder::notFoundPage()
{
    return QStringLiteral("topics/reference/Information_KeywordNotFound.htm");
}

/// Where the file stands; empty if it stands nowhere.
QString HelpFolder::pathOf(const QString &page) const
{
    for (const QString &folder : m_folders) {
        QString path = joinPath(folder, page);
        if (m_files.exists(path))
            return path;
    }
    return {};
}

bool HelpFolder::has(const QString &page) const
{
    return !pathOf(page).isEmpty();
}

std::optional<QByteArray> HelpFolder::bytes(const QString &page) const
{
    const QString path = pathOf(page);
    if (path.isEmpty())
        return std::nullopt;
    const FileContents contents = m_files.readAll(path);
    return contents.error ? std::nullopt : std::optional(contents.bytes);
}

std::optional<QString> HelpFolder::html(const QString &page) const
{
    if (const std::optional<QByteArray> source = bytes(page))
        return QString::fromUtf8(*source);
    return page == notFoundPage() ? std::optional(builtInNotFound) : std::nullopt;
}

QString HelpFolder::textFile(const QString &name) const
{
    return QString::fromUtf8(bytes(name).value_or(QByteArray()));
}

const QList<HelpEntry> &HelpFolder::contents()
{
    if (!m_contents) {
        m_contents = parseHelpContents(textFile(QStringLiteral("contents.txt")));
        const QList<HelpEntry> reference = parseHelpReference(textFile(QStringLiteral("index-reference.txt")));
        addHelpReference(*m_contents, referenceIndex, reference);
    }
    return *m_contents;
}

const QList<HelpText> &HelpFolder::texts()
{
    if (!m_texts) {
        m_texts.emplace();
        for (const QString &folder : m_folders)
            readTexts(folder, QStringLiteral("topics"), deepest);
    }
    return *m_texts;
}

void HelpFolder::readTexts(const QString &folder, const QString &under, int levels)
{
    for (const FolderEntry &entry : m_files.list(joinPath(folder, under)).entries) {
        const QString path = under + u'/' + entry.name;
        if (entry.isFolder && levels > 0)
            readTexts(folder, path, levels - 1);
        else if (!entry.isFolder && isPage(entry.name) && pathOf(path) == joinPath(folder, path))
            m_texts->append(helpTextOf(path, html(path).value_or(QString())));
    }
}
