#pragma once

#include <QStringList>

/// One row of a file dialog's filter.
struct DialogFilterRow {
    QString description;  ///< as shown, patterns in brackets included where it names them
    QStringList patterns; ///< "*.html", "*.htm"; "*.*" matches every name
    bool operator==(const DialogFilterRow &) const = default;
};

/// The rows of a filter text, "Description|pattern;pattern|Description|pattern". A description without patterns at the
/// end, or an empty pattern, matches every name.
QList<DialogFilterRow> parseDialogFilter(const QString &filter);

/// Whether a file name (no folder) matches a pattern of the row, letter case ignored.
bool matchesFilterRow(const DialogFilterRow &row, const QString &fileName);
