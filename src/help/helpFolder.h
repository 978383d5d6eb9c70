#pragma once

#include "help/helpContents.h"
#include "help/helpText.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class FileSystem;

/// The help's files: its pages, its table of contents and the list of the reference pages. Nothing is read before it is
/// asked for; contents and texts are read once.
class HelpFolder
{
public:
    /// A file stands in the first of `folders` that has it.
    HelpFolder(const QStringList &folders, FileSystem &files);

    bool has(const QString &page) const;
    /// What stands in the file of a page or a picture; nothing if it cannot be read.
    std::optional<QByteArray> bytes(const QString &page) const;
    /// A page's source. The page that says that a topic is missing has one even where its file is missing itself.
    std::optional<QString> html(const QString &page) const;

    const QList<HelpEntry> &contents();
    /// The texts of all pages.
    const QList<HelpText> &texts();

    static QString startPage();
    static QString notFoundPage();

private:
    QString textFile(const QString &name) const;
    QString pathOf(const QString &page) const;
    void readTexts(const QString &folder, const QString &under, int levels);

    QStringList m_folders;
    FileSystem &m_files;
    std::optional<QList<HelpEntry>> m_contents;
    std::optional<QList<HelpText>> m_texts;
};
