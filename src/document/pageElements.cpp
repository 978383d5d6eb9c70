#include "document/pageElements.h"

#include "document/tagPairs.h"

#include <QHash>

#include <algorithm>

namespace
{
/// Whether a start tag ends an element that is open, as an item of a list ends the one before.
bool endsOpen(const QString &next, const QString &open)
{
    static const QList<QStringList> kinds{
        {QStringLiteral("li")},     {QStringLiteral("p")},  {QStringLiteral("dt"), QStringLiteral("dd")},
        {QStringLiteral("option")}, {QStringLiteral("tr")}, {QStringLiteral("td"), QStringLiteral("th")},
    };
    return std::any_of(kinds.cbegin(), kinds.cend(),
                       [&](const QStringList &kind) { return kind.contains(next) && kind.contains(open); });
}

/// Goes through the tags of a page and knows which elements are open.
class OpenElements
{
public:
    void pass(const FoundTag &tag)
    {
        if (tag.kind == FoundTag::Kind::Close) {
            close(tag.name);
            return;
        }
        open(tag);
        if (tag.kind == FoundTag::Kind::Alone)
            m_open.removeLast();
    }
    void open(const FoundTag &tag)
    {
        if (!m_open.isEmpty() && endsOpen(tag.name, m_open.constLast().name))
            m_open.removeLast();
        m_open.append({tag.name, m_counts[tag.name]++, 0});
    }
    /// The element that an end tag closes is open no more, and nothing in it.
    void close(const QString &name)
    {
        if (const qsizetype place = placeOf(name); place >= 0)
            m_open.remove(place, m_open.size() - place);
    }
    /// What is in the element that an end tag closes is open no more.
    void closeWithin(const QString &name)
    {
        if (const qsizetype place = placeOf(name); place >= 0)
            m_open.remove(place + 1, m_open.size() - place - 1);
    }
    void count(const FoundTag &tag)
    {
        if (tag.kind != FoundTag::Kind::Close)
            ++m_counts[tag.name];
    }
    ElementPath path() const
    {
        ElementPath path(m_open.crbegin(), m_open.crend());
        for (PageElement &element : path)
            element.total = m_counts.value(element.name);
        return path;
    }

private:
    qsizetype placeOf(const QString &name) const
    {
        for (qsizetype place = m_open.size() - 1; place >= 0; --place)
            if (m_open[place].name == name)
                return place;
        return -1;
    }

    ElementPath m_open; ///< the outermost one first
    QHash<QString, qsizetype> m_counts;
};
} // namespace

ElementPath elementsAt(QStringView text, qsizetype position)
{
    OpenElements elements;
    for (const FoundTag &tag : tagsOf(text)) {
        if (tag.end <= position)
            elements.pass(tag);
        else if (tag.start >= position)
            elements.count(tag);
        else if (tag.kind == FoundTag::Kind::Close)
            elements.closeWithin(tag.name);
        else
            elements.open(tag);
    }
    return elements.path();
}

std::optional<qsizetype> placeOfElement(QStringView text, const ElementPath &path)
{
    QHash<QString, QList<FoundTag>> startTags;
    for (const FoundTag &tag : tagsOf(text))
        if (tag.kind != FoundTag::Kind::Close)
            startTags[tag.name].append(tag);
    for (const PageElement &element : path) {
        const QList<FoundTag> tags = startTags.value(element.name);
        if (tags.size() != element.total || element.number < 0 || element.number >= tags.size())
            continue;
        const FoundTag &tag = tags[element.number];
        return tag.kind == FoundTag::Kind::Alone ? tag.start : tag.end;
    }
    return std::nullopt;
}
