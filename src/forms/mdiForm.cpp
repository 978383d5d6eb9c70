#include "forms/mdiForm.h"

#include "forms/formRuntime.h"
#include "widgets/mdiArrange.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QVBoxLayout>

namespace
{
/// A child window whose close box unloads its form.
class ChildWindow final : public QMdiSubWindow
{
public:
    explicit ChildWindow(std::function<void()> unload) : m_unload(std::move(unload)) {}

protected:
    /// A maximised child puts its title into that of the main window, but not again where it changed before the main
    /// window was on show.
    void showEvent(QShowEvent *event) override
    {
        QMdiSubWindow::showEvent(event);
        QEvent changed(QEvent::WindowTitleChange);
        QCoreApplication::sendEvent(this, &changed);
    }

    /// A window that has filled the area from its beginning has no other place yet to go back to. One that was made
    /// small, as a tile of many, stays so: it changes its state when it becomes active, too.
    void changeEvent(QEvent *event) override
    {
        QMdiSubWindow::changeEvent(event);
        if (event->type() != QEvent::WindowStateChange)
            return;
        const Qt::WindowStates before = static_cast<QWindowStateChangeEvent *>(event)->oldState();
        const bool comesBack = before & (Qt::WindowMaximized | Qt::WindowMinimized) && !isMaximized() && !isMinimized();
        const bool collapsed = height() < SmallestSize.height() || width() < SmallestSize.width();
        if (comesBack && collapsed && mdiArea())
            setGeometry(usualPlace(*mdiArea(), numberOf(*mdiArea())));
    }

    void closeEvent(QCloseEvent *event) override
    {
        event->ignore();
        m_unload();
    }

private:
    static constexpr QSize SmallestSize = QSize(160, 120); ///< a smaller one is of no use

    int numberOf(const QMdiArea &area) const
    {
        return static_cast<int>(area.subWindowList(QMdiArea::CreationOrder).indexOf(this));
    }

    std::function<void()> m_unload;
};

/// Keeps the area from showing the steps in between.
class HeldPainting
{
public:
    explicit HeldPainting(QWidget &widget) : m_widget(widget) { m_widget.setUpdatesEnabled(false); }
    HeldPainting(const HeldPainting &) = delete;
    HeldPainting &operator=(const HeldPainting &) = delete;
    ~HeldPainting() { m_widget.setUpdatesEnabled(true); }

private:
    QWidget &m_widget;
};
} // namespace

void MdiForm::bringToFront()
{
    auto *child = qobject_cast<QMdiSubWindow *>(window());
    if (!child)
        return;
    QMdiArea *area = context().forms.mdiArea();
    const HeldPainting held(*area);
    const QMdiSubWindow *before = area->currentSubWindow();
    const bool filled = before && before != child && before->isMaximized();
    context().forms.setActiveChild(this);
    area->setActiveSubWindow(child);
    // The one that is left may hide what had the keyboard, which moves on within it then, and makes it active again.
    if (area->activeSubWindow() != child)
        area->setActiveSubWindow(child);
    if (filled)
        fillArea();
}

/// The children share one state: what comes to the front of one that filled the area fills it, too.
void MdiForm::fillArea()
{
    if (isLoaded() && !window()->isMaximized() && !window()->isMinimized())
        window()->showMaximized();
}

void MdiForm::sendToBack()
{
    FormRuntime &forms = context().forms;
    forms.deferChild(this);
    if (MdiForm *next = forms.activeChild(); next != this) {
        window()->lower();
        next->bringToFront();
    }
}

QWidget *MdiForm::createWindow()
{
    auto *child = new ChildWindow([this] { Unload(); });
    auto *client = new QWidget;
    m_contents = new QVBoxLayout(client);
    m_contents->setContentsMargins(0, 0, 0, 0);
    m_contents->setSpacing(0);
    child->setWidget(client);
    child->setWindowTitle(Caption());
    child->setWindowIcon(context().forms.mdiArea()->window()->windowIcon());
    // The window's own menu has keys that would stand in the way of the main window's commands.
    for (QAction *action : child->systemMenu()->actions())
        action->setShortcut(QKeySequence());
    context().forms.mdiArea()->addSubWindow(child);
    connect(child, &QMdiSubWindow::aboutToActivate, this, [this] { context().forms.setActiveChild(this); });
    return child;
}

void MdiForm::presentWindow()
{
    const QMdiSubWindow *current = context().forms.mdiArea()->currentSubWindow();
    if (!current || current == window() || current->isMaximized())
        window()->showMaximized();
    else
        window()->show();
    bringToFront();
}

void MdiForm::detachWindow()
{
    FormRuntime &forms = context().forms;
    forms.forgetChild(this);
    // The area would make another child active by an order of its own; the next one is the one that was active before.
    const HeldPainting held(*forms.mdiArea());
    const bool filled = window()->isMaximized();
    forms.setActivationHeld(true);
    window()->hide();
    forms.mdiArea()->removeSubWindow(window());
    forms.setActivationHeld(false);
    MdiForm *next = forms.activeChild();
    if (!next)
        return;
    next->bringToFront();
    if (filled)
        next->fillArea();
}
