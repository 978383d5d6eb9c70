// The edit surface's contract: text, selection, lines, and what it tells of them.
#include "surface/editSurface.h"

#include "common/text.h"
#include "surface/lineMargin.h"
#include "surface/signMargin.h"
#include "surface/surfaceAccessible.h"

#include <QFontDatabase>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <algorithm>
#include <utility>

EditSurface::EditSurface(QWidget *parent)
    : QAbstractScrollArea(parent),
      m_view(m_text, m_looks, m_marks, [this](ColourValue colour) { return colourFor(colour); }),
      m_margin(new LineMargin(this)),
      m_signs(new SignMargin(this))
{
    SurfaceAccessible::install();
    m_signs->hide();
    m_darkGround = isOnDarkGround();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_KeyCompression);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAcceptDrops(true);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setMouseTracking(true); // the owner follows the pointer with no button down
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    followFont();
    keepSelectionColours();
}

EditSurface::~EditSurface() = default;

QString EditSurface::Text() const
{
    return m_text.text();
}

void EditSurface::setText(const QString &text)
{
    const Step step(this);
    endComposing();
    const bool told = SurfaceAccessible::isWatched();
    const QString before = told ? m_text.text() : QString();
    m_text.load(text);
    m_looks.reset(m_text.length());
    m_marks.clear();
    m_view.textLoaded();
    m_textChanged = true;
    m_selection = {};
    m_nextLook.reset();
    m_goalX.reset();
    updateAll();
    followView();
    if (told)
        tellAccessibleChange(0, before, m_text.text());
}

QString EditSurface::textPart(qsizetype start, qsizetype length) const
{
    return start < 0 || length < 0 ? QString() : m_text.mid(std::min(start, m_text.length()), length);
}

qsizetype EditSurface::textLength() const
{
    return m_text.length();
}

qsizetype EditSurface::SelStart() const
{
    return m_selection.from();
}

bool EditSurface::setSelStart(qsizetype start)
{
    if (start < 0)
        return false;
    const qsizetype position = m_text.snapped(start);
    select(position, position);
    return true;
}

qsizetype EditSurface::SelLength() const
{
    return m_selection.to() - m_selection.from();
}

bool EditSurface::setSelLength(qsizetype length)
{
    if (length < 0)
        return false;
    const qsizetype start = SelStart();
    select(start, m_text.snapped(start + std::min(length, m_text.length() - start)));
    return true;
}

QString EditSurface::SelText() const
{
    return m_text.mid(SelStart(), SelLength());
}

void EditSurface::setSelText(const QString &text)
{
    const Step step(this);
    insertAtCaret(text);
    m_textChanged = true; // a write is a change, even of nothing to nothing
}

void EditSurface::setHideSelection(bool hide)
{
    if (hide == m_hideSelection)
        return;
    m_hideSelection = hide;
    if (!m_selection.isEmpty())
        updateAll();
}

void EditSurface::setPaintingHeld(bool held)
{
    m_held = held;
    viewport()->setUpdatesEnabled(!held);
    if (!held && std::exchange(m_marginsHeld, false))
        updateMargins();
}

qsizetype EditSurface::lineCount() const
{
    return m_text.lineCount();
}

qsizetype EditSurface::lineFromCharacter(qsizetype position) const
{
    return m_text.lineAt(position);
}

std::optional<qsizetype> EditSurface::characterFromLine(qsizetype line) const
{
    if (line < 0 || line >= lineCount())
        return std::nullopt;
    return m_text.lineStart(line);
}

qsizetype EditSurface::firstVisibleLine() const
{
    return m_view.top().line;
}

void EditSurface::scrollToLine(qsizetype line)
{
    const Step step(this);
    m_view.scrollTo({std::clamp(line, qsizetype(0), lineCount() - 1), 0, 0});
    updateAll();
    followView();
}

void EditSurface::setWrapToWindow(bool wrap)
{
    if (wrap == m_wrap)
        return;
    const Step step(this);
    const qsizetype top = firstVisibleLine();
    m_wrap = wrap;
    followFont();
    scrollToLine(top);
}

bool EditSurface::wrapToWindow() const
{
    return m_wrap;
}

void EditSurface::SetFocus()
{
    // The window of a document may be an inner one, and a focus that moves into it would bring it to the front.
    for (const QWidget *widget = this; widget; widget = widget->parentWidget()) {
        const auto *inner = qobject_cast<const QMdiSubWindow *>(widget);
        const QMdiSubWindow *current = inner && inner->mdiArea() ? inner->mdiArea()->currentSubWindow() : inner;
        if (current && current != inner)
            return;
    }
    if (isVisibleTo(window())) // behind the preview, the keyboard would be lost in it
        setFocus();
}

qsizetype EditSurface::characterFromPosition(const QPoint &point) const
{
    const QPoint inViewport = viewport()->mapFrom(this, point);
    return m_view.positionInRow(m_view.rowAt(inViewport.y()), inViewport.x(), QTextLine::CursorOnCharacter);
}

QRect EditSurface::positionOfCharacter(qsizetype position) const
{
    return m_view.caretRect(m_text.snapped(position)).toRect().translated(viewport()->pos());
}

QList<EditSurface::VisibleLine> EditSurface::visibleLines() const
{
    QList<VisibleLine> lines;
    for (const ShownRow &row : m_view.rows()) {
        if (lines.isEmpty() || lines.last().line != row.place.line) {
            qreal top = row.top;
            for (RowPlace above = row.place; lines.isEmpty() && (above.row > 0 || above.piece > 0);) {
                m_view.previous(above);
                top -= m_view.heightOf(above);
                if (row.place.piece - above.piece > 1) // far above, it is not seen how far
                    break;
            }
            lines.append({row.place.line, qRound(top), qRound(row.height)});
        }
    }
    return lines;
}

/// Selects from one place to another, where the caret comes to stand.
void EditSurface::select(qsizetype anchor, qsizetype caret)
{
    const Selection selection{anchor, caret};
    m_goalX.reset();
    m_goalY.reset();
    if (selection == m_selection)
        return; // nor is the look lost that the next character is to take
    const Step step(this);
    endComposing();
    const Selection before = std::exchange(m_selection, selection);
    m_nextLook.reset();
    if (before.isEmpty() && m_selection.isEmpty()) {
        updateLines(m_text.lineAt(before.caret), m_text.lineAt(before.caret));
        updateLines(m_text.lineAt(caret), m_text.lineAt(caret));
    } else {
        updateAll();
    }
    ensureCaretVisible();
}

/// Puts a text, whose breaks are CR LF, in the place of another one. Caret and anchor stay at their text; where that
/// goes, they come to stand behind the new one.
void EditSurface::putText(qsizetype from, qsizetype to, const QString &text, const Look &look)
{
    if (from == to && text.isEmpty())
        return;
    const bool told = SurfaceAccessible::isWatched();
    const QString gone = told ? m_text.mid(from, to - from) : QString();
    const qsizetype line = m_text.lineAt(from);
    const qsizetype removed = m_text.lineAt(to) - line + 1;
    const std::optional<qreal> height = removed == 1 ? m_view.lineHeight(line) : std::nullopt;
    m_text.replace(from, to - from, text);
    m_looks.replace(from, to - from, text.size(), look);
    m_marks.move(from, to, text.size());
    const qsizetype added = m_text.lineAt(from + text.size()) - line + 1;
    m_view.linesReplaced(line, removed, added);
    for (qsizetype *place : {&m_selection.anchor, &m_selection.caret}) {
        if (*place > from)
            *place = *place < to ? from + text.size() : *place + text.size() - (to - from);
    }
    m_nextLook.reset();
    m_goalX.reset();
    m_goalY.reset();
    m_textChanged = true;
    if (height && added == 1 && m_view.lineHeight(line) == height)
        updateLines(line, line);
    else
        updateAll();
    followView();
    if (told)
        tellAccessibleChange(from, gone, text);
}

void EditSurface::insertAtCaret(const QString &text)
{
    const Step step(this);
    endComposing();
    const Look look = m_selection.isEmpty() ? lookAtCaret() : m_looks.lookAt(m_selection.from());
    const qsizetype from = m_selection.from();
    const QString put = withCrLf(text);
    putText(from, m_selection.to(), put, look);
    select(from + put.size(), from + put.size());
    ensureCaretVisible();
}

/// As a key does it, whose character looks like the one in front of the caret.
void EditSurface::typeAtCaret(const QString &text)
{
    const Look look = lookAtCaret();
    const qsizetype from = m_selection.from();
    putText(from, m_selection.to(), text, look);
    select(from + text.size(), from + text.size());
}

void EditSurface::removeSelection()
{
    putText(m_selection.from(), m_selection.to(), QString(), {});
}

void EditSurface::endStep()
{
    if (--m_steps > 0)
        return;
    tellSelection();
    tellTextChange();
    tellScrolling();
}

void EditSurface::tellTextChange()
{
    if (m_steps > 0 || !std::exchange(m_textChanged, false))
        return;
    Q_EMIT Change();
}

void EditSurface::tellSelection()
{
    if (m_steps > 0)
        return;
    const std::pair selection(SelStart(), SelLength());
    if (selection == std::exchange(m_told, selection))
        return;
    SurfaceAccessible::tellSelection(this);
    Q_EMIT SelChange();
}

void EditSurface::tellScrolling()
{
    if (m_steps > 0)
        return;
    const qsizetype top = firstVisibleLine();
    if (top != std::exchange(m_toldTop, top))
        Q_EMIT scrolled();
}

void EditSurface::tellAccessibleChange(qsizetype from, const QString &removed, const QString &inserted)
{
    SurfaceAccessible::tellChange(this, m_text.lines().toNarrow(from), removed, inserted);
}
