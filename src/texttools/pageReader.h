#pragma once

#include "texttools/pageAttributes.h"
#include "texttools/pageFiles.h"
#include "texttools/pageHints.h"
#include "texttools/pageProblems.h"
#include "texttools/pageReferences.h"
#include "texttools/pageSpecials.h"
#include "texttools/pageTree.h"

/// Reads a page token by token and finds what is wrong with it. It can begin behind any end tag, given what was known
/// there, and then finds the same as if it had read what stands before.
class PageReader
{
public:
    /// All that is known behind an end tag. What the rest of the page comes to depends on nothing else.
    struct State {
        PageTree::State tree;
        PageHints::State hints;
        PageSpecials::State specials;
        html::Range first; ///< the first thing in the page but blanks
        bool otherBase = false;
        bool doctype = false;
        bool xml = false;

        /// Whether the rest of a page, which was changed before that place only, comes to the same as with an older
        /// state.
        bool isSame(const State &older, const PageShift &shift) const;
        void move(const PageShift &shift);
    };

    /// From a position on, behind what `problems` counts already; `files`: those that the page names are gathered.
    PageReader(QStringView text, const PageRules &rules, const Vocabulary &vocabulary, bool files,
               PageProblems &problems);
    void begin(qsizetype position, const State &state);

    /// Reads on to behind the next end tag, or to the end of the text; false there.
    bool readOn();
    /// At the end of the text: what is still open.
    void finish() { m_tree.finish(m_text.size()); }

    qsizetype position() const { return m_position; } ///< behind what was read
    State state() const;
    qsizetype depth() const { return qsizetype(m_tree.state().open.size()); }
    bool wholePage() const { return m_tree.wholePage(); }
    QList<PageName> takeNames() { return m_references.take(); }
    QList<PageFile> takeFiles() { return m_files.take(); }

private:
    QStringView nameOf(const html::Token &token) const { return m_text.mid(token.name.start, token.name.length); }
    bool isXmlDeclaration(const html::Token &token) const;
    void read(const html::Token &token);
    void readText(const html::Token &token);
    void readStartTag(const html::Token &token);
    void tellElement(const html::Token &token, const PageTree::Opened &opened);
    void setMode(const PageTree::Opened &opened, QStringView name);
    void readDoctype(const html::Token &token);

    QStringView m_text;
    const PageRules &m_rules;
    const Vocabulary &m_vocabulary;
    PageProblems &m_problems;
    html::Tokenizer m_tokenizer;
    PageTree m_tree;
    PageReferences m_references;
    PageAttributes m_attributes;
    PageHints m_hints;
    PageSpecials m_specials;
    PageFiles m_files;
    qsizetype m_position = 0;
    html::Range m_first;
    bool m_doctype = false;
    bool m_xml = false;
};
