// What the edit surface does with the events of its widget: the owner's handlers first, and nothing that would change
// the text while it is locked.
#include "surface/editSurface.h"
#include "surface/lineMargin.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QUrl>
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

QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}
} // namespace

void EditSurface::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        followFont();
    if (event->type() == QEvent::PaletteChange) {
        keepSelectionColours();
        followGround();
    }
}

void EditSurface::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    placeMargin();
    tellScrolling();
}

void EditSurface::paintEvent(QPaintEvent *event)
{
    if (m_hideSelection && textCursor().hasSelection())
        paintWithoutSelection(event);
    else
        QPlainTextEdit::paintEvent(event);
}

void EditSurface::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT gotFocus();
}

void EditSurface::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    Q_EMIT lostFocus();
}

void EditSurface::keyPressEvent(QKeyEvent *event)
{
    const QString character = characterOf(*event);
    event->accept();
    if (discards(m_hooks.keyDown, keyOf(*event)))
        return;
    if (!character.isEmpty() && discards(m_hooks.keyPress, {.text = character}))
        return;
    const Step step(this); // a key over a selection is one change, though the widget makes it in two
    if (m_locked && !onlyReads(*event))
        event->setAccepted(!event->text().isEmpty());
    else if (event->matches(QKeySequence::InsertLineSeparator))
        insertAtCaret(QStringLiteral("\n")); // a page's source has one kind of line break
    else if (SurfaceText::needsCare(event->text()))
        insertAtCaret(event->text());
    else
        QPlainTextEdit::keyPressEvent(event);
}

void EditSurface::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    if (event->isAutoRepeat() || !discards(m_hooks.keyUp, keyOf(*event)))
        QPlainTextEdit::keyReleaseEvent(event);
}

void EditSurface::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (m_locked)
        return event->ignore();
    if (committed.isEmpty()) {
        const Step step(this);
        const QScopedValueRollback<bool> composing(m_formatsOnly, true); // reported as a change of the line
        return QPlainTextEdit::inputMethodEvent(event);
    }
    const bool unwanted = discards(m_hooks.keyPress, {.text = committed, .committed = true});
    const Step step(this);
    if (!unwanted && !SurfaceText::needsCare(committed))
        return QPlainTextEdit::inputMethodEvent(event);
    QInputMethodEvent rest(event->preeditString(), event->attributes());
    rest.setCommitString(QString(), event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&rest);
    if (!unwanted)
        insertAtCaret(committed);
}

void EditSurface::mousePressEvent(QMouseEvent *event)
{
    if (!discarded(m_hooks.mouseDown, event))
        QPlainTextEdit::mousePressEvent(event);
}

void EditSurface::mouseMoveEvent(QMouseEvent *event)
{
    if (discarded(m_hooks.mouseMove, event))
        return;
    if (!m_locked || event->buttons() == Qt::NoButton)
        return QPlainTextEdit::mouseMoveEvent(event);
    // A drag that starts now may copy the selection, but not move it away.
    const Qt::TextInteractionFlags flags = textInteractionFlags();
    setTextInteractionFlags(flags & ~Qt::TextInteractionFlags(Qt::TextEditable));
    QPlainTextEdit::mouseMoveEvent(event);
    setTextInteractionFlags(flags);
}

void EditSurface::mouseReleaseEvent(QMouseEvent *event)
{
    if (!discarded(m_hooks.mouseUp, event))
        QPlainTextEdit::mouseReleaseEvent(event);
}

void EditSurface::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_locked)
        event->accept(); // most of the menu's commands change the text
    else
        QPlainTextEdit::contextMenuEvent(event);
}

/// Whether a drop goes to the owner, as text or as files, and not to a place in the text.
bool EditSurface::ownerTakes(const QDropEvent &event) const
{
    const auto *source = qobject_cast<const QWidget *>(event.source());
    const bool isOwn = source && (source == this || isAncestorOf(source));
    return !isOwn && m_hooks.textDropped && canInsertFromMimeData(event.mimeData());
}

void EditSurface::dragEnterEvent(QDragEnterEvent *event)
{
    if (ownerTakes(*event))
        event->acceptProposedAction();
    else
        QPlainTextEdit::dragEnterEvent(event);
}

void EditSurface::dragMoveEvent(QDragMoveEvent *event)
{
    if (ownerTakes(*event))
        event->acceptProposedAction(); // without the mark of a place
    else
        QPlainTextEdit::dragMoveEvent(event);
}

void EditSurface::dropEvent(QDropEvent *event)
{
    const QStringList files = localFiles(*event->mimeData());
    if (!files.isEmpty() && m_hooks.filesDropped) {
        QDragLeaveEvent leave; // takes away the mark of the place to drop at
        QPlainTextEdit::dragLeaveEvent(&leave);
        event->acceptProposedAction();
        m_hooks.filesDropped(files);
        return;
    }
    if (ownerTakes(*event)) {
        event->acceptProposedAction();
        m_hooks.textDropped(event->mimeData()->text());
        return;
    }
    const Step step(this); // the text that was dragged goes and comes in one
    QPlainTextEdit::dropEvent(event);
    SetFocus();
}

bool EditSurface::canInsertFromMimeData(const QMimeData *source) const
{
    if (m_locked)
        return false;
    return localFiles(*source).isEmpty() ? source->hasText() : bool(m_hooks.filesDropped);
}

void EditSurface::insertFromMimeData(const QMimeData *source)
{
    // A list of files has its names as text, too, which nobody wants in a page.
    if (m_locked || !localFiles(*source).isEmpty() || source->text().isEmpty())
        return;
    insertAtCaret(source->text());
    ensureCursorVisible();
}

/// Plain text with the line ends of this desktop, since not every program takes others.
QMimeData *EditSurface::createMimeDataFromSelection() const
{
    auto *plain = new QMimeData;
    plain->setText(SelText().replace(QLatin1String("\r\n"), QLatin1String("\n")));
    return plain;
}

void EditSurface::followFont()
{
    setTabStopDistance(m_tabWidth * QFontMetricsF(font()).horizontalAdvance(u' '));
    m_margin->setFont(font());
    placeMargin();
}

void EditSurface::setTabWidth(int characters)
{
    m_tabWidth = characters;
    followFont();
}

void EditSurface::setLineNumbers(bool shown)
{
    m_margin->setVisible(shown);
    placeMargin();
}

bool EditSurface::lineNumbers() const
{
    return !m_margin->isHidden();
}

void EditSurface::placeMargin()
{
    const int width = lineNumbers() ? m_margin->widthNeeded() : 0;
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    const QRect inside = contentsRect();
    m_margin->setGeometry(QRect(inside.left(), inside.top(), width, viewport()->height()));
}

void EditSurface::moveMargin(const QRect &rect, int dy)
{
    if (dy != 0)
        m_margin->scroll(0, dy);
    else
        m_margin->update(0, rect.y(), m_margin->width(), rect.height());
}

void EditSurface::paintWithoutSelection(QPaintEvent *event)
{
    QPainter painter(viewport());
    const int caret = getPaintContext().cursorPosition; // below 0 while it is not to be seen
    QPointF top = contentOffset();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && top.y() <= event->rect().bottom();
         block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        block.layout()->draw(&painter, top, {}, event->rect());
        if (caret >= 0 && block.contains(caret))
            block.layout()->drawCursor(&painter, top, caret - block.position(), cursorWidth());
        top.ry() += height;
    }
}

/// Shows a mouse event to the owner; true if it discards it.
bool EditSurface::discarded(const std::function<void(SurfaceMouse &)> &hook, QMouseEvent *event)
{
    event->accept();
    return discards(hook,
                    {viewport()->mapToParent(event->pos()), event->button(), event->buttons(), event->modifiers()});
}
