#pragma once

#include "common/colouringOptions.h"
#include "common/textSurface.h"

#include <QString>
#include <functional>

/// Part of a text without the whole of it being made: `length` characters from the 0-based `start`.
using TextPart = std::function<QString(qsizetype start, qsizetype length)>;

/// What a typed character asks of the edit surface.
struct TypedResult {
    /// ">" goes in through SelText, in the format that stands, and the key is discarded.
    bool writesClosingBracket = false;
    /// Set on the selection afterwards; nothing in it, nothing to set.
    TextFormat format;
    bool operator==(const TypedResult &) const = default;
};

/// Keeps what is being typed in plausible colours between two full passes, by a few flags and a look back from the
/// caret.
class TypedColouring
{
public:
    /// A character that was typed, before it goes into the text: `caret` is SelStart. Also for the control characters
    /// that keys give.
    TypedResult keyPress(QStringView typed, qsizetype caret, const TextPart &text, const ColouringOptions &options);

    /// Enter or an arrow went down: what was open is left. Returns the format to set.
    TextFormat leaveTag();

    bool TagOpen() const { return m_tagOpen; }
    bool AttributeOpen() const { return m_attributeOpen; }
    bool ValueOpen() const { return m_valueOpen; }
    qsizetype LastKeyCaret() const { return m_lastKeyCaret; }

private:
    void clearFlags();
    bool mayOpen(QStringView typed, qsizetype caret, const TextPart &text) const;
    void openTag(TextFormat &format, const ColouringOptions &options);
    void openAttribute(TextFormat &format, const ColouringOptions &options);

    bool m_tagOpen = false;       // a "<" was typed and its tag is not closed
    bool m_attributeOpen = false; // a blank inside a tag was typed
    bool m_valueOpen = false;     // a value was opened by "=" or a quote
    qsizetype m_lastKeyCaret = 0; // SelStart before the last typed character went in
};

/// Whether the text in front of the caret ends in a tag that is not closed; never so for a typed ">". Reads no further
/// back than to the nearest angle bracket.
bool CaretInsideTag(const TextPart &text, qsizetype caret, QStringView typed);
