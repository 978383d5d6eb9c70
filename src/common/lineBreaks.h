#pragma once

#include <QStringView>

/// How many breaks of each kind a text has. A CR LF is one of its own and counts for neither of the others.
struct LineBreaks {
    qsizetype crLf = 0;
    qsizetype lf = 0;
    qsizetype cr = 0;

    /// Whether the text is as documents hold it in memory.
    bool areAllCrLf() const { return lf == 0 && cr == 0; }
};

LineBreaks lineBreaksOf(QStringView text);
/// The place of the first CR or LF from a place on, each counted from 0; the text's length where there is none.
qsizetype nextBreak(QStringView text, qsizetype from);
