#include "document/codeAssistant.h"

#include "common/codeKnowledge.h"
#include "common/text.h"
#include "document/assistantWords.h"
#include "forms/programContext.h"
#include "surface/editSurface.h"
#include "widgets/nodeTree.h"

#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>

#include <utility>

namespace
{
void sendKey(QWidget &widget, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &release);
}
} // namespace

CodeAssistant::CodeAssistant(QWidget &area, EditSurface &edit, const Document &document, const ProgramContext &context)
    : QObject(&area), m_area(area), m_edit(edit), m_document(document), m_context(context)
{
    buildList();
    buildTip();
}

void CodeAssistant::followWord()
{
    offersWhatFits() ? offerAtCaret() : followName();
}

void CodeAssistant::followName()
{
    if (std::exchange(m_showsOffers, false) && m_context.codeElements)
        treCodeAssistantElements->showNodesOf(m_context.codeElements);
    if (AssistantInserting) {
        AssistantInserting = AssistantHold;
        return;
    }
    AssistantWord = WordAtCaret(m_edit, m_edit.SelStart() + 1);
    const int row = rowOf(AssistantWord);
    if (row >= 0)
        matchRow(row);
    else if (AssistantWord != u"<") // a match outlives a lone bracket
        AssistantMatch.clear();
    const bool incomplete = row >= 0 && LCase(AssistantMatch) != LCase(AssistantWord);
    if (incomplete) {
        placeList();
        hideTip();
    }
    setListShown(incomplete && popupsWanted());
}

void CodeAssistant::matchRow(int row)
{
    AssistantIndex = row;
    if (row >= treCodeAssistantElements->nodeCount()) // a row of its own name stands in the list already
        return;
    treCodeAssistantElements->selectNode(row);
    AssistantMatch = treCodeAssistantElements->nodeAt(row).text;
}

/// The first row that starts with the word, in any case; -1 for none.
int CodeAssistant::rowOf(const QString &word) const
{
    // Rows are "<" and a name; a bracket alone would match each of them. No other word is worth reading the codes.
    if (!m_context.codes || !word.startsWith(u'<') || word == u"<" || word.startsWith(u"</"))
        return -1;
    const QStringList &rows = m_context.codes->elements().lstCodeAssistantElements;
    for (int row = 0; row < rows.size(); ++row)
        if (rows[row].startsWith(word, Qt::CaseInsensitive))
            return row;
    return -1;
}

void CodeAssistant::followCaret()
{
    const qsizetype line = m_edit.lineFromCharacter(m_edit.SelStart());
    if (line != LastCaretLine)
        hideAll();
    LastCaretLine = line;
    if (offersWhatFits())
        followOffers();
}

bool CodeAssistant::CommitAssistant(int key)
{
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Greater || key == Qt::Key_Delete) {
        hideTip();
        return false;
    }
    if (AssistantMatch.isEmpty() || offersWhatFits())
        return false;
    completeWord();
    showTip();
    return true;
}

void CodeAssistant::completeWord()
{
    const qsizetype left = AssistantMatch.size() - AssistantWord.size();
    if (left <= 0)
        return;
    AssistantInserting = true;
    m_edit.setSelText(AssistantMatch.last(left));
}

bool CodeAssistant::moveIntoList(int key)
{
    if (!isListShown() || offersWhatFits())
        return false;
    treCodeAssistantElements->setFocus(Qt::OtherFocusReason);
    sendKey(*treCodeAssistantElements, key, QString());
    return true;
}

/// A key that goes down in the list; true if it is used up.
bool CodeAssistant::listKey(int key)
{
    switch (key) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (const auto node = treCodeAssistantElements->selectedNode())
            pick(*node);
        return true;
    case Qt::Key_Escape:
        leaveList();
        return true;
    default:
        return false;
    }
}

void CodeAssistant::leaveList()
{
    m_edit.SetFocus();
    hideAll();
}

void CodeAssistant::pick(int node)
{
    if (!isListShown() || m_edit.Locked())
        return;
    if (offersWhatFits()) {
        takeOffer(node);
        return;
    }
    AssistantMatch = treCodeAssistantElements->nodeAt(node).text;
    InsertAssistantElement();
}

void CodeAssistant::pickTwice(int node)
{
    if (!isListShown()) // the first of the two clicks has picked it
        return;
    pick(node);
    AssistantMatch.clear();
}

/// The bracket takes the place of the word, and a typed blank completes it.
void CodeAssistant::InsertAssistantElement()
{
    AssistantIndex = treCodeAssistantElements->selectedNode().value_or(AssistantIndex);
    const QString word = WordAtCaret(m_edit, m_edit.SelStart() + 1);
    AssistantInserting = AssistantHold = true;
    m_edit.setSelStart(m_edit.SelStart() - word.size());
    m_edit.setSelLength(word.size());
    AssistantWord = AssistantMatch.first(1);
    m_edit.setSelText(AssistantWord);
    m_edit.SetFocus();
    sendKey(m_edit, Qt::Key_Space, QStringLiteral(" "));
    AssistantInserting = AssistantHold = false;
}
