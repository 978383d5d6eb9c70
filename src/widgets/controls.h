#pragma once

#include "common/colour.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>

class CharacterGrid;
class CheckList;
class ColourPalette;
class ColourSelection;
class ColourSwatch;
class DriveList;
class FileList;
class FileSystem;
class FolderList;
class ListView;
class NodeTree;
class NumberField;
class PictureBox;
class QCalendarWidget;
class QCheckBox;
class QComboBox;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTabBar;
class QWidget;
class SpinButton;
class TabStrip;
struct PointerState;

/// The controls that forms are made of. Each is built under its `name`, which becomes its objectName, with the handlers
/// of its events; captions hold the accelerator mark. A handler that is not given is not called.
namespace ui
{
using Handler = std::function<void()>;
using IndexHandler = std::function<void(int)>; ///< given the row, node, tab or cell, counted from 0
using PointerHandler = std::function<void(const PointerState &)>;
using KeyHandler = std::function<bool(const QKeyEvent &)>; ///< true: the key is used up
/// Asks the user for a colour, showing one to start from; nothing when it is left without a choice.
using ColourPick = std::function<std::optional<ColourValue>(ColourValue)>;

QLabel *label(const QString &name, const QString &caption, const Handler &click = {});

// Text. Its content is selected when the keyboard brings the focus, as on any desktop.
QLineEdit *text(const QString &name, const Handler &change = {});
QPlainTextEdit *textArea(const QString &name, const Handler &change = {});
/// A text area's text as the program holds texts: every break is CR LF, every other character as it was typed.
QString textOf(const QPlainTextEdit &area);
/// Digits only from the keyboard, at most `maxLength` of them.
NumberField *number(const QString &name, int maxLength, const Handler &change = {});
/// The arrows of a number field, which must be there already.
SpinButton *spin(const QString &name, QLineEdit *buddy, int minimum, int maximum);

QPushButton *button(const QString &name, const QString &caption, const Handler &click);
QCheckBox *check(const QString &name, const QString &caption, const Handler &click = {});
QRadioButton *option(const QString &name, const QString &caption, const Handler &click = {});

// Lists.
QComboBox *dropList(const QString &name, const QList<QString> &rows, const Handler &click = {});
/// A text box with a list to pick from; `click` runs when a row was picked.
QComboBox *combo(const QString &name, const QList<QString> &rows = {}, const Handler &change = {},
                 const Handler &click = {});
/// Adds rows to the list of a combo whose text stays as it is: by itself, a combo picks the first row it is given.
void addRows(QComboBox &combo, const QList<QString> &rows);
QListWidget *list(const QString &name, const Handler &click = {}, const Handler &dblClick = {});
QListWidget *multiList(const QString &name, const Handler &click = {}, const Handler &dblClick = {});
CheckList *checkList(const QString &name, const IndexHandler &tick = {}, const Handler &click = {});

struct ListViewHandlers {
    Handler selection = {}; ///< another row is selected, or none
    IndexHandler dblClick = {};
    IndexHandler enter = {}; ///< without it, Enter presses the form's default button
    IndexHandler tick = {};
};
ListView *listView(const QString &name, const QList<QString> &columns, const ListViewHandlers &handlers = {});

struct TreeHandlers {
    IndexHandler nodeClick = {};
    IndexHandler nodeDblClick = {};
    IndexHandler nodeEnter = {};
};
NodeTree *tree(const QString &name, const TreeHandlers &handlers = {});

DriveList *driveList(const QString &name, FileSystem &files, const Handler &change = {});
FolderList *folderList(const QString &name, FileSystem &files, const Handler &change = {});
FileList *fileList(const QString &name, FileSystem &files, const Handler &pathChange = {});

// Tabs.
QTabBar *tabStrip(const QString &name, const QList<QString> &tabs, const Handler &click = {});
TabStrip *keyedTabs(const QString &name, const IndexHandler &click = {});

// Others.
ColourSelection *colourSelection(const QString &name, const ColourPick &pick, const Handler &change = {});
ColourSwatch *swatch(const QString &name);
/// `pick` runs when a colour was chosen by a click or a key.
ColourPalette *colourPalette(const QString &name, const QList<ColourValue> &colours, int columns, const Handler &pick);
CharacterGrid *characterGrid(const QString &name, const Handler &pick = {}, const Handler &dblClick = {});
QCalendarWidget *calendar(const QString &name, const Handler &change = {});
QScrollBar *scrollBar(const QString &name, Qt::Orientation orientation, const Handler &change = {});

struct PictureHandlers {
    Handler click = {}; ///< makes the picture a control that the keyboard reaches, too
    Handler dblClick = {};
    PointerHandler mouseDown = {};
    PointerHandler mouseMove = {};
    PointerHandler mouseUp = {};
};
PictureBox *picture(const QString &name, const PictureHandlers &handlers = {});

/// Runs `handler` when the control gets, or loses, the focus; not when its own list or menu has it for a while.
void onGotFocus(QWidget *control, const Handler &handler);
void onLostFocus(QWidget *control, const Handler &handler);
/// Shows every key press to `handler` before the control sees it.
void onKeyDown(QWidget *control, const KeyHandler &handler);
} // namespace ui

/// Lets the keyboard enter digits only; `control` is a text box or an editable combo.
void SetNumbersOnly(QWidget *control);

/// Selects all of a text control's text: a text box, a text area or an editable combo. Nothing for other controls.
void SelectAllText(QWidget *control);
