#include "insertion/menuPreview.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>

namespace
{
constexpr int LeastBarHeight = 19;
constexpr int CellSpacing = 2;
constexpr int CellPadding = 1;
constexpr int BoxIndent = 10; // of a box from its caption's left edge
constexpr int TextPixels = 16;
constexpr int Room = 8; // below the longest box, so that its end is seen

/// The letters that a browser takes where a page names none.
QFont pageFont()
{
    QFont font(QStringLiteral("serif"));
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(TextPixels);
    return font;
}

} // namespace

MenuPreview::MenuPreview(QWidget *parent) : QWidget(parent)
{
    setFont(pageFont());
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    arrange();
}

void MenuPreview::setPicture(const MenuPicture &picture)
{
    m_picture = picture;
    m_pointed = -1;
    arrange();
    updateGeometry();
    update();
}

void MenuPreview::setOpen(int caption)
{
    m_open = caption;
    update();
}

void MenuPreview::arrange()
{
    // A bar without a padding of its own is a table, whose cells have some, and whose height is written.
    const bool isTable = m_picture.itemPadding == 0;
    const int spacing = isTable ? CellSpacing : 0;
    const int cell = isTable ? CellPadding : 0;
    const int height = fontMetrics().height() + 2 * (cell + m_picture.itemPadding);
    m_barHeight = std::max(isTable ? LeastBarHeight : 0, height + 2 * spacing);
    m_captions.clear();
    int left = spacing;
    for (const MenuPicture::Caption &caption : std::as_const(m_picture.captions)) {
        const int width = fontMetrics().horizontalAdvance(caption.text) + 2 * (cell + 2 * m_picture.itemPadding);
        m_captions.append(QRect(left, (m_barHeight - height) / 2, width, height));
        left += width + spacing;
    }
    m_size = QSize(left, m_barHeight + fontMetrics().height() + Room);
    for (int caption = 0; caption < m_captions.size(); ++caption) {
        const QRect box = boxOf(caption).place;
        m_size = m_size.expandedTo(QSize(box.right() + 1, box.bottom() + 1 + Room));
    }
}

/// Lines of that width at most, with the link in them underlined.
void MenuPreview::layOut(QTextLayout &item, int width) const
{
    const int blanks = m_picture.itemBlanks ? 1 : 0;
    const QString blank(blanks, QChar(QChar::Nbsp));
    QTextLayout::FormatRange link{blanks, static_cast<int>(item.text().size()), {}};
    link.format.setFontUnderline(true);
    item.setText(blank + item.text() + blank);
    item.setFont(font());
    item.setFormats({link});
    item.beginLayout();
    double top = 0;
    for (QTextLine line = item.createLine(); line.isValid(); line = item.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, top});
        top += line.height();
    }
    item.endLayout();
}

MenuPreview::Box MenuPreview::boxOf(int caption) const
{
    const int left = m_captions[caption].left() + (m_picture.itemPadding > 0 ? 0 : BoxIndent);
    const QMargins padding(2 * m_picture.itemPadding, m_picture.itemPadding, 2 * m_picture.itemPadding,
                           m_picture.itemPadding);
    Box box;
    int top = m_barHeight;
    for (const QString &item : m_picture.captions[caption].items) {
        const int room = std::max(1, m_picture.boxWidth - padding.left() - padding.right());
        QTextLayout text(item);
        layOut(text, room);
        const int height = qCeil(text.boundingRect().height());
        const QRect place(left, top, m_picture.boxWidth, height + padding.top() + padding.bottom());
        box.items.append(place.marginsRemoved(padding));
        top += place.height();
    }
    box.place = QRect(left, m_barHeight, m_picture.boxWidth, top - m_barHeight);
    return box;
}

void MenuPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white); // the page
    painter.fillRect(0, 0, width(), m_barHeight, m_picture.bar);
    painter.setPen(m_picture.barText);
    for (int caption = 0; caption < m_captions.size(); ++caption)
        painter.drawText(m_captions[caption], Qt::AlignCenter, m_picture.captions[caption].text);
    if (shownBox() >= 0 && shownBox() < m_captions.size())
        drawBox(painter, shownBox());
}

void MenuPreview::drawBox(QPainter &painter, int caption) const
{
    const Box box = boxOf(caption);
    painter.fillRect(box.place, m_picture.box);
    painter.setPen(m_picture.itemText);
    for (int item = 0; item < box.items.size(); ++item) {
        QTextLayout text(m_picture.captions[caption].items[item]);
        layOut(text, box.items[item].width());
        text.draw(&painter, box.items[item].topLeft());
    }
}

int MenuPreview::captionAt(const QPoint &point) const
{
    const auto found = std::find_if(m_captions.begin(), m_captions.end(),
                                    [&](const QRect &caption) { return caption.contains(point); });
    return found == m_captions.end() ? -1 : static_cast<int>(found - m_captions.begin());
}

void MenuPreview::point(int caption)
{
    if (caption == m_pointed)
        return;
    m_pointed = caption;
    update();
}

/// A box stays open as long as the pointer is in it.
void MenuPreview::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const int caption = captionAt(place);
    setCursor(caption >= 0 && m_picture.hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
    const bool inBox = m_pointed >= 0 && boxOf(m_pointed).place.contains(place);
    if (caption >= 0 || !inBox)
        point(caption);
}

void MenuPreview::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint place = event->position().toPoint();
    const int caption = captionAt(place);
    if (caption >= 0) {
        Q_EMIT captionPicked(caption);
        return;
    }
    const int open = shownBox();
    const QList<QRect> items = open < 0 || open >= m_captions.size() ? QList<QRect>() : boxOf(open).items;
    for (int item = 0; item < items.size(); ++item)
        if (items[item].contains(place)) {
            Q_EMIT itemPicked(open, item);
            return;
        }
}

void MenuPreview::leaveEvent(QEvent *)
{
    point(-1);
}
