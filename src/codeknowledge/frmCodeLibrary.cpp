#include "codeknowledge/frmCodeLibrary.h"

#include "codeknowledge/codeEntry.h"
#include "codeknowledge/frmRenameCodeEntry.h"
#include "common/document.h"
#include "common/encodings.h"
#include "common/mainWindow.h"
#include "common/paths.h"
#include "forms/formRuntime.h"
#include "forms/modLaunchHTMLHelp.h"
#include "forms/programContext.h"
#include "services/fileSystem.h"
#include "services/messageBoxes.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/fileControls.h"
#include "widgets/layout.h"
#include "widgets/nodeTree.h"
#include "widgets/programIcon.h"

#include <QAction>
#include <QFontDatabase>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>

namespace
{
const QString CategoryKey = QStringLiteral("HEAD:");
constexpr int CharactersOfALine = 44;
constexpr int CharactersOfATitle = 24;

bool isCategory(const QString &key)
{
    return key.startsWith(CategoryKey, Qt::CaseInsensitive);
}

QStringList alphabetical(QStringList names)
{
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order == 0 ? a < b : order < 0;
    });
    return names;
}

QPlainTextEdit *shownText(const char *name)
{
    QPlainTextEdit *area = ui::textArea(QLatin1String(name));
    area->setReadOnly(true);
    area->setMinimumWidth(area->fontMetrics().averageCharWidth() * CharactersOfALine);
    return area;
}
} // namespace

frmCodeLibrary::frmCodeLibrary(ProgramContext &context) : DialogForm(context, QStringLiteral("frmCodeLibrary"))
{
    setCaption(QStringLiteral("Code Library"));
}

void frmCodeLibrary::Form_Load()
{
    m_code.clear();
    setContent(ui::beside({ui::line({library().stretched(2), entry().stretched(3)}), commands()}));
    addPopup();
    FillCodeLibraryTree();
}

ui::Node frmCodeLibrary::library()
{
    trvCode = ui::tree(QStringLiteral("trvCode"), {.nodeClick = [this](int node) { trvCode_NodeClick(node); },
                                                   .nodeDblClick = [this](int node) { trvCode_NodeDblClick(node); },
                                                   .nodeEnter = [this](int node) { trvCode_NodeDblClick(node); }});
    trvCode->setMinimumWidth(trvCode->fontMetrics().averageCharWidth() * CharactersOfATitle);
    trvCode->setImages({{QStringLiteral("libnode"), programIcon(QStringLiteral("library"))},
                        {QStringLiteral("libcontent"), programIcon(QStringLiteral("file-code"))}});
    dirCodeLocation = ui::folderList(QStringLiteral("dirCodeLocation"), services().files);
    filCodeFiles = ui::fileList(QStringLiteral("filCodeFiles"), services().files);
    return ui::column({ui::under(QStringLiteral("&Library:"), trvCode).stretched(), ui::hidden(dirCodeLocation),
                       ui::hidden(filCodeFiles)});
}

ui::Node frmCodeLibrary::entry()
{
    txtPreview = shownText("txtPreview");
    txtPreview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtPreview->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtDescription = shownText("txtDescription");
    return ui::column({ui::under(QStringLiteral("&Preview:"), txtPreview).stretched(2),
                       ui::under(QStringLiteral("&Description:"), txtDescription).stretched(1)});
}

ui::Node frmCodeLibrary::commands()
{
    QPushButton *cmdInsert =
        ui::button(QStringLiteral("cmdInsert"), QStringLiteral("&Insert"), [this] { cmdInsert_Click(); });
    QPushButton *cmdClose = ui::button(QStringLiteral("cmdClose"), QStringLiteral("Close"), [this] { cancel(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_Global_CodeLibrary.htm"));
    });
    setDefaultButton(cmdInsert);
    setCancelButton(cmdClose);
    return ui::buttons({cmdInsert, cmdClose, cmdHelp});
}

/// The keys of the pop-up's entries work in the tree alone.
void frmCodeLibrary::addPopup()
{
    auto *menu = new QMenu(window());
    const auto entry = [&](const char *name, const QString &caption, Qt::Key key, void (frmCodeLibrary::*run)()) {
        QAction *action = menu->addAction(caption, this, run);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        trvCode->addAction(action);
    };
    menu->setObjectName(QStringLiteral("mnuCodeEntry"));
    entry("mnuRenameCodeEntry", QStringLiteral("&Rename..."), Qt::Key_F2, &frmCodeLibrary::renameEntry);
    entry("mnuDeleteCodeEntry", QStringLiteral("&Delete..."), Qt::Key_Delete, &frmCodeLibrary::deleteEntry);
    trvCode->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(trvCode, &QWidget::customContextMenuRequested, menu, [this, menu](const QPoint &point) {
        if (!selectedEntry().isEmpty())
            menu->popup(trvCode->viewport()->mapToGlobal(point));
    });
}

void frmCodeLibrary::FillCodeLibraryTree()
{
    trvCode->clearNodes();
    bool filled = dirCodeLocation->setPath(settings::read(services().settings, settings::CodeLibDir));
    const QStringList folders = filled ? alphabetical(dirCodeLocation->subfolders()) : QStringList();
    for (const QString &folder : folders)
        filled = filled && addCategory(folder);
    if (!filled)
        tellFailure(QStringLiteral("Code Library Error"),
                    QStringLiteral("An error occurred while trying to access the code library. The code library source "
                                   "folder may be missing or corrupt.\r\n\r\n"
                                   "You can specify the location of a valid source code library folder by choosing "
                                   "Options from the Tools menu. In the Options window, select the 'Files' tab."));
}

/// False if the folder cannot be listed.
bool frmCodeLibrary::addCategory(const QString &folder)
{
    const QString name = FileNameOnly(folder);
    const auto category = trvCode->addNode({name, CategoryKey + folder, QStringLiteral("libnode"), -1});
    if (!filCodeFiles->setPath(folder))
        return false;
    for (const QString &file : alphabetical(filCodeFiles->names()))
        if (isEntryFile(file))
            trvCode->addNode(
                {entryTitle(file), joinPath(folder, file), QStringLiteral("libcontent"), category.value_or(-1)});
    return true;
}

void frmCodeLibrary::trvCode_NodeClick(int node)
{
    LoadCodeEntry(trvCode->nodeAt(node).key);
}

void frmCodeLibrary::trvCode_NodeDblClick(int node)
{
    LoadCodeEntry(trvCode->nodeAt(node).key);
    if (!isCategory(trvCode->nodeAt(node).key))
        cmdInsert_Click();
}

/// A category leaves the last entry on show.
void frmCodeLibrary::LoadCodeEntry(const QString &key)
{
    if (isCategory(key))
        return;
    const FileContents file = services().files.readAll(key);
    if (file.error) {
        tellFailure(QStringLiteral("Code Library File Error"),
                    QStringLiteral("Tagwrighter was unable to open the code library file named \"%1\"").arg(key));
        return;
    }
    const CodeEntry entry = readCodeEntry(decodeOwnFile(file.bytes));
    m_code = entry.code;
    txtPreview->setPlainText(entry.code);
    txtDescription->setPlainText(entry.description);
}

void frmCodeLibrary::cmdInsert_Click()
{
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().setSelText(m_code);
    Unload();
    if (Document *document = frmMdi().activeDocument())
        document->txtEdit().SetFocus();
}

QString frmCodeLibrary::selectedEntry() const
{
    const std::optional<int> node = trvCode->selectedNode();
    const QString key = node ? trvCode->nodeAt(*node).key : QString();
    return isCategory(key) ? QString() : key;
}

void frmCodeLibrary::renameEntry()
{
    const QString path = selectedEntry();
    if (path.isEmpty())
        return;
    auto &form = context().forms.get<frmRenameCodeEntry>();
    if (const std::optional<QString> renamed = form.rename(path)) {
        FillCodeLibraryTree();
        trvCode->selectNode(trvCode->find(*renamed));
    }
}

void frmCodeLibrary::deleteEntry()
{
    const QString path = selectedEntry();
    if (path.isEmpty())
        return;
    const MessageBox question{QStringLiteral("Delete Code"),
                              QStringLiteral("Do you want to delete \"%1\" from the code library? The code can not be "
                                             "brought back.")
                                  .arg(entryTitle(FileNameOnly(path))),
                              MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::No};
    if (services().messageBoxes.show(question) != MessageAnswer::Yes)
        return;
    if (services().files.removeFile(path))
        tellFailure(QStringLiteral("Code Library File Error"),
                    QStringLiteral("Tagwrighter was unable to delete the code library file named \"%1\"").arg(path));
    FillCodeLibraryTree();
}

void frmCodeLibrary::tellFailure(const QString &title, const QString &text)
{
    services().messageBoxes.show({title, text, MessageIcon::Critical, MessageButtons::OK});
}
