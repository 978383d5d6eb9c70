#include "desktop/desktopLauncher.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace
{
QUrl urlOf(const QString &target)
{
    if (target.startsWith(u'/'))
        return QUrl::fromLocalFile(target);
    const QUrl url = QUrl::fromUserInput(target);
    return url.scheme().isEmpty() ? QUrl() : url;
}
} // namespace

bool DesktopLauncher::openUrl(const QString &target)
{
    const QUrl url = urlOf(target);
    if (!url.isValid())
        return false;
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return QDesktopServices::openUrl(url);
    return QProcess::startDetached(opener, {QString::fromLatin1(url.toEncoded())});
}

bool DesktopLauncher::start(const QString &program)
{
    if (program.isEmpty())
        return false;
    QProcess process;
    process.setProgram(program);
    process.setStandardInputFile(QProcess::nullDevice());
    return process.startDetached(); // false as well where the system finds that it cannot be run
}
