// Every form on a small screen, at the scale that this process was given, in a small and in a large font: nothing is
// cut off, nothing lies on something else, and what does not fit can be scrolled to.
#include "forms/fittingWindow.h"
#include "forms/form.h"
#include "unit/support/wholeProgram.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QToolButton>

namespace
{
constexpr QSize Screen(1024, 600); ///< of an old small notebook, in its own pixels
constexpr QSize Frame(8, 36);      ///< what a desktop draws around a window

class FormGeometry : public WholeProgram
{
protected:
    FormGeometry() : m_font(QApplication::font()) {}
    ~FormGeometry() override { QApplication::setFont(m_font); }

    void lookAtAll(int points);

private:
    QFont m_font;
};

QString nameOf(const QWidget &widget)
{
    return widget.objectName() + u' ' + QLatin1String(widget.metaObject()->className());
}

QRect placeIn(const QWidget &window, const QWidget &widget)
{
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// What somebody reads or uses as one thing.
bool isControl(const QWidget &widget)
{
    if (qobject_cast<const QComboBox *>(widget.parentWidget()) ||
        qobject_cast<const QAbstractSpinBox *>(widget.parentWidget()) ||
        qobject_cast<const QTabBar *>(widget.parentWidget()) || qobject_cast<const QLineEdit *>(widget.parentWidget()))
        return false; // a part of one
    if (qobject_cast<const QHeaderView *>(&widget) || widget.parentWidget()->inherits("SpinButton"))
        return false; // drawn as large as they are
    return qobject_cast<const QLabel *>(&widget) || qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) || qobject_cast<const QTabBar *>(&widget) ||
           qobject_cast<const QAbstractItemView *>(&widget);
}

/// The area that shows a part of the widget at a time; nothing where it is not in one.
QScrollArea *areaAround(const QWidget &widget)
{
    for (QWidget *above = widget.parentWidget(); above; above = above->parentWidget())
        if (auto *area = qobject_cast<QScrollArea *>(above))
            return area;
    return nullptr;
}

QSize leastSize(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull())
        return {0, 0};
    if (label && label->wordWrap())
        return {0, label->heightForWidth(label->width())};
    const auto *flat = qobject_cast<const QToolButton *>(&widget);
    if (flat && flat->autoRaise()) // drawn without the edge for which the toolkit leaves room
        return flat->text().isEmpty() ? flat->iconSize() : flat->fontMetrics().size(0, flat->text());
    if (widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
        return {0, widget.minimumSizeHint().height()};
    return widget.minimumSizeHint();
}

/// What is wrong with the place of a control.
QString wrongOf(const QWidget &widget, const QWidget &window)
{
    const QSize least = leastSize(widget);
    if (widget.width() < least.width() || widget.height() < least.height())
        return QStringLiteral("%1 is cut off: %2 x %3 of %4 x %5")
            .arg(nameOf(widget))
            .arg(widget.width())
            .arg(widget.height())
            .arg(least.width())
            .arg(least.height());
    const QScrollArea *area = areaAround(widget);
    const QWidget &around = area ? *area->widget() : window;
    if (!around.rect().contains(placeIn(around, widget)))
        return nameOf(widget) + QStringLiteral(" reaches beyond what is around it");
    return {};
}

QStringList wrongPlaces(const QWidget &window)
{
    QStringList wrong;
    QList<const QWidget *> controls;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (widget->isVisible() && widget->window() == &window && isControl(*widget) && !widget->size().isEmpty())
            controls.append(widget);
    for (const QWidget *control : controls) {
        wrong.append(wrongOf(*control, window));
        for (const QWidget *other : controls)
            if (control < other && areaAround(*control) == areaAround(*other) && !control->isAncestorOf(other) &&
                !other->isAncestorOf(control) && placeIn(window, *control).intersects(placeIn(window, *other)))
                wrong.append(nameOf(*control) + QStringLiteral(" and ") + nameOf(*other) +
                             QStringLiteral(" lie on each other"));
    }
    wrong.removeAll(QString());
    return wrong;
}

void FormGeometry::lookAtAll(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    const double scale = QApplication::primaryScreen()->devicePixelRatio();
    const QSize room = (QSizeF(Screen) / scale).toSize() - Frame;
    forEachDialog([&](Form &form) {
        QWidget &window = *form.window();
        takeNaturalHeight(window);
        fitInto(window, room);
        window.show();
        forEachPage(window, [&] {
            settle();
            EXPECT_LE(window.width(), room.width()) << qPrintable(form.Name());
            EXPECT_LE(window.height(), room.height()) << qPrintable(form.Name());
            const QStringList wrong = wrongPlaces(window);
            EXPECT_TRUE(wrong.isEmpty()) << qPrintable(form.Name()) << " at " << window.width() << " x "
                                         << window.height() << ":\n  "
                                         << qPrintable(wrong.join(QStringLiteral("\n  ")));
        });
    });
}
} // namespace

TEST_F(FormGeometry, HoldsInASmallFont)
{
    lookAtAll(9);
}

TEST_F(FormGeometry, HoldsInALargeFont)
{
    lookAtAll(18);
}

TEST_F(FormGeometry, IsLookedAtAtTheScaleThatWasAskedFor)
{
    const double asked =
        qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble() : 1;
    EXPECT_DOUBLE_EQ(QApplication::primaryScreen()->devicePixelRatio(), asked);
}
