#pragma once

#include <QList>
#include <QString>
#include <functional>

/// One thing that a palette leads to.
struct PaletteEntry {
    QString text;              ///< what it is found by
    QString detail;            ///< what stands beside it: a folder, a key
    std::function<void()> run; ///< what choosing it does
};

/// The entries that a few letters stand for, by their numbers from 0, the best one first. Each word of the letters has
/// to be in the text: at the start of it, at the start of a word, anywhere, or letter by letter with others between,
/// and that is the order of what is best; then shorter texts go first, then the order of the entries. Capitals and
/// small letters are the same. Without letters it is all entries in their order.
QList<qsizetype> paletteMatches(QStringView letters, const QList<PaletteEntry> &entries);
