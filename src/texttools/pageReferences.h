#pragma once

#include "texttools/pageProblems.h"

#include <QHash>

/// A name that a page gives one of its elements, or what points to one.
struct PageName {
    enum class Kind : quint8 {
        Id,            ///< of an element that no reference looks at more closely
        FormId,        ///< of a form
        ListId,        ///< of a datalist
        FieldId,       ///< of a field, which a label may be for
        Anchor,        ///< the `name` of a link
        Map,           ///< the `name` of a map
        Property,      ///< of no item that is around it
        Reference,     ///< to an element
        ItemReference, ///< to an element that holds more of an item
        ToAnchor,
        ToMap,
        ToDatalist,
        ToForm,
        ToField,
    };
    Kind kind;
    html::Range range;          ///< of the name
    html::Range attribute = {}; ///< of a reference: of the name of the attribute that it stands in
};

/// Gathers the names of a page and what points to them.
class PageReferences
{
public:
    explicit PageReferences(QStringView text) : m_text(text) {}

    void addId(html::Range value, QStringView element, bool field);
    void add(PageName::Kind kind, html::Range range, html::Range attribute = {});
    /// An address of a link, which may lead into the page.
    void addLink(html::Range value, html::Range attribute);
    /// What has been found since it was taken last, in the order of the text.
    QList<PageName> take() { return std::exchange(m_names, {}); }

private:
    QStringView m_text;
    QList<PageName> m_names;
};

/// Tells of names that stand twice, and of references that lead nowhere: both are known of a whole page only.
class PageNames
{
public:
    PageNames(QStringView text, PageProblems &problems) : m_text(text), m_problems(problems) {}

    /// Names in the order of the text.
    void add(const QList<PageName> &names);
    void finish();

private:
    QStringView view(html::Range range) const { return m_text.mid(range.start, range.length); }
    void addId(const PageName &name);
    bool leadsNowhere(const PageName &reference) const;
    bool isAnchor(QStringView name) const { return m_ids.contains(name) || m_anchors.contains(name); }

    QStringView m_text;
    PageProblems &m_problems;
    QHash<QStringView, PageName::Kind> m_ids; ///< of the first element that has it
    QSet<QStringView> m_anchors;
    QSet<QStringView> m_maps;
    QList<html::Range> m_properties; ///< of no item around them
    bool m_moreOfItems = false;      ///< items have properties elsewhere
    QList<PageName> m_references;
};
