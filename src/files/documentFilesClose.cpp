// What is asked before documents close, and automatic saving.
#include "files/documentFiles.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "files/autoSavePause.h"
#include "files/frmMsgNoFileForAutoSave.h"
#include "files/frmMsgSaveChanges.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/screenPointer.h"

#include <cmath>
#include <limits>
#include <utility>

namespace
{
MessageBox unsavedChangesQuestion(const QString &caption)
{
    return {.title = QStringLiteral("Unsaved Changes"),
            .text = QStringLiteral("The changes you have made to ") + caption +
                    QStringLiteral(
                        " have not yet been saved. Do you wish to save these changes before you close the document?"
                        "\r\n\r\n· Choose 'Yes' to save the changes before the document is closed."
                        "\r\n\r\n· Choose 'Cancel' to abort the close and return to the document."
                        "\r\n\r\n· Choose 'No' to close the document without saving your changes."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNoCancel};
}

/// The minutes between automatic saves, without their fraction; nothing where the setting is no such number.
std::optional<qint16> autoSaveMinutes(SettingsStore &store)
{
    bool isNumber = false;
    const double minutes = std::floor(settings::read(store, settings::AutoSaveTime).toDouble(&isNumber));
    if (!isNumber || !(std::abs(minutes) < 32768))
        return std::nullopt;
    return static_cast<qint16>(minutes);
}
} // namespace

bool DocumentFiles::mayClose(Document &document)
{
    if (m_context.state.FormUnloadHandled)
        return true;
    if (m_context.mainWindow->ExitInProgress && m_context.mainWindow->openDocuments().size() >= 2)
        return mayCloseByExitList();
    if (!document.boolDirty || askBeforeClose(document))
        return true;
    m_context.mainWindow->ExitInProgress = false;
    return false;
}

bool DocumentFiles::askBeforeClose(Document &document)
{
    const AutoSavePause pause(document);
    switch (m_context.services.messageBoxes.show(unsavedChangesQuestion(document.documentCaption()))) {
    case MessageAnswer::No:
        return true;
    case MessageAnswer::Yes:
        if (m_context.mainWindow->activeDocument() != &document)
            document.activate();
        saveDocument(document, true);
        return !std::exchange(document.UnsuccessfulClose, false);
    default:
        document.txtEdit().SetFocus();
        return false;
    }
}

bool DocumentFiles::mayCloseByExitList()
{
    MainWindow &frmMdi = *m_context.mainWindow;
    if (frmMdi.SaveListShown)
        return frmMdi.ExitInProgress;
    Form &list = m_context.forms.get<frmMsgSaveChanges>();
    list.Load();
    frmMdi.SaveListShown = true;
    frmMdi.setEnabled(false);
    if (!m_context.state.NoUnsavedDocuments)
        list.Show();
    m_context.state.FormUnloadHandled = true;
    return m_context.state.NoUnsavedDocuments;
}

void DocumentFiles::autoSaveTick(Document &document)
{
    m_context.state.habits.HabitSave ? autoSaveWhatChanged(document) : autoSaveByMinutes(document);
}

/// The time begins anew; by the classic way, no tick asks when the document was changed.
void DocumentFiles::noteFirstChange(Document &document)
{
    if (!m_context.state.habits.HabitSave)
        return;
    document.autoSaveTicks = 0;
    if (document.autoSaveEnabled()) {
        document.setAutoSaveEnabled(false);
        document.setAutoSaveEnabled(true);
    }
}

/// A document without changes has no time to be over. While a dialog works on it, and for as long as it has no file,
/// the save is put off.
void DocumentFiles::autoSaveWhatChanged(Document &document)
{
    const std::optional<qint16> minutes = autoSaveMinutes(m_context.services.settings);
    if (!document.boolDirty)
        document.autoSaveTicks = 0;
    else if (document.autoSaveTicks < std::numeric_limits<qint16>::max())
        ++document.autoSaveTicks;
    const bool isTime = document.boolDirty && minutes && *minutes > 0 && document.autoSaveTicks >= *minutes;
    if (!isTime || !settings::isOn(m_context.services.settings, settings::AutoSaveUse))
        return;
    const bool inDialog = m_context.mainWindow->activeDocument() == &document && !m_context.mainWindow->Enabled();
    if (!inDialog && !document.NewDoc && !document.DocSavePath.isEmpty())
        autoSaveAndTell(document);
}

void DocumentFiles::autoSaveByMinutes(Document &document)
{
    SettingsStore &store = m_context.services.settings;
    // The counter is one of 16 bits and wraps as such.
    document.autoSaveTicks = static_cast<qint16>(static_cast<quint16>(document.autoSaveTicks) + 1U);
    if (document.autoSaveTicks != autoSaveMinutes(store) || !settings::isOn(store, settings::AutoSaveUse))
        return;
    autoSaveAndTell(document);
}

void DocumentFiles::autoSaveAndTell(Document &document)
{
    const bool saved = AutoSaveDocument(document);
    document.autoSaveTicks = 0;
    if (!saved)
        return;
    QString text =
        QStringLiteral("The document \"") + document.DocSavePath + QStringLiteral("\" has been automatically saved.");
    if (!m_remark.isEmpty())
        text += QStringLiteral(" ") + m_remark;
    m_context.mainWindow->SetStatusText(text);
    m_context.mainWindow->enableResetBar();
}

bool DocumentFiles::AutoSaveDocument(Document &document)
{
    if (document.NewDoc || document.DocSavePath.isEmpty()) {
        autoSaveNameless(document);
        return false;
    }
    if (isChangedOnDisk(document)) {
        m_context.mainWindow->SetStatusText(
            QStringLiteral("The document \"") + document.DocSavePath +
            QStringLiteral("\" has not been automatically saved: another program has changed its file."));
        return false;
    }
    if (leavesEncoding(document, SaveForm::AsOpened)) {
        m_context.mainWindow->SetStatusText(
            QStringLiteral("The document \"") + document.DocSavePath +
            QStringLiteral(
                "\" has not been automatically saved: its encoding has no place for some of its characters."));
        return false;
    }
    // A dialog that is open keeps its hold on the main window.
    const bool enabled = m_context.mainWindow->Enabled();
    const bool saved = writeAndTell(document, {document.DocSavePath, SaveForm::AsOpened});
    if (saved)
        noteWritten(document);
    m_context.mainWindow->setEnabled(enabled);
    return saved;
}

void DocumentFiles::autoSaveNameless(Document &document)
{
    m_context.screenPointer.setMousePointer(PointerShape::Default);
    auto &form = m_context.forms.get<frmMsgNoFileForAutoSave>();
    if (form.isLoaded() || // it waits for an answer already
        !settings::isOn(m_context.services.settings, settings::AutoSaveUnsavedNotification))
        return;
    form.setDocument(document);
    form.ShowModal();
}
