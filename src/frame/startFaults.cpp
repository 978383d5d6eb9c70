#include "frame/startFaults.h"

#include "services/fileSystem.h"
#include "services/programFiles.h"
#include "services/services.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace
{
constexpr std::uintmax_t LeastRoom = 64 * 1024; ///< bytes; less is nothing, even for a page

/// The folder, or what there is of the way to it.
QString whatIsThere(QString folder)
{
    while (!QFileInfo::exists(folder) && folder != QDir::rootPath() && !folder.isEmpty())
        folder = QFileInfo(folder).path();
    return folder;
}

bool isFull(const QString &folder)
{
    std::error_code failed;
    const std::filesystem::space_info space = std::filesystem::space(QFile::encodeName(folder).toStdString(), failed);
    return !failed && space.available < LeastRoom;
}

/// Why nothing can be written into a folder, or into one that is still to be made; empty where it can.
QString whyNotWritten(const QString &folder)
{
    const QString there = whatIsThere(folder);
    if (!QFileInfo(there).isDir())
        return QStringLiteral("%1 is no folder").arg(there);
    if (!QFileInfo(there).isWritable() || !QFileInfo(there).isExecutable())
        return QStringLiteral("%1 is not open to you for writing").arg(there);
    return isFull(there) ? QStringLiteral("the disk of %1 is full").arg(there) : QString();
}

QString missingData(const Services &services)
{
    QStringList missing;
    for (const QString &name : {QStringLiteral("Html.tcb"), QStringLiteral("Css.tcb"), QStringLiteral("Page.rules")})
        if (services.files.checkReadable(programFile(services, name)))
            missing.append(name);
    if (missing.isEmpty())
        return {};
    return QStringLiteral("The program cannot read what it should have brought along (%1), so there are no codes to "
                          "choose from and pages are not checked. Installing it again helps.")
        .arg(missing.join(QStringLiteral(", ")));
}
} // namespace

QStringList startFaults(const Services &services)
{
    QStringList faults{missingData(services)};
    if (const QString why = whyNotWritten(services.statePath); !why.isEmpty())
        faults.append(QStringLiteral("Unsaved text is not kept safe, and settings may not be: %1.").arg(why));
    if (const QString why = whyNotWritten(services.appPath); !why.isEmpty())
        faults.append(QStringLiteral("Templates and snippets of your own cannot be stored: %1.").arg(why));
    faults.removeAll(QString());
    return faults;
}
