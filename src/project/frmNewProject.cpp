#include "project/frmNewProject.h"

#include "common/mainWindow.h"
#include "common/programState.h"
#include "forms/modLaunchHTMLHelp.h"
#include "project/modProjectFileCtrl.h"
#include "services/commonDialogs.h"
#include "services/services.h"
#include "services/settings.h"
#include "widgets/layout.h"
#include "widgets/screenPointer.h"

#include <QLineEdit>
#include <QPushButton>

frmNewProject::frmNewProject(ProgramContext &context, ProjectFileCtrl &project)
    : Form(context, QStringLiteral("frmNewProject")), m_project(project)
{
    setCaption(QStringLiteral("New Site Project"));
}

void frmNewProject::Form_Load()
{
    buildControls();
    if (!m_project.CheckOpenProject()) {
        Unload();
        return;
    }
    chooseFile();
    txtProjectPath_Change();
}

void frmNewProject::buildControls()
{
    txtProjectPath = ui::text(QStringLiteral("txtProjectPath"), [this] { txtProjectPath_Change(); });
    txtProjectPath->setMinimumWidth(320);
    txtSiteName = ui::text(QStringLiteral("txtSiteName"));
    txtSiteAuthor = ui::text(QStringLiteral("txtSiteAuthor"));
    QPushButton *cmdBrowse =
        ui::button(QStringLiteral("cmdBrowse"), QStringLiteral("&Browse..."), [this] { chooseFile(); });
    cmdOK = ui::button(QStringLiteral("cmdOK"), QStringLiteral("&OK"), [this] { cmdOK_Click(); });
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), [this] { Unload(); });
    QPushButton *cmdHelp = ui::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"), [this] {
        OpenHelpTopic(context(), QStringLiteral("::/topics/using/Function_SiteProject_Creating.htm"));
    });
    setContent(ui::beside({
        ui::column({
            ui::rows({
                ui::row(QStringLiteral("&Project file:"), txtProjectPath, {cmdBrowse}),
                ui::row(QStringLiteral("Site &name:"), txtSiteName),
                ui::row(QStringLiteral("Site &author:"), txtSiteAuthor),
            }),
            ui::space(),
        }),
        ui::buttons({cmdOK, cmdCancel, cmdHelp}),
    }));
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
}

void frmNewProject::chooseFile()
{
    // The dialog itself asks before a file that is there already is chosen.
    const auto cdlProjectFilePath =
        services().commonDialogs.showSave({.DialogTitle = QStringLiteral("Create New Project File"),
                                           .Filter = projectFilter(),
                                           .InitDir = settings::read(services().settings, settings::WorkingDir),
                                           .FileName = txtProjectPath->text(),
                                           .DefaultExt = QStringLiteral("tsp"),
                                           .asksBeforeReplacing = true});
    if (cdlProjectFilePath)
        txtProjectPath->setText(cdlProjectFilePath->fileName);
}

void frmNewProject::txtProjectPath_Change()
{
    cmdOK->setEnabled(!txtProjectPath->text().isEmpty());
}

void frmNewProject::cmdOK_Click()
{
    Hide();
    if (m_project.CreateProject(txtProjectPath->text(), txtSiteName->text(), txtSiteAuthor->text())) {
        Unload();
        frmMdi().showProjectPage(true);
        context().screenPointer.setMousePointer(PointerShape::Default);
        return;
    }
    Unload();
}
