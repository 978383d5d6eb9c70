#pragma once

#include "common/textSurface.h"
#include "services/printing.h"

/// A source laid out for paper.

/// The document's lines: one more than it has carriage returns.
qsizetype CountDocumentLines(const QString &text);

/// A part of a line that has a line of its own on paper.
struct LinePart {
    qsizetype start = 0;
    qsizetype length = 0;
    bool operator==(const LinePart &) const = default;
};

/// Breaks a line that is wider than `width` at blanks, which then stand on neither side, and where there is none within
/// the width of the paper, between two characters. An empty line has one empty part.
QList<LinePart> brokenLine(const QString &line, qreal width, const std::function<qreal(const QString &)> &textWidth);

/// The line with every tab as the blanks up to its next stop, `tabWidth` characters apart.
QString withoutTabs(const QString &line, int tabWidth);

struct PrintChoices {
    bool lineNumbers = false;
    bool colours = false; ///< those that the source has in the editor
    int tabWidth = 8;
};

/// The pages of a document's source. Colours are looked up for one line after the other.
QList<PrintedPage> laidOutPages(const TextSurface &source, const Paper &paper, const PrintChoices &choices);
