#include "codeknowledge/codeLibraries.h"

#include "codeknowledge/codeFiles.h"
#include "codeknowledge/codeTreeModel.h"
#include "common/paths.h"
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

CodeTree readCodes(FileSystem &files, const QString &htmlFile, const QString &cssFile)
{
    const auto html = bytesOf(files, htmlFile);
    if (!html)
        return {{}, {}};
    CodeBranch branch = CodeBranch::ofHtml(*html);
    if (!branch.isComplete())
        return {std::move(branch), {}};
    const auto css = bytesOf(files, cssFile);
    return {std::move(branch), css ? CodeBranch::ofCss(*css) : CodeBranch()};
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
            m_elements = elementsOf(codes().html());
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
    const CodeBranch &html = codes().html();
    return html.isComplete() ? html.size() : 0;
}

int CodeLibraries::syntaxCount() const
{
    const CodeBranch &html = codes().html();
    const int elements = html.elementCount();
    return html.isComplete() ? elements : std::max(elements - 1, 0); // written once the next element comes, or the end
}

QString CodeLibraries::lstCodeAssistantSyntax(int row) const
{
    if (row < 0 || row >= syntaxCount())
        return {};
    const CodeBranch &html = codes().html();
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
