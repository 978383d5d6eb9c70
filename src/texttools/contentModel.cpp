#include "texttools/contentModel.h"

#include <bit>

namespace
{
constexpr size_t MostPlaces = 60;
const QString Transparent = QStringLiteral("#transparent");

constexpr ContentModel::State bit(size_t place)
{
    return ContentModel::State(1) << place;
}

template <class Visit>
void forEachPlace(ContentModel::State places, Visit visit)
{
    for (; places != 0; places &= places - 1)
        visit(static_cast<size_t>(std::countr_zero(places)));
}
} // namespace

/// Reads a model by descent and joins its places into an automaton as it goes.
class ContentModel::Reader
{
public:
    Reader(const QString &text, const Names &names, ContentModel &model) : m_text(text), m_names(names), m_model(model)
    {
    }

    bool read()
    {
        const Piece whole = alternatives();
        m_model.m_first = whole.first;
        m_model.m_last = whole.last;
        m_model.m_optional = whole.optional;
        skipBlanks();
        return m_at == m_text.size() && !m_failed;
    }

private:
    void skipBlanks()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
    }
    bool take(QChar c)
    {
        skipBlanks();
        if (m_at >= m_text.size() || m_text[m_at] != c)
            return false;
        ++m_at;
        return true;
    }

    Piece alternatives()
    {
        Piece result = sequence();
        while (take(u'|')) {
            const Piece other = sequence();
            result.first |= other.first;
            result.last |= other.last;
            result.optional |= other.optional;
        }
        return result;
    }

    Piece sequence()
    {
        Piece result = item();
        while (take(u',')) {
            const Piece next = item();
            join(result.last, next.first);
            if (result.optional)
                result.first |= next.first;
            result.last = next.optional ? result.last | next.last : next.last;
            result.optional = result.optional && next.optional;
        }
        return result;
    }

    Piece item()
    {
        Piece result;
        if (take(u'(')) {
            result = alternatives();
            m_failed |= !take(u')');
        } else {
            result = symbol();
        }
        if (take(u'?'))
            result.optional = true;
        else if (take(u'*'))
            result.optional = repeat(result);
        else if (take(u'+'))
            repeat(result);
        return result;
    }

    bool repeat(const Piece &piece)
    {
        join(piece.last, piece.first);
        return true;
    }

    void join(State from, State to)
    {
        forEachPlace(from, [&](size_t place) { m_model.m_places[place].follow |= to; });
    }

    Piece symbol()
    {
        skipBlanks();
        const qsizetype start = m_at;
        while (m_at < m_text.size() && !QStringView(u"(),|?*+ \t").contains(m_text[m_at]))
            ++m_at;
        const QString name = m_text.mid(start, m_at - start);
        if (name.isEmpty() || m_model.m_places.size() >= MostPlaces) {
            m_failed = true;
            return {};
        }
        Place place;
        place.transparent = name == Transparent;
        if (!place.transparent)
            place.accepts = m_names(name);
        m_model.m_places.push_back(place);
        const State own = bit(m_model.m_places.size() - 1);
        return {own, own, false};
    }

    const QString &m_text;
    const Names &m_names;
    ContentModel &m_model;
    qsizetype m_at = 0;
    bool m_failed = false;
};

ContentModel ContentModel::read(const QString &text, const Names &names)
{
    ContentModel model;
    model.m_judged = true;
    if (!text.isEmpty() && !Reader(text, names, model).read())
        return notJudged();
    return model;
}

ContentModel::State ContentModel::candidates(State state) const
{
    if (state == Start)
        return m_first;
    State result = 0;
    forEachPlace(state, [&](size_t place) { result |= m_places[place].follow; });
    return result;
}

ContentModel::Match ContentModel::match(State state, int child) const
{
    Match result;
    forEachPlace(candidates(state), [&](size_t place) {
        if (m_places[place].transparent)
            result.transparent = true;
        else if (m_places[place].accepts.test(static_cast<size_t>(child)))
            result.state |= bit(place);
    });
    result.accepted = result.state != 0;
    return result;
}

ContentModel::Match ContentModel::matchTransparent(State state) const
{
    Match result;
    forEachPlace(candidates(state), [&](size_t place) {
        if (m_places[place].transparent)
            result.state |= bit(place);
    });
    result.accepted = result.transparent = result.state != 0;
    return result;
}

bool ContentModel::knows(int child) const
{
    for (const Place &place : m_places)
        if (!place.transparent && place.accepts.test(static_cast<size_t>(child)))
            return true;
    return false;
}

bool ContentModel::mayEnd(State state) const
{
    return state == Start ? m_optional : (state & m_last) != 0;
}

NameSet ContentModel::expected(State state) const
{
    NameSet result;
    forEachPlace(candidates(state), [&](size_t place) { result |= m_places[place].accepts; });
    return result;
}

const NameSet *ContentModel::acceptedBehind(State state) const
{
    if (state == Start || state == 0)
        return nullptr;
    return &m_places[static_cast<size_t>(std::countr_zero(state))].accepts;
}
