#include "widgets/controls.h"

#include "widgets/characterGrid.h"
#include "widgets/checkList.h"
#include "widgets/colourPalette.h"
#include "widgets/colourSelection.h"
#include "widgets/colourSwatch.h"
#include "widgets/controlWatch.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"
#include "widgets/numberField.h"
#include "widgets/pictureBox.h"
#include "widgets/programIcon.h"
#include "widgets/spinButton.h"
#include "widgets/tabStrip.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QToolButton>
#include <memory>

namespace ui
{
namespace
{
template <class Control>
Control *named(Control *control, const QString &name)
{
    control->setObjectName(name);
    return control;
}

/// Runs the handler at the signal, whatever the signal tells; nothing if there is no handler.
template <class Control, class Signal>
void run(Control *control, Signal signal, const Handler &handler)
{
    if (handler)
        QObject::connect(control, signal, control, [handler] { handler(); });
}

template <class Control, class Signal>
void runWithIndex(Control *control, Signal signal, const IndexHandler &handler)
{
    if (handler)
        QObject::connect(control, signal, control, [handler](int index) { handler(index); });
}

template <class Button>
Button *pressable(const QString &name, const QString &caption, const Handler &click)
{
    auto *control = named(new Button(caption), name);
    run(control, &QAbstractButton::clicked, click);
    return control;
}

bool isOfWindow(const QEvent &event)
{
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

/// Selects the text when the field is entered. Coming back from another window is no entering: caret and selection
/// stay.
void selectAllOnFocus(QWidget *field)
{
    const auto left = std::make_shared<bool>(true); // false: only its window was
    QWidget *keys = keysOf(field);
    new ControlWatch(keys, QEvent::FocusOut, [left](const QEvent &event) {
        *left = !isOfWindow(event);
        return false;
    });
    new ControlWatch(keys, QEvent::FocusIn, [field, left](const QEvent &) {
        if (*left)
            SelectAllText(field);
        return false;
    });
}
/// The months are turned by arrows in the colour of the text between them; the names are the toolkit's.
void giveArrows(const QCalendarWidget &calendar)
{
    const QColor colour = calendar.palette().color(QPalette::HighlightedText);
    for (const auto &[name, icon] :
         {std::pair("qt_calendar_prevmonth", "arrow-left"), std::pair("qt_calendar_nextmonth", "arrow-right")}) {
        if (auto *button = calendar.findChild<QToolButton *>(QLatin1String(name)))
            button->setIcon(programIcon(QLatin1String(icon), colour, colour));
    }
}

/// Takes away the date that is being typed into the calendar and hovers over it: the toolkit forgets it, memory and
/// all, where the calendar goes first. The key has a text to be taken for one of that date in any case, and for none of
/// the dialog's.
void dropTypedDate(const QCalendarWidget &calendar)
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QStringLiteral("x"));
    if (auto *days = calendar.findChild<QWidget *>(QStringLiteral("qt_calendar_calendarview")))
        QCoreApplication::sendEvent(days, &escape);
}
} // namespace

QLabel *label(const QString &name, const QString &caption, const Handler &click)
{
    auto *control = named(new QLabel(caption), name);
    control->setTextFormat(Qt::PlainText); // captions may hold names of files, which are no markup
    if (click) {
        new ControlWatch(control, QEvent::MouseButtonRelease, [control, click](const QEvent &event) {
            const auto &mouse = static_cast<const QMouseEvent &>(event);
            if (mouse.button() == Qt::LeftButton && control->rect().contains(mouse.position().toPoint()))
                click();
            return false;
        });
    }
    return control;
}

QLineEdit *text(const QString &name, const Handler &change)
{
    auto *control = named(new QLineEdit, name);
    run(control, &QLineEdit::textChanged, change);
    selectAllOnFocus(control);
    return control;
}

QPlainTextEdit *textArea(const QString &name, const Handler &change)
{
    auto *control = named(new QPlainTextEdit, name);
    control->setTabChangesFocus(true);
    run(control, &QPlainTextEdit::textChanged, change);
    return control;
}

QString textOf(const QPlainTextEdit &area)
{
    // The plain text of the control would turn no-break blanks into blanks; its raw text keeps them.
    return area.document()->toRawText().replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

NumberField *number(const QString &name, int maxLength, const Handler &change)
{
    auto *control = named(new NumberField(maxLength), name);
    run(control, &QLineEdit::textChanged, change);
    selectAllOnFocus(control);
    return control;
}

SpinButton *spin(const QString &name, QLineEdit *buddy, int minimum, int maximum)
{
    return named(new SpinButton(buddy, minimum, maximum), name);
}

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
    run(control, &QComboBox::currentIndexChanged, click);
    return control;
}

QComboBox *combo(const QString &name, const QList<QString> &rows, const Handler &change, const Handler &click)
{
    auto *control = named(new QComboBox, name);
    control->setEditable(true);
    control->setInsertPolicy(QComboBox::NoInsert);
    control->setCompleter(nullptr); // what is typed stays what was typed
    control->addItems(rows);
    control->setCurrentIndex(-1);
    run(control, &QComboBox::editTextChanged, change);
    // A row is picked from the list alone: leaving the field with a row's text in it picks nothing.
    QObject::disconnect(control->lineEdit(), &QLineEdit::editingFinished, control, nullptr);
    run(control, &QComboBox::activated, click);
    selectAllOnFocus(control->lineEdit());
    return control;
}

void addRows(QComboBox &combo, const QList<QString> &rows)
{
    const QSignalBlocker quiet(combo);
    const QString text = combo.currentText();
    const int row = combo.currentIndex();
    combo.addItems(rows);
    combo.setCurrentIndex(row);
    combo.setEditText(text);
}

QListWidget *list(const QString &name, const Handler &click, const Handler &dblClick)
{
    auto *control = named(new QListWidget, name);
    run(control, &QListWidget::itemSelectionChanged, click);
    run(control, &QListWidget::itemDoubleClicked, dblClick);
    return control;
}

QListWidget *multiList(const QString &name, const Handler &click, const Handler &dblClick)
{
    QListWidget *control = list(name, click, dblClick);
    control->setSelectionMode(QListWidget::ExtendedSelection);
    return control;
}

CheckList *checkList(const QString &name, const IndexHandler &tick, const Handler &click)
{
    auto *control = named(new CheckList, name);
    runWithIndex(control, &CheckList::rowTicked, tick);
    run(control, &QListWidget::itemSelectionChanged, click);
    return control;
}

ListView *listView(const QString &name, const QList<QString> &columns, const ListViewHandlers &handlers)
{
    auto *control = named(new ListView(columns), name);
    run(control, &QTreeWidget::itemSelectionChanged, handlers.selection);
    runWithIndex(control, &ListView::rowDoubleClicked, handlers.dblClick);
    runWithIndex(control, &ListView::rowEntered, handlers.enter);
    runWithIndex(control, &ListView::rowTicked, handlers.tick);
    return control;
}

NodeTree *tree(const QString &name, const TreeHandlers &handlers)
{
    auto *control = named(new NodeTree, name);
    runWithIndex(control, &NodeTree::nodeClicked, handlers.nodeClick);
    runWithIndex(control, &NodeTree::nodeDoubleClicked, handlers.nodeDblClick);
    runWithIndex(control, &NodeTree::nodeEntered, handlers.nodeEnter);
    return control;
}

DriveList *driveList(const QString &name, FileSystem &files, const Handler &change)
{
    auto *control = named(new DriveList(files), name);
    run(control, &QComboBox::currentIndexChanged, change);
    return control;
}

FolderList *folderList(const QString &name, FileSystem &files, const Handler &change)
{
    auto *control = named(new FolderList(files), name);
    run(control, &FolderList::pathChanged, change);
    return control;
}

FileList *fileList(const QString &name, FileSystem &files, const Handler &pathChange)
{
    auto *control = named(new FileList(files), name);
    run(control, &FileList::pathChanged, pathChange);
    return control;
}

QTabBar *tabStrip(const QString &name, const QList<QString> &tabs, const Handler &click)
{
    auto *control = named(new QTabBar, name);
    for (const QString &tab : tabs)
        control->addTab(tab);
    control->setExpanding(false);
    run(control, &QTabBar::currentChanged, click);
    return control;
}

TabStrip *keyedTabs(const QString &name, const IndexHandler &click)
{
    auto *control = named(new TabStrip, name);
    runWithIndex(control, &TabStrip::tabClicked, click);
    return control;
}

ColourSelection *colourSelection(const QString &name, const ColourPick &pick, const Handler &change)
{
    auto *control = named(new ColourSelection(pick), name);
    run(control, &ColourSelection::colourChanged, change);
    return control;
}

ColourSwatch *swatch(const QString &name)
{
    return named(new ColourSwatch, name);
}

ColourPalette *colourPalette(const QString &name, const QList<ColourValue> &colours, int columns, const Handler &pick)
{
    auto *control = named(new ColourPalette(colours, columns), name);
    run(control, &ColourPalette::picked, pick);
    return control;
}

CharacterGrid *characterGrid(const QString &name, const Handler &pick, const Handler &dblClick)
{
    auto *control = named(new CharacterGrid, name);
    run(control, &CharacterGrid::cellPicked, pick);
    run(control, &CharacterGrid::cellChosen, dblClick);
    return control;
}

QCalendarWidget *calendar(const QString &name, const Handler &change)
{
    auto *control = named(new QCalendarWidget, name);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) // their usual red is hard to read on a dark ground
        control->setWeekdayTextFormat(day, QTextCharFormat());
    control->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    giveArrows(*control);
    new ControlWatch(control, QEvent::Hide, [control](const QEvent &) {
        dropTypedDate(*control);
        return false;
    });
    run(control, &QCalendarWidget::selectionChanged, change);
    return control;
}

QScrollBar *scrollBar(const QString &name, Qt::Orientation orientation, const Handler &change)
{
    auto *control = named(new QScrollBar(orientation), name);
    control->setFocusPolicy(Qt::StrongFocus);
    run(control, &QScrollBar::valueChanged, change);
    return control;
}

PictureBox *picture(const QString &name, const PictureHandlers &handlers)
{
    auto *control = named(new PictureBox, name);
    control->setClickableByKeyboard(static_cast<bool>(handlers.click));
    run(control, &PictureBox::clicked, handlers.click);
    run(control, &PictureBox::doubleClicked, handlers.dblClick);
    if (handlers.mouseDown)
        QObject::connect(control, &PictureBox::mousePressed, control, handlers.mouseDown);
    if (handlers.mouseMove)
        QObject::connect(control, &PictureBox::mouseMoved, control, handlers.mouseMove);
    if (handlers.mouseUp)
        QObject::connect(control, &PictureBox::mouseReleased, control, handlers.mouseUp);
    return control;
}
} // namespace ui
