#include "widgets/spinButton.h"

#include <QEvent>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

SpinButton::SpinButton(QLineEdit *buddy, int minimum, int maximum, QWidget *parent)
    : QWidget(parent),
      m_buddy(buddy),
      m_minimum(minimum),
      m_maximum(maximum),
      m_up(arrow(Qt::UpArrow, tr("Increase"), 1)),
      m_down(arrow(Qt::DownArrow, tr("Decrease"), -1))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    sizeArrows();
    buddy->installEventFilter(this);
}

/// The arrows take no focus: in the keyboard's hands the buddy counts itself.
QToolButton *SpinButton::arrow(Qt::ArrowType type, const QString &name, int step)
{
    auto *button = new QToolButton(this);
    button->setArrowType(type);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(name);
    connect(button, &QToolButton::clicked, this, [this, step] { count(step); });
    return button;
}

void SpinButton::sizeArrows()
{
    const int height = m_buddy ? m_buddy->sizeHint().height() : fontMetrics().height();
    m_up->setFixedSize(height * 3 / 4, height / 2);
    m_down->setFixedSize(m_up->size());
}

int SpinButton::Value() const
{
    // A longer number than the limits know is cut to them; one that no number can hold counts as none.
    const qlonglong number = m_buddy ? m_buddy->text().toLongLong() : m_minimum;
    return static_cast<int>(std::clamp<qlonglong>(number, m_minimum, m_maximum));
}

void SpinButton::setValue(int value)
{
    if (m_buddy)
        m_buddy->setText(QString::number(std::clamp(value, m_minimum, m_maximum)));
}

/// The largest number goes no further.
void SpinButton::count(int step)
{
    const qlonglong next = qlonglong(Value()) + step;
    setValue(static_cast<int>(std::clamp<qlonglong>(next, m_minimum, m_maximum)));
}

QWidget *SpinButton::upButton() const
{
    return m_up;
}

QWidget *SpinButton::downButton() const
{
    return m_down;
}

bool SpinButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool up = key->key() == Qt::Key_Up;
        if ((up || key->key() == Qt::Key_Down) && !(key->modifiers() & ~Qt::KeypadModifier)) {
            count(up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void SpinButton::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        sizeArrows();
}
