#include "texttools/pageReferences.h"

#include <QUrl>

namespace
{
using Kind = PageName::Kind;

QString wanted(Kind to)
{
    switch (to) {
    case Kind::ToMap:
        return QStringLiteral("The name of a <map> in the page.");
    case Kind::ToDatalist:
        return QStringLiteral("The id of a <datalist> in the page.");
    case Kind::ToForm:
        return QStringLiteral("The id of a <form> in the page.");
    case Kind::ToField:
        return QStringLiteral("The id of a field in the page.");
    default:
        return QStringLiteral("The id of an element in the page.");
    }
}
} // namespace

// --- Gathering -------------------------------------------------------------------------------------------------------

void PageReferences::addId(html::Range value, QStringView element, bool field)
{
    const auto is = [&](QStringView name) { return element.compare(name, Qt::CaseInsensitive) == 0; };
    add(field ? Kind::FieldId : is(u"form") ? Kind::FormId : is(u"datalist") ? Kind::ListId : Kind::Id, value);
}

void PageReferences::add(Kind kind, html::Range range, html::Range attribute)
{
    if (range.length > 0 || kind >= Kind::Property)
        m_names.append({kind, range, attribute});
}

void PageReferences::addLink(html::Range value, html::Range attribute)
{
    if (value.length > 1 && m_text[value.start] == u'#')
        add(Kind::ToAnchor, {value.start + 1, value.length - 1}, attribute);
}

// --- Looking them up -------------------------------------------------------------------------------------------------

void PageNames::add(const QList<PageName> &names)
{
    for (const PageName &name : names) {
        m_moreOfItems |= name.kind == Kind::ItemReference;
        if (name.kind >= Kind::Reference)
            m_references.append(name);
        else if (name.kind == Kind::Property)
            m_properties.append(name.range);
        else if (name.kind == Kind::Anchor)
            m_anchors.insert(view(name.range));
        else if (name.kind == Kind::Map)
            m_maps.insert(view(name.range));
        else
            addId(name);
    }
}

void PageNames::addId(const PageName &name)
{
    const QStringView id = view(name.range);
    if (!m_ids.contains(id))
        m_ids.insert(id, name.kind);
    else if (m_problems.wants("id-twice"))
        m_problems.error("id-twice", name.range,
                         QStringLiteral("The id \"%1\" is in the page already.").arg(id.toString()),
                         QStringLiteral("Another name, here or there."));
}

bool PageNames::leadsNowhere(const PageName &reference) const
{
    const QStringView name = view(reference.range);
    const auto id = m_ids.constFind(name);
    const auto is = [&](Kind kind) { return id != m_ids.constEnd() && *id == kind; };
    switch (reference.kind) {
    case Kind::ToMap:
        return !m_maps.contains(name);
    case Kind::ToDatalist:
        return !is(Kind::ListId);
    case Kind::ToForm:
        return !is(Kind::FormId);
    case Kind::ToField:
        return !is(Kind::FieldId);
    case Kind::ToAnchor:
        return name.compare(u"top", Qt::CaseInsensitive) != 0 && !name.contains(QLatin1String(":~:")) &&
               !isAnchor(name) && !isAnchor(QUrl::fromPercentEncoding(name.toUtf8()));
    default:
        return id == m_ids.constEnd();
    }
}

void PageNames::finish()
{
    for (const html::Range property : std::as_const(m_properties))
        if (!m_moreOfItems && m_problems.wants("property-of-nothing"))
            m_problems.error("property-of-nothing", property, QStringLiteral("This itemprop is a property of no item."),
                             QStringLiteral("An element around it with itemscope."));
    for (const PageName &reference : std::as_const(m_references)) {
        if (!leadsNowhere(reference) || !m_problems.wants("leads-nowhere"))
            continue;
        m_problems.error("leads-nowhere", reference.range,
                         QStringLiteral("%1 leads to \"%2\", which is not in the page.")
                             .arg(view(reference.attribute).toString().toLower(), view(reference.range).toString()),
                         wanted(reference.kind));
    }
}
