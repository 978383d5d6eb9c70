#pragma once

#include <QString>

/// A page of the help as it is searched: without its markup.
struct HelpText {
    QString page;
    QString title;
    QString text; ///< in one line, the words parted by single blanks, without the first heading
};

/// The title and the text of a page's source. Of the character entities those are known that the pages use: amp, lt,
/// gt, quot, apos, nbsp and the numbers; any other stays as it is written.
HelpText helpTextOf(const QString &page, const QString &html);
