#pragma once

#include <QList>

class QAction;
class QMenu;

/// Gives entries of a menu whose captions are the user's own texts, such as paths, a number in front, from 1 on. In the
/// open menu, the digit chooses the entry.
void numberEntries(QMenu &menu, const QList<QAction *> &entries);
