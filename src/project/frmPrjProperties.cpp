#include "project/frmPrjProperties.h"

#include "common/paths.h"
#include "common/programState.h"
#include "project/modProjectFileCtrl.h"
#include "widgets/layout.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

frmPrjProperties::frmPrjProperties(ProgramContext &context, const ProjectFileCtrl &project)
    : Form(context, QStringLiteral("frmPrjProperties")), m_project(project)
{
}

void frmPrjProperties::Form_Load()
{
    const QString path = m_project.path();
    setCaption(FileNameOnly(path) + QStringLiteral(" Properties"));
    buildControls();
    showProject();
    m_file.show(context(), path);
}

void frmPrjProperties::buildControls()
{
    QTabBar *tabProperties =
        ui::tabStrip(QStringLiteral("tabProperties"), {QStringLiteral("File"), QStringLiteral("Project")});
    tabProperties->setAccessibleName(QStringLiteral("Pages of properties"));
    QPushButton *cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { Unload(); });
    setContent(ui::column({
        ui::pages(tabProperties, QStringLiteral("picPage"), {ui::column({m_file.build(), ui::space()}), projectPage()}),
        ui::line({ui::space(), cmdOK, cmdCancel}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

ui::Node frmPrjProperties::projectPage()
{
    txtPrjDescription = ui::text(QStringLiteral("txtPrjDescription"));
    txtPrjAuthor = ui::text(QStringLiteral("txtPrjAuthor"));
    lblEditorFileCount = ui::label(QStringLiteral("lblEditorFileCount"), {});
    lblOtherFileCount = ui::label(QStringLiteral("lblOtherFileCount"), {});
    return ui::column({
        ui::rows({
            ui::row(QStringLiteral("Project &Name:"), txtPrjDescription),
            ui::row(QStringLiteral("Project &Author:"), txtPrjAuthor),
            ui::row(QStringLiteral("Editor files:"), lblEditorFileCount),
            ui::row(QStringLiteral("Other files:"), lblOtherFileCount),
        }),
        ui::space(),
    });
}

void frmPrjProperties::showProject()
{
    const ProjectState &project = context().state.project;
    txtPrjDescription->setText(project.SiteName);
    txtPrjAuthor->setText(project.SiteAuthor);
    lblEditorFileCount->setText(QString::number(m_project.editorFiles().size()));
    lblOtherFileCount->setText(QString::number(m_project.otherFiles().size()));
}

void frmPrjProperties::cmdOK_Click()
{
    // They reach the disk with the next save of the project, which they do not call for by themselves.
    ProjectState &project = context().state.project;
    project.SiteName = txtPrjDescription->text();
    project.SiteAuthor = txtPrjAuthor->text();
    Unload();
}
