#pragma once

#include <QString>

/// The address that the page names at a position, counted from 0: the value of the `href` or `src` that it lies in or
/// at the edge of, with "&amp;" as "&". Empty elsewhere.
QString linkTargetAt(QStringView text, qsizetype position);

/// The path of the local file that an address leads to from the page at `documentPath`, without what asks or points
/// into it; empty for an address of the net, of another scheme or of nothing but a place in the page, and where the
/// page has no file. `root` is the folder that an address with a leading "/" starts from; empty for the machine's own
/// root.
QString localTarget(const QString &address, const QString &documentPath, const QString &root);
