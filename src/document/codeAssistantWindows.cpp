// The code assistant's list and tip as windows: their making, their places, and when they are on show.
#include "common/codeKnowledge.h"
#include "document/assistantPlacing.h"
#include "document/codeAssistant.h"
#include "document/syntaxTip.h"
#include "forms/programContext.h"
#include "services/services.h"
#include "services/settings.h"
#include "surface/editSurface.h"
#include "widgets/controls.h"
#include "widgets/nodeTree.h"

#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

namespace
{
constexpr int listRows = 10;
constexpr int listCharacters = 30;
constexpr int tipCharacters = 80;
} // namespace

void CodeAssistant::buildList()
{
    picCodeAsssitantBack = new QFrame(&m_area);
    picCodeAsssitantBack->setObjectName(QStringLiteral("picCodeAsssitantBack"));
    picCodeAsssitantBack->setFrameStyle(QFrame::Box | QFrame::Plain);
    picCodeAsssitantBack->setForegroundRole(QPalette::PlaceholderText); // a frame to be seen on any ground
    picCodeAsssitantBack->hide();
    treCodeAssistantElements =
        ui::tree(QStringLiteral("treCodeAssistantElements"), {.nodeClick = [this](int node) { pick(node); },
                                                              .nodeDblClick = [this](int node) { pickTwice(node); }});
    if (m_context.codeElements)
        treCodeAssistantElements->showNodesOf(m_context.codeElements);
    treCodeAssistantElements->setAccessibleName(QStringLiteral("Elements"));
    treCodeAssistantElements->setFrameStyle(QFrame::NoFrame);
    treCodeAssistantElements->setRootIsDecorated(false);
    treCodeAssistantElements->header()->setSectionResizeMode(
        QHeaderView::Stretch);                              // rows are marked in all their width
    treCodeAssistantElements->setFocusPolicy(Qt::TabFocus); // a click picks, and typing goes on
    ui::onKeyDown(treCodeAssistantElements, [this](const QKeyEvent &event) { return listKey(event.key()); });
    auto *layout = new QVBoxLayout(picCodeAsssitantBack);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(treCodeAssistantElements);
}

void CodeAssistant::buildTip()
{
    txtCodeAssistantSyntax = new SyntaxTip(&m_area);
    txtCodeAssistantSyntax->setObjectName(QStringLiteral("txtCodeAssistantSyntax"));
    txtCodeAssistantSyntax->setAccessibleName(QStringLiteral("Syntax"));
    txtCodeAssistantSyntax->hide();
    connect(txtCodeAssistantSyntax, &SyntaxTip::clicked, this, &CodeAssistant::hideTip);
    connect(txtCodeAssistantSyntax, &SyntaxTip::gotFocus, &m_edit, &EditSurface::SetFocus);
    lblCodeAssistantTextSize = ui::label(QStringLiteral("lblCodeAssistantTextSize"), {});
    lblCodeAssistantTextSize->setParent(&m_area);
    lblCodeAssistantTextSize->hide();
    QFont bold = txtCodeAssistantSyntax->font(); // no part of the tip is wider
    bold.setBold(true);
    lblCodeAssistantTextSize->setFont(bold);
}

bool CodeAssistant::popupsWanted() const
{
    return settings::isOn(m_context.services.settings, settings::CodeSelPopups);
}

bool CodeAssistant::isListShown() const
{
    return !picCodeAsssitantBack->isHidden();
}

void CodeAssistant::setListShown(bool shown)
{
    if (shown == isListShown())
        return;
    if (!shown && treCodeAssistantElements->hasFocus())
        m_edit.SetFocus();
    picCodeAsssitantBack->setVisible(shown);
    picCodeAsssitantBack->raise();
}

void CodeAssistant::hideTip()
{
    txtCodeAssistantSyntax->hide();
}

void CodeAssistant::hideAll()
{
    setListShown(false);
    hideTip();
}

void CodeAssistant::showTip()
{
    showTipOf(m_context.codes ? m_context.codes->lstCodeAssistantSyntax(AssistantIndex) : QString());
}

void CodeAssistant::showTipOf(const QString &syntax)
{
    lblCodeAssistantTextSize->setText(syntax);
    txtCodeAssistantSyntax->setSyntax(syntax);
    placeTip();
    setListShown(false);
    if (!popupsWanted())
        return;
    txtCodeAssistantSyntax->show();
    txtCodeAssistantSyntax->raise();
}

/// The top of the caret's line at the caret, in the area.
QPoint CodeAssistant::CaretPosition() const
{
    return m_edit.mapTo(&m_area, m_edit.positionOfCharacter(m_edit.SelStart()).topLeft());
}

AssistantGround CodeAssistant::ground() const
{
    const QWidget &text = *m_edit.viewport();
    return {.area = m_area.size(),
            .edit = {text.mapTo(&m_area, QPoint()), text.size()},
            .caret = CaretPosition(),
            .lineHeight = m_edit.fontMetrics().lineSpacing()};
}

void CodeAssistant::placeList()
{
    const int frame = 2 * picCodeAsssitantBack->frameWidth();
    const QSize size(listCharacters * treCodeAssistantElements->fontMetrics().averageCharWidth(),
                     listRows * treCodeAssistantElements->sizeHintForRow(0) + frame);
    picCodeAsssitantBack->setGeometry(placeOfList(ground(), size));
}

/// The rows that a text takes in a tip so wide.
int CodeAssistant::tipRows(int width) const
{
    const QFontMetrics font = lblCodeAssistantTextSize->fontMetrics();
    const QRect room(0, 0, std::max(width - txtCodeAssistantSyntax->sideways(), 1), QWIDGETSIZE_MAX);
    const QRect filled = font.boundingRect(room, Qt::TextWordWrap, lblCodeAssistantTextSize->text());
    return (filled.height() + font.lineSpacing() - 1) / font.lineSpacing();
}

void CodeAssistant::placeTip()
{
    const TipText text{.width = lblCodeAssistantTextSize->sizeHint().width() + txtCodeAssistantSyntax->sideways(),
                       .widest = tipCharacters * lblCodeAssistantTextSize->fontMetrics().averageCharWidth() +
                                 txtCodeAssistantSyntax->sideways(),
                       .rowHeight = txtCodeAssistantSyntax->fontMetrics().lineSpacing(),
                       .rows = [this](int width) { return tipRows(width); }};
    const QRect place = placeOfTip(ground(), text);
    txtCodeAssistantSyntax->setGeometry(place);
    txtCodeAssistantSyntax->setCut(text.width > place.width() &&
                                   tipRows(place.width()) * text.rowHeight > place.height());
}
