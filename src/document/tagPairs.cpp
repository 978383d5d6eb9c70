#include "document/tagPairs.h"

#include "document/markupCharacters.h"

#include <QSet>

#include <algorithm>

namespace
{
bool holdsText(const QString &name)
{
    return name == u"script" || name == u"style" || name == u"textarea" || name == u"title";
}

class TagWalk
{
public:
    explicit TagWalk(QStringView text) : m_text(text) {}

    QList<FoundTag> tags()
    {
        while (true) {
            m_at = m_text.indexOf(u'<', m_at);
            if (m_at < 0)
                return m_tags;
            if (m_text.mid(m_at).startsWith(u"<!--"))
                passBehind(u"-->", m_at + 4);
            else if (next() == u'!' || next() == u'?')
                passBehind(u">", m_at);
            else
                readTag();
        }
    }

private:
    QChar next() const { return m_at + 1 < m_text.size() ? m_text[m_at + 1] : QChar(); }

    void passBehind(QStringView what, qsizetype from)
    {
        const qsizetype found = m_text.indexOf(what, from);
        m_at = found < 0 ? m_text.size() : found + what.size();
    }

    void readTag()
    {
        FoundTag tag;
        tag.start = m_at;
        const bool closes = next() == u'/';
        tag.nameStart = m_at + (closes ? 2 : 1);
        qsizetype at = tag.nameStart;
        if (at >= m_text.size() || !m_text[at].isLetter()) {
            ++m_at;
            return;
        }
        while (at < m_text.size() && isNameCharacter(m_text[at]))
            ++at;
        tag.name = m_text.mid(tag.nameStart, at - tag.nameStart).toString().toLower();
        const qsizetype end = tagEnd(at);
        if (end < 0) {
            m_at = tag.nameStart;
            return;
        }
        tag.end = end;
        if (closes)
            tag.kind = FoundTag::Kind::Close;
        else if (isVoidElement(tag.name) || m_text[end - 2] == u'/')
            tag.kind = FoundTag::Kind::Alone;
        m_tags.append(tag);
        m_at = end;
        if (tag.kind == FoundTag::Kind::Open && holdsText(tag.name))
            passText(tag.name);
    }

    /// Behind the tag's ">"; -1 where it has none.
    qsizetype tagEnd(qsizetype at) const
    {
        while (at < m_text.size()) {
            const QChar c = m_text[at];
            if (c == u'>')
                return at + 1;
            if (c == u'<')
                return -1;
            if ((c == u'"' || c == u'\'') && isValueStart(at)) {
                at = m_text.indexOf(c, at + 1);
                if (at < 0)
                    return -1;
            }
            ++at;
        }
        return -1;
    }

    /// A quote counts behind a "=" only: elsewhere it stands there by mistake and hides nothing.
    bool isValueStart(qsizetype quote) const
    {
        while (quote > 0 && (m_text[quote - 1] == u' ' || m_text[quote - 1] == u'\t'))
            --quote;
        return quote > 0 && m_text[quote - 1] == u'=';
    }

    void passText(const QString &name)
    {
        const qsizetype close = m_text.indexOf(QString(QStringLiteral("</") + name), m_at, Qt::CaseInsensitive);
        m_at = close < 0 ? m_text.size() : close;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QList<FoundTag> m_tags;
};

/// What belongs together among the first tags.
struct Pairing {
    QList<qsizetype> partners; ///< for each tag the number of its partner; -1 for none
    QList<qsizetype> open;     ///< the elements that are not closed by then
};

/// An end tag closes the nearest element of its name.
Pairing pairingOf(const QList<FoundTag> &tags, qsizetype count)
{
    Pairing pairing{QList<qsizetype>(tags.size(), -1), {}};
    for (qsizetype i = 0; i < count; ++i) {
        if (tags[i].kind == FoundTag::Kind::Open)
            pairing.open.append(i);
        if (tags[i].kind != FoundTag::Kind::Close)
            continue;
        qsizetype at = pairing.open.size() - 1;
        while (at >= 0 && tags[pairing.open[at]].name != tags[i].name)
            --at;
        if (at < 0)
            continue;
        pairing.partners[pairing.open[at]] = i;
        pairing.partners[i] = pairing.open[at];
        pairing.open.resize(at);
    }
    return pairing;
}
} // namespace

bool isVoidElement(const QString &name)
{
    static const QSet<QString> names{QStringLiteral("area"),    QStringLiteral("base"),  QStringLiteral("basefont"),
                                     QStringLiteral("bgsound"), QStringLiteral("br"),    QStringLiteral("col"),
                                     QStringLiteral("embed"),   QStringLiteral("frame"), QStringLiteral("hr"),
                                     QStringLiteral("img"),     QStringLiteral("input"), QStringLiteral("isindex"),
                                     QStringLiteral("link"),    QStringLiteral("meta"),  QStringLiteral("param"),
                                     QStringLiteral("source"),  QStringLiteral("track"), QStringLiteral("wbr")};
    return names.contains(name);
}

QList<FoundTag> tagsOf(QStringView text)
{
    return TagWalk(text).tags();
}

std::optional<TagPair> tagPairAt(QStringView text, qsizetype position)
{
    const QList<FoundTag> tags = tagsOf(text);
    const QList<qsizetype> partners = pairingOf(tags, tags.size()).partners;
    std::optional<TagPair> found;
    for (qsizetype i = 0; i < tags.size(); ++i)
        if (tags[i].start <= position && position <= tags[i].end && partners[i] >= 0) {
            found = TagPair{tags[i], tags[partners[i]]};
            if (position < tags[i].end)
                break; // between two tags, the one that begins there is meant
        }
    return found;
}

std::optional<TagPair> elementAround(QStringView text, qsizetype position)
{
    const QList<FoundTag> tags = tagsOf(text);
    const QList<qsizetype> partners = pairingOf(tags, tags.size()).partners;
    std::optional<TagPair> found;
    for (qsizetype i = 0; i < tags.size() && tags[i].start <= position; ++i)
        if (tags[i].kind == FoundTag::Kind::Open && partners[i] >= 0 && position <= tags[partners[i]].end)
            found = TagPair{tags[i], tags[partners[i]]};
    return found;
}

QString missingEndTag(QStringView text, qsizetype position)
{
    const QList<FoundTag> tags = tagsOf(text);
    const QList<qsizetype> partners = pairingOf(tags, tags.size()).partners;
    for (qsizetype i = 0; i < tags.size(); ++i) {
        const FoundTag &tag = tags[i];
        if (tag.end != position || tag.kind != FoundTag::Kind::Open)
            continue;
        // An end tag that an element around this one lacks now was that one's before.
        const QList<qsizetype> around = pairingOf(tags, i).open;
        const bool taken = std::any_of(around.begin(), around.end(), [&](qsizetype outer) {
            return partners[outer] < 0 && tags[outer].name == tag.name;
        });
        if (partners[i] >= 0 && !taken)
            return {};
        return QStringLiteral("</") + text.mid(tag.nameStart, tag.name.size()).toString() + u'>';
    }
    return {};
}

qsizetype doubledEndTagBehind(QStringView text, qsizetype position)
{
    const QList<FoundTag> tags = tagsOf(text);
    const QList<qsizetype> partners = pairingOf(tags, tags.size()).partners;
    for (qsizetype i = 1; i < tags.size(); ++i) {
        const FoundTag &before = tags[i - 1];
        const bool doubled = tags[i].start == position && before.end == position && before.name == tags[i].name &&
                             before.kind == FoundTag::Kind::Close && tags[i].kind == FoundTag::Kind::Close;
        if (doubled)
            return partners[i] < 0 ? tags[i].end - tags[i].start : 0;
    }
    return 0;
}

QString endTagOfOpenElement(QStringView text, qsizetype position)
{
    const QList<FoundTag> tags = tagsOf(text.first(position));
    const QList<qsizetype> open = pairingOf(tags, tags.size()).open;
    if (open.isEmpty())
        return {};
    const FoundTag &tag = tags[open.constLast()];
    return QStringLiteral("</") + text.mid(tag.nameStart, tag.name.size()).toString() + u'>';
}
