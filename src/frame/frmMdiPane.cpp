#include "frame/frmMdiPane.h"

#include "common/mainWindow.h"
#include "common/paths.h"
#include "forms/form.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "widgets/controlName.h"
#include "widgets/controls.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"
#include "widgets/programIcon.h"
#include "widgets/sidePane.h"

#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{
constexpr int Pages = 4;
constexpr int Gap = 4;

struct Page {
    const char *caption;
    const char *toolTip;
};
constexpr Page pages[Pages] = {{"Code", "Code Selection"},
                               {"Project", "Project Files"},
                               {"Structure", "Document Structure"},
                               {"Local", "Local File Navigation"}};

/// The small picture of a local file, by the extension of its name.
int localIcon(const QString &path)
{
    static const QHash<QString, int> icons{
        {QStringLiteral("htm"), 1}, {QStringLiteral("html"), 1}, {QStringLiteral("gif"), 3}, {QStringLiteral("jpg"), 4},
        {QStringLiteral("exe"), 5}, {QStringLiteral("ico"), 6},  {QStringLiteral("cab"), 7}, {QStringLiteral("zip"), 7},
        {QStringLiteral("txt"), 8}, {QStringLiteral("bmp"), 9}};
    return icons.value(GetFileExtension(path).toLower(), 2);
}

QIcon editorFileIcon()
{
    return programIcon(QStringLiteral("file-code"), QColor(0x1F5FA8), QColor(0x7DB4F0));
}

QIcon pictureIcon()
{
    return programIcon(QStringLiteral("file-image"), QColor(0x2F7D4F), QColor(0x7FCB9E));
}

/// The pictures of the document structure tree, each with the name of its drawing.
QHash<QString, QIcon> imlDocStructure()
{
    constexpr std::pair<const char *, const char *> pictures[] = {
        {"Element", "code-xml"},
        {"Attribute", "variable"},
        {"AttributeValue", "quote"},
        {"Hyperlink", "link"},
        {"Image", "image"},
        {"LineBreak", "corner-down-left"},
        {"Paragraph", "pilcrow"},
        {"HorizontalRule", "minus"},
        {"FormObject", "text-cursor-input"},
        {"ExternalStyleSheet", "palette"},
        {"Applet", "app-window"},
        {"FontBold", "bold"},
        {"FontItalic", "italic"},
        {"FontUnderline", "underline"},
        {"AlignLeft", "text-align-start"},
        {"AlignCentre", "text-align-center"},
        {"AlignRight", "text-align-end"},
        {"AlignJustify", "text-align-justify"},
        {"Heading", "heading"},
        {"Table", "table"},
        {"Comment", "message-square"},
    };
    QHash<QString, QIcon> images;
    for (const auto &[key, drawing] : pictures)
        images.insert(QLatin1String(key), programIcon(QLatin1String(drawing)));
    return images;
}

QVBoxLayout *columnIn(QWidget *widget)
{
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    return layout;
}
} // namespace

TaskManagerPane::TaskManagerPane(ProgramContext &context) : m_context(context)
{
    m_picProject = new SidePane;
    m_picProject->setObjectName(QStringLiteral("picProject"));
    setParent(m_picProject);
    auto *layout = columnIn(m_picProject);
    layout->setSpacing(0);
    layout->addWidget(titleBar());
    QStringList captions;
    for (const Page &page : pages)
        captions.append(QLatin1String(page.caption));
    tabCodeWindow = ui::tabStrip(QStringLiteral("tabCodeWindow"), captions, [this] { tabCodeWindow_Click(); });
    tabCodeWindow->setAccessibleName(QStringLiteral("Task Manager Pane"));
    tabCodeWindow->setDrawBase(false);
    tabCodeWindow->setUsesScrollButtons(true);
    for (int page = 0; page < Pages; ++page)
        tabCodeWindow->setTabToolTip(page, QLatin1String(pages[page].toolTip));
    layout->addWidget(tabCodeWindow);
    addPage(*layout, 0, treCodes = ui::tree(QStringLiteral("treCodes")));
    addPage(*layout, 1, projectPage());
    addPage(*layout, 2, treStructure = ui::tree(QStringLiteral("treStructure")));
    addPage(*layout, 3, localPage());
    treCodes->setAccessibleName(QStringLiteral("Codes"));
    treStructure->setAccessibleName(QStringLiteral("Document structure"));
    loadImageLists();
    passKeys();
    offerPopup(lstEditorFiles, QStringLiteral("mnuPopupEditorFiles"));
    offerPopup(lstOtherFiles, QStringLiteral("mnuPopupOtherFiles"));
    tabCodeWindow_Click();
}

QWidget *TaskManagerPane::titleBar()
{
    auto *fmeCodePrjSelTitleBar = new QWidget;
    fmeCodePrjSelTitleBar->setObjectName(QStringLiteral("fmeCodePrjSelTitleBar"));
    auto *layout = new QHBoxLayout(fmeCodePrjSelTitleBar);
    layout->setContentsMargins(2 * Gap, Gap / 2, Gap / 2, Gap / 2);
    auto *title = ui::label(QStringLiteral("lblCodePrjSelTitle"), QStringLiteral("Task Manager Pane"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title, 1);
    auto *imgCodeBarClose = new QToolButton;
    imgCodeBarClose->setObjectName(QStringLiteral("imgCodeBarClose"));
    imgCodeBarClose->setIcon(programIcon(QStringLiteral("x")));
    imgCodeBarClose->setAutoRaise(true);
    imgCodeBarClose->setToolTip(QStringLiteral("Close Task Manager Pane"));
    imgCodeBarClose->setAccessibleName(imgCodeBarClose->toolTip());
    connect(imgCodeBarClose, &QToolButton::clicked, this, &TaskManagerPane::closeChosen);
    layout->addWidget(imgCodeBarClose);
    return fmeCodePrjSelTitleBar;
}

void TaskManagerPane::addPage(QVBoxLayout &layout, int page, QWidget *contents)
{
    auto *holder = new QWidget;
    holder->setObjectName(controlName(QStringLiteral("picProjectHolder"), page));
    columnIn(holder)->addWidget(contents);
    layout.addWidget(holder, 1);
}

QWidget *TaskManagerPane::projectPage()
{
    auto *contents = new QWidget;
    auto *layout = columnIn(contents);
    const QStringList columns{QStringLiteral("File"), QStringLiteral("Path"), QStringLiteral("Size"),
                              QStringLiteral("Type")};
    txtPrjPath = ui::text(QStringLiteral("txtPrjPath"));
    txtPrjPath->setText(NoProject);
    txtPrjPath->setReadOnly(true);
    txtPrjPath->setAccessibleName(QStringLiteral("Open project"));
    lstEditorFiles = ui::listView(QStringLiteral("lstEditorFiles"), columns);
    lstEditorFiles->setAccessibleName(QStringLiteral("Editor files"));
    lstOtherFiles = ui::listView(QStringLiteral("lstOtherFiles"), columns);
    lstOtherFiles->setAccessibleName(QStringLiteral("Other files"));
    layout->addWidget(txtPrjPath);
    layout->addWidget(ui::label(QStringLiteral("lblEditorFiles"), QStringLiteral("Editor files:")));
    layout->addWidget(lstEditorFiles, 1);
    layout->addWidget(ui::label(QStringLiteral("lblOtherFiles"), QStringLiteral("Other files:")));
    layout->addWidget(lstOtherFiles, 1);
    return contents;
}

QWidget *TaskManagerPane::localPage()
{
    auto *contents = new QWidget;
    auto *layout = columnIn(contents);
    FileSystem &files = m_context.services.files;
    drvLocal = ui::driveList(QStringLiteral("drvLocal"), [this] { dirLocal->setPath(drvLocal->Drive()); });
    dirLocal = ui::folderList(QStringLiteral("dirLocal"), files, [this] { filTempLocal->setPath(dirLocal->Path()); });
    filTempLocal = ui::fileList(QStringLiteral("filTempLocal"), files, [this] { filTempLocal_PathChange(); });
    lstLocal = ui::listView(QStringLiteral("lstLocal"), {QStringLiteral("File"), QStringLiteral("Size")});
    drvLocal->setAccessibleName(QStringLiteral("Drive"));
    dirLocal->setAccessibleName(QStringLiteral("Folder"));
    lstLocal->setAccessibleName(QStringLiteral("Local files"));
    filTempLocal->hide();
    layout->addWidget(drvLocal);
    layout->addWidget(dirLocal, 1);
    layout->addWidget(lstLocal, 1);
    layout->addWidget(filTempLocal);
    return contents;
}

void TaskManagerPane::loadImageLists()
{
    const QIcon other = programIcon(QStringLiteral("file"));
    const QIcon picture = pictureIcon();
    const QHash<QString, QIcon> filePictures{{QStringLiteral("EditorFile"), editorFileIcon()},
                                             {QStringLiteral("OtherFile"), other}};
    const QList<QIcon> project{filePictures[QStringLiteral("EditorFile")], filePictures[QStringLiteral("OtherFile")]};
    treStructure->setImages(imlDocStructure());
    lstEditorFiles->setSmallIcons(project);
    lstOtherFiles->setSmallIcons(project);
    lstLocal->setSmallIcons({editorFileIcon(), other, picture, picture, programIcon(QStringLiteral("app-window")),
                             picture, programIcon(QStringLiteral("file-archive")),
                             programIcon(QStringLiteral("file-text")), picture});
}

void TaskManagerPane::passKeys()
{
    for (QWidget *control :
         QList<QWidget *>{treCodes, treStructure, lstEditorFiles, lstOtherFiles, lstLocal, dirLocal, drvLocal})
        ui::onKeyDown(control, [this](const QKeyEvent &event) {
            const int keyCode = event.key() == Qt::Key_F6 ? 117 : 0;
            return m_context.mainWindow->MoveToNextPane(keyCode, QStringLiteral("project"));
        });
}

void TaskManagerPane::offerPopup(ListView *list, const QString &menu)
{
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list, menu](const QPoint &point) {
        Q_EMIT popupWanted(menu, list->viewport()->mapToGlobal(point));
    });
}

QString TaskManagerPane::projectPath() const
{
    return txtPrjPath->text();
}

int TaskManagerPane::page() const
{
    return tabCodeWindow->currentIndex();
}

void TaskManagerPane::showPage(int page)
{
    tabCodeWindow->setCurrentIndex(page);
}

QWidget *TaskManagerPane::pageControl() const
{
    QWidget *const controls[Pages] = {treCodes, lstEditorFiles, treStructure, lstLocal};
    return controls[page()];
}

void TaskManagerPane::tabCodeWindow_Click()
{
    const auto holder = [this](int page) {
        return m_picProject->findChild<QWidget *>(controlName(QStringLiteral("picProjectHolder"), page));
    };
    for (int page = 0; page < Pages; ++page)
        holder(page)->setVisible(false);
    holder(page())->setVisible(true);
}

void TaskManagerPane::refreshLocalFiles()
{
    if (!dirLocal->Path().isEmpty()) {
        filTempLocal->setPath(dirLocal->Path());
        return;
    }
    drvLocal->setDrive(QDir::homePath());
    dirLocal->setPath(drvLocal->Drive());
}

void TaskManagerPane::filTempLocal_PathChange()
{
    lstLocal->clearRows();
    const QString folder = filTempLocal->Path();
    for (const QString &name : filTempLocal->names()) {
        const QString path = joinPath(folder, name);
        const auto size = m_context.services.files.size(path);
        lstLocal->addRow(
            {.key = path,
             .text = name,
             .smallIcon = localIcon(path),
             .subItems = {(size ? QString::number(GetFileSizeKB(*size)) : QString()) + QStringLiteral("KB")},
             .tag = {},
             .checked = false});
        if (!size)
            break; // the rest of a folder whose files cannot be looked at is not tried
    }
}
