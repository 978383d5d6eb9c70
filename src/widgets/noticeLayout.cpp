#include "widgets/noticeLayout.h"

#include <QFontMetrics>
#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace
{
/// A text that is to stand in fewer characters than these beside the buttons has them below.
constexpr int FewestCharactersBeside = 36;
} // namespace

NoticeLayout::~NoticeLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem *NoticeLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int NoticeLayout::gap() const
{
    const QWidget *parent = parentWidget();
    const int styled =
        parent ? parent->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, parent) : spacing();
    return std::max(styled, 4);
}

QList<QLayoutItem *> NoticeLayout::buttons() const
{
    QList<QLayoutItem *> shown;
    for (qsizetype i = 1; i < m_items.size(); ++i)
        if (!m_items[i]->isEmpty()) // a hidden one takes no room
            shown.append(m_items[i]);
    return shown;
}

/// In one row.
QSize NoticeLayout::buttonsSize() const
{
    QSize size;
    for (const QLayoutItem *button : buttons()) {
        const QSize hint = button->sizeHint();
        size.rwidth() += hint.width() + gap();
        size.setHeight(std::max(size.height(), hint.height()));
    }
    return size;
}

int NoticeLayout::textHeight(int width) const
{
    const QLayoutItem *text = itemAt(0);
    if (!text)
        return 0;
    return text->hasHeightForWidth() ? text->heightForWidth(std::max(width, 1)) : text->sizeHint().height();
}

int NoticeLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize NoticeLayout::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int text = itemAt(0) ? itemAt(0)->sizeHint().width() : 0;
    const int width = text + buttonsSize().width() + margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

/// As narrow as its widest button, so that it never makes its window wider.
QSize NoticeLayout::minimumSize() const
{
    const QMargins margins = contentsMargins();
    int width = 0;
    for (const QLayoutItem *button : buttons())
        width = std::max(width, button->minimumSize().width());
    return {width + margins.left() + margins.right(), 0};
}

void NoticeLayout::setGeometry(const QRect &place)
{
    QLayout::setGeometry(place);
    arrange(place, true);
}

/// Puts all in its place, if asked to; the height that it takes.
int NoticeLayout::arrange(const QRect &place, bool apply) const
{
    const QMargins margins = contentsMargins();
    const QRect inside = place.marginsRemoved(margins);
    const QWidget *parent = parentWidget();
    const int character = parent ? parent->fontMetrics().averageCharWidth() : 1;
    const int wanted = std::min(FewestCharactersBeside * character, itemAt(0) ? itemAt(0)->sizeHint().width() : 0);
    const bool beside = inside.width() - buttonsSize().width() >= wanted;
    const int height = beside ? arrangeBeside(inside, apply) : arrangeBelow(inside, apply);
    return height + margins.top() + margins.bottom();
}

int NoticeLayout::arrangeBeside(const QRect &inside, bool apply) const
{
    const QSize row = buttonsSize();
    const int textWidth = inside.width() - row.width();
    const int height = std::max(textHeight(textWidth), row.height());
    if (!apply)
        return height;
    if (QLayoutItem *text = itemAt(0))
        text->setGeometry(QRect(inside.left(), inside.top(), textWidth, height));
    int left = inside.left() + textWidth;
    for (QLayoutItem *button : buttons()) {
        const QSize size = button->sizeHint();
        button->setGeometry({QPoint(left + gap(), inside.top() + (height - size.height()) / 2), size});
        left += gap() + size.width();
    }
    return height;
}

int NoticeLayout::arrangeBelow(const QRect &inside, bool apply) const
{
    const int textRoom = textHeight(inside.width());
    if (QLayoutItem *text = itemAt(0); text && apply)
        text->setGeometry(QRect(inside.left(), inside.top(), inside.width(), textRoom));
    int left = inside.left();
    int top = inside.top() + textRoom + gap();
    int bottom = inside.top() + textRoom;
    for (QLayoutItem *button : buttons()) {
        const QSize hint = button->sizeHint();
        const QSize size(std::min(hint.width(), std::max(inside.width(), button->minimumSize().width())),
                         hint.height());
        if (left > inside.left() && left + size.width() > inside.left() + inside.width()) {
            left = inside.left();
            top = bottom + gap();
        }
        if (apply)
            button->setGeometry({QPoint(left, top), size});
        left += size.width() + gap();
        bottom = std::max(bottom, top + size.height());
    }
    return bottom - inside.top();
}
