#include "surface/editSurface.h"

#include "common/darkGround.h"
#include "common/longLines.h"
#include "common/text.h"
#include "surface/lineMargin.h"

#include <QFontDatabase>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <utility>

namespace
{
QPalette::ColorRole roleOf(ColourValue colour)
{
    switch (colour) {
    case WindowColour:
        return QPalette::Base;
    case HighlightColour:
        return QPalette::Highlight;
    case ButtonFaceColour:
        return QPalette::Button;
    default:
        return QPalette::Text;
    }
}
} // namespace

EditSurface::EditSurface(QWidget *parent)
    : QPlainTextEdit(parent),
      m_text(document()),
      m_formats(document(), [this](ColourValue colour) { return colourFor(colour); }),
      m_margin(new LineMargin(this))
{
    m_darkGround = isOnDarkGround();
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setMouseTracking(true); // the owner follows the pointer with no button down
    connect(document(), &QTextDocument::contentsChange, this, &EditSurface::keepPastChange);
    connect(this, &QPlainTextEdit::textChanged, this, &EditSurface::tellTextChange);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &EditSurface::tellSelection);
    connect(this, &QPlainTextEdit::selectionChanged, this, &EditSurface::tellSelection);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &EditSurface::placeMargin);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &EditSurface::tellScrolling);
    connect(this, &QPlainTextEdit::updateRequest, this, &EditSurface::moveMargin);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &EditSurface::tellScrolling);
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
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    breakLongLines(text);
    m_text.load(withCrLf(text));
    m_formats.forget();
    m_textChanged = true;
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

QString EditSurface::textPart(qsizetype start, qsizetype length) const
{
    return start < 0 || length < 0 ? QString() : m_text.mid(start, length);
}

qsizetype EditSurface::textLength() const
{
    return m_text.length();
}

qsizetype EditSurface::SelStart() const
{
    return m_text.position(textCursor().selectionStart());
}

bool EditSurface::setSelStart(qsizetype start)
{
    if (start < 0)
        return false;
    const int position = m_text.documentPosition(start);
    select(position, position);
    return true;
}

qsizetype EditSurface::SelLength() const
{
    const QTextCursor cursor = textCursor();
    return m_text.position(cursor.selectionEnd()) - m_text.position(cursor.selectionStart());
}

bool EditSurface::setSelLength(qsizetype length)
{
    if (length < 0)
        return false;
    const QTextCursor cursor = cursorOver(SelStart(), length);
    select(cursor.anchor(), cursor.position());
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

TextFormat EditSurface::selectionFormat() const
{
    const QTextCursor cursor = textCursor();
    return cursor.hasSelection() ? m_formats.read(cursor.selectionStart(), cursor.selectionEnd())
                                 : m_formats.read(cursor.charFormat());
}

void EditSurface::setSelectionFormat(const TextFormat &format)
{
    const QTextCursor cursor = textCursor();
    if (cursor.hasSelection())
        setFormat(SelStart(), SelLength(), format);
    else
        setCurrentCharFormat(m_formats.changed(cursor.charFormat(), format));
}

TextFormat EditSurface::formatOf(qsizetype start, qsizetype length) const
{
    if (start < 0 || length < 0)
        return {};
    const QTextCursor cursor = cursorOver(start, length);
    return m_formats.read(cursor.selectionStart(), cursor.selectionEnd());
}

bool EditSurface::setFormat(qsizetype start, qsizetype length, const TextFormat &format)
{
    setFormats({{start, length, format}});
    return start >= 0 && length >= 0;
}

void EditSurface::setFormats(const QList<FormatRange> &ranges)
{
    QList<SurfaceFormats::Range> inDocument;
    for (const FormatRange &range : ranges) {
        if (range.start < 0 || range.length < 0)
            continue;
        const qsizetype end =
            range.start + std::min(range.length, m_text.length() - std::min(range.start, m_text.length()));
        inDocument.append({m_text.documentPosition(range.start), m_text.documentPosition(end), range.format});
    }
    const QScopedValueRollback<bool> formatsOnly(m_formatsOnly, true);
    m_formats.apply(inDocument);
}

void EditSurface::setHideSelection(bool hide)
{
    m_hideSelection = hide;
    viewport()->update();
}

void EditSurface::setPaintingHeld(bool held)
{
    setUpdatesEnabled(!held);
}

qsizetype EditSurface::lineCount() const
{
    return m_text.lines().lineCount();
}

qsizetype EditSurface::lineFromCharacter(qsizetype position) const
{
    return m_text.lines().lineAt(position);
}

std::optional<qsizetype> EditSurface::characterFromLine(qsizetype line) const
{
    if (line < 0 || line >= lineCount())
        return std::nullopt;
    return m_text.lines().lineStart(line);
}

qsizetype EditSurface::firstVisibleLine() const
{
    return firstVisibleBlock().blockNumber();
}

void EditSurface::scrollToLine(qsizetype line)
{
    const qsizetype cut = std::clamp(line, qsizetype(0), lineCount() - 1);
    verticalScrollBar()->setValue(document()->findBlockByNumber(static_cast<int>(cut)).firstLineNumber());
}

void EditSurface::setWrapToWindow(bool wrap)
{
    const Step step(this);
    const qsizetype top = firstVisibleLine();
    setLineWrapMode(wrap ? WidgetWidth : NoWrap);
    scrollToLine(top);
}

bool EditSurface::wrapToWindow() const
{
    return lineWrapMode() == WidgetWidth;
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
    const QTextBlock block = cursorForPosition(inViewport).block();
    const QPointF inBlock = inViewport - blockBoundingGeometry(block).translated(contentOffset()).topLeft();
    int row = 0;
    while (row + 1 < block.layout()->lineCount() && block.layout()->lineAt(row).rect().bottom() <= inBlock.y())
        ++row;
    const int column = block.layout()->lineAt(row).xToCursor(inBlock.x(), QTextLine::CursorOnCharacter);
    return m_text.position(block.position() + column);
}

QRect EditSurface::positionOfCharacter(qsizetype position) const
{
    return cursorRect(cursorOver(position, 0)).translated(viewport()->pos());
}

QList<EditSurface::VisibleLine> EditSurface::visibleLines() const
{
    QList<VisibleLine> lines;
    qreal top = contentOffset().y();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && top < viewport()->height(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        lines.append({block.blockNumber(), qRound(top), qRound(block.layout()->lineAt(0).height())});
        top += height;
    }
    return lines;
}

/// A cursor over a range that is cut to the text; its position is the range's end.
QTextCursor EditSurface::cursorOver(qsizetype start, qsizetype length) const
{
    const qsizetype from = std::clamp(start, qsizetype(0), m_text.length());
    QTextCursor cursor(document());
    cursor.setPosition(m_text.documentPosition(from));
    cursor.setPosition(m_text.documentPosition(from + std::min(length, m_text.length() - from)),
                       QTextCursor::KeepAnchor);
    return cursor;
}

void EditSurface::select(int anchor, int position)
{
    QTextCursor cursor = textCursor();
    if (cursor.anchor() == anchor && cursor.position() == position)
        return; // nor is the format lost that the next character is to take
    const Step step(this);
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

/// In a line of half a million characters without a blank, looking for blanks takes more than ten seconds.
void EditSurface::breakLongLines(const QString &text)
{
    if (hasLongLines(lineExtremesOf(text)))
        setWordWrapMode(QTextOption::WrapAnywhere);
}

void EditSurface::insertAtCaret(const QString &text)
{
    breakLongLines(text);
    const Step step(this);
    QTextCursor cursor = textCursor();
    QTextCharFormat format = cursor.charFormat();
    if (cursor.hasSelection()) {
        QTextCursor first(document());
        first.setPosition(cursor.selectionStart() + 1);
        format = first.charFormat();
    }
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    m_text.insert(cursor, withCrLf(text), format);
    cursor.endEditBlock();
    setTextCursor(cursor);
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
    if (selection != std::exchange(m_toldSelection, selection))
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

void EditSurface::keepPastChange(int from, int removed, int added)
{
    // Formats are reported like text that gives way to as much text.
    if (m_formatsOnly && removed == added)
        return;
    if (m_text.follow(from, removed, added))
        m_textChanged = true;
}

bool EditSurface::isOnDarkGround() const
{
    return palette().color(QPalette::Base).lightness() < palette().color(QPalette::Text).lightness();
}

/// What a dialog beside the text has selected is seen as well as what the user has.
void EditSurface::keepSelectionColours()
{
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setBrush(QPalette::Inactive, role, colours.brush(QPalette::Active, role));
    if (colours != palette())
        setPalette(colours);
}

void EditSurface::followGround()
{
    const bool dark = isOnDarkGround();
    if (dark == m_darkGround)
        return;
    m_darkGround = dark;
    const QScopedValueRollback<bool> formatsOnly(m_formatsOnly, true);
    m_formats.redraw();
}

/// The colour that a value is drawn with.
QColor EditSurface::colourFor(ColourValue colour) const
{
    if (isSystemColour(colour))
        return palette().color(roleOf(colour));
    const ColourValue drawn = isOnDarkGround() ? readableOnDark(colour) : colour;
    return QColor(redOf(drawn), greenOf(drawn), blueOf(drawn));
}
