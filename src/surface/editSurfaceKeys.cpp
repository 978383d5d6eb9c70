// What keys do in the edit surface: the desktop's own bindings move the caret, select and edit.
#include "surface/editSurface.h"
#include "surface/surfaceMoves.h"

#include "common/text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

namespace
{
using Key = QKeySequence::StandardKey;

enum class Move {
    NextCharacter,
    PreviousCharacter,
    NextWord,
    PreviousWord,
    NextRow,
    PreviousRow,
    NextPage,
    PreviousPage,
    RowStart,
    RowEnd,
    LineStart,
    LineEnd,
    TextStart,
    TextEnd,
};

struct MoveKey {
    Key moves;
    Key selects;
    Move move;
};
constexpr MoveKey moveKeys[] = {
    {Key::MoveToNextChar, Key::SelectNextChar, Move::NextCharacter},
    {Key::MoveToPreviousChar, Key::SelectPreviousChar, Move::PreviousCharacter},
    {Key::MoveToNextWord, Key::SelectNextWord, Move::NextWord},
    {Key::MoveToPreviousWord, Key::SelectPreviousWord, Move::PreviousWord},
    {Key::MoveToNextLine, Key::SelectNextLine, Move::NextRow},
    {Key::MoveToPreviousLine, Key::SelectPreviousLine, Move::PreviousRow},
    {Key::MoveToNextPage, Key::SelectNextPage, Move::NextPage},
    {Key::MoveToPreviousPage, Key::SelectPreviousPage, Move::PreviousPage},
    {Key::MoveToStartOfLine, Key::SelectStartOfLine, Move::RowStart},
    {Key::MoveToEndOfLine, Key::SelectEndOfLine, Move::RowEnd},
    {Key::MoveToStartOfBlock, Key::SelectStartOfBlock, Move::LineStart},
    {Key::MoveToEndOfBlock, Key::SelectEndOfBlock, Move::LineEnd},
    {Key::MoveToStartOfDocument, Key::SelectStartOfDocument, Move::TextStart},
    {Key::MoveToEndOfDocument, Key::SelectEndOfDocument, Move::TextEnd},
};

/// Whether a key is one of the desktop's that the surface answers to itself.
bool isOwn(const QKeyEvent &event)
{
    constexpr Key own[] = {Key::Copy, Key::Paste, Key::Cut, Key::Undo, Key::Redo, Key::SelectAll};
    return std::any_of(std::begin(own), std::end(own), [&](Key key) { return event.matches(key); }) ||
           std::any_of(std::begin(moveKeys), std::end(moveKeys),
                       [&](const MoveKey &key) { return event.matches(key.moves) || event.matches(key.selects); });
}

/// Whether a key gives text that goes into a page.
bool givesText(const QKeyEvent &event)
{
    const QString text = event.text();
    if (text.isEmpty())
        return false;
    const QChar first = text[0];
    if (first.category() == QChar::Other_Format) // joiners and marks of direction, which some layouts have with Ctrl
        return true;
    if (event.modifiers() == Qt::ControlModifier || event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier))
        return false;
    const bool pair = first.isHighSurrogate() && text.size() > 1 && text[1].isLowSurrogate();
    return first.isPrint() || pair || first == u'\t' || first.category() == QChar::Other_PrivateUse;
}

Move mirrored(Move move)
{
    switch (move) {
    case Move::NextCharacter:
        return Move::PreviousCharacter;
    case Move::PreviousCharacter:
        return Move::NextCharacter;
    case Move::NextWord:
        return Move::PreviousWord;
    case Move::PreviousWord:
        return Move::NextWord;
    default:
        return move;
    }
}
} // namespace

bool EditSurface::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // What the surface does with a key goes before what a menu of its window would do.
        auto *key = static_cast<QKeyEvent *>(event);
        const Qt::KeyboardModifiers held = key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        constexpr int editing[] = {Qt::Key_Return, Qt::Key_Enter,     Qt::Key_Delete, Qt::Key_Home,
                                   Qt::Key_End,    Qt::Key_Backspace, Qt::Key_Tab,    Qt::Key_Backtab};
        const bool writes = held == Qt::NoModifier && (key->key() < Qt::Key_Escape ||
                                                       std::ranges::find(editing, key->key()) != std::end(editing));
        if (writes || isOwn(*key))
            event->accept();
    }
    return QAbstractScrollArea::event(event);
}

void EditSurface::moveTo(qsizetype position, bool keepAnchor)
{
    select(keepAnchor ? m_selection.anchor : position, position);
}

/// Most keys give a sign, and none of the desktop's is one with no other key but Shift held: asking it about sixty of
/// them would be a tenth of what a key costs.
bool EditSurface::writes(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers others = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (others || event.key() >= Qt::Key_Escape || event.text().isEmpty() || !event.text()[0].isPrint())
        return false;
    typeAtCaret(withCrLf(event.text()));
    ensureCaretVisible();
    return true;
}

bool EditSurface::moves(const QKeyEvent &event)
{
    const auto *const found = std::find_if(std::begin(moveKeys), std::end(moveKeys), [&](const MoveKey &key) {
        return event.matches(key.moves) || event.matches(key.selects);
    });
    if (found == std::end(moveKeys))
        return false;
    const bool keep = event.matches(found->selects);
    const qsizetype caret = m_selection.caret;
    const qsizetype line = m_text.lineAt(caret);
    const Move move = m_view.rightToLeft(caret) ? mirrored(found->move) : found->move;
    const bool leaves = !keep && !m_selection.isEmpty(); // a selection, at the side that the key points to
    switch (move) {
    case Move::NextCharacter:
        moveTo(leaves ? m_selection.to() : surfaceMoves::nextCharacter(m_text, caret), keep);
        break;
    case Move::PreviousCharacter:
        moveTo(leaves ? m_selection.from() : surfaceMoves::previousCharacter(m_text, caret), keep);
        break;
    case Move::NextWord:
        moveTo(surfaceMoves::nextWord(m_text, caret), keep);
        break;
    case Move::PreviousWord:
        moveTo(surfaceMoves::previousWord(m_text, caret), keep);
        break;
    case Move::NextRow:
    case Move::PreviousRow:
        moveByRows(move == Move::NextRow, keep);
        break;
    case Move::NextPage:
    case Move::PreviousPage:
        moveByPage(move == Move::NextPage, keep);
        break;
    case Move::RowStart:
        moveTo(lineHome(), keep);
        break;
    case Move::RowEnd:
        moveTo(m_view.rowEnd(m_view.rowOf(caret)), keep);
        break;
    case Move::LineStart:
        moveTo(m_text.lineStart(line), keep);
        break;
    case Move::LineEnd:
        moveTo(m_text.lineEnd(line), keep);
        break;
    case Move::TextStart:
        moveTo(0, keep);
        break;
    case Move::TextEnd:
        moveTo(m_text.length(), keep);
        break;
    }
    ensureCaretVisible();
    return true;
}

/// The start of the caret's row; from there, the line's first character that is no blank.
qsizetype EditSurface::lineHome() const
{
    const qsizetype caret = m_selection.caret;
    const qsizetype start = m_view.rowStart(m_view.rowOf(caret));
    const qsizetype line = m_text.lineAt(caret);
    if (caret != start || start != m_text.lineStart(line))
        return start;
    constexpr qsizetype deepest = 4096; // characters of an indent that are looked through
    const QString part = m_text.mid(start, std::min(m_text.lineLength(line), deepest));
    const auto *const first = std::find_if(part.begin(), part.end(), [](QChar c) { return c != u' ' && c != u'\t'; });
    return first == part.end() ? start : start + (first - part.begin());
}

void EditSurface::moveByRows(bool down, bool keepAnchor)
{
    const qreal x = m_goalX.value_or(caretRect().left() + m_view.left());
    RowPlace row = m_view.rowOf(m_selection.caret);
    const bool moved = down ? m_view.next(row) : m_view.previous(row);
    if (!moved && keepAnchor) // the rest of the first or the last row
        return moveTo(down ? m_text.length() : 0, true);
    if (moved)
        moveTo(m_view.positionInRow(row, x - m_view.left()), keepAnchor);
    m_goalX = x;
}

/// Moves the view by a page, and the caret with it, so that it keeps its place on view.
void EditSurface::moveByPage(bool down, bool keepAnchor)
{
    ensureCaretVisible();
    const qreal x = m_goalX.value_or(caretRect().left() + m_view.left());
    const qreal y = m_goalY.value_or(caretRect().top());
    const RowPlace before = m_view.top();
    RowPlace top = before;
    bool ends = false;
    if (down) {
        const std::vector<ShownRow> rows = m_view.rows();
        const auto cut = std::find_if(rows.begin(), rows.end(), [&](const ShownRow &row) {
            return row.top + row.height > m_view.size().height();
        });
        RowPlace behind = rows.back().place; // which begins the next page where no row is cut
        ends = cut == rows.end() && !m_view.next(behind);
        if (!ends)
            top = cut == rows.end() ? behind : cut->place;
    } else {
        RowPlace row = top;
        ends = top == RowPlace();
        for (qreal height = 0; m_view.previous(row) && (height += m_view.heightOf(row)) <= m_view.size().height();)
            top = row;
    }
    if (top != before)
        m_view.scrollTo(top);
    RowPlace row = m_view.rowOf(m_selection.caret);
    RowPlace found = row;
    while (down ? m_view.next(row) : m_view.previous(row)) {
        found = row;
        if (!ends && (down ? m_view.topOf(row) >= y : m_view.topOf(row) <= y))
            break;
    }
    moveTo(m_view.positionInRow(found, x - m_view.left()), keepAnchor);
    m_goalX = x;
    m_goalY = y;
    updateAll();
    followView();
}

void EditSurface::deleteTo(qsizetype position)
{
    m_goalX.reset();
    if (!m_selection.isEmpty())
        removeSelection();
    else
        putText(std::min(position, m_selection.caret), std::max(position, m_selection.caret), QString(), {});
}

/// Edits as a key tells, and tells whether it did.
bool EditSurface::edits(const QKeyEvent &event)
{
    const qsizetype caret = m_selection.caret;
    const bool plainBackspace =
        event.key() == Qt::Key_Backspace && !(event.modifiers() & ~(Qt::ShiftModifier | Qt::GroupSwitchModifier));
    if (event.matches(Key::SelectAll)) {
        select(0, m_text.length());
        copySelection(true);
    } else if (event.matches(Key::ZoomIn) || event.matches(Key::ZoomOut)) {
        setZoom(m_zoom + (event.matches(Key::ZoomIn) ? 1 : -1));
    } else if (event.matches(Key::Copy)) {
        copySelection(false);
    } else if (plainBackspace || event.matches(Key::Backspace)) {
        deleteTo(surfaceMoves::previousCode(m_text, caret));
    } else if (event.matches(Key::InsertParagraphSeparator)) {
        typeAtCaret(QStringLiteral("\r\n"));
    } else if (event.matches(Key::InsertLineSeparator)) {
        insertAtCaret(QStringLiteral("\n")); // a page's source has one kind of line break
    } else if (event.matches(Key::Cut)) {
        copySelection(false);
        removeSelection();
    } else if (event.matches(Key::Paste)) {
        pasteFrom(event.key() == Qt::Key_Insert && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier));
    } else if (event.matches(Key::Delete)) {
        deleteTo(surfaceMoves::nextCharacter(m_text, caret));
    } else if (event.matches(Key::DeleteEndOfWord)) {
        deleteTo(surfaceMoves::nextWord(m_text, caret));
    } else if (event.matches(Key::DeleteStartOfWord)) {
        deleteTo(surfaceMoves::previousWord(m_text, caret));
    } else if (event.matches(Key::DeleteEndOfLine)) {
        const qsizetype end = m_text.lineEnd(m_text.lineAt(caret));
        deleteTo(caret == end ? surfaceMoves::nextCharacter(m_text, caret) : end);
    } else if (givesText(event)) {
        typeAtCaret(withCrLf(event.text()));
    } else if (!event.matches(Key::Undo) && !event.matches(Key::Redo)) { // which are the owner's
        return false;
    }
    ensureCaretVisible();
    return true;
}

void EditSurface::copySelection(bool primary) const
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (m_selection.isEmpty() || (primary && !clipboard->supportsSelection()))
        return;
    clipboard->setMimeData(createMimeDataFromSelection(), primary ? QClipboard::Selection : QClipboard::Clipboard);
}

void EditSurface::pasteFrom(bool primary)
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    const bool selection = primary && clipboard->supportsSelection();
    if (const QMimeData *held = clipboard->mimeData(selection ? QClipboard::Selection : QClipboard::Clipboard))
        insertFromMimeData(held);
}
