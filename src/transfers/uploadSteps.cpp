#include "transfers/uploadSteps.h"

#include <QRandomGenerator>
#include <QUrl>
#include <algorithm>

namespace
{
bool isSftp(const QString &scheme)
{
    return scheme == u"sftp";
}

/// A path as the commands of SFTP take it: in quotes, from the root, or from the user's home without a "/" in front.
QByteArray sftpPath(const QString &folder, const QString &name)
{
    QString path = QUrl::fromPercentEncoding(folder.toUtf8()) + name;
    if (path.startsWith(QStringLiteral("/~/")))
        path = path.sliced(3);
    path.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return '"' + path.toUtf8() + '"';
}

struct Commands {
    QString scheme;
    QString folder;

    QList<QByteArray> rename(const QString &from, const QString &to, bool mayFail) const
    {
        const QByteArray star = mayFail ? "*" : "";
        if (isSftp(scheme))
            return {star + "rename " + sftpPath(folder, from) + ' ' + sftpPath(folder, to)};
        return {star + "RNFR " + from.toUtf8(), star + "RNTO " + to.toUtf8()};
    }
    /// By FTP, the old file was never put aside.
    QList<QByteArray> bringBack(const UploadNames &names) const
    {
        return isSftp(scheme) ? rename(names.aside, names.target, true) : QList<QByteArray>();
    }
    QList<QByteArray> remove(const QString &name) const
    {
        if (isSftp(scheme))
            return {"*rm " + sftpPath(folder, name)};
        return {"*DELE " + name.toUtf8()};
    }
};
} // namespace

UploadNames uploadNames(const QString &target)
{
    const QString mark = QString::number(QRandomGenerator::global()->generate(), 16);
    return {target, QStringLiteral(".tagwrighter-%1.tmp").arg(mark), QStringLiteral(".tagwrighter-%1.old").arg(mark)};
}

bool mayMove(const QString &scheme)
{
    return scheme == u"http" || scheme == u"https";
}

bool allowsMove(const QByteArray &allowed)
{
    const QList<QByteArray> methods = allowed.split(',');
    return std::any_of(methods.begin(), methods.end(),
                       [](const QByteArray &method) { return method.trimmed().toUpper() == "MOVE"; });
}

bool canRename(const QString &scheme, const QString &target)
{
    const bool plain = std::none_of(target.begin(), target.end(), [](QChar c) { return c < u' ' || c == u'\x7f'; });
    return plain && !target.isEmpty() && (scheme == u"ftp" || scheme == u"ftps" || isSftp(scheme));
}

UploadCommands uploadCommands(UploadWay way, const QString &scheme, const QString &folder, const UploadNames &names,
                              bool retry)
{
    const Commands commands{scheme, folder};
    if (way == UploadWay::Straight && !retry)
        return {};
    if (way == UploadWay::Straight)
        return {commands.bringBack(names) + commands.remove(names.temporary), {}};
    const QList<QByteArray> intoPlace = commands.rename(names.temporary, names.target, false);
    if (!isSftp(scheme))
        return {{}, intoPlace};
    // SFTP renames over nothing that is there: the file of before goes aside, and away once the new one stands.
    return {{}, commands.rename(names.target, names.aside, true) + intoPlace + commands.remove(names.aside)};
}

UploadCommands cleanupCommands(const QString &scheme, const QString &folder, const UploadNames &names)
{
    return {{}, Commands{scheme, folder}.remove(names.temporary)};
}

bool refusesTemporaryName(CURLcode code, long responseCode)
{
    constexpr long NoRoom = 552;
    constexpr long NoRoomNow = 452;
    if (responseCode == NoRoom || responseCode == NoRoomNow)
        return false;
    return code == CURLE_QUOTE_ERROR || code == CURLE_UPLOAD_FAILED || code == CURLE_REMOTE_ACCESS_DENIED ||
           code == CURLE_REMOTE_FILE_NOT_FOUND || code == CURLE_SSH;
}
