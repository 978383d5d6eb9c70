#pragma once

#include "texttools/pageProblems.h"

#include <QHash>
#include <functional>
#include <utility>

/// A file that a page names.
struct PageFile {
    html::Range range; ///< of its address
    QString path;      ///< beside the page
};

/// Gathers the files that a page names.
class PageFiles
{
public:
    PageFiles(QStringView text, bool wanted) : m_text(text), m_wanted(wanted) {}
    void startTag(const html::Token &token);
    /// What has been found since it was taken last, in the order of the text.
    QList<PageFile> take() { return std::exchange(m_files, {}); }
    bool otherBase() const { return m_otherBase; } ///< <base> says that paths count from elsewhere
    void setOtherBase(bool other) { m_otherBase = other; }

private:
    QStringView m_text;
    bool m_wanted = false;
    bool m_otherBase = false;
    QList<PageFile> m_files;
};

/// Tells of files that are not there, each of which is looked for once.
class PageFileLook
{
public:
    PageFileLook(const std::function<bool(const QString &)> &exists, PageProblems &problems)
        : m_exists(exists), m_problems(problems)
    {
    }
    void add(const QList<PageFile> &files);

private:
    bool isThere(const QString &path);

    const std::function<bool(const QString &)> &m_exists;
    PageProblems &m_problems;
    QHash<QString, bool> m_asked;
};

/// The path of a file beside the page that an address names; empty where it leads elsewhere, or into the page itself.
QString localPathOf(QStringView address);
