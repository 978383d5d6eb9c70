#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One line of the help's table of contents.
struct HelpEntry {
    QString title;
    QString page;         ///< empty for a heading without a page of its own
    QStringList keywords; ///< what else the page is found under in the index
    QList<HelpEntry> children;
};

/// Reads a table of contents: one entry a line, "title TAB page TAB keyword; keyword", the last two optional. Each tab
/// in front puts the entry one level below the line above it; deeper than that counts as just one level. Empty lines
/// and lines that start with "#" are passed over.
QList<HelpEntry> parseHelpContents(const QString &text);

/// Reads the list of the reference pages: "title TAB page" a line. Lines without a page are passed over.
QList<HelpEntry> parseHelpReference(const QString &text);

/// Puts the reference pages below the entry of that page, or at the end if there is none.
void addHelpReference(QList<HelpEntry> &contents, const QString &page, const QList<HelpEntry> &reference);

struct HelpIndexRow {
    QString word;
    QString page;
    bool operator==(const HelpIndexRow &) const = default;
};

/// All titles and keywords with their pages, sorted without regard to case. What is found under a word more than once
/// stands there more than once, but never twice with the same page.
QList<HelpIndexRow> helpIndex(const QList<HelpEntry> &contents);
