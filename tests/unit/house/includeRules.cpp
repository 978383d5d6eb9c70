#include "includeRules.h"

#include <QRegularExpression>
#include <QSet>
#include <optional>

namespace
{
using Graph = QMap<QString, QSet<QString>>;

struct Include {
    QString path;
    bool quoted;
};

QList<Include> includesOf(const QString &source)
{
    static const QRegularExpression directive(QStringLiteral(R"(^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">])"),
                                              QRegularExpression::MultilineOption);
    QList<Include> result;
    for (auto i = directive.globalMatch(source); i.hasNext();) {
        const QRegularExpressionMatch match = i.next();
        result.append({match.captured(2), match.captured(1) == QLatin1String("\"")});
    }
    return result;
}

/// The form or module whose file this is, if it belongs to the frame that holds the whole program together.
QString frameModule(const QString &path)
{
    for (const QString &module : {QStringLiteral("frmMdi"), QStringLiteral("frmSplash"), QStringLiteral("application")})
        if (path.startsWith(QStringLiteral("shell/") + module))
            return module;
    return {};
}

/// The folder for the order's sake: the frame stands in the shell's folder, but above all of them.
QString folderOf(const QString &path)
{
    if (!frameModule(path).isEmpty())
        return QStringLiteral("the frame");
    return path.section(u'/', 0, -2);
}

/// How far up a file stands: it may include only what stands as far up or lower. Nothing for a file that has no place.
std::optional<int> levelOf(const QString &path)
{
    static const QMap<QString, int> levels{
        {QStringLiteral("common"), 0},     {QStringLiteral("platform"), 1},  {QStringLiteral("document"), 2},
        {QStringLiteral("files"), 2},      {QStringLiteral("project"), 2},   {QStringLiteral("codeknowledge"), 2},
        {QStringLiteral("insertion"), 2},  {QStringLiteral("texttools"), 2}, {QStringLiteral("internet"), 2},
        {QStringLiteral("extensions"), 2}, {QStringLiteral("shell"), 2},     {QStringLiteral("webview"), 2},
        {QStringLiteral("the frame"), 3},
    };
    if (path == QLatin1String("main.cpp"))
        return 4;
    const auto level = levels.constFind(folderOf(path));
    return level == levels.constEnd() ? std::nullopt : std::optional(*level);
}

/// The two main windows are made by the application alone; everything else meets them by interfaces.
bool mayInclude(const QString &from, const QString &to)
{
    const QString module = frameModule(to);
    if (module.isEmpty() || module == QLatin1String("application"))
        return true;
    return from == QLatin1String("main.cpp") || frameModule(from) == QLatin1String("application") ||
           frameModule(from) == module;
}

QStringList faultsOfInclude(const QString &from, const QString &to)
{
    const std::optional<int> fromLevel = levelOf(from);
    const std::optional<int> toLevel = levelOf(to);
    if (fromLevel && toLevel && *fromLevel < *toLevel)
        return {QStringLiteral("%1 includes %2 uphill").arg(from, to)};
    if (!mayInclude(from, to))
        return {QStringLiteral("%1 includes %2, which only the application may").arg(from, to)};
    return {};
}

/// Looks for a way through a graph that comes back to where it was.
class CircleSearch
{
public:
    explicit CircleSearch(const Graph &graph) : m_graph(graph) {}

    /// The nodes of the first circle found, the one that closes it at both ends; empty without a circle.
    QStringList firstCircle()
    {
        for (auto i = m_graph.keyBegin(); i != m_graph.keyEnd(); ++i)
            if (closesCircle(*i))
                return m_way;
        return {};
    }

private:
    bool closesCircle(const QString &node)
    {
        const qsizetype seen = m_way.indexOf(node);
        if (seen >= 0) {
            m_way = m_way.mid(seen) << node;
            return true;
        }
        if (m_done.contains(node))
            return false;
        m_way << node;
        const QSet<QString> next = m_graph.value(node);
        if (std::any_of(next.begin(), next.end(), [this](const QString &n) { return closesCircle(n); }))
            return true;
        m_way.removeLast();
        m_done.insert(node);
        return false;
    }

    const Graph &m_graph;
    QStringList m_way;
    QSet<QString> m_done;
};

QStringList circleFault(const Graph &graph)
{
    const QStringList circle = CircleSearch(graph).firstCircle();
    if (circle.isEmpty())
        return {};
    return {QStringLiteral("a circle: %1").arg(circle.join(QStringLiteral(" > ")))};
}
} // namespace

QStringList includeFaults(const SourceTree &tree)
{
    QStringList faults;
    Graph files;
    Graph folders;
    for (auto file = tree.begin(); file != tree.end(); ++file) {
        const QString &from = file.key();
        if (!levelOf(from))
            faults << QStringLiteral("%1 has no place in the order of the folders").arg(from);
        for (const Include &include : includesOf(*file)) {
            if (tree.contains(include.path)) {
                faults << faultsOfInclude(from, include.path);
                files[from].insert(include.path);
                if (folderOf(from) != folderOf(include.path))
                    folders[folderOf(from)].insert(folderOf(include.path));
            } else if (include.quoted && !include.path.endsWith(QLatin1String(".moc"))) {
                faults << QStringLiteral("%1 includes \"%2\", which is no path from src/").arg(from, include.path);
            }
        }
    }
    return faults << circleFault(files) << circleFault(folders);
}
