#include "platform/layout.h"

#include "platform/form.h"

#include <QComboBox>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>

namespace ui
{
namespace
{
/// A caption as it is spoken: without its accelerator mark and the colon behind it.
QString spoken(QString caption)
{
    caption.replace(QStringLiteral("&&"), QStringLiteral("\x01")).remove(u'&').replace(u'\x01', u'&');
    while (caption.endsWith(u':') || caption.endsWith(u'.'))
        caption.chop(1);
    return caption.trimmed();
}

template <class Layout>
Node laidOut(const QList<Node> &pieces)
{
    auto *layout = new Layout;
    for (const Node &piece : pieces)
        piece.addTo(*layout);
    return Node(layout);
}

template <class Control>
Control *named(Control *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}

/// Runs a handler at the control's events of one kind, before the control's own handling: a click that brings the focus
/// still places the caret afterwards.
class FocusWatch final : public QObject
{
public:
    FocusWatch(QWidget *control, QEvent::Type type, Handler handler)
        : QObject(control), m_type(type), m_handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == m_type)
            m_handler();
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type m_type;
    Handler m_handler;
};
} // namespace

Node Node::stretched(int share) const
{
    Node node = *this;
    node.m_stretch = share;
    return node;
}

void Node::addTo(QBoxLayout &layout) const
{
    if (m_widget)
        layout.addWidget(m_widget, m_stretch);
    else if (m_layout)
        layout.addLayout(m_layout, m_stretch);
    else
        layout.addStretch(1);
}

Row row(const QString &label, const Node &control, const QList<Node> &trailing, const QString &labelName)
{
    return {label, control, trailing, labelName};
}

Node rows(const QList<Row> &rows)
{
    auto *grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    int at = 0;
    for (const Row &row : rows) {
        auto *caption = new QLabel(row.label);
        caption->setObjectName(row.labelName);
        grid->addWidget(caption, at, 0);
        QWidget *control = row.control.widget();
        if (control) {
            caption->setBuddy(control);
            control->setAccessibleName(spoken(row.label));
        }
        if (control && row.trailing.isEmpty())
            grid->addWidget(control, at, 1);
        else
            grid->addLayout(line(QList<Node>{row.control.stretched()} + row.trailing).layout(), at, 1);
        ++at;
    }
    return Node(grid);
}

Node column(const QList<Node> &pieces)
{
    return laidOut<QVBoxLayout>(pieces);
}

Node line(const QList<Node> &pieces)
{
    return laidOut<QHBoxLayout>(pieces);
}

Node beside(const QList<Node> &pieces)
{
    QList<Node> sharing = pieces;
    if (!sharing.isEmpty())
        sharing.front() = sharing.front().stretched();
    return line(sharing);
}

Node group(const QString &caption, const Node &content, const QString &name)
{
    auto *box = named(new QGroupBox(caption), name);
    auto *layout = new QVBoxLayout(box);
    content.addTo(*layout);
    return box;
}

Node buttons(const QList<QPushButton *> &buttons)
{
    auto *layout = new QVBoxLayout;
    for (QPushButton *button : buttons)
        layout->addWidget(button);
    layout->addStretch(1);
    return Node(layout);
}

Node pages(QTabBar *strip, const QString &panels, const QList<Node> &contents)
{
    auto *stack = new QStackedWidget;
    for (int i = 0; i < contents.size(); ++i) {
        auto *panel = named(new QWidget, controlName(panels, i));
        auto *layout = new QVBoxLayout(panel);
        contents[i].addTo(*layout);
        stack->addWidget(panel);
    }
    QObject::connect(strip, &QTabBar::currentChanged, stack, &QStackedWidget::setCurrentIndex);
    return column({Node(strip), Node(stack, 1)});
}

Node space()
{
    return Node::space();
}

QLabel *label(const QString &name, const QString &caption)
{
    return named(new QLabel(caption), name);
}

QLineEdit *text(const QString &name, const Handler &change)
{
    auto *control = named(new QLineEdit, name);
    if (change)
        QObject::connect(control, &QLineEdit::textChanged, control, [change] { change(); });
    onGotFocus(control, [control] { SelectAllText(control); });
    return control;
}

QPlainTextEdit *textArea(const QString &name, const Handler &change)
{
    auto *control = named(new QPlainTextEdit, name);
    control->setTabChangesFocus(true);
    if (change)
        QObject::connect(control, &QPlainTextEdit::textChanged, control, [change] { change(); });
    return control;
}

namespace
{
template <class Button>
Button *pressable(const QString &name, const QString &caption, const Handler &click)
{
    auto *control = named(new Button(caption), name);
    if (click)
        QObject::connect(control, &QAbstractButton::clicked, control, [click] { click(); });
    return control;
}
} // namespace

QPushButton *button(const QString &name, const QString &caption, const Handler &click)
{
    return pressable<QPushButton>(name, caption, click);
}

QCheckBox *check(const QString &name, const QString &caption, const Handler &click)
{
    return pressable<QCheckBox>(name, caption, click);
}

QRadioButton *option(const QString &name, const QString &caption, const Handler &click)
{
    return pressable<QRadioButton>(name, caption, click);
}

QComboBox *dropList(const QString &name, const QList<QString> &rows, const Handler &click)
{
    auto *control = named(new QComboBox, name);
    control->addItems(rows);
    if (click)
        QObject::connect(control, &QComboBox::currentIndexChanged, control, [click] { click(); });
    return control;
}

QComboBox *combo(const QString &name, const QList<QString> &rows, const Handler &change)
{
    auto *control = named(new QComboBox, name);
    control->setEditable(true);
    control->setInsertPolicy(QComboBox::NoInsert);
    control->addItems(rows);
    control->setCurrentIndex(-1);
    if (change)
        QObject::connect(control, &QComboBox::editTextChanged, control, [change] { change(); });
    onGotFocus(control->lineEdit(), [control] { SelectAllText(control); });
    return control;
}

QListWidget *list(const QString &name, const Handler &click, const Handler &dblClick)
{
    auto *control = named(new QListWidget, name);
    if (click)
        QObject::connect(control, &QListWidget::itemSelectionChanged, control, [click] { click(); });
    if (dblClick)
        QObject::connect(control, &QListWidget::itemDoubleClicked, control, [dblClick] { dblClick(); });
    return control;
}

QTabBar *tabStrip(const QString &name, const QList<QString> &tabs, const Handler &click)
{
    auto *control = named(new QTabBar, name);
    for (const QString &tab : tabs)
        control->addTab(tab);
    control->setDrawBase(true);
    control->setExpanding(false);
    if (click)
        QObject::connect(control, &QTabBar::currentChanged, control, [click] { click(); });
    return control;
}

void onGotFocus(QWidget *control, const Handler &handler)
{
    new FocusWatch(control, QEvent::FocusIn, handler);
}

void onLostFocus(QWidget *control, const Handler &handler)
{
    new FocusWatch(control, QEvent::FocusOut, handler);
}
} // namespace ui

namespace
{
QLineEdit *lineEditOf(QWidget *control)
{
    if (auto *edit = qobject_cast<QLineEdit *>(control))
        return edit;
    auto *combo = qobject_cast<QComboBox *>(control);
    return combo ? combo->lineEdit() : nullptr;
}

/// Lets no typed character but a digit through. Pasted text is left alone, as the keyboard alone is bound.
class DigitKeys final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const QString typed = static_cast<QKeyEvent *>(event)->text();
        return !typed.isEmpty() && typed[0].isPrint() && (typed[0] < u'0' || typed[0] > u'9');
    }
};
} // namespace

void SetNumbersOnly(QWidget *control)
{
    if (QLineEdit *edit = lineEditOf(control))
        edit->installEventFilter(new DigitKeys(edit));
}

void SelectAllText(QWidget *control)
{
    if (QLineEdit *edit = lineEditOf(control))
        edit->selectAll();
    else if (auto *area = qobject_cast<QPlainTextEdit *>(control))
        area->selectAll();
}
