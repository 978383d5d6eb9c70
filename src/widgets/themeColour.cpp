#include "widgets/themeColour.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QVariant>

namespace
{
constexpr const char *Property = "BackColor";

bool isPaper(const QWidget &control)
{
    return qobject_cast<const QLineEdit *>(&control) || qobject_cast<const QAbstractItemView *>(&control) ||
           qobject_cast<const QPlainTextEdit *>(&control) || qobject_cast<const QComboBox *>(&control);
}

void fill(QWidget &control)
{
    QPalette palette = control.palette();
    const QPalette::ColorRole role = isPaper(control) ? QPalette::Base : QPalette::Window;
    palette.setColor(role, shownColour(backColor(control), QApplication::palette()));
    control.setPalette(palette);
    control.setAutoFillBackground(!isPaper(control));
}

/// Fills the control again when the theme changes.
class ThemeWatch final : public QObject
{
public:
    explicit ThemeWatch(QWidget &control) : QObject(&control), m_control(control) { control.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool changed = event->type() == QEvent::PaletteChange || event->type() == QEvent::ThemeChange;
        if (changed && !m_filling) { // filling is itself a change of the palette
            m_filling = true;
            fill(m_control);
            m_filling = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget &m_control;
    bool m_filling = false;
};
} // namespace

QPalette::ColorRole themeRole(ColourValue colour)
{
    switch (colour) {
    case WindowColour:
        return QPalette::Base;
    case HighlightColour:
        return QPalette::Highlight;
    case ButtonFaceColour:
        return QPalette::Window; // the ground of forms; QPalette::Button is the face of their keys alone
    default:
        return QPalette::Text;
    }
}

QColor shownColour(ColourValue colour, const QPalette &palette)
{
    if (isSystemColour(colour))
        return palette.color(QPalette::Active, themeRole(colour));
    return QColor(redOf(colour), greenOf(colour), blueOf(colour));
}

ColourValue colourValue(const QColor &colour)
{
    return colourOf(colour.red(), colour.green(), colour.blue());
}

void setBackColor(QWidget &control, ColourValue colour)
{
    const bool watched = control.property(Property).isValid();
    control.setProperty(Property, colour);
    fill(control);
    if (!watched)
        new ThemeWatch(control);
}

ColourValue backColor(const QWidget &control)
{
    const QVariant value = control.property(Property);
    if (value.isValid())
        return value.toUInt();
    return isPaper(control) ? WindowColour : ButtonFaceColour;
}
