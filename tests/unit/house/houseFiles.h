#pragma once

#include <QString>
#include <QStringList>

/// The files under a folder of the source tree whose names match one of the patterns, as paths from `folder`, sorted.
QStringList filesUnder(const QString &folder, const QStringList &patterns);

/// A whole file as UTF-8 text; empty if it cannot be read.
QString textOf(const QString &path);
