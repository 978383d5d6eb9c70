#include "codeknowledge/codeLibraries.h"

#include "common/encodings.h"
#include "common/paths.h"
#include "services/fileSystem.h"
#include "widgets/programIcon.h"

namespace
{
/// Deprecated codes have a shape and a colour of their own.
QIcon deprecatedIcon()
{
    return programIcon(QStringLiteral("strikethrough"), QColor(0xA8501F), QColor(0xF0B47D));
}

QHash<QString, QIcon> treeImages()
{
    const QIcon value = programIcon(QStringLiteral("quote"));
    return {{QStringLiteral("ImgNode1"), programIcon(QStringLiteral("globe"))},
            {QStringLiteral("ImgNode2"), programIcon(QStringLiteral("code-xml"))},
            {QStringLiteral("ImgNode3"), programIcon(QStringLiteral("variable"))},
            {QStringLiteral("ImgNode4"), value},
            {QStringLiteral("ImgDepr"), deprecatedIcon()},
            {QStringLiteral("ImgNodeCSS1"), programIcon(QStringLiteral("palette"))},
            {QStringLiteral("ImgNodeCSSProperty"), programIcon(QStringLiteral("type-outline"))},
            {QStringLiteral("ImgNodeCSSValue"), value}};
}

QHash<QString, QIcon> elementImages()
{
    return {{QStringLiteral("Element"), programIcon(QStringLiteral("code-xml"))},
            {QStringLiteral("ElementDepr"), deprecatedIcon()}};
}

std::optional<QString> textOfFile(FileSystem &files, const QString &path)
{
    const FileContents file = files.readAll(path);
    if (file.error)
        return std::nullopt;
    return decodeOwnFile(file.bytes);
}
} // namespace

CodeLibraries::CodeLibraries()
{
    m_tree->setImages(treeImages());
    m_elementNodes->setImages(elementImages());
}

void CodeLibraries::LoadCodeLibraries(FileSystem &files, const QString &folder)
{
    m_complete = loadHtml(files, folder) && loadCss(files, folder);
    addElementNodes();
}

bool CodeLibraries::loadHtml(FileSystem &files, const QString &folder)
{
    const auto text = textOfFile(files, joinPath(folder, QStringLiteral("Html.tcb")));
    if (!text)
        return false;
    HtmlCodes codes = readHtmlCodes(*text);
    const bool complete = codes.branch.complete;
    addBranch(std::move(codes.branch));
    m_elements = std::move(codes.elements);
    if (complete)
        m_htmlNodes = m_tree->size();
    return complete;
}

bool CodeLibraries::loadCss(FileSystem &files, const QString &folder)
{
    const auto text = textOfFile(files, joinPath(folder, QStringLiteral("Css.tcb")));
    if (!text)
        return false;
    CodeBranch branch = readCssCodes(*text);
    const bool complete = branch.complete;
    addBranch(std::move(branch));
    return complete;
}

void CodeLibraries::addBranch(CodeBranch branch)
{
    const int offset = m_tree->size();
    m_tree->reserve(offset + static_cast<int>(branch.nodes.size()));
    for (TreeNode &node : branch.nodes) {
        if (node.parent >= 0)
            node.parent += offset;
        m_tree->add(std::move(node));
    }
}

void CodeLibraries::addElementNodes()
{
    for (const QString &row : m_elements.lstCodeAssistantElementsFull) {
        const bool current = row.startsWith(u'e');
        m_elementNodes->add({.text = row.sliced(1),
                             .key = row.toLower(),
                             .imageKey = current ? QStringLiteral("Element") : QStringLiteral("ElementDepr")});
    }
}
