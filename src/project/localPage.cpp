#include "project/localPage.h"

#include "common/paths.h"
#include "project/fileIcons.h"
#include "services/fileSystem.h"
#include "widgets/controls.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"

#include <QDir>
#include <QVBoxLayout>
#include <algorithm>

namespace
{
/// By name without regard to case, as people look for files; names that differ in case alone by their codes.
QStringList sorted(QStringList names)
{
    std::sort(names.begin(), names.end(), [](const QString &one, const QString &other) {
        const int order = QString::compare(one, other, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : one < other;
    });
    return names;
}
} // namespace

LocalPage::LocalPage(FileSystem &files, QWidget *parent) : QWidget(parent), m_files(files)
{
    constexpr int Gap = 4;
    drvLocal = ui::driveList(QStringLiteral("drvLocal"), files, [this] { dirLocal->setPath(drvLocal->Drive()); });
    dirLocal = ui::folderList(QStringLiteral("dirLocal"), files, [this] { filTempLocal->setPath(dirLocal->Path()); });
    filTempLocal = ui::fileList(QStringLiteral("filTempLocal"), files, [this] { filTempLocal_PathChange(); });
    const auto choose = [this](int row) { Q_EMIT fileChosen(lstLocal->rowAt(row).key); };
    lstLocal = ui::listView(QStringLiteral("lstLocal"), {QStringLiteral("File"), QStringLiteral("Size")},
                            {.selection = {}, .dblClick = choose, .enter = choose, .tick = {}});
    lstLocal->setSmallIcons(localFileIcons());
    drvLocal->setAccessibleName(QStringLiteral("Drive"));
    dirLocal->setAccessibleName(QStringLiteral("Folder"));
    lstLocal->setAccessibleName(QStringLiteral("Local files"));
    filTempLocal->hide();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    layout->addWidget(drvLocal);
    layout->addWidget(dirLocal, 1);
    layout->addWidget(lstLocal, 1);
    layout->addWidget(filTempLocal);
}

void LocalPage::refresh()
{
    if (!dirLocal->Path().isEmpty()) {
        filTempLocal->setPath(dirLocal->Path());
        return;
    }
    drvLocal->setDrive(QDir::homePath());
    dirLocal->setPath(drvLocal->Drive());
}

void LocalPage::filTempLocal_PathChange()
{
    lstLocal->clearRows();
    const QString folder = filTempLocal->Path();
    for (const QString &name : sorted(filTempLocal->names())) {
        const QString path = joinPath(folder, name);
        const auto size = m_files.size(path);
        lstLocal->addRow(
            {.key = path,
             .text = name,
             .smallIcon = localFileIcon(path),
             .subItems = {(size ? QString::number(GetFileSizeKB(*size)) : QString()) + QStringLiteral("KB")},
             .tag = {},
             .checked = false});
        if (!size)
            break; // the rest of a folder whose files cannot be looked at is not tried
    }
}
