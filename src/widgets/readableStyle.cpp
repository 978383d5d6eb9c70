#include "widgets/readableStyle.h"

#include "widgets/contrast.h"
#include "widgets/lateIcon.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>

namespace
{
constexpr int RoomBesideCaption = 9;  ///< pixels between a button's caption and its edge, at least
constexpr double LeastContrast = 3.5; ///< the guidelines ask 3 of the edges of controls; smoothing takes a little off
constexpr double LeastOfDisabled = 1.8;
constexpr double LeastOfGroup = 1.4; ///< on light ground
constexpr int RoomAboveGroup = 3;    ///< pixels between its title and its frame

/// The toolkit's own style highlights the frame of the control that has the focus, and the button that Enter presses.
bool isLitUp(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return option.state.testFlag(QStyle::State_HasFocus) ||
           (button && button->features.testFlag(QStyleOptionButton::DefaultButton));
}

bool isEnabled(const QStyleOption &option)
{
    return option.state.testFlag(QStyle::State_Enabled);
}

/// A control that is disabled has a faint edge, without which an empty box would not be there at all.
QColor edgeColour(const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    if (!isEnabled(option)) {
        const QColor around = palette.color(QPalette::Window);
        return toldApart(around, palette.color(QPalette::WindowText), {palette.color(QPalette::Base), around},
                         LeastOfDisabled);
    }
    return isLitUp(option) ? focusOnDark(palette) : outlineOnDark(palette);
}

void outline(QPainter &painter, const QStyleOption &option, const QRectF &frame, bool round)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edgeColour(option));
    if (round)
        painter.drawEllipse(frame);
    else
        painter.drawRoundedRect(frame, 2, 2);
    painter.restore();
}

QRectF edgeOf(const QRect &rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

/// A tab is open at the side of its pages. The line along the other side of the one in front is thick.
void outlineTab(QPainter &painter, const QStyleOptionTab &tab)
{
    const bool isBelow = tab.shape == QTabBar::RoundedSouth;
    if (!isBelow && tab.shape != QTabBar::RoundedNorth)
        return;              // there are none at the sides
    constexpr int Lower = 2; ///< pixels by which the toolkit draws the tabs behind the one in front
    const bool isInFront = tab.state.testFlag(QStyle::State_Selected);
    QRectF edge = edgeOf(tab.rect);
    if (!isInFront)
        edge.adjust(0, isBelow ? 0 : Lower, 0, isBelow ? -Lower : 0);
    const qreal open = isBelow ? edge.top() : edge.bottom();
    const qreal closed = isBelow ? edge.bottom() : edge.top();
    const QPointF line[] = {{edge.left(), open}, {edge.left(), closed}, {edge.right(), closed}, {edge.right(), open}};
    painter.save();
    painter.setPen(outlineOnDark(tab.palette));
    painter.drawPolyline(line, 4);
    if (isInFront) {
        painter.setPen(QPen(focusOnDark(tab.palette), 2));
        painter.drawLine(line[1], line[2]);
    }
    painter.restore();
}

/// The toolkit draws it with a picture, which brings all readers of pictures into memory, and on black leaves hardly a
/// trace.
void drawGroup(QPainter &painter, const QPalette &palette, const QRect &frame)
{
    constexpr int ShadeOfInside = 5; // of 255
    QColor inside = palette.color(QPalette::WindowText);
    inside.setAlpha(ShadeOfInside);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(groupOutline(palette));
    painter.setBrush(inside);
    painter.drawRoundedRect(edgeOf(frame), 2, 2);
    painter.restore();
}

/// The circle that the toolkit's style draws of an option.
QRectF circleIn(const QRect &rect)
{
    const int odd = rect.width() + (rect.width() + 1) % 2;
    const double radius = odd / 2.0 - 1;
    const QPointF centre = QPointF(rect.center()) + QPointF(1, 1);
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

bool isFieldFrame(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_Frame:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
    case QStyle::PE_PanelButtonCommand:
        return true;
    default:
        return false;
    }
}
} // namespace

bool isDark(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    return contrast(window, Qt::black) < contrast(palette.color(QPalette::WindowText), Qt::black);
}

QColor outlineOnDark(const QPalette &palette)
{
    const QColor around = palette.color(QPalette::Window);
    return toldApart(around, palette.color(QPalette::WindowText), {palette.color(QPalette::Base), around},
                     LeastContrast);
}

QColor focusOnDark(const QPalette &palette)
{
    // As bright as an outline is, and then some: a colour alone does not tell everybody which of them it is.
    constexpr double LeastOfFocus = 5;
    return toldApart(palette.color(QPalette::Highlight), palette.color(QPalette::WindowText),
                     {palette.color(QPalette::Base), palette.color(QPalette::Window)}, LeastOfFocus);
}

QColor groupOutline(const QPalette &palette)
{
    const QColor around = palette.color(QPalette::Window);
    return toldApart(around, palette.color(QPalette::WindowText), {around},
                     isDark(palette) ? LeastOfDisabled : LeastOfGroup);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    if (option && element == PE_FrameGroupBox) {
        const auto *group = qobject_cast<const QGroupBox *>(widget);
        const bool isTitled = !group || group->isCheckable() || !group->title().isEmpty();
        const int title = std::max(pixelMetric(PM_IndicatorHeight, option, widget), option->fontMetrics.height());
        drawGroup(*painter, option->palette, option->rect.adjusted(0, RoomAboveGroup + (isTitled ? title : 0), 0, 0));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!option || !isDark(option->palette))
        return;
    if (element == PE_IndicatorRadioButton)
        outline(*painter, *option, circleIn(option->rect), true);
    else if (isFieldFrame(element))
        outline(*painter, *option, edgeOf(option->rect), false);
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (element == CE_TabBarTabShape && tab && isEnabled(*tab) && isDark(tab->palette))
        outlineTab(*painter, *tab);
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                       const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option && (control == CC_ComboBox || control == CC_SpinBox) && isDark(option->palette))
        outline(*painter, *option, edgeOf(option->rect), false);
    if (option && control == CC_ScrollBar && isEnabled(*option) && isDark(option->palette)) {
        const QRect slider = proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget);
        outline(*painter, *option, edgeOf(slider), false);
    }
}

QSize ReadableStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                      const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (type != CT_PushButton || !button || button->text.isEmpty())
        return size;
    return size.expandedTo(QSize(contents.width() + 2 * RoomBesideCaption, 0));
}

QIcon ReadableStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget * /*widget*/) const
{
    const Qt::LayoutDirection direction = option ? option->direction : QApplication::layoutDirection();
    const auto kept = m_icons.constFind({icon, direction});
    if (kept != m_icons.constEnd()) // whether it is an empty one is not asked: that would make it
        return *kept;
    return *m_icons.insert({icon, direction}, lateIcon([style = QPointer(this), icon, direction] {
                               QStyleOption asked;
                               asked.direction = direction;
                               return style ? style->QProxyStyle::standardIcon(icon, &asked)
                                            : QApplication::style()->standardIcon(icon, &asked);
                           }));
}

void ReadableStyle::polish(QPalette &palette)
{
    m_icons.clear(); // a theme brings icons of its own
    QProxyStyle::polish(palette);
}

void useReadableStyle()
{
    const QStyle *style = QApplication::style();
    if (style->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) != 0)
        return;
    QApplication::setStyle(new ReadableStyle(QStringLiteral("Fusion")));
    // The style keeps a picture of each box and field that it has drawn, for each of its states. Small ones and signs
    // have room; to draw a wide one anew takes a tenth of a millisecond.
    constexpr int MostKept = 16; // KiB, of all together
    QPixmapCache::setCacheLimit(MostKept);
}
