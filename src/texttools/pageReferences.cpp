#include "texttools/pageReferences.h"

#include "texttools/pageValues.h"

#include <QUrl>

namespace
{
QString wanted(PageReferences::To to)
{
    switch (to) {
    case PageReferences::To::Map:
        return QStringLiteral("The name of a <map> in the page.");
    case PageReferences::To::Datalist:
        return QStringLiteral("The id of a <datalist> in the page.");
    case PageReferences::To::Form:
        return QStringLiteral("The id of a <form> in the page.");
    case PageReferences::To::Field:
        return QStringLiteral("The id of a field in the page.");
    default:
        return QStringLiteral("The id of an element in the page.");
    }
}
} // namespace

void PageReferences::addId(html::Range value, QStringView element, bool field)
{
    if (value.length == 0)
        return;
    const auto there = m_ids.constFind(view(value));
    if (there == m_ids.constEnd()) {
        m_ids.insert(view(value), {value, element, field});
        return;
    }
    if (m_problems.wants("id-twice"))
        m_problems.error("id-twice", value,
                         QStringLiteral("The id \"%1\" is in the page already.").arg(view(value).toString()),
                         QStringLiteral("Another name, here or there."));
}

void PageReferences::addAnchor(html::Range value)
{
    m_anchors.insert(view(value), value);
}

void PageReferences::addMap(html::Range value)
{
    m_maps.insert(view(value), value);
}

void PageReferences::addReference(To to, html::Range range, QStringView attribute)
{
    m_references.append({to, range, attribute});
}

void PageReferences::addLink(html::Range value)
{
    if (value.length > 1 && m_text[value.start] == u'#')
        addReference(To::Anchor, {value.start + 1, value.length - 1}, u"href");
}

bool PageReferences::isAnchor(QStringView name) const
{
    return m_ids.contains(name) || m_anchors.contains(name);
}

bool PageReferences::leadsNowhere(const Reference &reference) const
{
    const QStringView name = view(reference.range);
    const auto id = m_ids.constFind(name);
    const auto isElement = [&](QStringView element) {
        return id != m_ids.constEnd() && id->element.compare(element, Qt::CaseInsensitive) == 0;
    };
    switch (reference.to) {
    case To::Map:
        return !m_maps.contains(name);
    case To::Datalist:
        return !isElement(u"datalist");
    case To::Form:
        return !isElement(u"form");
    case To::Field:
        return id == m_ids.constEnd() || !id->field;
    case To::Anchor: {
        if (name.compare(u"top", Qt::CaseInsensitive) == 0 || name.contains(QLatin1String(":~:")) || isAnchor(name))
            return false;
        const QString decoded = QUrl::fromPercentEncoding(name.toUtf8());
        return !isAnchor(decoded);
    }
    default:
        return id == m_ids.constEnd();
    }
}

void PageReferences::finish()
{
    for (const Reference &reference : std::as_const(m_references)) {
        if (!leadsNowhere(reference) || !m_problems.wants("leads-nowhere"))
            continue;
        m_problems.error("leads-nowhere", reference.range,
                         QStringLiteral("%1 leads to \"%2\", which is not in the page.")
                             .arg(reference.attribute.toString().toLower(), view(reference.range).toString()),
                         wanted(reference.to));
    }
}
