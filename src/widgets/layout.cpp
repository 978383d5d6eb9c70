#include "widgets/layout.h"

#include "widgets/controlName.h"
#include "widgets/controlWatch.h"
#include "widgets/numberField.h"
#include "widgets/spinButton.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <algorithm>
#include <cmath>
#include <limits>

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

/// The widget that has the focus in the control's place, and so is what a screen reader meets.
QWidget *focusOf(QWidget *control)
{
    QLineEdit *edit = lineEditOf(control);
    return edit ? edit : keysOf(control);
}

void nameBy(const QString &label, QWidget *control)
{
    const auto *button = qobject_cast<QAbstractButton *>(control);
    if (qobject_cast<QLabel *>(control) || label.isEmpty())
        return;
    if (button && !button->text().isEmpty()) {
        control->setAccessibleDescription(label); // "Browse...", of which there are many
        return;
    }
    for (QWidget *named : {control, focusOf(control)}) {
        if (named->accessibleName().isEmpty())
            named->setAccessibleName(label);
    }
}

bool isTall(const QWidget &control)
{
    return control.sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag;
}

bool isFixed(const Node &node)
{
    const QList<QWidget *> widgets = node.widgets();
    return !widgets.isEmpty() && std::all_of(widgets.begin(), widgets.end(), [](const QWidget *widget) {
        return widget->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    });
}

/// Pieces that stand together at the top of their room. To a layout that is aligned, the toolkit gives no more height
/// than it asks for at its favourite width, though wrapped texts need more at a smaller one.
template <class Layout>
class AtTop final : public Layout
{
public:
    AtTop() { this->setAlignment(Qt::AlignTop); }

    void setGeometry(const QRect &room) override
    {
        const int needed = this->hasHeightForWidth() ? this->heightForWidth(room.width()) : 0;
        if (needed <= this->sizeHint().height()) {
            Layout::setGeometry(room);
            return;
        }
        QRect taken = room;
        if (!(this->expandingDirections() & Qt::Vertical))
            taken.setHeight(std::min(room.height(), needed));
        this->setAlignment({});
        Layout::setGeometry(taken);
        this->setAlignment(Qt::AlignTop);
    }
};

QLabel *captionFor(const QString &text, const QString &name, const QList<QWidget *> &controls)
{
    QLabel *caption = label(name, text);
    for (QWidget *control : controls) {
        nameBy(spoken(text), control);
        if (!caption->buddy() && control->focusPolicy() != Qt::NoFocus)
            caption->setBuddy(control);
    }
    if (!caption->buddy() && !controls.isEmpty())
        caption->setBuddy(controls.front());
    return caption;
}

/// A number field keeps its width; what stands behind it follows at once.
Node inRow(const Row &row)
{
    if (isFixed(row.control))
        return line(QList<Node>{row.control} + row.trailing + QList<Node>{space()});
    return row.trailing.isEmpty() ? row.control : line(QList<Node>{row.control.stretched()} + row.trailing);
}

void addRow(QGridLayout &grid, int at, const Row &row)
{
    const Node content = inRow(row);
    const QList<QWidget *> controls = content.widgets();
    if (!row.label.isEmpty()) {
        const bool tall = !controls.isEmpty() && isTall(*controls.front());
        grid.addWidget(captionFor(row.label, row.labelName, controls), at, 0, tall ? Qt::AlignTop : Qt::Alignment());
    }
    if (content.widget())
        grid.addWidget(content.widget(), at, 1);
    else if (content.layout())
        grid.addLayout(content.layout(), at, 1);
}

void collect(const QLayout &layout, QList<QWidget *> &widgets)
{
    for (int i = 0; i < layout.count(); ++i) {
        const QLayoutItem *item = layout.itemAt(i);
        if (item->widget())
            widgets.append(item->widget());
        else if (const auto *inner = dynamic_cast<const QLayout *>(item))
            collect(*inner, widgets);
    }
}
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

QList<QWidget *> Node::widgets() const
{
    QList<QWidget *> widgets;
    if (m_widget)
        widgets.append(m_widget);
    if (m_layout)
        collect(*m_layout, widgets);
    return widgets;
}

Row row(const QString &label, const Node &control, const QList<Node> &trailing, const QString &labelName)
{
    return {label, control, trailing, labelName};
}

Node rows(const QList<Row> &rows)
{
    auto *grid = new AtTop<QGridLayout>;
    grid->setColumnStretch(1, 1);
    for (int at = 0; at < rows.size(); ++at)
        addRow(*grid, at, rows[at]);
    return Node(grid);
}

void alignRows(const QList<Node> &rows)
{
    QList<QGridLayout *> grids;
    int widest = 0;
    for (const Node &node : rows)
        if (auto *grid = qobject_cast<QGridLayout *>(node.layout())) {
            grids.append(grid);
            for (int row = 0; row < grid->rowCount(); ++row)
                if (const QLayoutItem *label = grid->itemAtPosition(row, 0); label && label->widget())
                    widest = std::max(widest, label->widget()->sizeHint().width());
        }
    for (QGridLayout *grid : grids)
        grid->setColumnMinimumWidth(0, widest);
}

Node under(const QString &label, QWidget *control, const QString &labelName)
{
    return column({captionFor(label, labelName, {control}), Node(control, 1)});
}

Node column(const QList<Node> &pieces)
{
    auto *layout = new AtTop<QVBoxLayout>;
    for (const Node &piece : pieces)
        piece.addTo(*layout);
    return Node(layout);
}

Node line(const QList<Node> &pieces)
{
    auto *layout = new QHBoxLayout;
    for (const Node &piece : pieces)
        piece.addTo(*layout);
    return Node(layout);
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
    auto *box = new QGroupBox(caption);
    box->setObjectName(name);
    auto *layout = new QVBoxLayout(box);
    content.addTo(*layout);
    return box;
}

Node options(const QList<QRadioButton *> &choices, Qt::Orientation orientation)
{
    QList<Node> pieces;
    auto *exclusive = choices.isEmpty() ? nullptr : new QButtonGroup(choices.front());
    for (QRadioButton *choice : choices) {
        exclusive->addButton(choice);
        pieces.append(choice);
    }
    return orientation == Qt::Vertical ? column(pieces) : line(pieces + QList<Node>{space()});
}

Node buttons(const QList<QPushButton *> &buttons)
{
    QList<Node> pieces;
    for (QPushButton *button : buttons)
        pieces.append(button);
    return column(pieces);
}

Node pages(QTabBar *strip, const QString &panels, const QList<Node> &contents)
{
    auto *stack = new QStackedWidget;
    for (int i = 0; i < contents.size(); ++i) {
        auto *panel = new QWidget;
        panel->setObjectName(controlName(panels, i));
        panel->setAccessibleName(spoken(strip->tabText(i)));
        auto *layout = new QVBoxLayout(panel);
        contents[i].addTo(*layout);
        stack->addWidget(panel);
    }
    stack->setCurrentIndex(strip->currentIndex());
    QObject::connect(strip, &QTabBar::currentChanged, stack, &QStackedWidget::setCurrentIndex);
    return column({Node(strip), Node(stack, 1)});
}

Node counted(NumberField *field)
{
    const QString name = QStringLiteral("spn") + field->objectName().sliced(3);
    const double largest = std::pow(10.0, field->maxLength()) - 1;
    const double countable = std::numeric_limits<int>::max();
    return counted(field, spin(name, field, 0, static_cast<int>(std::min(largest, countable))));
}

Node counted(NumberField *field, SpinButton *arrows)
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(0);
    layout->addWidget(field);
    layout->addWidget(arrows);
    return Node(layout);
}

Node hidden(QWidget *control)
{
    control->hide();
    return control;
}

Node space()
{
    return Node::space();
}

void relabel(QLabel *label, const QString &caption)
{
    label->setText(caption);
    if (QWidget *control = label->buddy())
        for (QWidget *named : {control, focusOf(control)})
            named->setAccessibleName(spoken(caption));
}
} // namespace ui
