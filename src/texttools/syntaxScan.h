#pragma once

#include "texttools/checkScan.h"

class CheckDictionary;
class CodeWords;

/// The walk as it has always been, tag by tag and word by word. Positions count from 1 unless told otherwise; several
/// of its rules look odd and are as they are because authors and their dictionaries rest on them.
class SyntaxScan final : public CheckScan
{
public:
    /// Both outlive the scan; the dictionary may grow between two stops.
    SyntaxScan(const CodeWords &words, const CheckDictionary &dictionary) : m_words(words), m_dictionary(dictionary) {}

    void begin(bool resume) override;
    Result advance(const QString &text) override;
    const Stop &stop() const override { return m_stop; }
    const QString &TagName() const override { return m_tagName; }
    void clearWord() override;
    bool findsWord(const QString &) override { return true; }
    /// The places are those of the last stop, so that not every change hits the word: one in capitals gets the text two
    /// characters in front of its tag.
    Place Change(const QString &text, const QString &word, const QString &changeTo) override;

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
