#include "desktop/stateFolder.h"

#include "common/paths.h"

#include <QDir>
#include <QFile>

QString stateFolder()
{
    QString home = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    if (!home.startsWith(u'/'))
        home = joinPath(QDir::homePath(), QStringLiteral(".local/state"));
    return joinPath(withoutFinalSeparator(home), QStringLiteral("tagwrighter"));
}
