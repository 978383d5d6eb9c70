#pragma once

#include "texttools/pageAttributes.h"
#include "texttools/pageTree.h"

/// The rules that hold for single elements and that no table of models and attributes can tell.
class PageSpecials
{
public:
    /// All that is known of what has been read.
    struct State {
        bool main = false;           ///< one was there
        bool mediaHasFile = false;   ///< the open audio or video names a file itself
        bool columnsCounted = false; ///< the open colgroup says how many columns it is for
        int figures = 0;             ///< open ones
        int maps = 0;                ///< open ones
        int fields = -1;             ///< fields in the open label; -1 without a label
        html::Range time;            ///< the tag of the open time without datetime; length 0 for none

        bool isSame(const State &older, const PageShift &shift) const
        {
            return main == older.main && mediaHasFile == older.mediaHasFile && columnsCounted == older.columnsCounted &&
                   figures == older.figures && maps == older.maps && fields == older.fields &&
                   (time.length == 0 || !shift.touches(older.time)) && shift.moved(older.time) == time;
        }
        void move(const PageShift &shift) { shift.move(time); }
    };

    PageSpecials(QStringView text, PageTree &tree, PageReferences &references, PageProblems &problems)
        : m_text(text), m_tree(tree), m_references(references), m_problems(problems)
    {
    }
    const State &state() const { return m_state; }
    void setState(const State &state) { m_state = state; }

    /// Behind what the tree made of the tag; `parent` is the element that was open in front of it.
    void startTag(const html::Token &token, const PageTree::Opened &opened, PageTag parent,
                  const PageAttributes &attributes);
    void endTag(const html::Token &token);

private:
    void checkHeadMatter(const html::Token &token, PageTag parent, const PageAttributes &attributes);
    void checkSource(const html::Token &token, const PageAttributes &attributes);
    void checkLabel(const html::Token &token, const PageTree::Opened &opened, const PageAttributes &attributes);
    void checkInput(const PageAttributes &attributes);
    void checkArea(const html::Token &token, const PageAttributes &attributes);
    void checkItem(const html::Token &token, const PageAttributes &attributes);
    void checkTime(const html::Token &token);
    void checkMain(const html::Token &token, const PageAttributes &attributes);
    void checkPicture(const html::Token &token, const PageAttributes &attributes);
    void tell(const char *rule, html::Range range, const QString &message, const QString &remedy);
    html::Range rangeOf(QStringView part) const { return {part.data() - m_text.data(), part.size()}; }
    bool isNamed(const html::Token &token, const char *name) const
    {
        return m_text.mid(token.name.start, token.name.length).compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    }

    QStringView m_text;
    PageTree &m_tree;
    PageReferences &m_references;
    PageProblems &m_problems;
    State m_state;
};
