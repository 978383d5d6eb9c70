#pragma once

#include "common/colour.h"
#include "common/markedRange.h"

#include <QList>
#include <QString>
#include <optional>

/// What a range of text looks like, or is to look like; a field without a value is left as it is (when set), or differs
/// within the range (when read).
struct TextFormat {
    std::optional<ColourValue> colour;
    std::optional<bool> bold;
    std::optional<bool> underline;
    bool operator==(const TextFormat &) const = default;
};

/// A range of text, in positions of TextSurface, and the format that it is to take.
struct FormatRange {
    qsizetype start = 0;
    qsizetype length = 0;
    TextFormat format;
};

/// The text of a document with its selection and its colours.
///
/// Positions count characters (UTF-16 code units) of `Text` from 0, and a line break is two of them, CR and LF. A
/// position inside a line break snaps before it. Setters that return a Boolean change nothing and return false where
/// the value cannot be taken (a negative start or length); values behind the end are cut to the end.
class TextSurface
{
public:
    TextSurface() = default;
    TextSurface(const TextSurface &) = delete;
    TextSurface &operator=(const TextSurface &) = delete;
    virtual ~TextSurface() = default;

    /// The whole text, every break as CR LF. Constant time as long as the text stays unchanged.
    virtual QString Text() const = 0;
    /// Replaces everything, puts the caret at the start, raises Change. The new text has the neutral format.
    virtual void setText(const QString &text) = 0;
    /// `length` characters of Text from `start`, fewer where the text ends before, without building it. Nothing for a
    /// negative start or length.
    virtual QString textPart(qsizetype start, qsizetype length) const = 0;
    /// The length of Text, without building it.
    virtual qsizetype textLength() const = 0;

    virtual qsizetype SelStart() const = 0;
    virtual bool setSelStart(qsizetype start) = 0; ///< collapses the selection
    virtual qsizetype SelLength() const = 0;
    virtual bool setSelLength(qsizetype length) = 0; ///< the caret stands at the selection's end
    virtual QString SelText() const = 0;
    virtual void
    setSelText(const QString &text) = 0; ///< replaces the selection, caret behind the new text; raises Change

    /// The format of the selection; without one, the format that the next typed character takes.
    virtual TextFormat selectionFormat() const = 0;
    virtual void setSelectionFormat(const TextFormat &format) = 0; ///< no Change
    void setSelColor(ColourValue colour) { setSelectionFormat({colour, {}, {}}); }
    void setSelBold(bool bold) { setSelectionFormat({{}, bold, {}}); }
    void setSelUnderline(bool underline) { setSelectionFormat({{}, {}, underline}); }

    /// The format of a range, without moving the visible selection; of an empty range, the format that a character put
    /// in there would take; of a negative start or length, nothing.
    virtual TextFormat formatOf(qsizetype start, qsizetype length) const = 0;
    /// Formats a range without moving the visible selection; no Change. False, and nothing changed, for a negative
    /// start or length.
    virtual bool setFormat(qsizetype start, qsizetype length, const TextFormat &format) = 0;
    /// The same for many ranges, the later ones over the earlier ones, leaving out those that setFormat would refuse. A
    /// surface may do it faster than one by one.
    virtual void setFormats(const QList<FormatRange> &ranges)
    {
        for (const FormatRange &range : ranges)
            setFormat(range.start, range.length, range.format);
    }

    /// Marks ranges in the place of all that this owner has marked. Marks go with their text through edits, and go
    /// where all of it goes. Those with a negative start or length, or behind the end, are left out.
    /// A surface may have none.
    virtual void setMarkedRanges(MarkOwner, const QList<MarkedRange> &) {}
    /// What is marked now, by whomever; in order of their starts.
    virtual QList<MarkedRange> markedRanges() const { return {}; }

    virtual bool Locked() const = 0;
    virtual void setLocked(bool locked) = 0; ///< the user cannot change the text; keys are still seen
    virtual bool HideSelection() const = 0;
    virtual void setHideSelection(bool hide) = 0;
    virtual void setPaintingHeld(bool held) = 0; ///< nothing is drawn until it is set back; calls do not nest

    /// Lines are lines of the source, counted from 0, wrapped or not.
    virtual qsizetype lineCount() const = 0;                           ///< an empty text has one line
    virtual qsizetype lineFromCharacter(qsizetype position) const = 0; ///< cut to the first and the last line
    /// The first character of a line; nothing for a line that is not there.
    virtual std::optional<qsizetype> characterFromLine(qsizetype line) const = 0;
    virtual qsizetype firstVisibleLine() const = 0;
    /// Makes that line the first visible one, as far as the text allows.
    virtual void scrollToLine(qsizetype line) = 0;
    virtual void setWrapToWindow(bool wrap) = 0;
    virtual bool wrapToWindow() const = 0;

    virtual void SetFocus() = 0;
};
