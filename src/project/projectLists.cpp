// The open project's lists: adding and removing files.
#include "common/fileCommands.h"
#include "common/fileErrors.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "common/programState.h"
#include "forms/programContext.h"
#include "project/modProjectFileCtrl.h"
#include "project/projectPage.h"
#include "services/commonDialogs.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/listView.h"

namespace
{
MessageBox tellingBox(const QString &title, const QString &text)
{
    return {.title = title, .text = text, .icon = MessageIcon::Exclamation, .buttons = MessageButtons::OK};
}

MessageBox notFoundBox(const QString &path)
{
    return tellingBox(QStringLiteral("File Not Found"),
                      QStringLiteral("The file, \"") + path + QStringLiteral("\" , could not be located."));
}

MessageBox existsBox(const QString &path)
{
    return tellingBox(QStringLiteral("File Already Exists"),
                      QStringLiteral("The file, \"") + path +
                          QStringLiteral("\", already exists in the Site Project."));
}

MessageBox alreadyAddedBox(const QString &path)
{
    return tellingBox(QStringLiteral("File Already Added"),
                      QStringLiteral("The file \"") + path +
                          QStringLiteral("\" has already been added to the project."));
}

MessageBox removeQuestion(const QString &path)
{
    return {.title = QStringLiteral("Remove File"),
            .text = QStringLiteral("This will remove the file \"") + path +
                    QStringLiteral("\" from the project. Do you wish to continue?"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo};
}

// The pictures of the other files lack *.jpg, which is found under all files.
const QString EditorFilesFilter = QStringLiteral(
    "All Files (*.*)|*.*|HTML Files (*.html; *.htm)|*.html;*.htm|Cascading Style Sheets (*.css)|*.css|Text Files "
    "(*.txt)|*.txt|JavaScript Files (*.js)|*.js");
const QString OtherFilesFilter = QStringLiteral(
    "All Files (*.*)|*.*|Sound Files|*.wav;*.mp3;*.aif;*.aifc;*.aiff;*.au;*.snd;*.mid;*.rmi|Image "
    "Files|*.gif;*.jpeg;*.bmp;*.dib;*.ico;*.cur|Video Files|*.mpg;*.mpeg;*.mov;*.qt;*.avi;*.rm;*.ra;*.ram|Program "
    "Files|*.exe;*.com|Compressed Files|*.zip;*.gz;*.tz;*.taz;*.tgz;*.lzh;*.arj;*.arc;*.tar;*.cab|PDF Files|*.pdf");

ListRow rowOf(const QString &path, std::optional<qint64> size, bool isEditorFile)
{
    return {.key = path,
            .text = FileNameOnly(path),
            .smallIcon = isEditorFile ? 1 : 2,
            .subItems = {path, (size ? QString::number(GetFileSizeKB(*size)) : QString()) + QStringLiteral("KB"),
                         isEditorFile ? QStringLiteral("Editor File") : QStringLiteral("Other File")},
            .tag = {},
            .checked = false};
}

bool holdsBreak(const QString &path)
{
    return path.contains(u'\n') || path.contains(u'\r');
}
} // namespace

ProjectFileCtrl::Adding ProjectFileCtrl::add(const QString &path, bool isEditorFile)
{
    FileSystem &files = m_context.services.files;
    if (!files.exists(path)) {
        m_context.services.messageBoxes.show(notFoundBox(path));
        return Adding::NotAdded;
    }
    if (holdsBreak(path)) { // the project's file has a line for each path
        m_context.files->FileErrors(IllegalFileNameError);
        return Adding::NotAdded;
    }
    if (!m_page->list(isEditorFile).addRow(rowOf(path, files.size(path), isEditorFile)))
        return Adding::Listed;
    m_context.state.project.ProjectChanged = true;
    return Adding::Added;
}

void ProjectFileCtrl::AddFileToProject(const QString &path, bool isEditorFile)
{
    if (m_page && add(path, isEditorFile) == Adding::Listed)
        m_context.services.messageBoxes.show(existsBox(path));
}

void ProjectFileCtrl::AddEditorFile()
{
    chooseFiles(true);
}

void ProjectFileCtrl::AddOtherFile()
{
    chooseFiles(false);
}

void ProjectFileCtrl::chooseFiles(bool editorFiles)
{
    if (!isOpen())
        return;
    const auto chosen =
        m_context.services.commonDialogs.showOpen({.Filter = editorFiles ? EditorFilesFilter : OtherFilesFilter,
                                                   .FilterIndex = editorFiles ? 2 : 1,
                                                   .InitDir = startFolder(),
                                                   .severalFiles = true});
    if (chosen)
        AddFiles(chosen->allFileNames(), editorFiles);
}

void ProjectFileCtrl::AddFiles(const QStringList &paths, bool editorFiles)
{
    if (!isOpen())
        return;
    for (const QString &path : paths) {
        begin();
        const Adding adding = add(path, editorFiles);
        finish();
        if (adding == Adding::Listed)
            m_context.services.messageBoxes.show(alreadyAddedBox(path));
        else
            m_context.state.project.ProjectChanged = true;
    }
}

void ProjectFileCtrl::RemoveEditorFile()
{
    removeSelected(true);
}

void ProjectFileCtrl::RemoveOtherFile()
{
    removeSelected(false);
}

/// One question a file, from the top; a No leaves the rest.
void ProjectFileCtrl::removeSelected(bool editorFiles)
{
    if (!isOpen())
        return;
    ListView &list = m_page->list(editorFiles);
    QStringList keys;
    for (const int row : list.selectedRows())
        keys.append(list.rowAt(row).key);
    for (const QString &key : keys) {
        if (m_context.services.messageBoxes.show(removeQuestion(key)) != MessageAnswer::Yes)
            return;
        if (const std::optional<int> row = list.find(key))
            list.removeRow(*row);
        m_context.state.project.ProjectChanged = true;
    }
}
