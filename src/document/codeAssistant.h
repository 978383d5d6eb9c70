#pragma once

#include "document/assistantOffers.h"

#include <QObject>
#include <QString>

#include <memory>

class Document;
class EditSurface;
class NodeTree;
class PageRules;
class QFrame;
class QLabel;
class QWidget;
class SyntaxTip;
struct AssistantGround;
struct ProgramContext;

/// The code assistant of a document window: a list that follows what is typed, and a tip with the syntax of the element
/// that was completed. Neither takes the focus from typing. The list has the elements whose names begin with the word,
/// and an arrow key moves into it; by the rules of today it has what fits at the caret.
class CodeAssistant final : public QObject
{
    Q_OBJECT
public:
    /// `area` is the window's inside, which the surface lies in; the list and the tip are made in it, over the surface,
    /// and belong to it like the assistant itself.
    CodeAssistant(QWidget &area, EditSurface &edit, const Document &document, const ProgramContext &context);

    void keyGoesDown() { m_keyed = false; }
    /// A key is about to put a character in, or to take one.
    void keyGoesIn() { m_keyed = true; }
    /// The text was changed: looks at the word at the caret and shows the list, or hides it.
    void followWord();
    /// The caret may be in another line: the list and the tip stay only with their line.
    void followCaret();
    /// Completes the word and shows the tip, or hides the tip, as the key asks; a value of Qt::Key, or ">" as such.
    /// True if the key is used up; the character it gives still goes into the text.
    bool CommitAssistant(int key);
    /// For the keys Up and Down: moves the focus into the list, where the key goes on. False, and nothing done, if the
    /// list is not on show.
    bool moveIntoList(int key);

    /// By the rules of today: a key goes down that the list may know. True if it is used up.
    bool takeKey(int key);
    /// Whether those hold; then neither CommitAssistant nor moveIntoList do anything.
    bool offersWhatFits() const;

    bool isListShown() const;
    void hideTip();
    void hideAll();

private:
    void buildList();
    void buildTip();
    void pick(int node);
    void pickTwice(int node);
    bool listKey(int key);
    void leaveList();
    void InsertAssistantElement();
    void completeWord();
    void followName();
    void showTip();
    void showTipOf(const QString &syntax);

    const Vocabulary *vocabulary();
    OfferSources sources();
    void offerAtCaret();
    void showOffers();
    void moveInOffers(int rows);
    void takeOffer(int row);
    void showOwnSyntax(const QString &element);
    void followOffers();

    void matchRow(int row);
    int rowOf(const QString &word) const;
    bool popupsWanted() const;
    void setListShown(bool shown);
    void placeList();
    void placeTip();
    int tipRows(int width) const;
    QPoint CaretPosition() const;
    AssistantGround ground() const;

    QWidget &m_area;
    EditSurface &m_edit;
    const Document &m_document;
    const ProgramContext &m_context;
    QFrame *picCodeAsssitantBack = nullptr;
    NodeTree *treCodeAssistantElements = nullptr;
    SyntaxTip *txtCodeAssistantSyntax = nullptr;
    QLabel *lblCodeAssistantTextSize = nullptr;

    QString AssistantMatch;          ///< the row that the typed word matches; empty for none
    QString AssistantWord;           ///< the word last read at the caret
    int AssistantIndex = 0;          ///< the row of the match in the assistant's lists, from 0
    bool AssistantInserting = false; ///< the next change is the assistant's own
    bool AssistantHold = false;      ///< so are the changes behind that one
    qsizetype LastCaretLine = 0;

    std::shared_ptr<const PageRules> m_rules; ///< read at the first offer
    Offers m_offers;                          ///< those on show
    qsizetype m_offeredAt = 0;                ///< the caret at their showing
    bool m_showsOffers = false;               ///< the list has them, and not the elements of the other way
    bool m_keyed = false;                     ///< the next change is a key's
};
