#pragma once

#include <QString>
#include <bitset>
#include <functional>
#include <vector>

/// A set of elements by their numbers, and of what else an element may hold.
using NameSet = std::bitset<256>;

/// What an element may hold and in what order, as an automaton over its children.
class ContentModel
{
public:
    using State = quint64; ///< the places of the model that the last child may have been

    /// `names` gives what a symbol ("p", "@flow", "#text") stands for, and says by its second result whether it is
    /// "#transparent". A model that cannot be read, or has more than sixty places, is not judged.
    using Names = std::function<NameSet(const QString &symbol)>;
    static ContentModel read(const QString &text, const Names &names);
    static ContentModel notJudged() { return {}; }

    bool judged() const { return m_judged; }
    /// Nothing at all may stand there.
    bool empty() const { return m_judged && m_places.empty(); }
    State start() const { return Start; }

    struct Match {
        State state = 0;
        bool accepted = false;
        bool transparent = false; ///< only what the parent may hold decides
    };
    /// The state behind a child.
    Match match(State state, int child) const;
    /// The state behind a child that is taken because the parent may hold it; `accepted` where the model has such a
    /// place.
    Match matchTransparent(State state) const;
    /// Whether the child may stand at some place of the model, if not here.
    bool knows(int child) const;
    /// Whether the element may end now.
    bool mayEnd(State state) const;
    /// What may stand behind a state, at the places that an end is waiting for.
    NameSet expected(State state) const;
    /// What the place holds that the state stands at, with all that is accepted there.
    const NameSet *acceptedBehind(State state) const;

private:
    static constexpr State Start = State(1) << 63U;
    struct Place {
        NameSet accepts;
        bool transparent = false;
        State follow = 0;
    };
    struct Piece {
        State first = 0;
        State last = 0;
        bool optional = true;
    };
    class Reader;
    friend class Reader;

    State candidates(State state) const;

    std::vector<Place> m_places;
    State m_first = 0;
    State m_last = 0;
    bool m_optional = true;
    bool m_judged = false;
};
