#include "project/projectPage.h"

#include "project/fileIcons.h"
#include "widgets/controls.h"
#include "widgets/listView.h"
#include "widgets/themeColour.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace
{
constexpr int Gap = 4;

QLabel *labelOf(const QString &name, const QString &caption, QWidget *control)
{
    QLabel *label = ui::label(name, caption);
    label->setBuddy(control);
    label->setContentsMargins(Gap, Gap / 2, 0, 0); // off the edge of the pane, where the lists stand
    return label;
}
} // namespace

ProjectPage::ProjectPage(QWidget *parent) : QWidget(parent)
{
    txtPrjPath = ui::text(QStringLiteral("txtPrjPath"));
    txtPrjPath->setReadOnly(true);
    txtPrjPath->setAccessibleName(QStringLiteral("Open project"));
    lblProjectPath = labelOf(QStringLiteral("lblProjectPath"), QStringLiteral("Project file:"), txtPrjPath);
    lstEditorFiles = fileList(QStringLiteral("lstEditorFiles"), QStringLiteral("mnuPopupEditorFiles"), true);
    lstEditorFiles->setAccessibleName(QStringLiteral("Editor files"));
    lstEditorFiles->setMultiSelect(true);
    lstOtherFiles = fileList(QStringLiteral("lstOtherFiles"), QStringLiteral("mnuPopupOtherFiles"), false);
    lstOtherFiles->setAccessibleName(QStringLiteral("Other files"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    layout->addWidget(lblProjectPath);
    layout->addWidget(txtPrjPath);
    layout->addWidget(labelOf(QStringLiteral("lblEditorFiles"), QStringLiteral("Editor files:"), lstEditorFiles));
    layout->addWidget(lstEditorFiles, 1);
    layout->addWidget(labelOf(QStringLiteral("lblOtherFiles"), QStringLiteral("Other files:"), lstOtherFiles));
    layout->addWidget(lstOtherFiles, 1);
    setNoPath();
    setListsEnabled(false);
}

ListView *ProjectPage::fileList(const QString &name, const QString &popup, bool editorFiles)
{
    const auto choose = [this, editorFiles](int row) {
        Q_EMIT fileChosen(list(editorFiles).rowAt(row).key, editorFiles);
    };
    ListView *list = ui::listView(
        name, {QStringLiteral("File"), QStringLiteral("Path"), QStringLiteral("Size"), QStringLiteral("Type")},
        {.selection = {}, .dblClick = choose, .enter = choose, .tick = {}});
    list->setSmallIcons(projectFileIcons());
    list->setTextElideMode(Qt::ElideMiddle); // what tells paths apart stands at their ends
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list, popup](const QPoint &point) {
        Q_EMIT popupWanted(popup, list->viewport()->mapToGlobal(point));
    });
    ui::onKeyDown(list, [this, editorFiles](const QKeyEvent &event) {
        if (event.key() != Qt::Key_Delete || event.modifiers() != Qt::NoModifier)
            return false;
        Q_EMIT removeWanted(editorFiles);
        return true;
    });
    list->setFileDropHandler(
        [this, editorFiles](const QStringList &paths) { Q_EMIT filesDropped(paths, editorFiles); });
    return list;
}

QString ProjectPage::path() const
{
    return txtPrjPath->text();
}

void ProjectPage::setPath(const QString &path)
{
    txtPrjPath->setText(path);
    txtPrjPath->setToolTip(path);
    lblProjectPath->setEnabled(true);
}

void ProjectPage::setNoPath()
{
    txtPrjPath->setText(NoProject);
    txtPrjPath->setToolTip({});
    lblProjectPath->setEnabled(false);
}

void ProjectPage::setListsEnabled(bool enabled)
{
    for (ListView *list : {lstEditorFiles, lstOtherFiles}) {
        list->setEnabled(enabled);
        setBackColor(*list, enabled ? WindowColour : ButtonFaceColour);
    }
}

void ProjectPage::clearLists()
{
    lstEditorFiles->clearRows();
    lstOtherFiles->clearRows();
}
