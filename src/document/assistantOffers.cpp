#include "document/assistantOffers.h"

#include "common/html/tokenizer.h"
#include "document/markupCharacters.h"
#include "document/pageOutline.h"
#include "texttools/pageRules.h"

#include <algorithm>
#include <optional>

namespace
{
/// Reads a tag from its "<" up to where the text ends.
class TagReader
{
public:
    TagReader(QStringView text, qsizetype tag) : m_text(text), m_at(tag + 1) { m_place.tag = tag; }

    TagPlace read()
    {
        const bool closes = m_at < m_text.size() && m_text[m_at] == u'/';
        if (closes)
            ++m_at;
        const QString name = word([](QChar c) { return !isNameCharacter(c); });
        if (ended())
            return found(closes ? TagPlace::Kind::EndTag : TagPlace::Kind::Element, name.size());
        if (closes || name.isEmpty())
            return {};
        m_place.element = name;
        while (readAttribute())
            ;
        return m_place;
    }

private:
    bool ended() const { return m_at >= m_text.size(); }

    template <class Ends>
    QString word(Ends ends)
    {
        const qsizetype start = m_at;
        while (!ended() && !ends(m_text[m_at]))
            ++m_at;
        return m_text.mid(start, m_at - start).toString().toLower();
    }

    TagPlace found(TagPlace::Kind kind, qsizetype typed)
    {
        m_place.kind = kind;
        m_place.start = m_text.size() - typed;
        return m_place;
    }

    void passBlanks()
    {
        while (!ended() && html::isBlank(m_text[m_at].unicode()))
            ++m_at;
    }

    /// False at the end of the text, or of the tag.
    bool readAttribute()
    {
        const qsizetype before = m_at;
        passBlanks();
        const bool parted = m_at > before;
        if (ended()) {
            if (parted)
                found(TagPlace::Kind::Attribute, 0);
            return false;
        }
        if (m_text[m_at] == u'>' || m_text[m_at] == u'<') {
            m_place = {};
            return false;
        }
        if (m_text[m_at] == u'/') {
            ++m_at;
            return true;
        }
        const QString name = word(
            [](QChar c) { return html::isBlank(c.unicode()) || c == u'=' || c == u'>' || c == u'/' || c == u'<'; });
        if (ended()) {
            found(TagPlace::Kind::Attribute, name.size());
            return false;
        }
        m_place.attributes.append(name);
        passBlanks();
        return ended() || m_text[m_at] != u'=' ? backFromBlanks() : readValue(name);
    }

    /// A blank behind a name parts it from the next attribute.
    bool backFromBlanks()
    {
        while (m_at > 0 && html::isBlank(m_text[m_at - 1].unicode()))
            --m_at;
        return true;
    }

    bool readValue(const QString &name)
    {
        ++m_at;
        passBlanks();
        m_place.attribute = name;
        if (ended()) {
            found(TagPlace::Kind::Value, 0);
            return false;
        }
        const QChar quote = m_text[m_at];
        const bool quoted = quote == u'"' || quote == u'\'';
        if (quoted)
            ++m_at;
        const qsizetype start = m_at;
        word([&](QChar c) { return quoted ? c == quote : html::isBlank(c.unicode()) || c == u'>'; });
        if (ended()) {
            m_place.quoted = quoted;
            found(TagPlace::Kind::Value, m_text.size() - start);
            return false;
        }
        if (quoted)
            ++m_at;
        m_place.attribute.clear();
        return true;
    }

    QStringView m_text;
    qsizetype m_at;
    TagPlace m_place;
};

/// How well a row fits what is typed; nothing if it does not.
std::optional<int> fitOf(const QString &row, const QString &typed)
{
    if (row.startsWith(typed, Qt::CaseInsensitive))
        return 0;
    return row.contains(typed, Qt::CaseInsensitive) ? std::optional(1) : std::nullopt;
}

QList<Offer> fitting(const QList<Offer> &offers, const QString &typed)
{
    QList<std::pair<int, Offer>> ranked;
    for (const Offer &offer : offers)
        if (const std::optional<int> fit = fitOf(offer.text, typed))
            ranked.append({*fit + (offer.deprecated ? 2 : 0), offer});
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<Offer> rows;
    for (const auto &[rank, offer] : ranked)
        rows.append(offer);
    if (rows.size() == 1 && rows.front().text == typed) // there is nothing to be completed
        rows.clear();
    return rows;
}

/// Whether an element may stand in the open ones, of which the innermost comes first.
bool mayStand(const Vocabulary &vocabulary, const QStringList &open, int child)
{
    const auto bit = static_cast<size_t>(child);
    bool judged = false;
    bool stands = false;
    for (const QString &name : open) {
        const int parent = vocabulary.element(name);
        if (parent == 0)
            return true;
        const ElementRule &rule = vocabulary.rule(parent);
        if (rule.without.test(bit))
            return false;
        if (judged)
            continue; // only what the outer ones forbid counts
        const ContentModel &model = rule.model;
        const bool passesOn = model.matchTransparent(model.start()).accepted;
        stands = !model.judged() || model.knows(child) || rule.plus.test(bit);
        judged = stands || !passesOn;
    }
    return open.isEmpty() || !judged || stands;
}

QList<Offer> elementOffers(const Vocabulary &vocabulary, const QStringList &open)
{
    QList<Offer> offers;
    for (int element = 1; element <= vocabulary.elementCount(); ++element)
        if (mayStand(vocabulary, openInFrontOf(open, vocabulary.nameOf(element)), element))
            offers.append({vocabulary.nameOf(element), vocabulary.nameOf(element), 0,
                           vocabulary.rule(element).deprecated, false});
    return offers;
}

QList<Offer> endTagOffers(const QStringList &open)
{
    QList<Offer> offers;
    for (const QString &name : open)
        offers.append({name, name + u'>', 0, false, false});
    return offers;
}

Offer attributeOffer(const Vocabulary &vocabulary, int element, int attribute)
{
    const AttributeRule *rule = vocabulary.attributeOf(element, attribute);
    const QString name = vocabulary.attributeName(attribute);
    if (rule->kind == ValueKind::Flag)
        return {name, name, 0, rule->deprecated, false};
    return {name, name + QStringLiteral("=\"\""), 1, rule->deprecated, true};
}

QList<Offer> attributeOffers(const Vocabulary &vocabulary, const TagPlace &place)
{
    const int element = vocabulary.element(place.element);
    const QList<int> own = vocabulary.ownAttributes(element);
    QList<Offer> offers;
    for (const int attribute : own + vocabulary.commonAttributes())
        if (!place.attributes.contains(vocabulary.attributeName(attribute)))
            offers.append(attributeOffer(vocabulary, element, attribute));
    return offers;
}

QList<Offer> plainOffers(const QStringList &texts)
{
    QList<Offer> offers;
    for (const QString &text : texts)
        offers.append({text, text, 0, false, text.endsWith(u'/')});
    return offers;
}

qsizetype nextBraceOrSemicolon(QStringView sheet, qsizetype at)
{
    constexpr qsizetype LongestSelector = 512;
    const qsizetype end = std::min(sheet.size(), at + LongestSelector);
    while (at < end && sheet[at] != u'{' && sheet[at] != u'}' && sheet[at] != u';')
        ++at;
    return at;
}

bool takesFile(const QString &attribute)
{
    return attribute == u"href" || attribute == u"src";
}

Offers valueOffers(QStringView before, const TagPlace &place, const OfferSources &sources)
{
    const QString typed = before.mid(place.start).toString();
    const auto fittingBehind = [&](QStringView part, const QList<Offer> &offers) {
        const qsizetype start = place.start + typed.lastIndexOf(part) + part.size();
        return Offers{typed.contains(part) ? start : place.start,
                      fitting(offers, typed.mid(typed.contains(part) ? start - place.start : 0))};
    };
    if (place.attribute == u"class" && sources.classes)
        return fittingBehind(u" ", plainOffers(sources.classes()));
    if (place.attribute == u"id" && sources.ids)
        return {place.start, fitting(plainOffers(sources.ids()), typed)};
    if (takesFile(place.attribute) && sources.files)
        return fittingBehind(u"/", plainOffers(sources.files(typed.left(typed.lastIndexOf(u'/') + 1))));
    if (!sources.vocabulary)
        return {};
    const int element = sources.vocabulary->element(place.element);
    const AttributeRule *rule =
        sources.vocabulary->attributeOf(element, sources.vocabulary->attribute(place.attribute));
    if (!rule)
        return {};
    if (rule->kind == ValueKind::Words)
        return fittingBehind(u" ", plainOffers(rule->words));
    return {place.start, fitting(plainOffers(rule->words), typed)};
}
} // namespace

TagPlace tagPlaceAtEnd(QStringView before)
{
    const qsizetype tag = before.lastIndexOf(u'<');
    if (tag < 0 || before.size() - tag > LongestTag)
        return {};
    return TagReader(before, tag).read();
}

Offers offersAtEnd(QStringView before, const OfferSources &sources)
{
    const TagPlace place = tagPlaceAtEnd(before);
    if (place.kind == TagPlace::Kind::Elsewhere)
        return {};
    const QStringList open = openElementsAtEnd(before.first(place.tag));
    if (!open.isEmpty() && (open.first() == u"script" || open.first() == u"style") &&
        place.kind != TagPlace::Kind::EndTag)
        return {};
    const QString typed = before.mid(place.start).toString();
    switch (place.kind) {
    case TagPlace::Kind::EndTag:
        return {place.start, fitting(endTagOffers(open), typed)};
    case TagPlace::Kind::Value:
        return valueOffers(before, place, sources);
    case TagPlace::Kind::Element:
        if (sources.vocabulary)
            return {place.start, fitting(elementOffers(*sources.vocabulary, open), typed)};
        break;
    case TagPlace::Kind::Attribute:
        if (sources.vocabulary && sources.vocabulary->element(place.element) > 0)
            return {place.start, fitting(attributeOffers(*sources.vocabulary, place), typed)};
        break;
    case TagPlace::Kind::Elsewhere:
        break;
    }
    return {};
}

QString ownSyntax(const Vocabulary &vocabulary, const QString &element)
{
    const int number = vocabulary.element(element);
    if (number == 0)
        return {};
    QStringList words{u'<' + element};
    for (const int attribute : vocabulary.ownAttributes(number)) {
        const AttributeRule *rule = vocabulary.attributeOf(number, attribute);
        if (!rule->deprecated)
            words.append(vocabulary.attributeName(attribute) +
                         (rule->kind == ValueKind::Flag ? QString() : QStringLiteral("=")));
    }
    return words.join(u' ') +
           QStringLiteral("> and %1 attributes that all elements take").arg(vocabulary.commonAttributes().size());
}

QStringList namesInStyleSheet(QStringView sheet, QChar sign)
{
    QStringList names;
    int depth = 0;
    for (qsizetype at = 0; at < sheet.size(); ++at) {
        const QChar c = sheet[at];
        if (sheet.mid(at).startsWith(u"/*")) {
            const qsizetype end = sheet.indexOf(u"*/", at + 2);
            at = end < 0 ? sheet.size() : end + 1;
        } else if (c == u'"' || c == u'\'') {
            const qsizetype end = sheet.indexOf(c, at + 1);
            at = end < 0 ? sheet.size() : end;
        } else if (c == u'{') {
            ++depth;
        } else if (c == u'}') {
            depth = std::max(depth - 1, 0);
        } else if (c == sign && at + 1 < sheet.size() &&
                   (sheet[at + 1].isLetter() || sheet[at + 1] == u'_' || sheet[at + 1] == u'-')) {
            qsizetype end = at + 1;
            while (end < sheet.size() && (isNameCharacter(sheet[end]) && sheet[end] != u'.' && sheet[end] != u':'))
                ++end;
            // Within braces it is a colour, a number or a file's ending, unless a rule stands there itself.
            const qsizetype next = depth == 0 ? end : nextBraceOrSemicolon(sheet, end);
            if (depth == 0 || (next < sheet.size() && sheet[next] == u'{'))
                names.append(sheet.mid(at + 1, end - at - 1).toString());
            at = end - 1;
        }
    }
    names.sort();
    names.removeDuplicates();
    return names;
}
