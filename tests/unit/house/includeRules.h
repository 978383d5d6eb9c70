#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The sources of a tree: what each file holds, under its path from src/ ("common/text.h").
using SourceTree = QMap<QString, QString>;

/// Where a folder stands, counted from the ground, and which folders of its own level it may use.
struct FolderPlace {
    int level;
    QStringList uses;
};
using FolderOrder = QMap<QString, FolderPlace>;

/// The order that a text of lines like "5 document internet" gives; lines that start with "#" are passed over.
FolderOrder folderOrder(const QString &text);

/// The ways in which the includes of a tree break the order of its folders, a sentence each; empty if none does. A
/// wrong include of a header alone would still link, so nothing but a look at the text finds it.
QStringList includeFaults(const SourceTree &tree, const FolderOrder &order);
