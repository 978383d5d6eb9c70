#pragma once

#include "texttools/pageReader.h"

#include <vector>

/// Checks a page again and again while it is written. It keeps what it knew at places some thousand characters apart;
/// after a change it reads on from the last of them in front of the change, up to one from which on nothing has become
/// other than it was. What it finds is always what a check of the whole text finds.
class PageChecker
{
public:
    /// The rules have to outlive it.
    explicit PageChecker(const PageRules &rules) : m_rules(rules) {}

    /// As checkPage() does.
    QList<PageProblem> check(const QString &text, const PageCheckContext &context);

private:
    /// A stretch of the page, from behind an end tag to behind another one.
    struct Part {
        qsizetype start = 0;
        PageReader::State state; ///< at its start
        QList<PageProblem> problems;
        QSet<QByteArray> refused; ///< the rules of which it has more than were wanted
        QList<PageName> names;
        QList<PageFile> files;

        void move(const PageShift &shift);
    };
    /// What is known at the end of the text.
    struct End {
        html::Range first;
        bool doctype = false;
        bool wholePage = false;
    };

    void readFrom(size_t part, const PageShift &shift);
    void readAgain(size_t part, const PageProblems::Counts &counts);
    QList<PageProblem> gathered(const PageCheckContext &context);
    PageProblems::Counts addPart(size_t part, const PageProblems::Counts &counts, QList<PageProblem> &found);
    PageProblems::Counts countsBefore(size_t part) const;
    void checkDoctype(PageProblems &problems) const;
    void checkCharset(const PageCheckContext &context, PageProblems &problems) const;

    const PageRules &m_rules;
    QString m_text;
    const Vocabulary *m_vocabulary = nullptr;
    bool m_files = false; ///< the files that the page names are gathered
    std::vector<Part> m_parts;
    End m_end;
};
