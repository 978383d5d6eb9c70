#pragma once

#include "texttools/pageProblems.h"

#include <QHash>

/// The names that a page gives its elements, and what in it points to them. What leads nowhere is known at its end
/// only.
class PageReferences
{
public:
    PageReferences(QStringView text, PageProblems &problems) : m_text(text), m_problems(problems) {}

    enum class To : quint8 { Id, Anchor, Map, Datalist, Form, Field };
    void addId(html::Range value, QStringView element, bool field);
    void addAnchor(html::Range value); ///< the `name` of a link
    void addMap(html::Range value);    ///< the `name` of a map
    /// `range` is a name that has to be there, told by `attribute`.
    void addReference(To to, html::Range range, QStringView attribute);
    /// An address of a link, which may lead into the page.
    void addLink(html::Range value);
    void finish();

private:
    struct Reference {
        To to;
        html::Range range;
        QStringView attribute;
    };
    struct Named {
        html::Range range;
        QStringView element;
        bool field = false; ///< a form's field, which a label may be for
    };
    QStringView view(html::Range range) const { return m_text.mid(range.start, range.length); }
    bool leadsNowhere(const Reference &reference) const;
    bool isAnchor(QStringView name) const;

    QStringView m_text;
    PageProblems &m_problems;
    QHash<QStringView, Named> m_ids;
    QHash<QStringView, html::Range> m_anchors;
    QHash<QStringView, html::Range> m_maps;
    QList<Reference> m_references;
};
