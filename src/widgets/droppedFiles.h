#pragma once

#include <QStringList>

class QDropEvent;
class QMimeData;

/// The local files of a drag, in its order; empty if it holds no list of files.
QStringList filesOf(const QMimeData &data);

/// Accepts a drag or a drop as a copy if it holds files, and refuses it otherwise.
void acceptFiles(QDropEvent &event);
