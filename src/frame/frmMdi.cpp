#include "frame/frmMdi.h"

#include "codeknowledge/codeLibraries.h"
#include "common/fileCommands.h"
#include "common/programState.h"
#include "forms/formRuntime.h"
#include "forms/inputGate.h"
#include "forms/mdiForm.h"
#include "frame/frmMdiCommands.h"
#include "frame/frmMdiPane.h"
#include "project/modProjectFileCtrl.h"
#include "widgets/mainWindowFrame.h"
#include "widgets/nodeTree.h"

#include <QAction>
#include <QComboBox>
#include <QMainWindow>

frmMdi::frmMdi(ProgramContext &context, const QString &commandLine)
    : Form(context, QStringLiteral("frmMdi")),
      m_commandLine(commandLine),
      m_commands(std::make_unique<MainCommands>(*this, context)),
      m_codes(std::make_unique<CodeLibraries>()),
      m_project(std::make_unique<ProjectFileCtrl>(context))
{
    context.mainWindow = this;
    context.codes = m_codes.get();
    context.project = m_project.get();
    context.codeElements = m_codes->elementNodes();
    setCaption(QStringLiteral("Tagwrighter"));
}

frmMdi::~frmMdi()
{
    discard();
    context().mainWindow = nullptr;
    context().codes = nullptr;
    context().project = nullptr;
    context().state.project.save = {};
    context().codeElements.reset();
}

QMainWindow *frmMdi::frame() const
{
    return qobject_cast<QMainWindow *>(window());
}

QWidget *frmMdi::createWindow()
{
    auto *frame = new MainWindowFrame([this] {
        if (context().state.stopWizard)
            context().state.stopWizard(); // the one way out of a wizard that hangs
        else if (Enabled())
            Unload();
    });
    frame->setDropHandler([this](const QStringList &paths) { openDropped(paths); });
    frame->setWindowTitle(Caption());
    context().forms.setMainForm(this);
    return frame;
}

void frmMdi::presentWindow()
{
    // The window's state was chosen at the load; showing it keeps that state.
    window()->setVisible(true);
    if (!isLoaded()) // events ran, and one of them was the end
        return;
    window()->raise();
    window()->activateWindow();
}

bool frmMdi::Enabled() const
{
    return !m_gate || m_gate->isOpen();
}

void frmMdi::setEnabled(bool enabled)
{
    if (m_gate)
        m_gate->setOpen(enabled);
    if (enabled && !m_waiting.isEmpty())
        QMetaObject::invokeMethod(this, &frmMdi::openWaiting, Qt::QueuedConnection);
    if (enabled && !m_keptStatus.isEmpty()) // from here on the user can read it
        enableResetBar();
}

void frmMdi::raiseDialogs()
{
    for (Form *form : context().forms.loaded())
        if (form != this && !form->MDIChild() && form->Visible()) {
            form->window()->raise();
            form->window()->activateWindow();
        }
}

QList<Document *> frmMdi::openDocuments() const
{
    QList<Document *> documents;
    for (Form *form : context().forms.loaded())
        if (form->Name() != u"frmMdi" && form->MDIChild())
            if (auto *document = dynamic_cast<Document *>(form))
                documents.append(document);
    return documents;
}

Document *frmMdi::activeDocument() const
{
    return dynamic_cast<Document *>(context().forms.activeChild());
}

QObject *frmMdi::control(const QString &name) const
{
    if (QAction *action = m_commands->action(name))
        return action;
    return Form::control(name);
}

void frmMdi::SetDocumentControlsEnabled(bool enabled)
{
    m_commands->setDocumentControlsEnabled(enabled);
    for (QWidget *control : QList<QWidget *>{cboFont, cboFontSize, cboSize, m_pane->treCodes})
        control->setEnabled(enabled);
}

void frmMdi::SetProjectCommandsEnabled(bool enabled)
{
    m_commands->setProjectCommandsEnabled(enabled);
}

QString frmMdi::SiteName() const
{
    return context().state.project.SiteName;
}

QString frmMdi::SiteAuthor() const
{
    return context().state.project.SiteAuthor;
}

bool frmMdi::ProjectChanged() const
{
    return context().state.project.ProjectChanged;
}

bool frmMdi::ProjectOpen() const
{
    return context().state.project.ProjectOpen;
}

void frmMdi::showAddIns(const QMap<int, QString> &captions)
{
    m_commands->showAddIns(*frame(), captions);
}

void frmMdi::setWordWrapChecked(bool checked)
{
    m_commands->action(QStringLiteral("mnuWordWrap"))->setChecked(checked);
}

void frmMdi::setSplitEditingChecked(bool checked)
{
    m_commands->action(QStringLiteral("mnuSplitEditingWindows"))->setChecked(checked);
}

void frmMdi::openDropped(const QStringList &paths)
{
    for (const QString &path : paths)
        if (context().files)
            context().files->OpenDocumentFile(path, false);
}
