#pragma once

#include <QString>

/// The syntax check's walk through a document. It stops at each word that is no element and no attribute it knows, and
/// goes on from there.
class CheckScan
{
public:
    CheckScan() = default;
    CheckScan(const CheckScan &) = delete;
    CheckScan &operator=(const CheckScan &) = delete;
    virtual ~CheckScan() = default;

    enum class Result {
        Yield,    ///< one more tag is done; the text may have changed until the next call
        Stopped,  ///< at a word that is not known
        Finished, ///< the whole text is done
        Failed,   ///< at a quotation mark without a partner, or in a tag beyond what its counters hold
    };
    /// Goes to work: from the text's start, or with `resume` behind the last stop.
    virtual void begin(bool resume) = 0;
    virtual Result advance(const QString &text) = 0;

    /// The word of the last stop, and where it stands.
    struct Stop {
        QString word; ///< in lower case, an attribute with its "="
        bool isElement = false;
        qsizetype selStart = 0; ///< counted from 0; of an end tag, its "/" is the first character
        qsizetype selLength = 0;
    };
    virtual const Stop &stop() const = 0;
    /// The tag whose attributes were checked last, which stays set until the next stop is left; empty for none.
    virtual const QString &TagName() const = 0;
    /// A stop is left.
    virtual void clearWord() = 0;

    /// Whether the word of the stop is still there; where it is not, since the author has typed, its tag is read anew.
    virtual bool findsWord(const QString &text) = 0;
    /// The part of the text that `changeTo` is to take the place of, counted from 0; the scan's own places follow.
    struct Place {
        qsizetype selStart = 0;
        qsizetype selLength = 0;
    };
    virtual Place Change(const QString &text, const QString &word, const QString &changeTo) = 0;
};
