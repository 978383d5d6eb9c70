#pragma once

#include "common/textSelection.h"
#include "document/indentation.h"

#include <QString>
#include <optional>

/// A change of the text, and what is selected after it.
struct LineChange {
    std::optional<TextReplacement> replacement; ///< nothing: the text stays
    TextSelection selection;
    bool operator==(const LineChange &) const = default;
};

/// Lines of a text, counted in characters from 0: from the first character of the first to behind the last one's text,
/// in front of its break.
struct LineSpan {
    qsizetype start = 0;
    qsizetype end = 0;
};

/// The first character of the line that holds the position.
qsizetype lineStart(QStringView text, qsizetype position);
/// In front of the break of the line that holds the position.
qsizetype lineEnd(QStringView text, qsizetype position);
/// The lines that hold a character of the selection, or the caret's. A selection that ends at the start of a line
/// leaves that line out.
LineSpan linesOf(QStringView text, TextSelection selection);

/// Several edits within one span of a text, from its start to its end, as one change.
class SpanEdits
{
public:
    SpanEdits(QStringView text, LineSpan span, TextSelection selection);

    /// At `at`, not before the last edit's end, `taken` characters give way to `put`. What was selected stays selected;
    /// a position right at the edit stays in front of what is put in unless `carries`.
    void edit(qsizetype at, qsizetype taken, QStringView put, bool carries = true);
    LineChange change();

private:
    QStringView m_text;
    LineSpan m_span;
    TextSelection m_selection;
    QString m_result;
    qsizetype m_done;
    qsizetype m_fromShift = 0;
    qsizetype m_toShift = 0;
    bool m_changed = false;
};
