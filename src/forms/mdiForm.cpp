#include "forms/mdiForm.h"

#include "forms/formRuntime.h"

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

    void closeEvent(QCloseEvent *event) override
    {
        event->ignore();
        m_unload();
    }

private:
    std::function<void()> m_unload;
};
} // namespace

void MdiForm::bringToFront()
{
    auto *child = qobject_cast<QMdiSubWindow *>(window());
    if (!child)
        return;
    context().forms.setActiveChild(this);
    context().forms.mdiArea()->setActiveSubWindow(child);
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
    // The children share one state: a page opened beside a maximised one is maximised too.
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
    forms.setActivationHeld(true);
    window()->hide();
    forms.mdiArea()->removeSubWindow(window());
    forms.setActivationHeld(false);
    if (MdiForm *next = forms.activeChild())
        next->bringToFront();
}
