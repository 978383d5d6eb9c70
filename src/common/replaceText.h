#pragma once

#include <QString>

class Document;

/// Where a place of the old text stands in the new one: the same, counted from the start or from the end, outside of
/// what the two do not have in common; at its nearer end inside. Positions count from 0.
qsizetype placeAfterReplacing(const QString &before, const QString &after, qsizetype place);

/// Gives a document another text as one step of its history, so that one Undo brings back the text as it was. Caret,
/// selection and the first visible line stay where they were in the text, as far as it is the same. Nothing where the
/// text is that already.
void replaceText(Document &document, const QString &text);
