#pragma once

#include <QProxyStyle>

class QPalette;

/// How much two colours differ in brightness, as the accessibility guidelines count it: from 1 (not at all) to 21.
double contrast(const QColor &a, const QColor &b);

/// Whether a theme's windows are darker than their text.
bool isDark(const QPalette &palette);

/// The colour of an outline that is to be told from a control's ground and from the window around it, on a dark theme.
QColor outlineOnDark(const QPalette &palette);

/// The toolkit's own style draws the edges of boxes and fields darker than the window, which nobody sees where that is
/// dark. This one outlines them there; on a light theme it changes nothing.
class ReadableStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
};

/// Takes that style for the program where the desktop has none of its own.
void useReadableStyle();
