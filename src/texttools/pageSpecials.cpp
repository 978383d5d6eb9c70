#include "texttools/pageSpecials.h"

#include "texttools/pageValues.h"

#include <QRegularExpression>

namespace
{
bool isOneOf(QStringView word, const char *words)
{
    for (const QString &one : QString::fromLatin1(words).split(u' '))
        if (word.compare(one, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

/// Whether a value fits the kind of the field that it stands in at the start.
bool fitsField(QStringView value, QStringView type)
{
    const auto matches = [value](const char *pattern) {
        return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
            .match(value.toString())
            .hasMatch();
    };
    if (isOneOf(type, "number range"))
        return isNumber(value);
    if (isOneOf(type, "color"))
        return matches("#[0-9A-Fa-f]{6}");
    if (isOneOf(type, "date"))
        return matches(R"(\d{4,}-\d\d-\d\d)") && isDay(value);
    if (isOneOf(type, "month"))
        return matches(R"(\d{4,}-(0[1-9]|1[0-2]))");
    if (isOneOf(type, "week"))
        return matches(R"(\d{4,}-W[0-5]\d)");
    if (isOneOf(type, "time"))
        return matches(R"(([01]\d|2[0-3]):[0-5]\d(:[0-5]\d(\.\d{1,3})?)?)");
    if (isOneOf(type, "datetime-local"))
        return matches(R"(\d{4,}-\d\d-\d\d[T ]\d\d:\d\d(:\d\d(\.\d{1,3})?)?)");
    return true;
}
} // namespace

void PageSpecials::tell(const char *rule, html::Range range, const QString &message, const QString &remedy)
{
    if (m_problems.wants(rule))
        m_problems.error(rule, range, message, remedy);
}

void PageSpecials::startTag(const html::Token &token, const PageTree::Opened &opened, PageTag parent,
                            const PageAttributes &attributes)
{
    if (opened.foreign || opened.element == 0)
        return;
    checkLabel(token, opened, attributes);
    if (opened.tag == PageTag::Colgroup)
        m_state.columnsCounted = attributes.has(QLatin1String("span"));
    if (opened.tag == PageTag::Col && m_state.columnsCounted && parent == PageTag::Colgroup && opened.judged)
        tell("misplaced", token.range, QStringLiteral("<col> may not stand in a <colgroup> with span."),
             QStringLiteral("<colgroup> without span."));
    if (isNamed(token, "audio") || isNamed(token, "video"))
        m_state.mediaHasFile = attributes.has(QLatin1String("src"));
    if (isNamed(token, "map"))
        ++m_state.maps;
    if (isNamed(token, "figure"))
        ++m_state.figures;
    if (isNamed(token, "time") && !attributes.has(QLatin1String("datetime")) && opened.judged)
        m_state.time = token.range;
    checkItem(token, attributes);
    if (!opened.judged || m_tree.inside(PageTag::Template))
        return;
    if (isNamed(token, "meta") || isNamed(token, "link"))
        checkHeadMatter(token, parent, attributes);
    else if (isNamed(token, "source"))
        checkSource(token, attributes);
    else if (opened.tag == PageTag::Input)
        checkInput(attributes);
    else if (isNamed(token, "area"))
        checkArea(token, attributes);
    else if (isNamed(token, "img"))
        checkPicture(token, attributes);
    else if (isNamed(token, "main"))
        checkMain(token, attributes);
}

void PageSpecials::endTag(const html::Token &token)
{
    if (isNamed(token, "audio") || isNamed(token, "video"))
        m_state.mediaHasFile = false;
    else if (isNamed(token, "map"))
        m_state.maps = qMax(0, m_state.maps - 1);
    else if (isNamed(token, "figure"))
        m_state.figures = qMax(0, m_state.figures - 1);
    else if (isNamed(token, "label"))
        m_state.fields = -1;
    else if (isNamed(token, "time"))
        checkTime(token);
}

/// A time that does not say so by an attribute is what it holds.
void PageSpecials::checkTime(const html::Token &token)
{
    const html::Range tag = std::exchange(m_state.time, {});
    if (tag.length == 0)
        return;
    const qsizetype start = tag.start + tag.length;
    const QStringView text = m_text.mid(start, token.range.start - start);
    if (text.contains(u'<') || text.contains(u'&') || isMoment(text))
        return;
    tell("value", text.isEmpty() ? tag : html::Range{start, text.size()},
         QStringLiteral("What <time> holds is no date or time that programs can read."),
         QStringLiteral("A datetime as in <time datetime=\"2026-04-05\">."));
}

/// Properties belong to an item around them, or to one that names an element around them by itemref.
void PageSpecials::checkItem(const html::Token &token, const PageAttributes &attributes)
{
    const bool item = attributes.has(QLatin1String("itemscope"));
    if (const auto property = attributes.value(QLatin1String("itemprop")); property && !m_tree.inItem(token))
        m_references.add(PageName::Kind::Property, rangeOf(*property));
    for (const char *name : {"itemtype", "itemref", "itemid"})
        if (const auto value = attributes.value(QLatin1String(name)); value && !item)
            tell("attribute-out-of-place", rangeOf(*value),
                 QStringLiteral("%1 counts for nothing without itemscope.").arg(QLatin1String(name)),
                 QStringLiteral("It may stand with itemscope."));
    if (const auto id = attributes.value(QLatin1String("itemid"));
        id && item && !attributes.has(QLatin1String("itemtype")))
        tell("attribute-out-of-place", rangeOf(*id), QStringLiteral("itemid counts for nothing without itemtype."),
             QStringLiteral("It may stand with itemtype."));
    if (item)
        m_tree.setItem(token);
}

/// In the body, meta and link are for properties alone, and for what a page may load late.
void PageSpecials::checkHeadMatter(const html::Token &token, PageTag parent, const PageAttributes &attributes)
{
    if (parent == PageTag::Head || parent == PageTag::Noscript || parent == PageTag::Html ||
        attributes.has(QLatin1String("itemprop")) || attributes.has(QLatin1String("property")))
        return;
    if (isNamed(token, "link"))
        for (const QStringView word : wordsOfValue(attributes.value(QLatin1String("rel")).value_or(QStringView())))
            if (isOneOf(word, "dns-prefetch modulepreload pingback preconnect prefetch preload prerender stylesheet"))
                return;
    tell("misplaced", token.range, QStringLiteral("This may stand in the head only."),
         QStringLiteral("Put it in front of </head>."));
}

void PageSpecials::checkSource(const html::Token &token, const PageAttributes &attributes)
{
    if (m_state.mediaHasFile)
        tell("misplaced", token.range,
             QStringLiteral("<source> counts for nothing where the element around it has src."),
             QStringLiteral("One of the two."));
    else if (!attributes.has(QLatin1String("src")) && !attributes.has(QLatin1String("srcset")))
        tell("missing-attribute", token.range, QStringLiteral("<source> lacks src or srcset."),
             QStringLiteral("<source src=\"...\">"));
}

void PageSpecials::checkLabel(const html::Token &token, const PageTree::Opened &opened,
                              const PageAttributes &attributes)
{
    if (isNamed(token, "label")) {
        m_state.fields = 0;
        return;
    }
    const bool hidden = opened.tag == PageTag::Input &&
                        isOneOf(attributes.value(QLatin1String("type")).value_or(QStringView()), "hidden");
    const bool field = opened.tag == PageTag::Input || opened.tag == PageTag::Button || opened.tag == PageTag::Select ||
                       opened.tag == PageTag::Textarea || isNamed(token, "meter") || isNamed(token, "output") ||
                       isNamed(token, "progress");
    if (m_state.fields < 0 || !field || hidden)
        return;
    if (++m_state.fields == 2)
        tell("label-of-many", token.range, QStringLiteral("A label holds one field."),
             QStringLiteral("A label for each."));
}

void PageSpecials::checkInput(const PageAttributes &attributes)
{
    const auto value = attributes.value(QLatin1String("value"));
    const auto type = attributes.value(QLatin1String("type"));
    if (!value || !type || value->isEmpty() || value->contains(u'&') || fitsField(*value, *type))
        return;
    tell("value", rangeOf(*value),
         QStringLiteral("\"%1\" is no value of a field of the type %2.").arg(value->toString(), type->toString()), {});
}

void PageSpecials::checkArea(const html::Token &token, const PageAttributes &attributes)
{
    if (m_state.maps == 0)
        tell("misplaced", token.range, QStringLiteral("<area> may stand in <map> only."),
             QStringLiteral("Put it into <map>."));
    const auto coords = attributes.value(QLatin1String("coords"));
    if (!coords)
        return;
    const QStringView shape = attributes.value(QLatin1String("shape")).value_or(QStringView(u"rect"));
    const QList<QStringView> numbers = coords->split(u',');
    const bool whole =
        std::all_of(numbers.begin(), numbers.end(), [](QStringView one) { return isNumber(one.trimmed()); });
    const qsizetype count = numbers.size();
    const bool right = isOneOf(shape, "circle")    ? count == 3
                       : isOneOf(shape, "poly")    ? count >= 6 && count % 2 == 0
                       : isOneOf(shape, "default") ? false
                                                   : count == 4;
    if (!whole || !right)
        tell("value", rangeOf(*coords), QStringLiteral("These are not the numbers of such an area."),
             QStringLiteral("rect: left,top,right,bottom; circle: x,y,radius; poly: x,y of three corners or more."));
}

/// A title, or the caption of a figure, may tell what a picture shows in the place of alt.
void PageSpecials::checkPicture(const html::Token &token, const PageAttributes &attributes)
{
    if (!attributes.has(QLatin1String("alt")) && !attributes.has(QLatin1String("title")) && m_state.figures == 0)
        tell("missing-attribute", token.range, QStringLiteral("<img> lacks alt."),
             QStringLiteral("alt=\"\" where the picture says nothing, or what it says."));
}

void PageSpecials::checkMain(const html::Token &token, const PageAttributes &attributes)
{
    if (attributes.has(QLatin1String("hidden")))
        return;
    if (m_state.main)
        tell("once", token.range, QStringLiteral("A second <main> in the page."),
             QStringLiteral("One that shows; the others hidden."));
    m_state.main = true;
}
