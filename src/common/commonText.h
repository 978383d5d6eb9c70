#pragma once

#include <QStringView>
#include <algorithm>
#include <limits>

/// How many characters two texts have in common at their starts; at most `most`.
inline qsizetype commonStart(QStringView a, QStringView b, qsizetype most = std::numeric_limits<qsizetype>::max())
{
    const qsizetype size = std::min({a.size(), b.size(), most});
    return std::mismatch(a.begin(), a.begin() + size, b.begin()).first - a.begin();
}

/// The same at their ends.
inline qsizetype commonEnd(QStringView a, QStringView b, qsizetype most = std::numeric_limits<qsizetype>::max())
{
    const qsizetype size = std::min({a.size(), b.size(), most});
    return std::mismatch(a.rbegin(), a.rbegin() + size, b.rbegin()).first - a.rbegin();
}
