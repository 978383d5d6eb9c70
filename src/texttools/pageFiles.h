#pragma once

#include "texttools/pageProblems.h"

#include <QHash>
#include <functional>

/// Looks whether the files are there that a page names.
class PageFiles
{
public:
    PageFiles(QStringView text, const std::function<bool(const QString &)> &exists, PageProblems &problems)
        : m_text(text), m_exists(exists), m_problems(problems)
    {
    }
    void startTag(const html::Token &token);

private:
    bool isThere(const QString &path);

    QStringView m_text;
    const std::function<bool(const QString &)> &m_exists;
    PageProblems &m_problems;
    QHash<QString, bool> m_asked;
    bool m_otherBase = false; ///< <base> says that paths count from elsewhere
};

/// The path of a file beside the page that an address names; empty where it leads elsewhere, or into the page itself.
QString localPathOf(QStringView address);
