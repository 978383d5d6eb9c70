#include "help/helpFindBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>

namespace
{
QToolButton *textButton(const QString &caption)
{
    auto *button = new QToolButton;
    button->setText(caption);
    button->setAutoRaise(true);
    return button;
}
} // namespace

HelpFindBar::HelpFindBar(QTextEdit &page, QWidget *parent)
    : QWidget(parent), m_page(page), m_sought(new QLineEdit), m_answer(new QLabel)
{
    setObjectName(QStringLiteral("helpFindBar"));
    m_sought->setObjectName(QStringLiteral("helpFindText"));
    m_sought->setClearButtonEnabled(true);
    m_answer->setObjectName(QStringLiteral("helpFindAnswer"));
    auto *label = new QLabel(QStringLiteral("Find on this &page:"));
    label->setBuddy(m_sought);
    QToolButton *next = textButton(QStringLiteral("Next"));
    QToolButton *previous = textButton(QStringLiteral("Previous"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    for (QWidget *piece : std::initializer_list<QWidget *>{label, m_sought, next, previous, m_answer})
        layout->addWidget(piece);
    layout->addStretch();
    connect(m_sought, &QLineEdit::textEdited, this, &HelpFindBar::findTyped);
    connect(m_sought, &QLineEdit::returnPressed, this, &HelpFindBar::findNext);
    connect(next, &QToolButton::clicked, this, &HelpFindBar::findNext);
    connect(previous, &QToolButton::clicked, this, &HelpFindBar::findPrevious);
}

void HelpFindBar::open()
{
    const QString selected = m_page.textCursor().selectedText();
    if (!selected.isEmpty())
        m_sought->setText(selected);
    show();
    m_sought->setFocus();
    m_sought->selectAll();
}

void HelpFindBar::find(bool backward)
{
    if (isHidden() || m_sought->text().isEmpty()) {
        open();
        return;
    }
    tell(step(backward));
}

// What is being typed is looked for from the place that it was found at so far.
void HelpFindBar::findTyped()
{
    QTextCursor caret = m_page.textCursor();
    caret.setPosition(caret.selectionStart());
    m_page.setTextCursor(caret);
    tell(m_sought->text().isEmpty() || step(false));
}

bool HelpFindBar::step(bool backward)
{
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (m_page.find(m_sought->text(), flags))
        return true;
    const QTextCursor before = m_page.textCursor();
    QTextCursor end = before;
    end.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    m_page.setTextCursor(end);
    if (m_page.find(m_sought->text(), flags))
        return true;
    m_page.setTextCursor(before);
    return false;
}

void HelpFindBar::tell(bool found)
{
    m_answer->setText(found ? QString() : QStringLiteral("Not on this page"));
}
