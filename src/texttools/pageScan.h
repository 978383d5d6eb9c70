#pragma once

#include "common/html/tokenizer.h"
#include "texttools/checkScan.h"

class CheckDictionary;
class CodeWords;

/// The walk that reads a page as browsers do: only tags hold words to check, all of a tag's words are read alike, and
/// what takes a word's place stands where the word stood.
class PageScan final : public CheckScan
{
public:
    /// Both outlive the scan; the dictionary may grow between two stops.
    PageScan(const CodeWords &words, const CheckDictionary &dictionary) : m_words(words), m_dictionary(dictionary) {}

    void begin(bool resume) override;
    Result advance(const QString &text) override;
    const Stop &stop() const override { return m_stop; }
    const QString &TagName() const override { return m_tagName; }
    void clearWord() override;
    bool findsWord(const QString &text) override;
    Place Change(const QString &text, const QString &word, const QString &changeTo) override;

private:
    bool stopsIn(const html::Token &tag, const QString &text);
    bool stopsAt(const QString &word, bool isElement, html::Range range);
    void leave(const html::Token &tag, const QString &element);

    const CodeWords &m_words;
    const CheckDictionary &m_dictionary;
    qsizetype m_next = 0;    ///< where the next token is read, from 0
    qsizetype m_checked = 0; ///< the words before it are done
    QString m_rawElement;    ///< that `m_next` stands in, whose contents are text alone; empty for none
    html::TextMode m_rawMode = html::TextMode::Markup;
    Stop m_stop;
    html::Range m_word; ///< of the last stop
    QString m_tagName;
};
