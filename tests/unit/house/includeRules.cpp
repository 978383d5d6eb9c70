#include "includeRules.h"

#include <QRegularExpression>
#include <QSet>
#include <limits>
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

/// The folder of src/ that a file belongs to, however deep below it the file stands.
QString folderOf(const QString &path)
{
    return path.contains(u'/') ? path.section(u'/', 0, 0) : QString();
}

/// The main windows and the application that owns all forms are more than their folder: which of them this file is of.
QString frameModule(const QString &path)
{
    for (const QString &module : {QStringLiteral("frmMdi"), QStringLiteral("frmSplash"), QStringLiteral("application")})
        if (path.startsWith(QStringLiteral("frame/") + module))
            return module;
    return {};
}

/// The two main windows are made by the application alone; everything else meets them by interfaces.
bool mayInclude(const QString &from, const QString &to)
{
    const QString module = frameModule(to);
    if (module.isEmpty() || module == QLatin1String("application"))
        return true;
    return frameModule(from) == QLatin1String("application") || frameModule(from) == module;
}

/// The program's entry stands above all folders.
std::optional<int> levelOf(const QString &path, const FolderOrder &order)
{
    if (path == QLatin1String("main.cpp"))
        return std::numeric_limits<int>::max();
    const auto place = order.constFind(folderOf(path));
    return place == order.constEnd() ? std::nullopt : std::optional(place->level);
}

QStringList faultsOfInclude(const QString &from, const QString &to, const FolderOrder &order)
{
    const std::optional<int> fromLevel = levelOf(from, order);
    const std::optional<int> toLevel = levelOf(to, order);
    if (!fromLevel || !toLevel)
        return {};
    if (*fromLevel < *toLevel)
        return {QStringLiteral("%1 includes %2 uphill").arg(from, to)};
    if (*fromLevel == *toLevel && folderOf(from) != folderOf(to) && !order[folderOf(from)].uses.contains(folderOf(to)))
        return {QStringLiteral("%1 includes %2, which stands beside it").arg(from, to)};
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

FolderOrder folderOrder(const QString &text)
{
    FolderOrder order;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const int level = words.takeFirst().toInt();
        const QString folder = words.takeFirst();
        order.insert(folder, {level, words});
    }
    return order;
}

QStringList includeFaults(const SourceTree &tree, const FolderOrder &order)
{
    QStringList faults;
    Graph files;
    Graph folders;
    for (auto file = tree.begin(); file != tree.end(); ++file) {
        const QString &from = file.key();
        if (!levelOf(from, order))
            faults << QStringLiteral("%1 has no place in the order of the folders").arg(from);
        for (const Include &include : includesOf(*file)) {
            if (tree.contains(include.path)) {
                faults << faultsOfInclude(from, include.path, order);
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
