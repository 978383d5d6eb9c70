#include "extensions/modWizards.h"

#include "common/document.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/wizardServer.h"

#include <algorithm>

namespace
{
constexpr int FramesWizard = 1;
constexpr int NoNumber = -1; ///< of no document

struct Written {
    QString data; ///< empty if the user left the wizard
    bool toNewDoc = false;
};

/// While the component runs, the main window takes no input but the click on its close box, which ends what runs.
class WizardTurn final
{
public:
    WizardTurn(ProgramContext &context, NewPageWizard &wizard)
        : m_context(context), m_wasEnabled(context.mainWindow->Enabled())
    {
        m_context.mainWindow->setEnabled(false);
        m_context.state.stopWizard = [&wizard] { wizard.end(); };
        wizard.NewPageWizard_NotifyClients = [this](const QString &text) { notify(text); };
    }
    WizardTurn(const WizardTurn &) = delete;
    WizardTurn &operator=(const WizardTurn &) = delete;
    ~WizardTurn()
    {
        m_context.state.stopWizard = {};
        if (!isProgramThere())
            return;
        m_context.mainWindow->setEnabled(m_wasEnabled);
        if (m_notified)
            m_context.mainWindow->SetStatusReady();
    }

    /// Whether the program has not ended while events ran.
    bool isProgramThere() const { return !m_context.state.ProgramEnded; }

private:
    void notify(const QString &text)
    {
        if (!isProgramThere())
            return;
        m_notified = true;
        m_context.mainWindow->SetStatusText(text);
    }

    ProgramContext &m_context;
    bool m_wasEnabled;
    bool m_notified = false;
};

/// Nothing if the component failed.
std::optional<Written> runWizard(ProgramContext &context, int index)
{
    const std::unique_ptr<NewPageWizard> wizard = context.services.wizards.create();
    if (!wizard)
        return std::nullopt;
    const WizardTurn turn(context, *wizard);
    const bool ran = wizard->StartWizard(index);
    if (!turn.isProgramThere())
        return Written{};
    return ran ? std::optional(Written{wizard->WizardExportData(), wizard->WizardDataToNewDoc()}) : std::nullopt;
}

void showInNewDocument(ProgramContext &context, const QString &page)
{
    Document *document = context.newBlankDocument();
    if (!document)
        return;
    document->txtEdit().setText(page);
    document->DocSelUpdate(QString());
    document->boolDirty = true;
    document->beginHistory();
    document->txtEdit().SetFocus();
}

void putAtCaret(Document &document, const QString &markup)
{
    document.txtEdit().setSelText(markup);
    document.DocSelUpdate();
    document.boolDirty = true;
    document.txtEdit().SetFocus();
}

/// A document by its number, which no other one ever has; nothing if it has been closed.
Document *documentOfNumber(const ProgramContext &context, int number)
{
    const QList<Document *> open = context.mainWindow->openDocuments();
    const auto found =
        std::find_if(open.begin(), open.end(), [&](const Document *each) { return each->DocNumber == number; });
    return found == open.end() ? nullptr : *found;
}

void focusActiveDocument(const ProgramContext &context)
{
    if (Document *document = context.mainWindow->activeDocument())
        document->txtEdit().SetFocus();
}
} // namespace

QStringList wizardNames(const QString &list)
{
    QStringList names;
    qsizetype start = 0;
    while (start < list.size() - 1) {
        const qsizetype end = list.indexOf(u';', start);
        if (end < 0)
            break;
        names.append(list.sliced(start, end - start));
        start = end + 1;
    }
    return names;
}

std::optional<QStringList> availableWizards(ProgramContext &context)
{
    const std::unique_ptr<NewPageWizard> wizard = context.services.wizards.create();
    if (!wizard)
        return std::nullopt;
    const WizardTurn turn(context, *wizard);
    const std::optional<QString> list = wizard->AvailableWizards();
    return list ? std::optional(wizardNames(*list)) : std::nullopt;
}

void tellNoWizards(ProgramContext &context)
{
    context.services.messageBoxes.show(
        {.title = QStringLiteral("Unable to Launch Wizard Error"),
         .text =
             QStringLiteral("An error occurred while trying to initiate the Tagwrighter Wizard.  The Wizard program "
                            "file may not have been installed properly, or may be missing or corrupt.\r\n\r\n"
                            "It may be necessary to re-install Tagwrighter, and then trying to launch the Wizard "
                            "again."),
         .icon = MessageIcon::Critical,
         .buttons = MessageButtons::OK});
}

void RunWizard(ProgramContext &context, int index)
{
    const Document *atStart = context.mainWindow->activeDocument();
    const int number = atStart ? atStart->DocNumber : NoNumber;
    const std::optional<Written> written = runWizard(context, index);
    if (!written) {
        tellNoWizards(context);
        return;
    }
    if (written->data.isEmpty()) {
        focusActiveDocument(context);
        return;
    }
    Document *target = documentOfNumber(context, number);
    if (written->toNewDoc || !target)
        showInNewDocument(context, written->data);
    else
        putAtCaret(*target, written->data);
}

void RunFramesWizard(ProgramContext &context)
{
    const std::optional<Written> written = runWizard(context, FramesWizard);
    if (!written)
        context.services.messageBoxes.show(
            {.title = QStringLiteral("Error Launching Wizard"),
             .text = QStringLiteral("An error occurred while trying to start the 'Frame Creator Wizard'.  If the "
                                    "problem persists, please try re-installing Tagwrighter."),
             .icon = MessageIcon::None,
             .buttons = MessageButtons::OK});
    else if (!written->data.isEmpty())
        showInNewDocument(context, written->data);
    else
        focusActiveDocument(context);
}
