#pragma once

#include <QtGlobal>
#include <optional>

class TextSurface;

/// Lets the name in one tag follow that in its partner while it is typed.
///
/// The page is looked through once, when the first key goes into a name. As long as nothing else is changed, further
/// keys in that name cost the length of the name.
class PairedNames
{
public:
    /// A key is about to change the text at the selection.
    void beforeKey(const TextSurface &edit);
    /// The text was changed: the partner takes the new name, if a key in a name has done it. The selection and the view
    /// stay where they are. True if the text was changed once more by that.
    bool follow(TextSurface &edit);

private:
    /// The name that the caret stands in, and its partner's.
    struct Names {
        qsizetype start = 0;
        qsizetype length = 0;
        std::optional<qsizetype> partner; ///< where the partner's name starts; nothing for a tag without one
        qsizetype partnerLength = 0;
        qsizetype textLength = 0;
    };
    static std::optional<Names> namesAt(const TextSurface &edit);

    std::optional<Names> m_names;
    bool m_keyed = false; ///< the next change is a key's
};
