#include "frame/frmMdiPane.h"

#include "common/mainWindow.h"
#include "forms/form.h"
#include "project/localPage.h"
#include "project/projectPage.h"
#include "services/services.h"
#include "widgets/controlName.h"
#include "widgets/controls.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"
#include "widgets/nodeTree.h"
#include "widgets/programIcon.h"
#include "widgets/sidePane.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
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
    images.insert(QStringLiteral("Error"),
                  programIcon(QStringLiteral("circle-alert"), QColor(0xC6, 0x28, 0x28), QColor(0xFF, 0x6E, 0x64)));
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
    addPage(*layout, 1, m_project = new ProjectPage);
    addPage(*layout, 2, treStructure = ui::tree(QStringLiteral("treStructure")));
    addPage(*layout, 3, m_local = new LocalPage(context.services.files));
    treCodes->setAccessibleName(QStringLiteral("Codes"));
    treStructure->setAccessibleName(QStringLiteral("Document structure"));
    treStructure->setImages(imlDocStructure());
    connect(m_project, &ProjectPage::popupWanted, this, &TaskManagerPane::popupWanted);
    passKeys();
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

void TaskManagerPane::passKeys()
{
    for (QWidget *control :
         QList<QWidget *>{treCodes, treStructure, m_project->lstEditorFiles, m_project->lstOtherFiles,
                          m_local->lstLocal, m_local->dirLocal, m_local->drvLocal})
        ui::onKeyDown(control, [this](const QKeyEvent &event) {
            return m_context.mainWindow->MoveToNextPane(static_cast<Qt::Key>(event.key()), FocusPlace::Project);
        });
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
    QWidget *const controls[Pages] = {treCodes, m_project->lstEditorFiles, treStructure, m_local->lstLocal};
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
    m_local->refresh();
}
