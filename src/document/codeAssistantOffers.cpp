// The code assistant by the rules of today: it offers what fits at the caret.
#include "common/document.h"
#include "common/programState.h"
#include "document/assistantOffers.h"
#include "document/assistantSite.h"
#include "document/codeAssistant.h"
#include "document/lineHands.h"
#include "document/syntaxTip.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/programFiles.h"
#include "services/services.h"
#include "surface/editSurface.h"
#include "texttools/pageRules.h"
#include "widgets/keptNodes.h"
#include "widgets/nodeTree.h"
#include "widgets/rowStep.h"

#include <QLabel>

#include <algorithm>

namespace
{
/// In a longer page nothing is offered: what is open at the caret would take too long to be found.
constexpr qsizetype LongestPage = qsizetype(1) << 20;
} // namespace

bool CodeAssistant::offersWhatFits() const
{
    return m_context.state.habits.HabitAssistant;
}

const Vocabulary *CodeAssistant::vocabulary()
{
    if (!m_rules)
        m_rules = PageRules::read(
            m_context.services.files.readAll(programFile(m_context.services, QStringLiteral("Page.rules"))).bytes);
    return m_rules ? &m_rules->today() : nullptr;
}

OfferSources CodeAssistant::sources()
{
    return {.vocabulary = vocabulary(),
            .classes = [this] { return styleNames(m_context, m_document, u'.'); },
            .ids = [this] { return styleNames(m_context, m_document, u'#'); },
            .files = [this](const QString &folder) { return siteFiles(m_context, m_document, folder); }};
}

/// Only typing brings the list up; what the program or the clipboard puts in closes it.
void CodeAssistant::offerAtCaret()
{
    const bool typed = std::exchange(m_keyed, false);
    const bool isPage = commentSignsAt({}, 0, m_document.DocSavePath) == CommentSigns::Html;
    const qsizetype caret = m_edit.SelStart();
    m_offers = {};
    const qsizetype nearby = std::max<qsizetype>(caret - LongestTag, 0);
    const bool inTag = typed && isPage && popupsWanted() && caret <= LongestPage &&
                       tagPlaceAtEnd(m_edit.textPart(nearby, caret - nearby)).kind != TagPlace::Kind::Elsewhere;
    if (inTag)
        m_offers = offersAtEnd(m_edit.textPart(0, caret), sources());
    showOffers();
}

void CodeAssistant::showOffers()
{
    if (m_offers.rows.isEmpty()) {
        setListShown(false);
        return;
    }
    const auto nodes = std::make_shared<KeptNodes>();
    nodes->reserve(static_cast<int>(m_offers.rows.size()));
    for (const Offer &offer : std::as_const(m_offers.rows))
        nodes->add({.text = offer.text, .key = {}, .imageKey = {}, .parent = -1, .tip = {}});
    treCodeAssistantElements->showNodesOf(nodes);
    m_showsOffers = true;
    treCodeAssistantElements->selectNode(0);
    m_offeredAt = m_edit.SelStart();
    LastCaretLine = m_edit.lineFromCharacter(m_offeredAt); // which a click may have chosen
    hideTip();
    placeList();
    setListShown(true);
}

/// A key that goes down while the list is on show; true if it is used up.
bool CodeAssistant::takeKey(int key)
{
    if (!isListShown() || !offersWhatFits())
        return false;
    if (const int step = rowStep(key)) {
        moveInOffers(step);
        return true;
    }
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        takeOffer(treCodeAssistantElements->selectedNode().value_or(0));
        return true;
    case Qt::Key_Escape:
        hideAll();
        return true;
    default:
        return false;
    }
}

void CodeAssistant::moveInOffers(int rows)
{
    const int row = treCodeAssistantElements->selectedNode().value_or(0) + rows;
    treCodeAssistantElements->selectNode(std::clamp(row, 0, static_cast<int>(m_offers.rows.size()) - 1));
}

/// What is typed of it gives way to the whole of it. Where something else fits behind it, that is offered at once.
void CodeAssistant::takeOffer(int row)
{
    if (row >= m_offers.rows.size() || m_edit.Locked())
        return;
    const Offer offer = m_offers.rows[row];
    const qsizetype start = m_offers.start;
    const qsizetype caret = m_edit.SelStart();
    const TagPlace place = tagPlaceAtEnd(m_edit.textPart(0, caret));
    m_offers = {};
    setListShown(false);
    m_edit.setSelStart(start);
    m_edit.setSelLength(caret - start);
    m_edit.setSelText(offer.written);
    m_edit.setSelStart(start + offer.written.size() - offer.caretBack);
    m_edit.SetFocus();
    if (place.kind == TagPlace::Kind::Element)
        showOwnSyntax(offer.text);
    if (!offer.goesOn)
        return;
    m_keyed = true;
    offerAtCaret();
}

void CodeAssistant::showOwnSyntax(const QString &element)
{
    if (const Vocabulary *known = vocabulary())
        showTipOf(ownSyntax(*known, element));
}

/// The list stays only where it was brought up.
void CodeAssistant::followOffers()
{
    if (isListShown() && m_edit.SelStart() != m_offeredAt)
        setListShown(false);
}
