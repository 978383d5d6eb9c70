#include "forms/fittingWindow.h"

#include <QBoxLayout>
#include <QFocusEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace
{
bool holdsOnlyButtons(const QLayoutItem &item)
{
    if (const QWidget *widget = const_cast<QLayoutItem &>(item).widget())
        return qobject_cast<const QPushButton *>(widget);
    const auto *layout = dynamic_cast<const QLayout *>(&item);
    if (!layout)
        return true; // room between others
    for (int i = 0; i < layout->count(); ++i)
        if (!holdsOnlyButtons(*layout->itemAt(i)))
            return false;
    return true;
}

bool isButtons(const QLayoutItem &item)
{
    return !const_cast<QLayoutItem &>(item).spacerItem() && holdsOnlyButtons(item);
}

/// The layout that has the dialog's buttons as one of its pieces; nothing where they stand among the others.
QBoxLayout *layoutWithButtons(QLayout &layout)
{
    for (int i = 0; i < layout.count(); ++i)
        if (isButtons(*layout.itemAt(i)) && layout.count() > 1)
            return qobject_cast<QBoxLayout *>(&layout);
    auto *only = layout.count() == 1 ? dynamic_cast<QLayout *>(layout.itemAt(0)) : nullptr;
    return only ? layoutWithButtons(*only) : nullptr;
}

/// The controls as they were laid out, in an area of which a part is in sight.
class ScrolledContent final : public QScrollArea
{
public:
    ScrolledContent()
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(new QWidget);
    }

    QSize sizeHint() const override
    {
        const QSize bars(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
        return widget()->sizeHint() + bars;
    }

    /// From now on the control that the keyboard comes to is brought into sight; under the mouse nothing moves.
    void followKeyboard()
    {
        for (QWidget *control : widget()->findChildren<QWidget *>())
            control->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *control = qobject_cast<QWidget *>(watched);
        if (control && control != widget() && event->type() == QEvent::FocusIn &&
            movesTheFocus(static_cast<QFocusEvent *>(event)->reason()))
            bringIntoSight(*control);
        return QScrollArea::eventFilter(watched, event);
    }

protected:
    /// Wrapped texts need the height that they have at this width, which the area does not ask for.
    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        const QLayout *layout = widget()->layout();
        if (layout && layout->hasHeightForWidth())
            widget()->setMinimumHeight(layout->totalHeightForWidth(widget()->width()));
    }

    /// As of any widget: the area's own would bring the middle of a wide control into sight.
    bool focusNextPrevChild(bool next) override
    {
        const bool moved = QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
        QWidget *control = window()->focusWidget();
        if (moved && control && widget()->isAncestorOf(control))
            bringIntoSight(*control);
        return moved;
    }

private:
    static bool movesTheFocus(Qt::FocusReason reason)
    {
        return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason ||
               reason == Qt::OtherFocusReason;
    }

    /// Of a control wider than the area, such as a check box across it, the start is shown; of a field, the caret.
    void bringIntoSight(QWidget &control)
    {
        ensureWidgetVisible(&control);
        if (control.width() > viewport()->width() && !control.testAttribute(Qt::WA_InputMethodEnabled))
            horizontalScrollBar()->setValue(control.mapTo(widget(), QPoint()).x());
    }
};

void moveInto(QBoxLayout &target, QLayoutItem *item, int stretch)
{
    if (auto *layout = dynamic_cast<QLayout *>(item)) {
        layout->setParent(nullptr);
        target.addLayout(layout, stretch);
    } else if (QWidget *widget = item->widget()) {
        target.addWidget(widget, stretch, item->alignment());
        delete item;
    } else {
        target.addItem(item);
    }
}

/// Puts all pieces of the layout, or all but its buttons, into an area that scrolls, in the place of the first of them.
void scrollContent(QBoxLayout &layout, bool withButtons)
{
    auto *area = new ScrolledContent;
    auto *inner = new QBoxLayout(layout.direction(), area->widget());
    inner->setContentsMargins(0, 0, 0, 0);
    int place = -1;
    for (int i = 0; i < layout.count();) {
        if (!withButtons && isButtons(*layout.itemAt(i))) {
            ++i;
            continue;
        }
        place = place < 0 ? i : place;
        const int stretch = layout.stretch(i);
        moveInto(*inner, layout.takeAt(i), stretch);
    }
    layout.insertWidget(std::max(place, 0), area, 1);
    area->followKeyboard();
}

/// What wrapped texts need at a width; nothing where there are none.
int heightAt(const QLayout &layout, int width)
{
    return layout.hasHeightForWidth() ? layout.totalHeightForWidth(width) : 0;
}

/// What the controls need, wrapped texts at the width that the window is to have.
QSize leastSize(const QWidget &window, const QLayout &layout, int widest)
{
    const QSize least = layout.totalMinimumSize().expandedTo(window.minimumSize());
    const int wanted = window.testAttribute(Qt::WA_Resized) ? window.width() : window.sizeHint().width();
    const int width = std::max(least.width(), std::min(wanted, widest));
    return least.expandedTo({0, heightAt(layout, width)});
}

bool fits(const QSize &size, const QSize &room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/// Whether the buttons themselves have room within the margins of the window.
bool buttonsFit(const QBoxLayout &layout, const QLayout &ofWindow, const QSize &room)
{
    const QMargins margins = ofWindow.contentsMargins();
    for (int i = 0; i < layout.count(); ++i)
        if (isButtons(*layout.itemAt(i)) && !fits(layout.itemAt(i)->minimumSize().grownBy(margins), room))
            return false;
    return true;
}
} // namespace

void fitInto(QWidget &window, const QSize &room)
{
    QLayout *layout = window.layout();
    if (!layout)
        return;
    const QSize wanted = window.sizeHint();
    if (!fits(leastSize(window, *layout, room.width()), room)) {
        QBoxLayout *outer = layoutWithButtons(*layout);
        if (!outer)
            outer = qobject_cast<QBoxLayout *>(layout);
        if (!outer)
            return;
        scrollContent(*outer, !buttonsFit(*outer, *layout, room));
        layout->activate(); // what it asked for before is out of date
        window.setMinimumSize(window.minimumSize().boundedTo(room));
    }
    if (window.testAttribute(Qt::WA_Resized) && !fits(window.size(), room))
        window.resize(window.size().boundedTo(room)); // what it was given is more than there is
    if (!fits(wanted, room)) {
        const QSize size = window.sizeHint().expandedTo(wanted).boundedTo(room);
        window.resize(size.expandedTo({0, heightAt(*layout, size.width())}).boundedTo(room));
    }
}

void takeNaturalHeight(QWidget &window)
{
    const QLayout *layout = window.layout();
    if (!layout || !layout->hasHeightForWidth() || window.testAttribute(Qt::WA_Resized))
        return;
    const int width = std::max(window.sizeHint().width(), window.minimumWidth());
    window.resize(width, std::max(layout->totalHeightForWidth(width), window.minimumHeight()));
}

QSize roomFor(const QWidget &window)
{
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const int edge = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    return window.screen()->availableSize() - QSize(2 * edge, title + 2 * edge);
}
