#pragma once

#include "texttools/pageProblems.h"
#include "texttools/pageRules.h"
#include "texttools/pageShift.h"

#include <vector>

/// An element that is open.
struct OpenElement {
    enum class Space : quint8 { Html, Svg, Math };
    int element = 0; ///< its number in the vocabulary; 0 for one that is not in it
    PageTag tag = PageTag::Other;
    Space space = Space::Html;
    bool implied = false;   ///< no tag of it is in the text
    bool judged = true;     ///< what it holds is looked at
    bool holdsHtml = false; ///< an element of svg or math in which HTML may stand
    bool filled = false;    ///< something stands in it that a reader sees or hears
    bool item = false;      ///< it is an item, of which the elements in it tell properties
    bool inItem = false;    ///< it stands in one
    bool textTold = false;  ///< text that may not stand in it has been told of
    html::Range start;      ///< of its start tag; where it is implied, of what implied it
    html::Range name;
    const ContentModel *model = nullptr;
    ContentModel::State state = 0;
    const NameSet *transparent = nullptr; ///< what may stand where the model says that the parent decides
    NameSet without;                      ///< what may not stand in it at any depth
    NameSet plus;                         ///< what may stand in it at any depth
    QList<int> seen;                      ///< children that must be there, or may be there only once

    /// Whether the rest of the page sees no difference between this one, of a text that was changed so, and an older
    /// one.
    bool isSame(const OpenElement &older, const PageShift &shift) const;
    void move(const PageShift &shift);
};

/// The open elements of a page while it is read, by the rules by which a browser builds its tree; tells what stands
/// where it may not, what is not closed, and what is closed without being open.
class PageTree
{
public:
    /// All that is known of what has been read.
    struct State {
        std::vector<OpenElement> open;
        QHash<QString, int> ignored;       ///< start tags that were passed over, whose end tags are, too
        QHash<QString, int> reopened;      ///< formatting that a browser opens again behind what closed it out of turn
        QHash<QString, html::Range> ended; ///< what ended an element before its own end tag, by the element's name
        bool head = false;
        bool body = false;
        bool wholePage = false;
        bool afterBody = false;
        bool xml = false;

        bool isSame(const State &older, const PageShift &shift) const;
        void move(const PageShift &shift);
    };

    PageTree(QStringView text, const Vocabulary &vocabulary, PageProblems &problems);
    const State &state() const { return m_state; }
    void setState(const State &state) { m_state = state; }

    /// What a start tag came to be.
    struct Opened {
        int element = 0;
        PageTag tag = PageTag::Other;
        bool foreign = false; ///< an element of svg or math
        bool ignored = false; ///< browsers pass the tag over
        bool judged = true;   ///< its attributes are looked at
        bool unknown = false;
    };
    Opened startTag(const html::Token &token);
    void endTag(const html::Token &token);
    void text(const html::Token &token);
    /// At the end of the text: what is still open.
    void finish(qsizetype end);

    bool inForeign() const;
    bool inside(PageTag tag) const;                      ///< an element of that kind is open
    bool wholePage() const { return m_state.wholePage; } ///< html, head or body have a tag
    const OpenElement *current() const { return m_state.open.empty() ? nullptr : &m_state.open.back(); }
    /// Tells that the open elements hold something that is seen or heard.
    void fill();
    /// Whether the element is interactive only because of its attributes, which the tree does not know.
    void setInteractive(bool interactive) { m_interactive = interactive; }
    void setXml(bool xml) { m_state.xml = xml; }
    /// The element of a tag that was read just now is an item.
    void setItem(const html::Token &token);
    /// Whether the element of that tag stands in an item.
    bool inItem(const html::Token &token) const;
    /// An element in whose place another one may stand for what is looked at: `link` in a body.
    int parentElement() const { return m_state.open.empty() ? 0 : m_state.open.back().element; }

private:
    using Space = OpenElement::Space;

    // Opening.
    Opened startHtml(const html::Token &token, int element);
    Opened startForeign(const html::Token &token);
    bool leavesForeign(const html::Token &token) const;
    bool makeRoom(const html::Token &token, int element, PageTag tag);
    bool startStructure(const html::Token &token, PageTag tag);
    bool startHtmlTag(const html::Token &token);
    bool startHeadTag(const html::Token &token);
    bool startBodyTag(const html::Token &token);
    void ensureHead(const html::Token &token);
    void ensureBody(const html::Token &token);
    bool closeForStart(const html::Token &token, PageTag tag);
    bool closeLike(const html::Token &token, PageTag tag);
    void closeListItem(const html::Token &token, PageTag tag);
    void closeParagraph(const html::Token &token);
    bool startInTable(const html::Token &token, int element, PageTag tag);
    bool startTablePart(const html::Token &token, PageTag tag);
    bool startRow(const html::Token &token);
    bool startCell(const html::Token &token);
    void imply(const char *name, const html::Token &token);
    void push(const html::Token &token, int element, Space space, bool implied = false);
    void accept(const html::Token &token, int child);
    bool fits(OpenElement &parent, int child);
    void tellMisplaced(const html::Token &token, const OpenElement &parent, int child);
    bool tellForbidden(const html::Token &token, const OpenElement &parent, int child);
    void tellOnce(const html::Token &token, OpenElement &parent, int child);

    // Closing.
    void endHtmlTag(const html::Token &token, int element, PageTag tag);
    void endForeign(const html::Token &token);
    void endStructure(const html::Token &token, PageTag tag);
    void endParagraph(const html::Token &token);
    void endFormatting(const html::Token &token, qsizetype at);
    qsizetype findOpen(const html::Token &token, int element, PageTag tag) const;
    void tellStray(const html::Token &token);
    void closeTo(qsizetype at, const html::Token *by);
    void pop(const html::Token *by);
    void tellMissing(const OpenElement &ended, const html::Token *by);
    void tellUnclosed(const OpenElement &ended, const html::Token *by);
    template <class Wanted, class Barrier>
    qsizetype lookUp(Wanted wanted, Barrier barrier) const;
    qsizetype inScope(PageTag tag, bool buttons = false, bool lists = false) const;
    qsizetype inTableScope(PageTag tag) const;
    void ignore(const html::Token &token);

    OpenElement &top() { return m_state.open.back(); }
    QString nameAt(html::Range range) const { return m_text.mid(range.start, range.length).toString().toLower(); }
    QString shown(html::Range range) const { return u'<' + nameAt(range) + u'>'; }
    QString shown(const OpenElement &element) const;
    QString namesOf(const NameSet &set) const;

    QStringView m_text;
    const Vocabulary &m_vocabulary;
    PageProblems &m_problems;
    State m_state;
    bool m_interactive = false; ///< of the tag that is being read
};
