#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>
#include <utility>

class QPalette;

/// Whether a theme's windows are darker than their text.
bool isDark(const QPalette &palette);

/// The colour of an outline that is to be told from a control's ground and from the window around it, on a dark theme.
QColor outlineOnDark(const QPalette &palette);
/// The colour of the frame about a group of controls, on whatever ground.
QColor groupOutline(const QPalette &palette);

/// The colour of the outline of what has the focus, likewise.
QColor focusOnDark(const QPalette &palette);

/// The toolkit's own style draws the edges of boxes, fields and tabs darker than the window, which nobody sees where
/// that is dark. This one outlines them there; on a light theme it draws as the toolkit does. A caption never touches
/// the edges of its button.
class ReadableStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    /// Every menu and tool bar asks for an icon of the button behind which its last entries go where the room is short,
    /// and the buttons of a maximised window ask at each painting: each icon is one and the same until the palette
    /// changes, since the toolkit keeps the pixels of every icon that it is given.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    using QProxyStyle::polish;
    void polish(QPalette &palette) override;

private:
    mutable QHash<std::pair<int, int>, QIcon> m_icons; // by the icon and the direction of writing
};

/// Takes that style for the program where the desktop has none of its own.
void useReadableStyle();
