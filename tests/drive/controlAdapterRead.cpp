#include "controlAdapter.h"

#include "browser/webBrowser.h"
#include "common/textSurface.h"
#include "controlRows.h"
#include "controlText.h"
#include "events.h"
#include "services/timer.h"
#include "widgets/accelerators.h"
#include "widgets/characterGrid.h"
#include "widgets/colourSelection.h"
#include "widgets/colourSwatch.h"
#include "widgets/controlWatch.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"
#include "widgets/spinButton.h"
#include "widgets/themeColour.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>

namespace drive
{
namespace
{
using Value = std::optional<QString>;

/// A property as a script names it: its name, and the numbers in its brackets.
struct Asked {
    QString name;
    std::optional<int> first;
    int second = 0;
};

Asked parsed(const QString &property)
{
    static const QRegularExpression form(QStringLiteral("^(\\w+)\\((\\d+)(?:\\s*,\\s*(\\d+))?\\)$"));
    const QRegularExpressionMatch match = form.match(property);
    if (!match.hasMatch())
        return {property, {}, 0};
    return {match.captured(1), match.captured(2).toInt(), match.captured(3).toInt()};
}

QString boolean(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString number(qlonglong value)
{
    return QString::number(value);
}

/// Whether the place where the next typed character goes is on view.
bool isCaretVisible(const QWidget &surface)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(&surface);
    const QRect caret = surface.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return surface.isVisible() && (area ? area->viewport()->geometry() : surface.rect()).intersects(caret);
}
} // namespace

QString colourName(ColourValue colour)
{
    switch (colour) {
    case WindowColour:
        return QStringLiteral("window");
    case HighlightColour:
        return QStringLiteral("highlight");
    case ButtonFaceColour:
        return QStringLiteral("button-face");
    case WindowTextColour:
        return QStringLiteral("window-text");
    default:
        return number(colour);
    }
}

namespace
{
QString mousePointer(const QWidget &widget)
{
    if (!widget.testAttribute(Qt::WA_SetCursor))
        return QStringLiteral("0");
    static const QHash<Qt::CursorShape, int> codes = {
        {Qt::ArrowCursor, 1},   {Qt::CrossCursor, 2},   {Qt::IBeamCursor, 3},         {Qt::SizeAllCursor, 5},
        {Qt::SizeVerCursor, 7}, {Qt::SizeHorCursor, 9}, {Qt::WaitCursor, 11},         {Qt::ForbiddenCursor, 12},
        {Qt::BusyCursor, 13},   {Qt::BitmapCursor, 99}, {Qt::PointingHandCursor, 99}, {Qt::OpenHandCursor, 99},
    };
    return number(codes.value(widget.cursor().shape(), 0));
}

bool hasFocus(const QWidget &widget)
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == &widget || widget.isAncestorOf(focused));
}

QString windowState(const QWidget &window)
{
    return number(window.isMinimized() ? 1 : window.isMaximized() ? 2 : 0);
}

Value readWindow(const QWidget &widget, const QString &name)
{
    if (!widget.isWindow() && !qobject_cast<const QMdiSubWindow *>(&widget))
        return {};
    if (name == u"Caption")
        return widget.windowTitle();
    if (name == u"Topmost")
        return boolean(widget.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    return name == u"WindowState" ? Value(windowState(widget)) : std::nullopt;
}

/// What every control has.
Value readCommon(const QWidget &widget, const QString &name)
{
    static const QHash<QString, std::function<QString(const QWidget &)>> readers = {
        {QStringLiteral("Enabled"), [](const QWidget &w) { return boolean(w.isEnabled()); }},
        {QStringLiteral("Visible"), [](const QWidget &w) { return boolean(w.isVisible()); }},
        {QStringLiteral("Focus"), [](const QWidget &w) { return boolean(hasFocus(w)); }},
        {QStringLiteral("Left"), [](const QWidget &w) { return number(w.x()); }},
        {QStringLiteral("Top"), [](const QWidget &w) { return number(w.y()); }},
        {QStringLiteral("Width"), [](const QWidget &w) { return number(w.width()); }},
        {QStringLiteral("Height"), [](const QWidget &w) { return number(w.height()); }},
        {QStringLiteral("BackColor"), [](const QWidget &w) { return colourName(backColor(w)); }},
        {QStringLiteral("MousePointer"), [](const QWidget &w) { return mousePointer(w); }},
        {QStringLiteral("ToolTipText"), [](const QWidget &w) { return w.toolTip(); }},
    };
    const auto reader = readers.constFind(name);
    return reader == readers.constEnd() ? Value() : (*reader)(widget);
}

/// The caption as the form has it, whatever letter stands for an accelerator that clashed with another one.
QString asDesigned(const QWidget &widget, const QString &shown)
{
    const QString designed = widget.property(DesignedCaption).toString();
    const bool same = QString(designed).remove(u'&') == QString(shown).remove(u'&');
    return same && !designed.isEmpty() ? designed : shown;
}

Value readCaption(const QWidget &widget, const QString &name)
{
    if (name != u"Caption")
        return {};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return asDesigned(widget, label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return asDesigned(widget, button->text());
    const auto *group = qobject_cast<const QGroupBox *>(&widget);
    return group ? asDesigned(widget, group->title()) : Value();
}

Value readTicked(bool on, const QString &name)
{
    if (name == u"Value")
        return on ? QStringLiteral("1") : QStringLiteral("0");
    return name == u"Checked" ? boolean(on) : Value();
}

Value readScale(int value, int minimum, int maximum, const QString &name)
{
    if (name == u"Value")
        return number(value);
    if (name == u"Min")
        return number(minimum);
    return name == u"Max" ? number(maximum) : Value();
}

/// Value, with its limits, of the controls that hold one thing.
Value readValue(const QWidget &widget, const QString &name)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget); button && button->isCheckable())
        return readTicked(button->isChecked(), name);
    if (const auto *bar = qobject_cast<const QAbstractSlider *>(&widget))
        return readScale(bar->value(), bar->minimum(), bar->maximum(), name);
    if (const auto *spin = qobject_cast<const SpinButton *>(&widget))
        return readScale(spin->Value(), spin->Min(), spin->Max(), name);
    if (const auto *calendar = qobject_cast<const QCalendarWidget *>(&widget); calendar && name == u"Value")
        return calendar->selectedDate().toString(Qt::ISODate);
    if (const auto *colour = qobject_cast<const ColourSelection *>(&widget); colour && name == u"HexadecimalColour")
        return colour->HexadecimalColour();
    if (const auto *swatch = qobject_cast<const ColourSwatch *>(&widget); swatch && name == u"FillColor")
        return colourName(swatch->BackColor());
    return {};
}

Value readPlace(const QWidget &widget, const QString &name)
{
    if (const auto *folders = qobject_cast<const FolderList *>(&widget); folders && name == u"Path")
        return folders->Path();
    if (const auto *files = qobject_cast<const FileList *>(&widget); files && name == u"Path")
        return files->Path();
    const auto *drives = qobject_cast<const DriveList *>(&widget);
    return drives && name == u"Drive" ? drives->Drive() : Value();
}

Value readText(const QWidget &widget, const QString &name)
{
    const std::optional<ControlText> text = textOfControl(widget);
    if (!text)
        return {};
    if (name == u"Text")
        return text->text;
    if (name == u"SelStart")
        return number(text->selStart);
    if (name == u"SelLength")
        return number(text->selLength);
    return name == u"SelText" ? text->selText : Value();
}

Value readTextLimits(const QWidget &widget, const QString &name)
{
    const auto *surface = dynamic_cast<const TextSurface *>(&widget);
    if (surface && name == u"FirstVisibleLine")
        return number(surface->firstVisibleLine());
    if (surface && name == u"CaretVisible")
        return boolean(isCaretVisible(widget));
    if (surface && name == u"Locked")
        return boolean(surface->Locked());
    const QLineEdit *edit = lineEditOf(const_cast<QWidget *>(&widget));
    if (edit && name == u"MaxLength")
        return number(edit->maxLength());
    if (edit && name == u"Locked")
        return boolean(edit->isReadOnly());
    const auto *area = qobject_cast<const QPlainTextEdit *>(&widget);
    return area && name == u"Locked" ? boolean(area->isReadOnly()) : Value();
}

/// What the engine tells of the page on show; nothing if the page's scripts leave no room for an answer.
using AskPage = void (WebBrowser::*)(const std::function<void(const QString &)> &);
Value toldOf(const WebBrowser &browser, AskPage ask)
{
    constexpr int longest = 2000; // milliseconds
    const auto answer = std::make_shared<Value>();
    (const_cast<WebBrowser &>(browser).*ask)([answer](const QString &text) { *answer = text; });
    return comesTrue([&] { return answer->has_value(); }, longest) ? *answer : std::nullopt;
}

Value readBrowser(const QWidget &widget, const QString &name)
{
    const auto *browser = qobject_cast<const WebBrowser *>(&widget);
    if (!browser)
        return {};
    if (name == u"LocationURL")
        return browser->LocationURL();
    if (name == u"Notice")
        return browser->Notice();
    if (name == u"ScrollTop")
        return number(browser->ScrollTop());
    if (name == u"Busy")
        return boolean(browser->isLoading());
    if (name == u"MarkedText")
        return toldOf(*browser, &WebBrowser::markedText);
    return name == u"PageText" ? toldOf(*browser, &WebBrowser::pageText) : Value();
}

Value readRow(const ControlRows &rows, const QString &textProperty, const Asked &asked)
{
    const int row = *asked.first;
    if (row >= rows.count)
        return {};
    if (asked.name == textProperty)
        return rows.text(row);
    if (asked.name == u"Key")
        return rows.key(row);
    if (asked.name == u"SubItem")
        return rows.subItem(row, asked.second).value_or(QString());
    if (asked.name == u"SmallIcon")
        return rows.smallIcon(row);
    if (asked.name == u"ToolTipText")
        return rows.toolTip(row);
    if (asked.name == u"Selected")
        return boolean(rows.isSelected(row));
    if (asked.name != u"Ticked")
        return {};
    const std::optional<bool> ticked = rows.ticked(row);
    return ticked ? boolean(*ticked) : Value();
}

Value readRows(const QWidget &widget, const Asked &asked)
{
    const std::optional<ControlRows> rows = rowsOf(widget);
    if (!rows)
        return {};
    const bool tabs = qobject_cast<const QTabBar *>(&widget);
    if (asked.first && asked.name == u"ItemHeader")
        return rows->header(*asked.first);
    if (asked.first)
        return readRow(*rows, tabs ? QStringLiteral("Tab") : QStringLiteral("List"), asked);
    if (asked.name == (tabs ? u"TabCount" : u"ListCount"))
        return number(rows->count);
    if (asked.name == u"ListIndex")
        return number(rows->current);
    if (asked.name == u"Text")
        return rows->current < 0 ? QString() : rows->text(rows->current);
    return {};
}

Value readNode(const NodeTree &tree, int node, const QString &name)
{
    if (node >= tree.nodeCount())
        return {};
    if (name == u"Node")
        return tree.nodeAt(node).text;
    if (name == u"NodeKey")
        return tree.nodeAt(node).key;
    if (name == u"NodeImage")
        return tree.nodeAt(node).imageKey;
    if (name == u"NodeParent")
        return number(tree.nodeAt(node).parent);
    if (name == u"NodeExpanded")
        return boolean(tree.isNodeExpanded(node));
    return name == u"NodeSelected" ? boolean(tree.selectedNode() == node) : Value();
}

Value readTree(const QWidget &widget, const Asked &asked)
{
    const auto *tree = qobject_cast<const NodeTree *>(&widget);
    if (!tree)
        return {};
    if (asked.first)
        return readNode(*tree, *asked.first, asked.name);
    if (asked.name == u"NodeCount")
        return number(tree->nodeCount());
    const std::optional<int> selected = tree->selectedNode();
    return asked.name == u"Text" ? (selected ? tree->nodeAt(*selected).text : QString()) : Value();
}

Value readWidget(const QWidget &widget, const Asked &asked)
{
    if (!asked.first) {
        // An editable combo's text is what stands in its field, not the row picked last: texts go before rows.
        for (const auto &reader :
             {readWindow, readCommon, readCaption, readValue, readPlace, readText, readTextLimits, readBrowser}) {
            if (Value value = reader(widget, asked.name))
                return value;
        }
    }
    const Value row = readRows(widget, asked);
    return row ? row : readTree(widget, asked);
}

Value readAction(const QAction &action, const QString &name)
{
    if (name == u"Caption")
        return action.text();
    if (name == u"Enabled")
        return boolean(action.isEnabled());
    if (name == u"Visible")
        return boolean(action.isVisible());
    return action.isCheckable() ? readTicked(action.isChecked(), name) : Value();
}

Value readTimer(const Timer &timer, const QString &name)
{
    if (name == u"Interval")
        return number(timer.Interval());
    return name == u"Enabled" ? boolean(timer.Enabled()) : Value();
}
} // namespace

std::optional<QString> readProperty(QObject &control, const QString &property)
{
    if (const auto *widget = qobject_cast<QWidget *>(&control))
        return readWidget(*widget, parsed(property));
    if (const auto *action = qobject_cast<QAction *>(&control))
        return readAction(*action, property);
    const auto *timer = dynamic_cast<Timer *>(&control);
    return timer ? readTimer(*timer, property) : Value();
}

QList<QString> propertyNames(QObject &control)
{
    static const QString all = QStringLiteral(
        "Caption Text Value Checked Enabled Visible Focus SelStart SelLength SelText MaxLength Locked Interval "
        "ListCount "
        "ListIndex NodeCount TabCount Min Max Path Drive HexadecimalColour FirstVisibleLine WindowState Left Top Width "
        "Height BackColor MousePointer ToolTipText LocationURL Notice Busy");
    QList<QString> names;
    for (const QString &name : all.split(u' ')) {
        if (readProperty(control, name))
            names.append(name);
    }
    return names;
}
} // namespace drive
