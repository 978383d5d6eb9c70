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

bool DesktopLauncher::start(const QString &command)
{
    // A path of an existing program may hold blanks without being quoted.
    if (QFileInfo(command).isFile())
        return QProcess::startDetached(command, {});
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty())
        return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}
