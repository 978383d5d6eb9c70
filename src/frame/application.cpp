#include "frame/application.h"

#include "codeknowledge/codeknowledgeForms.h"
#include "common/mainWindow.h"
#include "common/unsavedText.h"
#include "document/modDocument.h"
#include "extensions/extensionsForms.h"
#include "files/documentFiles.h"
#include "files/frmMsgAddSavedFileToProject.h"
#include "files/frmMsgNoFileForAutoSave.h"
#include "files/frmMsgSaveChanges.h"
#include "files/frmProperties.h"
#include "files/frmUnsavedFiles.h"
#include "files/frmWhatChanged.h"
#include "files/recovery.h"
#include "frame/frmMdi.h"
#include "frame/frmSplash.h"
#include "insertion/insertionForms.h"
#include "internet/internetForms.h"
#include "internet/uploads.h"
#include "project/projectForms.h"
#include "shell/frmWelcome.h"
#include "texttools/texttoolsForms.h"

#include <utility>

Application::Application(Services &services)
    : m_context{.services = services, .forms = m_forms, .state = m_state, .screenPointer = m_screenPointer}
{
    m_context.version = QStringLiteral(TAGWRIGHTER_VERSION);
    m_context.newBlankDocument = [this] { return NewBlankDocument(m_context); };
    m_context.end = [this] { End(); };
    m_mdi = &own<frmMdi>(m_context, m_commandLine);
    m_splash = &own<frmSplash>(m_context, *m_mdi);
    own<frmWelcome>(m_context);
    addFiles();
    m_uploads = std::make_unique<Uploads>(m_context);
    m_context.uploads = m_uploads.get();
    for (std::unique_ptr<Form> &form : internetForms(m_context))
        m_forms.own(std::move(form));
    for (std::unique_ptr<Form> &form : extensionsForms(m_context))
        m_forms.own(std::move(form));
    for (std::unique_ptr<Form> &form : insertionForms(m_context))
        m_forms.own(std::move(form));
    for (std::unique_ptr<Form> &form : codeknowledgeForms(m_context))
        m_forms.own(std::move(form));
    for (std::unique_ptr<Form> &form : texttoolsForms(m_context))
        m_forms.own(std::move(form));
    for (std::unique_ptr<Form> &form : projectForms(m_context, m_mdi->project()))
        m_forms.own(std::move(form));
    connect(m_mdi, &Form::unloaded, this, &Application::End);
}

void Application::addFiles()
{
    m_files = std::make_unique<DocumentFiles>(m_context);
    m_context.files = m_files.get();
    m_unsavedText = std::make_unique<Recovery>(m_context);
    m_context.unsavedText = m_unsavedText.get();
    own<frmWhatChanged>(m_context);
    own<frmMsgSaveChanges>(m_context);
    own<frmUnsavedFiles>(m_context);
    own<frmMsgNoFileForAutoSave>(m_context);
    own<frmMsgAddSavedFileToProject>(m_context);
    own<frmProperties>(m_context);
}

Application::~Application()
{
    disconnect(m_mdi, nullptr, this, nullptr);
    m_forms.end();
}

template <class T, class... Arguments>
T &Application::own(Arguments &&...arguments)
{
    auto form = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    T &owned = *form;
    m_forms.own(std::move(form));
    return owned;
}

void Application::Main(const QString &commandLine)
{
    m_commandLine = commandLine;
    m_splash->Load();
    m_splash->Show();
}

void Application::endKeepingText()
{
    keepUnsavedText();
    End();
}

void Application::keepUnsavedText()
{
    if (!m_ended && m_mdi->isLoaded())
        m_unsavedText->keepNow();
}

void Application::End()
{
    if (m_ended)
        return;
    m_ended = true;
    m_state.ProgramEnded = true;
    m_uploads->breakOff();
    m_forms.discardAll();
    Q_EMIT ended();
}
