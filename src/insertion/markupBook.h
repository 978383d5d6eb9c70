#pragma once

#include "insertion/imageElement.h"
#include "insertion/rightMarkup.h"

struct Habits;

/// What the dialogs and commands that write markup go by. There is an object for each of the two ways; a dialog asks
/// the one that holds and does not know which that is.
class MarkupBook
{
public:
    virtual ~MarkupBook() = default;

    /// What goes into a page for markup that was made for it.
    virtual QString written(const QString &made, const QString &page) const = 0;
    virtual MarkupPair writtenAround(const MarkupPair &made, const QString &page) const = 0;
    /// A character of the entity grid as its entity; empty for one that has none.
    virtual QString entity(QChar character) const = 0;

    using TagReader = std::optional<TagUnderCaret> (*)(const QString &text, qsizetype selStart, qsizetype selLength);
    /// The tag that `read` has found in a text, as it goes into a dialog's fields.
    virtual TagUnderCaret tagForFields(const TagUnderCaret &found, TagReader read, const QString &text) const = 0;
    virtual ImageFields imageFields(const TagUnderCaret &tag) const = 0;
    /// What an image's field of a size holds once the user has left it, for what he has put into it.
    virtual QString sizeLeft(const QString &text) const = 0;

    virtual bool imagesNeedSource() const = 0;
    /// Whether the value that starts a video under the mouse alone is closed.
    virtual bool closesVideoStart() const = 0;
    /// Whether nothing of a dialog's last use goes into the next one.
    virtual bool dialogsBeginAnew() const = 0;
};

/// The object that holds by these rules.
const MarkupBook &markupBook(const Habits &habits);
