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
