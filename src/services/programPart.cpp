#include "services/programPart.h"

#include "common/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>

QStringList partFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    QStringList folders;
    for (const char *place : {"/../" TAGWRIGHTER_LIBRARY_FOLDER, "/../lib", "/../../lib"})
        folders.append(here + QLatin1String(place) + QStringLiteral("/tagwrighter"));
    return folders;
}

ProgramPart::ProgramPart(const QStringList &folders, const QString &fileName) : m_folders(folders), m_fileName(fileName)
{
}

QStringList ProgramPart::files() const
{
    QStringList files;
    for (const QString &folder : m_folders) {
        const QString file = joinPath(folder, m_fileName);
        if (QFileInfo(file).isFile())
            files.append(file);
    }
    return files;
}

QObject *ProgramPart::rootObject(const char *interface)
{
    if (m_rootObject)
        return m_rootObject;
    m_reason = QStringLiteral("The program's part %1 is not installed.").arg(m_fileName);
    for (const QString &file : files()) {
        QPluginLoader module(file);
        const QString offered = module.metaData().value(QLatin1String("IID")).toString();
        if (!offered.isEmpty() && offered != QLatin1String(interface)) {
            m_reason = QStringLiteral("The program's part %1 is of another version.").arg(m_fileName);
            continue;
        }
        module.setLoadHints(QLibrary::PreventUnloadHint);
        m_rootObject = module.instance();
        if (m_rootObject)
            break;
        m_reason = module.errorString();
    }
    return m_rootObject;
}
