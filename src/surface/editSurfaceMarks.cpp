// The marks of the edit surface: what is drawn of them, and what the user reads and clicks there.
#include "common/plainTip.h"
#include "surface/editSurface.h"
#include "surface/signMargin.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

void EditSurface::setMarkedRanges(MarkOwner owner, const QList<MarkedRange> &ranges)
{
    const std::vector<TextStretch> changed = m_marks.set(owner, ranges, m_text.length());
    if (changed.empty())
        return;
    if (owner == MarkOwner::Colours && m_view.layouts().forgetStretches(changed)) { // their squares take room
        updateAll();
        followView();
        return;
    }
    constexpr size_t few = 8;
    if (changed.size() > few)
        updateAll();
    else
        for (const TextStretch &stretch : changed)
            updateLines(m_text.lineAt(stretch.from), m_text.lineAt(stretch.to));
    const bool hasSigns =
        std::any_of(ranges.begin(), ranges.end(), [](const MarkedRange &mark) { return SignMargin::shows(mark.kind); });
    if (hasSigns && m_signs->isHidden()) { // once it is there it stays, for else the text would move to and fro
        m_signs->show();
        placeMargin();
    }
    if (!m_signs->isHidden())
        m_signs->update();
}

QList<MarkedRange> EditSurface::marksOfLine(qsizetype line) const
{
    QList<MarkedRange> marks;
    if (line >= 0 && line < lineCount())
        m_marks.forEachAt(m_text.lineStart(line), m_text.lineEnd(line),
                          [&](const MarkedRange &mark) { marks.append(mark); });
    return marks;
}

/// Draws what is behind a row from side to side.
void EditSurface::paintGround(QPainter &painter, const ShownRow &row)
{
    if (m_marks.isEmpty())
        return;
    const QList<MarkedRange> marks = marksOfLine(row.place.line);
    const bool isCurrent = std::any_of(marks.begin(), marks.end(),
                                       [](const MarkedRange &mark) { return mark.kind == MarkKind::CurrentLine; });
    if (isCurrent)
        painter.fillRect(QRectF(0, row.top, viewport()->width(), row.height), markColour(MarkKind::CurrentLine));
}

void EditSurface::paintSquares(QPainter &painter)
{
    if (m_marks.isEmpty())
        return;
    const std::vector<ShownRow> rows = m_view.rows();
    m_marks.forEachAt(m_text.lineStart(rows.front().place.line), m_text.lineEnd(rows.back().place.line),
                      [&](const MarkedRange &mark) {
                          if (mark.kind != MarkKind::Colour || !mark.colour || mark.length == 0)
                              return;
                          const QRectF square = m_view.squareOf(mark);
                          const ColourValue colour = *mark.colour;
                          painter.fillRect(square, QColor(redOf(colour), greenOf(colour), blueOf(colour)));
                          painter.setPen(palette().color(QPalette::Mid));
                          painter.setBrush(Qt::NoBrush);
                          painter.drawRect(square.adjusted(0, 0, -1, -1));
                      });
}

QRect EditSurface::squareOf(const MarkedRange &mark) const
{
    return m_view.squareOf(mark).toRect().translated(viewport()->pos());
}

/// The Colour mark whose square is at a point of the viewport.
std::optional<MarkedRange> EditSurface::squareAt(const QPoint &point) const
{
    const qsizetype line = m_view.rowAt(point.y()).line;
    for (const MarkedRange &mark : marksOfLine(line)) {
        if (mark.kind == MarkKind::Colour && mark.length > 0 && m_view.squareOf(mark).contains(point))
            return mark;
    }
    return std::nullopt;
}

/// Shows by the pointer's shape that a square can be clicked.
void EditSurface::pointAtSquare(const QPoint &point)
{
    const bool over = m_hooks.squareClicked && squareAt(point);
    if (over != std::exchange(m_overSquare, over))
        viewport()->setCursor(over ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

bool EditSurface::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showTip(*static_cast<QHelpEvent *>(event)))
        return true;
    return QAbstractScrollArea::viewportEvent(event);
}

/// Tells what the marks at a place of the viewport are about.
bool EditSurface::showTip(const QHelpEvent &event)
{
    const qsizetype place = characterFromPosition(event.pos() + viewport()->pos());
    QList<MarkedRange> marks;
    m_marks.forEachAt(place, place, [&](const MarkedRange &mark) {
        if (place < mark.start + std::max(mark.length, qsizetype(1)))
            marks.append(mark);
    });
    const QString tip = tipOf(marks);
    if (tip.isEmpty())
        return false;
    QToolTip::showText(event.globalPos(), plainTip(tip), viewport());
    return true;
}

QTextCharFormat EditSurface::formatOf(MarkKind kind) const
{
    QTextCharFormat format;
    switch (kind) {
    case MarkKind::Error:
    case MarkKind::Hint:
        format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        format.setUnderlineColor(markColour(kind));
        break;
    case MarkKind::Match:
    case MarkKind::Pair:
        format.setBackground(markColour(kind));
        break;
    default: // which is drawn elsewhere
        break;
    }
    return format;
}

/// The text on a ground stays as readable as it is.
QColor EditSurface::markColour(MarkKind kind) const
{
    constexpr int strength = 70; // of 255
    constexpr int faint = 20;
    QColor colour;
    switch (kind) {
    case MarkKind::Error:
        return m_darkGround ? QColor(255, 110, 100) : QColor(224, 60, 49);
    case MarkKind::Hint:
        return m_darkGround ? QColor(110, 170, 240) : QColor(76, 139, 217);
    case MarkKind::Match:
        colour = QColor(255, 200, 0);
        break;
    case MarkKind::Changed:
        return m_darkGround ? QColor(120, 190, 120) : QColor(80, 150, 80);
    case MarkKind::CurrentLine:
        colour = palette().color(QPalette::Highlight);
        colour.setAlpha(m_darkGround ? faint * 2 : faint);
        return colour;
    default:
        colour = palette().color(QPalette::Highlight);
        break;
    }
    colour.setAlpha(strength);
    return colour;
}
