// What the edit surface does with the mouse and with what is dropped on it: the owner's handlers first, and nothing
// that would change the text while it is locked.
#include "surface/editSurface.h"
#include "surface/surfaceMoves.h"

#include "widgets/droppedFiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <algorithm>
#include <utility>

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
    m_drag = OwnDrag::OnItsWay;
    const Qt::DropAction action = carry(*drag, actions, m_locked ? Qt::CopyAction : Qt::MoveAction);
    if (!self)
        return;
    const bool wentElsewhere = std::exchange(m_drag, OwnDrag::None) == OwnDrag::OnItsWay;
    if (action != Qt::MoveAction || !wentElsewhere)
        return;
    const Step step(this);
    removeSelection();
}

Qt::DropAction EditSurface::carry(QDrag &drag, Qt::DropActions actions, Qt::DropAction otherwise)
{
    return drag.exec(actions, otherwise);
}

void EditSurface::contextMenuEvent(QContextMenuEvent *event)
{
    event->setAccepted(m_locked); // the menu is the owner's
}

/// Whether a drop goes to the owner, as text or as files, and not to a place in the text.
bool EditSurface::ownerTakes(const QDropEvent &event) const
{
    return m_drag == OwnDrag::None && m_hooks.textDropped && canInsertFromMimeData(event.mimeData());
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
    const bool isOwn = m_drag == OwnDrag::OnItsWay;
    m_drag = isOwn ? OwnDrag::CameBack : OwnDrag::None;
    if (isOwn && event->dropAction() == Qt::MoveAction) {
        const qsizetype from = m_selection.from();
        if (place >= from && place <= m_selection.to()) // it is there already
            return;
        const qsizetype gone = place < from ? 0 : SelLength();
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
