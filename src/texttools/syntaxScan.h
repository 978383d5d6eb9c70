#pragma once

#include <QString>

class CheckDictionary;
class CodeWords;

/// The syntax check's walk through a document, tag by tag and word by word. It stops at the first word that is no
/// element and no attribute it knows, and goes on from there. Positions count from 1 unless told otherwise; several of
/// its rules look odd and are as they are because authors and their dictionaries rest on them.
class SyntaxScan
{
public:
    /// Both outlive the scan; the dictionary may grow between two stops.
    SyntaxScan(const CodeWords &words, const CheckDictionary &dictionary) : m_words(words), m_dictionary(dictionary) {}

    enum class Result {
        Yield,    ///< one more tag is done; the text may have changed until the next call
        Stopped,  ///< at a word that is not known
        Finished, ///< the whole text is done
        Failed,   ///< at a quotation mark without a partner, or in a tag beyond what its counters hold
    };
    /// Goes to work: from the text's start, or with `resume` behind the last stop.
    void begin(bool resume);
    Result advance(const QString &text);

    /// The word of the last stop, and where it stands.
    struct Stop {
        QString word; ///< in lower case, an attribute with its "="
        bool isElement = false;
        qsizetype selStart = 0; ///< counted from 0
        qsizetype selLength = 0;
    };
    const Stop &stop() const { return m_stop; }
    /// The tag whose attributes were checked last, which stays set until the next stop is left; empty for none.
    const QString &TagName() const { return m_tagName; }
    /// A stop is left.
    void clearWord();

    /// The part of the text that `changeTo` is to take the place of, counted from 0; the scan's own places follow. They
    /// are those of the last stop, so that not every change hits the word: one in capitals gets the text two characters
    /// in front of its tag.
    struct Place {
        qsizetype selStart = 0;
        qsizetype selLength = 0;
    };
    Place Change(const QString &text, const QString &word, const QString &changeTo);

private:
    enum class Step { ChooseStart, NextTag, SeekTag, Words };

    void chooseStart();
    bool isAtEnd(const QString &text) const;
    bool seekTag(const QString &text);
    bool maskQuotes();
    Result checkOneWord(const QString &text);
    Result checkWords(const QString &text);
    struct Word {
        QString text;
        bool isPassedOver = false;
    };
    Word nextWord();
    bool SyntaxCheck(const QString &text, const QString &word);
    bool isElementWord(const QString &text, const QString &word) const;
    bool isKnown(bool isElement, const QString &word);
    void noteStop(const QString &text, const QString &word);
    QString firstWord() const;

    const CodeWords &m_words;
    const CheckDictionary &m_dictionary;
    Step m_step = Step::ChooseStart;
    bool m_resume = false;
    bool m_firstRound = true;
    Stop m_stop;

    qsizetype ScanFrom = 0;  ///< from where the next "<" is sought
    qsizetype TagStart = 0;  ///< of the tag's "<"
    qsizetype TagEnd = 0;    ///< of the character before its ">"
    qsizetype WordPos = 0;   ///< how far in TagBody the words are read, counted from 0
    qsizetype WordStart = 0; ///< WordPos when the current word began
    qsizetype ResumeAt = 0;  ///< where the scan goes on after a stop
    QString TagBody;         ///< the tag between its ends, in lower case, quoted text masked
    QString m_tagName;
    bool SkipTag = false; ///< it is a comment or a server block
};
