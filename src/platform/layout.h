#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <initializer_list>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabBar;
class QWidget;

/// The one way in which forms are laid out: a description that reads like the form, from top to bottom and left to right.
///
///     setContent(beside({
///         column({
///             rows({row("&Rows:", txtRows = text("txtRows")), row("&Columns:", txtColumns = text("txtColumns"))}),
///             group("Border", column({optNone = option("optNone", "&None", [this] { optNone_Click(); })})),
///         }),
///         buttons({cmdOK = button("cmdOK", "&OK", [this] { cmdOK_Click(); }), cmdCancel = …}),
///     }));
///
/// There are no pixel positions: every form stretches and follows the desktop's font and scale.
namespace ui
{
using Handler = std::function<void()>;

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

private:
    Node() = default;
    QWidget *m_widget = nullptr;
    QLayout *m_layout = nullptr;
    int m_stretch = 0;
};

/// A control with the label before it; the label's accelerator goes to the control, which takes its accessible name from
/// the label. `trailing` stands behind the control in the same row (a unit, a browse button).
struct Row {
    QString label;
    Node control;
    QList<Node> trailing;
    QString labelName;
};
Row row(const QString &label, const Node &control, const QList<Node> &trailing = {}, const QString &labelName = {});

Node rows(const QList<Row> &rows);
Node column(const QList<Node> &pieces);
Node line(const QList<Node> &pieces);
/// Two or more pieces side by side, the first one taking the room.
Node beside(const QList<Node> &pieces);
Node group(const QString &caption, const Node &content, const QString &name = {});
/// A dialog's buttons one below the other, at the top of their column.
Node buttons(const QList<QPushButton *> &buttons);
/// A tab strip over its panels, one a tab; the strip's choice shows the panel. Panels are named `panels(0)` and so on.
Node pages(QTabBar *strip, const QString &panels, const QList<Node> &contents);
Node space();

// Controls. `name` becomes the objectName; captions hold the accelerator mark.
QLabel *label(const QString &name, const QString &caption);
QLineEdit *text(const QString &name, const Handler &change = {});
QPlainTextEdit *textArea(const QString &name, const Handler &change = {});
QPushButton *button(const QString &name, const QString &caption, const Handler &click);
QCheckBox *check(const QString &name, const QString &caption, const Handler &click = {});
QRadioButton *option(const QString &name, const QString &caption, const Handler &click = {});
QComboBox *dropList(const QString &name, const QList<QString> &rows, const Handler &click = {});
QComboBox *combo(const QString &name, const QList<QString> &rows = {}, const Handler &change = {});
QListWidget *list(const QString &name, const Handler &click = {}, const Handler &dblClick = {});
QTabBar *tabStrip(const QString &name, const QList<QString> &tabs, const Handler &click = {});

/// Runs `handler` when the control gets, or loses, the focus.
void onGotFocus(QWidget *control, const Handler &handler);
void onLostFocus(QWidget *control, const Handler &handler);
} // namespace ui

/// Lets the keyboard enter digits only; `control` is a text box or an editable combo.
void SetNumbersOnly(QWidget *control);

/// Selects all of a text control's text: a text box, a text area or an editable combo. Nothing for other controls.
void SelectAllText(QWidget *control);
