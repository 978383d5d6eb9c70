#pragma once

#include "widgets/controls.h"

#include <QList>
#include <QString>

class NumberField;
class QBoxLayout;
class QLabel;
class QLayout;
class QTabBar;
class QWidget;

/// The one way in which forms are laid out: a description that reads like the form, from top to bottom and left to
/// right.
///
///     setContent(beside({
///         column({
///             rows({row("&Rows:", txtRows = number("txtRows", 3)), row("&Summary:", txtSummary =
///             text("txtSummary"))}), group("Border", column({optNone = option("optNone", "&None", [this] {
///             optNone_Click(); })})),
///         }),
///         buttons({cmdOK = button("cmdOK", "&OK", [this] { cmdOK_Click(); }), cmdCancel = …}),
///     }));
///
/// There are no pixel positions: every form stretches and follows the desktop's font and scale. The focus moves in the
/// order of the description. Room to spare goes to what can use it (lists, text areas); all else stays at the top.
namespace ui
{
/// One piece of a form: a control, or controls laid out together.
class Node
{
public:
    Node(QWidget *widget, int stretch = 0) : m_widget(widget), m_stretch(stretch) {} // NOLINT: a control is a piece
    explicit Node(QLayout *layout, int stretch = 0) : m_layout(layout), m_stretch(stretch) {}
    static Node space() { return {}; }

    /// The same piece, taking its share of the room that is left over.
    Node stretched(int share = 1) const;
    void addTo(QBoxLayout &layout) const;
    QWidget *widget() const { return m_widget; }
    QLayout *layout() const { return m_layout; }
    QList<QWidget *> widgets() const; ///< all its controls, in order

private:
    Node() = default;
    QWidget *m_widget = nullptr;
    QLayout *m_layout = nullptr;
    int m_stretch = 0;
};

/// A control with the label before it; the label's accelerator goes to the control, which takes its accessible name
/// from the label. `trailing` stands behind the control in the same row (a unit, a browse button) and is named or
/// described by the label, too. A row without a label stands under the controls of the others.
struct Row {
    QString label;
    Node control;
    QList<Node> trailing;
    QString labelName;
};
Row row(const QString &label, const Node &control, const QList<Node> &trailing = {}, const QString &labelName = {});

Node rows(const QList<Row> &rows);
/// Lets the controls of several groups of rows begin in one column, wherever on the form those stand.
void alignRows(const QList<Node> &rows);
/// A control under its label, as lists and text areas stand.
Node under(const QString &label, QWidget *control, const QString &labelName = {});
Node column(const QList<Node> &pieces);
Node line(const QList<Node> &pieces);
/// Two or more pieces side by side, the first one taking the room.
Node beside(const QList<Node> &pieces);
Node group(const QString &caption, const Node &content, const QString &name = {});
/// Options of which one is set at a time, whatever other options the form has; one below the other, or in a line.
Node options(const QList<QRadioButton *> &choices, Qt::Orientation orientation = Qt::Vertical);
/// A dialog's buttons one below the other, at the top of their column.
Node buttons(const QList<QPushButton *> &buttons);
/// A tab strip over its panels, one a tab; the strip's choice shows the panel. Panels are named `panels(0)` and so on.
Node pages(QTabBar *strip, const QString &panels, const QList<Node> &contents);
/// A number field with its arrows, which count from 0 to what its digits can hold; they are named after the field,
/// "spnRows" for "txtRows".
Node counted(NumberField *field);
/// A number field with its arrows where they have a name or limits of their own.
Node counted(NumberField *field, SpinButton *arrows);
/// A control that the form works with and nobody sees.
Node hidden(QWidget *control);
Node space();

/// Gives a label another caption, and with it another name to the control that it stands for.
void relabel(QLabel *label, const QString &caption);

/// The members of a control array, each built by `make` under its own name, "picBullet(3)".
template <class Make>
auto array(const QString &name, int count, const Make &make)
{
    QList<decltype(make(name, 0))> members;
    for (int index = 0; index < count; ++index)
        members.append(make(QStringLiteral("%1(%2)").arg(name).arg(index), index));
    return members;
}
} // namespace ui
