// What the edit surface does with the events of its widget: the owner's handlers first, and nothing that would change
// the text while it is locked.
#include "surface/editSurface.h"
#include "surface/surfaceMoves.h"

#include "common/text.h"
#include "widgets/droppedFiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
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

template <typename Event>
bool discards(const std::function<void(Event &)> &hook, Event event)
{
    if (hook)
        hook(event);
    return event.discard;
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
    else if (!moves(*event) && !edits(*event))
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

qsizetype EditSurface::positionAt(const QPoint &point) const
{
    return m_view.positionInRow(m_view.rowAt(point.y()), point.x());
}

/// Selects whole words or lines from one place to another, the caret at the second.
void EditSurface::selectUnits(qsizetype from, qsizetype to, Unit unit)
{
    const auto startOf = [&](qsizetype place) {
        return unit == Unit::Word ? surfaceMoves::startOfWord(m_text, place) : m_text.lineStart(m_text.lineAt(place));
    };
    const auto endOf = [&](qsizetype place) {
        if (unit == Unit::Word)
            return surfaceMoves::endOfWord(m_text, place);
        const qsizetype line = m_text.lineAt(place);
        return line + 1 < m_text.lineCount() ? m_text.lineStart(line + 1) : m_text.length();
    };
    if (unit == Unit::Character)
        return select(from, to);
    if (to < m_unitStart.from())
        select(m_unitStart.to(), startOf(to));
    else
        select(m_unitStart.from(), std::max(endOf(to), m_unitStart.to()));
}

void EditSurface::mousePressEvent(QMouseEvent *event)
{
    if (discarded(m_hooks.mouseDown, event))
        return;
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_pressedSquare = m_hooks.squareClicked ? squareAt(event->pos()) : std::nullopt;
    if (m_pressedSquare)
        return;
    const qsizetype place = positionAt(event->position().toPoint());
    const bool third = m_doubleClick.isValid() &&
                       m_doubleClick.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval() &&
                       (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    m_doubleClick.invalidate();
    m_pressed = event->pos();
    m_mayDrag = false;
    m_selecting = true;
    m_unit = Unit::Character;
    if (third) {
        m_unit = Unit::Line;
        const qsizetype line = m_text.lineAt(place);
        const bool last = line + 1 == m_text.lineCount();
        select(m_text.lineStart(line), last ? m_text.length() : m_text.lineStart(line + 1));
        m_unitStart = m_selection;
    } else if (event->modifiers() == Qt::ShiftModifier) {
        select(m_selection.anchor, place);
    } else if (!m_selection.isEmpty() && place >= m_selection.from() && place <= m_selection.to() && !m_hideSelection) {
        m_mayDrag = true;
        m_selecting = false;
    } else {
        select(place, place);
        ensureCaretVisible();
    }
}

void EditSurface::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    const qsizetype place = positionAt(event->pos());
    m_unit = Unit::Word;
    select(surfaceMoves::startOfWord(m_text, place),
           surfaceMoves::endOfWord(m_text, surfaceMoves::startOfWord(m_text, place)));
    m_unitStart = m_selection;
    m_mayDrag = false;
    m_selecting = true;
    m_pressed = event->pos();
    m_doubleClick.start();
}

void EditSurface::mouseMoveEvent(QMouseEvent *event)
{
    if (discarded(m_hooks.mouseMove, event))
        return;
    if (!(event->buttons() & Qt::LeftButton)) {
        pointAtSquare(event->pos());
        return;
    }
    if (m_mayDrag) {
        if ((event->pos() - m_pressed).manhattanLength() > QApplication::startDragDistance())
            startDrag();
        return;
    }
    if (!m_selecting)
        return;
    m_dragPoint = event->pos();
    if (viewport()->rect().contains(m_dragPoint))
        m_autoScroll.stop();
    else if (!m_autoScroll.isActive())
        m_autoScroll.start(100, this);
    dragTo(m_dragPoint);
}

void EditSurface::dragTo(const QPoint &point)
{
    const Step step(this);
    selectUnits(m_selection.anchor, positionAt(point), m_unit);
}

void EditSurface::mouseReleaseEvent(QMouseEvent *event)
{
    m_autoScroll.stop();
    if (const auto square = std::exchange(m_pressedSquare, std::nullopt)) {
        if (square == squareAt(event->pos()))
            m_hooks.squareClicked(*square);
        return;
    }
    const bool wasSelecting = std::exchange(m_selecting, false);
    const bool wasOnSelection = std::exchange(m_mayDrag, false);
    if (discarded(m_hooks.mouseUp, event))
        return;
    const qsizetype place = positionAt(event->pos());
    if (event->button() == Qt::LeftButton && wasOnSelection) {
        select(place, place);
    } else if (event->button() == Qt::LeftButton && wasSelecting) {
        copySelection(true);
    } else if (event->button() == Qt::MiddleButton && !m_locked && QGuiApplication::clipboard()->supportsSelection()) {
        const Step step(this);
        select(place, place);
        pasteFrom(true);
    } else {
        event->ignore();
    }
}

/// Lets the selection be dragged away. A locked surface gives copies only.
void EditSurface::startDrag()
{
    m_mayDrag = false;
    const QPointer<EditSurface> self(this); // whatever happens while the mouse is on its way
    auto *drag = new QDrag(viewport());
    drag->setMimeData(createMimeDataFromSelection());
    const Qt::DropActions actions = m_locked ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
    const Qt::DropAction action = drag->exec(actions, m_locked ? Qt::CopyAction : Qt::MoveAction);
    if (!self || action != Qt::MoveAction || drag->target() == viewport() || drag->target() == this)
        return;
    const Step step(this);
    removeSelection();
}

void EditSurface::contextMenuEvent(QContextMenuEvent *event)
{
    event->setAccepted(m_locked); // the menu is the owner's
}

/// Whether a drop goes to the owner, as text or as files, and not to a place in the text.
bool EditSurface::ownerTakes(const QDropEvent &event) const
{
    const auto *source = qobject_cast<const QWidget *>(event.source());
    const bool isOwn = source && (source == this || isAncestorOf(source));
    return !isOwn && m_hooks.textDropped && canInsertFromMimeData(event.mimeData());
}

/// Whether what is dropped goes in where it is dropped; the owner may take it to a place of its own.
bool EditSurface::goesToItsPlace(const QDropEvent &event) const
{
    const QStringList files = filesOf(*event.mimeData());
    return files.isEmpty() ? !ownerTakes(event) : m_hooks.filesHavePlace && m_hooks.filesHavePlace(files);
}

void EditSurface::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(false);
    if (ownerTakes(*event) || canInsertFromMimeData(event->mimeData()))
        event->acceptProposedAction();
}

void EditSurface::dragMoveEvent(QDragMoveEvent *event)
{
    event->setAccepted(false);
    if (!ownerTakes(*event) && !canInsertFromMimeData(event->mimeData()))
        return;
    event->acceptProposedAction();
    if (goesToItsPlace(*event))
        showDropPlace(positionAt(event->position().toPoint()));
}

void EditSurface::dragLeaveEvent(QDragLeaveEvent *)
{
    showDropPlace({});
}

void EditSurface::showDropPlace(std::optional<qsizetype> position)
{
    if (position != std::exchange(m_dropPlace, position))
        updateAll();
}

void EditSurface::dropEvent(QDropEvent *event)
{
    showDropPlace({});
    const QStringList files = filesOf(*event->mimeData());
    if (!files.isEmpty() && m_hooks.filesDropped) {
        event->acceptProposedAction();
        m_hooks.filesDropped(files, positionAt(event->position().toPoint()));
        return;
    }
    if (ownerTakes(*event)) {
        event->acceptProposedAction();
        m_hooks.textDropped(event->mimeData()->text());
        return;
    }
    event->setAccepted(false);
    if (!canInsertFromMimeData(event->mimeData()))
        return;
    event->acceptProposedAction();
    const Step step(this); // the text that was dragged goes and comes in one
    qsizetype place = positionAt(event->position().toPoint());
    const auto *source = qobject_cast<const QWidget *>(event->source());
    if (event->dropAction() == Qt::MoveAction && source && (source == this || isAncestorOf(source))) {
        const qsizetype from = m_selection.from();
        const qsizetype gone = std::clamp(place - from, qsizetype(0), SelLength());
        removeSelection();
        place -= gone;
    }
    select(place, place);
    insertFromMimeData(event->mimeData());
    ensureCaretVisible();
    SetFocus();
}

bool EditSurface::canInsertFromMimeData(const QMimeData *source) const
{
    if (m_locked)
        return false;
    return filesOf(*source).isEmpty() ? source->hasText() : bool(m_hooks.filesDropped);
}

void EditSurface::insertFromMimeData(const QMimeData *source)
{
    // A list of files has its names as text, too, which nobody wants in a page.
    if (m_locked || !filesOf(*source).isEmpty() || source->text().isEmpty())
        return;
    insertAtCaret(source->text());
}

/// Plain text with the line ends of this desktop, since not every program takes others.
QMimeData *EditSurface::createMimeDataFromSelection() const
{
    auto *plain = new QMimeData;
    plain->setText(SelText().replace(QLatin1String("\r\n"), QLatin1String("\n")));
    return plain;
}

/// Shows a mouse event to the owner; true if it discards it.
bool EditSurface::discarded(const std::function<void(SurfaceMouse &)> &hook, QMouseEvent *event)
{
    event->accept();
    return discards(hook,
                    {viewport()->mapToParent(event->pos()), event->button(), event->buttons(), event->modifiers()});
}
