#include "codeknowledge/codeLibraries.h"

#include "codeknowledge/codeFiles.h"
#include "codeknowledge/codeTreeModel.h"
#include "common/paths.h"
#include "common/quickDigest.h"
#include "services/fileSystem.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace
{
/// Nothing if the file cannot be read, or is far too large to be one of ours.
std::optional<QByteArray> bytesOf(FileSystem &files, const QString &path)
{
    FileContents file = files.readAll(path);
    if (file.error || file.bytes.size() > std::numeric_limits<int>::max() / 4)
        return std::nullopt;
    return std::move(file.bytes);
}

CodeElements elementsOf(const CodeBranch &html)
{
    CodeElements elements;
    for (int row = 0; row < html.elementCount(); ++row) {
        const int element = html.element(row);
        const QString name = u'<' + html.node(element).text;
        const bool deprecated = htmlLine(html.lineOf(element)).deprecated;
        elements.lstCodeAssistantElements.append(name);
        if (html.parentOf(element) == 0)
            elements.htmlNames.append(name.sliced(1));
        elements.lstCodeAssistantElementsFull.append((deprecated ? u'd' : u'e') + name);
    }
    return elements;
}

/// Nothing if the file cannot be read.
std::optional<quint64> digestOf(FileSystem &files, const QString &path, qint64 size)
{
    constexpr qint64 piece = 64 * 1024; // small enough for memory that is taken again and again
    static_assert(piece % QuickDigest::Step == 0);
    QuickDigest digest;
    for (qint64 offset = 0; offset < size; offset += piece) {
        const FileContents part = files.readPart(path, offset, piece);
        if (part.error)
            return std::nullopt;
        digest.add(part.bytes);
    }
    return digest.value();
}

CodeBranch wholeBranch(FileSystem &files, const QString &path, bool html)
{
    const auto bytes = bytesOf(files, path);
    if (!bytes)
        return {};
    return html ? CodeBranch::ofHtml(*bytes) : CodeBranch::ofCss(*bytes);
}

/// The file that came with the program is not read before more is asked for than its outline tells.
LazyCodeBranch branchOf(FileSystem &files, const QString &path, bool html)
{
    auto outline = CodeOutline::shipped(html ? QStringLiteral("Html.tcb") : QStringLiteral("Css.tcb"));
    if (!outline || files.size(path) != outline->fileSize())
        return wholeBranch(files, path, html);
    const auto digest = digestOf(files, path, outline->fileSize());
    if (!digest)
        return {};
    if (*digest != outline->fileDigest())
        return wholeBranch(files, path, html);
    return {html, std::move(*outline), [&files, path, html] { return wholeBranch(files, path, html); }};
}

CodeTree readCodes(FileSystem &files, const QString &htmlFile, const QString &cssFile)
{
    LazyCodeBranch html = branchOf(files, htmlFile, true);
    if (html.size() == 0 || !html.isComplete())
        return {std::move(html), {}};
    return {std::move(html), branchOf(files, cssFile, false)};
}
} // namespace

/// The files, and what they hold once it was asked for.
class CodeLibraries::Source
{
public:
    void setFiles(FileSystem &files, const QString &html, const QString &css)
    {
        m_files = &files;
        m_html = html;
        m_css = css;
        m_codes.reset(); // somebody may have looked before there was anything
        m_elements.reset();
    }
    const CodeTree &codes()
    {
        if (!m_codes)
            m_codes = m_files ? readCodes(*m_files, m_html, m_css) : CodeTree({}, {});
        return *m_codes;
    }
    const CodeElements &elements()
    {
        if (!m_elements)
            m_elements = elementsOf(codes().html().whole());
        return *m_elements;
    }

private:
    FileSystem *m_files = nullptr;
    QString m_html;
    QString m_css;
    std::optional<CodeTree> m_codes;
    std::optional<CodeElements> m_elements;
};

CodeLibraries::CodeLibraries()
    : m_source(std::make_shared<Source>()),
      m_tree(std::make_shared<CodeTreeModel>([source = m_source]() -> const CodeTree & { return source->codes(); })),
      m_elementNodes(std::make_shared<CodeElementsModel>(
          [source = m_source]() -> const QStringList & { return source->elements().lstCodeAssistantElementsFull; }))
{
}

CodeLibraries::~CodeLibraries() = default;

void CodeLibraries::LoadCodeLibraries(FileSystem &files, const QString &folder)
{
    LoadCodeLibraries(files, joinPath(folder, QStringLiteral("Html.tcb")), joinPath(folder, QStringLiteral("Css.tcb")));
}

void CodeLibraries::LoadCodeLibraries(FileSystem &files, const QString &html, const QString &css)
{
    m_source->setFiles(files, html, css);
}

const CodeTree &CodeLibraries::codes() const
{
    return m_source->codes();
}

const CodeElements &CodeLibraries::elements() const
{
    return m_source->elements();
}

bool CodeLibraries::isComplete() const
{
    return codes().html().isComplete() && codes().css().isComplete();
}

int CodeLibraries::HtmlCodeNodeCount() const
{
    const LazyCodeBranch &html = codes().html();
    return html.isComplete() ? html.size() : 0;
}

int CodeLibraries::syntaxCount() const
{
    const CodeBranch &html = codes().html().whole();
    const int elements = html.elementCount();
    return html.isComplete() ? elements : std::max(elements - 1, 0); // written once the next element comes, or the end
}

QString CodeLibraries::lstCodeAssistantSyntax(int row) const
{
    if (row < 0 || row >= syntaxCount())
        return {};
    const CodeBranch &html = codes().html().whole();
    const int element = html.element(row);
    QString syntax = u'<' + html.node(element).text;
    for (const int number : html.attributesOf(element)) {
        const AttributeText attribute = attributeText(htmlLine(html.lineOf(number)).text);
        syntax.append(u' ').append(attribute.name);
        if (!attribute.hint.isEmpty())
            syntax.append(u'[').append(attribute.hint).append(u']');
    }
    return syntax + u'>';
}
