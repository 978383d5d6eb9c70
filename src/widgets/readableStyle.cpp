#include "widgets/readableStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace
{
constexpr double LeastContrast = 3.5; ///< the guidelines ask 3 of the edges of controls; smoothing takes a little off

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto part = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

/// A frame in the toolkit's own style is highlighted while its control has the focus.
bool needsOutline(const QStyleOption &option)
{
    return isDark(option.palette) && option.state.testFlag(QStyle::State_Enabled) &&
           !option.state.testFlag(QStyle::State_HasFocus);
}

void outline(QPainter &painter, const QStyleOption &option, const QRectF &frame, bool round)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(outlineOnDark(option.palette));
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
        return true;
    default:
        return false;
    }
}
} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette &palette)
{
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QColor outlineOnDark(const QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor around = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    constexpr int Steps = 20;
    for (int step = 1; step < Steps; ++step) {
        QColor colour = mixed(around, text, static_cast<double>(step) / Steps);
        if (contrast(colour, ground) >= LeastContrast && contrast(colour, around) >= LeastContrast)
            return colour;
    }
    return text;
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!option || !needsOutline(*option))
        return;
    if (element == PE_IndicatorRadioButton)
        outline(*painter, *option, circleIn(option->rect), true);
    else if (isFieldFrame(element))
        outline(*painter, *option, edgeOf(option->rect), false);
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                       const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option && (control == CC_ComboBox || control == CC_SpinBox) && needsOutline(*option))
        outline(*painter, *option, edgeOf(option->rect), false);
}

void useReadableStyle()
{
    const QStyle *style = QApplication::style();
    if (style->name().compare(QStringLiteral("fusion"), Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new ReadableStyle(QStringLiteral("Fusion")));
}
