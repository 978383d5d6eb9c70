// What the edit surface does with keys and with what input methods send: the owner's handlers first, and nothing that
// would change the text while it is locked.
#include "surface/editSurface.h"

#include "common/text.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

namespace
{
/// The keys that move, select or copy, which a locked surface still takes.
constexpr QKeySequence::StandardKey readingKeys[] = {
    QKeySequence::MoveToNextChar,
    QKeySequence::MoveToPreviousChar,
    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord,
    QKeySequence::MoveToNextLine,
    QKeySequence::MoveToPreviousLine,
    QKeySequence::MoveToNextPage,
    QKeySequence::MoveToPreviousPage,
    QKeySequence::MoveToStartOfLine,
    QKeySequence::MoveToEndOfLine,
    QKeySequence::MoveToStartOfBlock,
    QKeySequence::MoveToEndOfBlock,
    QKeySequence::MoveToStartOfDocument,
    QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,
    QKeySequence::SelectPreviousChar,
    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord,
    QKeySequence::SelectNextLine,
    QKeySequence::SelectPreviousLine,
    QKeySequence::SelectNextPage,
    QKeySequence::SelectPreviousPage,
    QKeySequence::SelectStartOfLine,
    QKeySequence::SelectEndOfLine,
    QKeySequence::SelectStartOfBlock,
    QKeySequence::SelectEndOfBlock,
    QKeySequence::SelectStartOfDocument,
    QKeySequence::SelectEndOfDocument,
    QKeySequence::SelectAll,
    QKeySequence::Copy,
    QKeySequence::ZoomIn,
    QKeySequence::ZoomOut,
    QKeySequence::Deselect,
};

bool onlyReads(const QKeyEvent &event)
{
    return std::any_of(std::begin(readingKeys), std::end(readingKeys),
                       [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

SurfaceKey keyOf(const QKeyEvent &event)
{
    // Tab with Shift comes as a key of its own.
    return {event.key() == Qt::Key_Backtab ? int(Qt::Key_Tab) : event.key(), event.modifiers()};
}

QString characterOf(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Delete ? QString() : event.text();
}

} // namespace

void EditSurface::keyPressEvent(QKeyEvent *event)
{
    const QString character = characterOf(*event);
    event->accept();
    if (discards(m_hooks.keyDown, keyOf(*event)))
        return;
    if (!character.isEmpty() && discards(m_hooks.keyPress, {.text = character}))
        return;
    const Step step(this); // a key over a selection is one change
    if (m_locked && !onlyReads(*event))
        event->setAccepted(!event->text().isEmpty());
    else if (!writes(*event) && !moves(*event) && !edits(*event))
        event->ignore();
}

void EditSurface::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    if (event->isAutoRepeat() || !discards(m_hooks.keyUp, keyOf(*event)))
        QAbstractScrollArea::keyReleaseEvent(event);
}

void EditSurface::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (m_locked)
        return event->ignore();
    bool commits = !committed.isEmpty();
    if (commits && discards(m_hooks.keyPress, {.text = committed, .committed = true}))
        commits = false;
    const Step step(this);
    event->setAccepted(compose(*event, commits));
}

/// Puts what an input method commits into the text, and what it composes at the caret, beside the text.
bool EditSurface::compose(const QInputMethodEvent &event, bool commits)
{
    const bool replaces = !event.commitString().isEmpty() || event.replacementLength() > 0;
    const bool hadPreedit = m_view.layouts().preedit().line >= 0;
    if (replaces || event.preeditString() != m_view.layouts().preedit().text)
        removeSelection();
    m_view.layouts().setPreedit({});
    if (replaces) {
        const qsizetype from = m_text.snapped(m_selection.caret + event.replacementStart());
        const qsizetype to = m_text.snapped(from + event.replacementLength());
        const QString put = commits ? withCrLf(event.commitString()) : QString();
        putText(from, to, put, lookAtCaret());
        if (from <= m_selection.caret)
            select(from + put.size(), from + put.size());
    }
    const qsizetype line = m_text.lineAt(m_selection.caret);
    Preedit preedit{line, m_selection.caret - m_text.lineStart(line), event.preeditString(), {}};
    m_preeditCaret = preedit.text.size();
    m_preeditCaretHidden = false;
    for (const QInputMethodEvent::Attribute &attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::TextFormat && !preedit.text.isEmpty()) {
            const QTextCharFormat format = attribute.value.value<QTextFormat>().toCharFormat();
            preedit.formats.append({attribute.start, attribute.length, format});
        } else if (attribute.type == QInputMethodEvent::Cursor) {
            m_preeditCaret = std::clamp(qsizetype(attribute.start), qsizetype(0), preedit.text.size());
            m_preeditCaretHidden = attribute.length == 0 && !preedit.text.isEmpty();
        } else if (attribute.type == QInputMethodEvent::Selection) {
            const qsizetype start = m_text.snapped(m_text.lineStart(line) + attribute.start);
            select(start, m_text.snapped(start + attribute.length));
        }
    }
    if (!preedit.text.isEmpty())
        m_view.layouts().setPreedit(preedit);
    if (hadPreedit || !preedit.text.isEmpty())
        updateAll();
    ensureCaretVisible();
    return true;
}

/// Forgets what an input method composes, which it is told of.
void EditSurface::endComposing()
{
    if (m_view.layouts().preedit().line < 0)
        return;
    m_view.layouts().setPreedit({});
    m_preeditCaret = 0;
    m_preeditCaretHidden = false;
    updateAll();
    if (hasFocus())
        QGuiApplication::inputMethod()->reset();
}

QVariant EditSurface::inputMethodQuery(Qt::InputMethodQuery query) const
{
    constexpr qsizetype reach = 2048; // characters around the caret that an input method is told of
    const qsizetype caret = m_selection.caret;
    const qsizetype line = m_text.lineAt(caret);
    const qsizetype start = std::max(m_text.lineStart(line), caret - reach);
    const qsizetype end = std::min(m_text.lineEnd(line), caret + reach);
    switch (query) {
    case Qt::ImEnabled:
        return isEnabled() && !m_locked;
    case Qt::ImReadOnly:
        return m_locked;
    case Qt::ImHints:
        return int(inputMethodHints());
    case Qt::ImFont:
        return shownFont();
    case Qt::ImCursorRectangle:
        return caretRect().translated(viewport()->pos()).toRect();
    case Qt::ImAnchorRectangle:
        return positionOfCharacter(m_selection.anchor);
    case Qt::ImCursorPosition:
        return static_cast<int>(caret - start);
    case Qt::ImAnchorPosition:
        return static_cast<int>(std::clamp(m_selection.anchor, start, end) - start);
    case Qt::ImAbsolutePosition:
        return static_cast<int>(caret);
    case Qt::ImSurroundingText:
        return m_text.mid(start, end - start);
    case Qt::ImTextBeforeCursor:
        return m_text.mid(start, caret - start);
    case Qt::ImTextAfterCursor:
        return m_text.mid(caret, end - caret);
    case Qt::ImCurrentSelection:
        return m_text.mid(SelStart(), std::min(SelLength(), reach));
    default:
        return QAbstractScrollArea::inputMethodQuery(query);
    }
}
