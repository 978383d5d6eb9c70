#include "frame/application.h"

#include "codeknowledge/codeknowledgeForms.h"
#include "common/mainWindow.h"
#include "common/unsavedText.h"
#include "document/frmPastePicture.h"
#include "document/frmWrapAbbreviation.h"
#include "document/modDocument.h"
#include "extensions/extensionsForms.h"
#include "files/documentFiles.h"
#include "files/filesForms.h"
#include "files/frmMsgSaveChanges.h"
#include "files/recovery.h"
#include "files/unsavedDocuments.h"
#include "frame/frmMdi.h"
#include "frame/frmMdiTables.h"
#include "frame/frmSplash.h"
#include "insertion/insertionForms.h"
#include "internet/internetForms.h"
#include "internet/uploads.h"
#include "project/modProjectFileCtrl.h"
#include "project/projectForms.h"
#include "services/habits.h"
#include "services/messageBoxes.h"
#include "services/modalLoop.h"
#include "services/services.h"
#include "services/settings.h"
#include "shell/shellForms.h"
#include "texttools/texttoolsForms.h"
#include "widgets/theme.h"

#include <utility>

Application::Application(Services &services)
    : m_context{.services = services, .forms = m_forms, .state = m_state, .screenPointer = m_screenPointer}
{
    m_context.version = QStringLiteral(TAGWRIGHTER_VERSION);
    m_context.makerSite = QStringLiteral(TAGWRIGHTER_MAKER_SITE);
    m_context.newBlankDocument = [this] { return NewBlankDocument(m_context); };
    m_context.end = [this] { End(); };
    m_context.startAnew = [this] { startAnew(); };
    m_mdi = &own<frmMdi>(m_context, m_commandLine);
    m_splash = &own<frmSplash>(m_context, *m_mdi);
    for (std::unique_ptr<Form> &form : shellForms(m_context))
        m_forms.own(std::move(form));
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
    m_forms.own(std::make_unique<frmWrapAbbreviation>(m_context));
    m_forms.own(std::make_unique<frmPastePicture>(m_context));
    requireForms();
    connect(m_mdi, &Form::unloaded, this, &Application::End);
}

/// A command whose form is missing is a fault of the program that no user is to find.
void Application::requireForms() const
{
    const auto require = [this](const CommandAction &action) {
        if ((action.kind == CommandAction::Kind::Form || action.kind == CommandAction::Kind::ModalForm) &&
            !m_forms.find(QLatin1String(action.form)))
            qFatal("A command shows %s, and there is no such form", action.form);
    };
    for (const MenuCommand &command : menuCommands())
        require(command.action);
    for (const ToolCommand &command : toolCommands())
        require(command.action);
    for (const ToolCommand &command : dropCommands())
        require(command.action);
}

void Application::addFiles()
{
    m_files = std::make_unique<DocumentFiles>(m_context);
    m_context.files = m_files.get();
    m_unsavedText = std::make_unique<Recovery>(m_context);
    m_context.unsavedText = m_unsavedText.get();
    for (std::unique_ptr<Form> &form : filesForms(m_context))
        m_forms.own(std::move(form));
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
    m_state.habits = readHabits(m_context.services.settings);
    const QString colours = settings::read(m_context.services.settings, settings::Theme);
    if (colours != theme::Desktop)
        theme::apply(colours);
    m_splash->Load();
    if (!m_ended)
        m_splash->Show();
}

void Application::takeOver(const QString &commandLine)
{
    if (!m_ended)
        m_mdi->takeOver(commandLine);
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

bool Application::hasUnsavedWork() const
{
    return m_state.project.ProjectChanged || !unsavedCaptions(*m_mdi).isEmpty();
}

bool Application::mayEndSession(bool mayAsk)
{
    keepUnsavedText();
    if (m_ended || !mayAsk || !m_mdi->isLoaded())
        return true;
    auto &list = m_forms.get<frmMsgSaveChanges>();
    if (!list.isLoaded()) {
        // Whoever is in the middle of a dialog is not torn out of it: the text is safe.
        if (!m_mdi->Enabled() || !hasUnsavedWork())
            return true;
        m_mdi->Unload();
    }
    if (!m_ended && list.isLoaded())
        m_context.services.modalLoop.run(list);
    return m_ended;
}

void Application::startAnew()
{
    if (m_ended || !m_mdi->mayStartAnew())
        return;
    if (!m_unsavedText->keepForStartAnew()) {
        m_context.services.messageBoxes.show(
            {.title = QStringLiteral("Start Anew"),
             .text = QStringLiteral("The documents could not be kept on the disk, so Tagwrighter goes on as it is."),
             .icon = MessageIcon::Exclamation});
        return;
    }
    m_startedAnewWith = m_mdi->project().isOpen() ? m_mdi->project().path() : QString();
    End();
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
