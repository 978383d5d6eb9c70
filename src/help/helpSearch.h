#pragma once

#include "help/helpText.h"

#include <QList>

/// A page that a search of the help found.
struct HelpHit {
    QString page;
    QString title;
    QString context; ///< the first place where the words stand, with some of the text around it
};

/// The pages that hold every word of the query in their title or text, a word being found inside a longer one too, and
/// in any case. Those named like the query come first, then those whose title begins with it, then those that have all
/// words in the title; of equals those that hold the words more often, then by title. An empty query finds nothing.
QList<HelpHit> searchHelp(const QList<HelpText> &pages, const QString &query);
