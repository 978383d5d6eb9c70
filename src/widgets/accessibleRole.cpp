#include "widgets/accessibleRole.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

namespace
{
const char *const RoleProperty = "accessibleRole";

class DrawnAccessible final : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    // Asked for each time: a control may become another one, and this object is made but once for it.
    QAccessible::Role role() const override
    {
        return static_cast<QAccessible::Role>(widget()->property(RoleProperty).toInt());
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button && widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        QCoreApplication::sendEvent(widget(), &press);
    }
};

QAccessibleInterface *drawnInterface(const QString &, QObject *object)
{
    auto *control = qobject_cast<QWidget *>(object);
    return control && control->property(RoleProperty).isValid() ? new DrawnAccessible(control) : nullptr;
}
} // namespace

void setAccessibleRole(QWidget &control, QAccessible::Role role)
{
    QAccessible::installFactory(drawnInterface); // a second time, it stays as it is
    // A name that was given before has made it known as what it looks like.
    if (!control.property(RoleProperty).isValid())
        if (QAccessibleInterface *known = QAccessible::queryAccessibleInterface(&control))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    control.setProperty(RoleProperty, static_cast<int>(role));
}
