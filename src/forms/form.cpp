#include "forms/form.h"

#include "forms/fittingWindow.h"
#include "forms/formRuntime.h"
#include "services/modalLoop.h"
#include "services/services.h"
#include "widgets/accelerators.h"
#include "widgets/layout.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
/// A dialog's window: its close box unloads the form, Escape presses the cancel button or does nothing, and F1 presses
/// the button that shows the form's help, where it has one.
class DialogWindow final : public QDialog
{
public:
    DialogWindow(QWidget *owner, std::function<void()> unload, std::function<void()> cancel)
        : QDialog(owner), m_unload(std::move(unload)), m_cancel(std::move(cancel))
    {
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    }

    void reject() override { m_cancel(); }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        event->ignore();
        m_unload();
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        auto *help = findChild<QAbstractButton *>(QStringLiteral("cmdHelp"));
        if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier && help)
            help->click(); // does nothing while the button is disabled
        else
            QDialog::keyPressEvent(event);
    }

private:
    std::function<void()> m_unload;
    std::function<void()> m_cancel;
};
} // namespace

Form::Form(ProgramContext &context, const QString &name) : m_context(context), m_name(name)
{
    setObjectName(name);
}

Form::~Form()
{
    discard();
}

bool Form::Visible() const
{
    return m_window && m_window->isVisible();
}

void Form::setCaption(const QString &caption)
{
    m_caption = caption;
    if (m_window)
        m_window->setWindowTitle(caption);
}

void Form::Load()
{
    if (m_loaded)
        return;
    m_window = createWindow();
    m_window->setObjectName(m_name);
    m_window->installEventFilter(this);
    m_loaded = true;
    m_context.forms.add(this);
    prepareLoad();
    Form_Load();
}

void Form::Show()
{
    Load();
    if (m_loaded) // a form may have unloaded itself in its own Load
        presentWindow();
}

void Form::ShowModal()
{
    Load();
    if (!m_loaded)
        return;
    m_window->setWindowModality(Qt::ApplicationModal);
    presentWindow();
    services().modalLoop.run(*this);
}

void Form::Hide()
{
    if (!m_window)
        return;
    m_window->hide();
    Q_EMIT hidden();
}

bool Form::Unload()
{
    if (!m_loaded)
        return true;
    if (!Form_QueryUnload())
        return false;
    if (!m_loaded) // the question was answered by something that unloaded the form itself
        return true;
    unloadAgreed();
    return true;
}

void Form::unloadAgreed()
{
    if (!m_loaded)
        return;
    Form_Unload();
    if (m_loaded)
        releaseWindow();
}

void Form::discard()
{
    if (m_loaded)
        releaseWindow();
}

QObject *Form::control(const QString &name) const
{
    if (!m_window)
        return nullptr;
    return m_window->findChild<QObject *>(name);
}

QWidget *Form::createWindow()
{
    Form *owner = m_context.forms.mainForm();
    auto *dialog = new DialogWindow(
        owner ? owner->window() : nullptr, [this] { Unload(); },
        [this] {
            if (m_cancelButton && m_cancelButton->isEnabled())
                m_cancelButton->click();
        });
    dialog->setWindowTitle(m_caption);
    return dialog;
}

void Form::presentWindow()
{
    if (m_window->isHidden()) {
        takeNaturalHeight(*m_window);
        fitInto(*m_window, roomFor(*m_window));
    }
    m_window->show();
    if (!m_window) // some desktops let events run here, and one of them may have been the end
        return;
    m_window->raise();
    m_window->activateWindow();
}

void Form::detachWindow()
{
    m_window->hide();
}

void Form::setContent(const ui::Node &content)
{
    auto *layout = new QVBoxLayout;
    content.addTo(*layout);
    m_window->setLayout(layout);
    settleAccelerators(*m_window);
    if (m_defaultButton)
        m_defaultButton->setDefault(true);
}

void Form::setDefaultButton(QPushButton *button)
{
    m_defaultButton = button;
    if (button->window() == m_window) // outside a dialog, a default button is not known to one
        button->setDefault(true);
}

void Form::setCancelButton(QAbstractButton *button)
{
    m_cancelButton = button;
}

bool Form::eventFilter(QObject *watched, QEvent *event)
{
    // A child window sees these events whenever the whole main window is left or entered; its activation is followed
    // by the list of forms instead.
    if (watched == m_window && m_loaded && !MDIChild()) {
        if (event->type() == QEvent::WindowActivate)
            Form_Activate();
        else if (event->type() == QEvent::WindowDeactivate)
            Form_Deactivate();
    }
    return QObject::eventFilter(watched, event);
}

void Form::releaseWindow()
{
    m_loaded = false;
    m_context.forms.remove(this);
    if (m_window) {
        m_window->removeEventFilter(this);
        detachWindow();
        // The handler of one of the window's buttons is usually still running: its widgets go when it has returned.
        m_window->deleteLater();
        m_window = nullptr;
    }
    Q_EMIT unloaded();
    m_context.forms.releaseAdopted(this);
}
