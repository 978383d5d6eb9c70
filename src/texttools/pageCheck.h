#pragma once

#include "common/encodings.h"
#include "texttools/pageRules.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>

/// A change that puts something right: this text in the place of that range.
struct PageFix {
    qsizetype start = 0;
    qsizetype length = 0;
    QString text;
    bool operator==(const PageFix &) const = default;
};

/// What a check has found at a place of a page. Positions are UTF-16 units of the text that was checked, from 0.
struct PageProblem {
    enum class Kind : quint8 { Error, Hint };
    qsizetype start = 0;
    qsizetype length = 0;
    QString rule;    ///< its name, in words that stay the same: "attribute-twice"
    QString message; ///< what is wrong
    QString remedy;  ///< what would be right; empty where nobody can tell
    Kind kind = Kind::Error;
    QList<PageFix> fix = {}; ///< the one way to put it right, from the end of the text to its start; empty without one
    bool operator==(const PageProblem &) const = default;
};

/// What a check cannot see in the text.
struct PageCheckContext {
    /// Whether there is a file or folder of that path, as the page names it relative to its own folder; without a
    /// function, files are not looked at.
    std::function<bool(const QString &)> exists = {};
    /// How the page is written as bytes; without it, the encoding that the page names is not looked at.
    std::optional<FileFormat> format = {};
};

/// All that is wrong with a page, and all that could be better, in the order of the text. Of one rule no more than
/// `MostOfARule` are told. The same text in the same context gives the same problems.
QList<PageProblem> checkPage(const QString &text, const PageRules &rules, const PageCheckContext &context = {});
constexpr int MostOfARule = 200;

/// How many problems there are, for a label: "3 errors, 5 hints", "1 error", or "Nothing found.".
QString problemsCounted(const QList<PageProblem> &problems);

/// The text with the fix of a problem, and where the caret is to stand; the text as it was where there is no fix.
QString withFix(const QString &text, const PageProblem &problem);
