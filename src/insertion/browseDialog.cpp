#include "insertion/browseDialog.h"

#include "common/fileBook.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "services/commonDialogs.h"
#include "services/services.h"

std::optional<QString> BrowseDialog::browse(ProgramContext &context)
{
    const FileDialogRequest request{
        .DialogTitle = {}, .Filter = m_filter, .FilterIndex = 2, .InitDir = {}, .FileName = m_fileName};
    if (const std::optional<FileDialogResult> chosen = context.services.commonDialogs.showOpen(request))
        m_fileName = chosen->fileName;
    else if (fileBook(context.state.habits).leavingKeepsField)
        return std::nullopt;
    return m_fileName;
}
