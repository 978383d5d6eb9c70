#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The sources of a tree: what each file holds, under its path from src/ ("common/text.h").
using SourceTree = QMap<QString, QString>;

/// The ways in which the includes of a tree break the order of its folders, a sentence each; empty if none does. A
/// wrong include of a header alone would still link, so nothing but a look at the text finds it.
QStringList includeFaults(const SourceTree &tree);
