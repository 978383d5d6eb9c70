#include "drive/controlParts.h"

#include "drive/controlPick.h"
#include "drive/controlRows.h"
#include "drive/events.h"
#include "drive/script.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/userInput.h"
#include "forms/form.h"
#include "widgets/drawnControl.h"
#include "widgets/nodeTree.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QVariant>
#include <QWidget>

namespace drive
{
namespace
{
bool isShown(const QObject &control)
{
    if (const auto *widget = qobject_cast<const QWidget *>(&control))
        return widget->isVisible();
    if (const auto *drawn = qobject_cast<const DrawnControl *>(&control)) {
        const QVariant visible = drawn->property("Visible");
        return drawn->surface() && drawn->surface()->isVisible() && (!visible.isValid() || visible.toBool());
    }
    const auto *entry = qobject_cast<const QAction *>(&control);
    return !entry || isEntryShown(*entry);
}

bool hasEntry(const QAction &head, const QString &name)
{
    const QMenu *menu = head.menu<QMenu *>();
    const auto entries = menu ? menu->actions() : QList<QAction *>();
    for (const QAction *entry : entries)
        if (entry->isVisible() && (entry->text() == name || withoutAccelerator(entry->text()) == name))
            return true;
    return false;
}

/// Whether a control that is on show has a row, tab, node or entry of that name.
bool hasPart(QObject &control, const QString &name)
{
    if (const auto *head = qobject_cast<const QAction *>(&control))
        return hasEntry(*head, name);
    const auto *widget = qobject_cast<const QWidget *>(&control);
    if (const auto *tree = qobject_cast<const NodeTree *>(widget))
        return hasNode(*tree, name);
    const auto rows = widget ? rowsOf(*widget) : std::nullopt;
    return rows && rows->find(name);
}

/// The tabs that turn over the pages of a stack: those beside it that are as many as its pages.
QTabBar *tabsOf(const QStackedWidget &pages)
{
    for (QWidget *place = pages.parentWidget(); place && !place->isWindow(); place = place->parentWidget()) {
        const auto strips = place->findChildren<QTabBar *>();
        for (QTabBar *strip : strips)
            if (strip->count() == pages.count() && !pages.isAncestorOf(strip))
                return strip;
    }
    const auto strips = pages.window()->findChildren<QTabBar *>();
    for (QTabBar *strip : strips)
        if (strip->count() == pages.count() && !pages.isAncestorOf(strip))
            return strip;
    return nullptr;
}

/// The tab to press for a page that is hidden: its tabs, and its place among them.
struct PageTab {
    QTabBar *tabs = nullptr;
    int tab = -1;
};

PageTab tabOf(QWidget &page)
{
    if (auto *stack = qobject_cast<QStackedWidget *>(page.parentWidget()))
        return {stack->currentWidget() == &page ? nullptr : tabsOf(*stack), stack->indexOf(&page)};
    // Pages that a form shows and hides by itself are numbered like their tabs.
    static const QRegularExpression numbered(QStringLiteral(R"(\((\d+)\)$)"));
    const auto match = numbered.match(page.objectName());
    if (!page.isHidden() || !match.hasMatch() || page.isWindow())
        return {};
    const int tab = match.captured(1).toInt();
    const auto strips = page.parentWidget()->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar *strip : strips)
        if (tab < strip->count())
            return {strip, tab};
    return {};
}
} // namespace

bool isOnShow(Stage &stage, const QString &name)
{
    const auto parsed = parseTargetName(name);
    const auto target = parsed ? awaitForm(stage, name) : std::nullopt;
    if (!parsed)
        stage.referee.wrong(QStringLiteral("%1 is no target: FORM or FORM.CONTROL is needed").arg(name));
    if (!target || !target->form->isLoaded())
        return false;
    if (parsed->control.isEmpty())
        return target->form->Visible();
    if (const QObject *control = findControl(stage, *target->form, parsed->control))
        return isShown(*control);
    static const QRegularExpression part(QStringLiteral(R"(^([A-Za-z]\w*(?:\(\d+\))?)\((.*)\)$)"));
    const auto match = part.match(parsed->control);
    QObject *holder = match.hasMatch() ? findControl(stage, *target->form, match.captured(1)) : nullptr;
    return holder && isShown(*holder) && hasPart(*holder, match.captured(2));
}

void turnToPageOf(QObject &control)
{
    auto *widget = qobject_cast<QWidget *>(&control);
    QList<QPointer<QWidget>> way;
    for (QWidget *place = widget; place && !place->isWindow(); place = place->parentWidget())
        way.prepend(place);
    for (const QPointer<QWidget> &place : way) {
        const PageTab page = place ? tabOf(*place) : PageTab();
        if (!page.tabs || !page.tabs->isVisible())
            continue;
        clickAt(*page.tabs, page.tabs->tabRect(page.tab).center());
        settle();
    }
}

void bringIntoView(QWidget &widget)
{
    for (QWidget *place = widget.parentWidget(); place; place = place->parentWidget())
        if (auto *area = qobject_cast<QScrollArea *>(place))
            area->ensureWidgetVisible(&widget);
}
} // namespace drive
