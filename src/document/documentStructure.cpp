#include "document/documentStructure.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "document/lineHands.h"
#include "document/pageOutline.h"
#include "document/structureTree.h"
#include "forms/programContext.h"
#include "surface/editSurface.h"

namespace
{
QString imageOf(const QString &name)
{
    static const QHash<QString, QString> images = {
        {QStringLiteral("a"), QStringLiteral("Hyperlink")},
        {QStringLiteral("img"), QStringLiteral("Image")},
        {QStringLiteral("br"), QStringLiteral("LineBreak")},
        {QStringLiteral("p"), QStringLiteral("Paragraph")},
        {QStringLiteral("hr"), QStringLiteral("HorizontalRule")},
        {QStringLiteral("form"), QStringLiteral("FormObject")},
        {QStringLiteral("applet"), QStringLiteral("Applet")},
        {QStringLiteral("b"), QStringLiteral("FontBold")},
        {QStringLiteral("i"), QStringLiteral("FontItalic")},
        {QStringLiteral("u"), QStringLiteral("FontUnderline")},
        {QStringLiteral("table"), QStringLiteral("Table")},
        {QStringLiteral("h1"), QStringLiteral("Heading")},
        {QStringLiteral("h2"), QStringLiteral("Heading")},
        {QStringLiteral("h3"), QStringLiteral("Heading")},
        {QStringLiteral("h4"), QStringLiteral("Heading")},
        {QStringLiteral("h5"), QStringLiteral("Heading")},
        {QStringLiteral("h6"), QStringLiteral("Heading")},
    };
    return images.value(name, QStringLiteral("Element"));
}

TreeNode treeNode(const OutlineNode &node)
{
    return {.text = node.name,
            .key = StructureNode{node.start, node.length, {}, {}, -1}.key(),
            .imageKey = node.fault.isEmpty() ? imageOf(node.name) : QStringLiteral("Error"),
            .parent = static_cast<int>(node.parent),
            .tip = node.fault};
}
} // namespace

DocumentStructure::DocumentStructure(Document &document, EditSurface &edit, ProgramContext &context)
    : m_document(document),
      m_edit(edit),
      m_context(context),
      m_afterChanges(
          edit, [this] { return isWanted(); }, [this] { show(); })
{
}

void DocumentStructure::leave()
{
    if (!m_context.state.habits.HabitStructure)
        m_context.mainWindow->clearStructureTree();
}

/// What was marked before the rule went is taken back.
bool DocumentStructure::isWanted() const
{
    return m_context.state.habits.HabitStructure || m_marked;
}

void DocumentStructure::show()
{
    if (!isWanted())
        return;
    const bool holds = m_context.state.habits.HabitStructure;
    std::vector<OutlineNode> nodes;
    if (holds && commentSignsAt({}, 0, m_document.DocSavePath) == CommentSigns::Html)
        nodes = pageOutline(m_edit.Text());
    QList<MarkedRange> marks;
    for (const OutlineNode &node : nodes)
        if (!node.fault.isEmpty())
            marks.append({node.start, node.length, MarkKind::Error, node.fault, {}});
    m_marked = holds;
    m_edit.setMarkedRanges(MarkOwner::Structure, marks);
    if (m_context.mainWindow->activeDocument() != &m_document)
        return;
    QList<TreeNode> tree;
    tree.reserve(static_cast<qsizetype>(nodes.size()));
    for (const OutlineNode &node : nodes)
        tree.append(treeNode(node));
    m_context.mainWindow->showStructure(tree);
}
