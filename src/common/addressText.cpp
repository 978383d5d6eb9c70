#include "common/addressText.h"

#include "common/paths.h"

#include <QDir>

QString encodedAddress(const QString &path)
{
    QString address;
    for (const QChar c : path) {
        const bool encoded = c <= u' ' || c == u'\x7f' || QStringView(u"%#?\"'<>`\\^{}|").contains(c);
        address += encoded
                       ? QStringLiteral("%%1").arg(static_cast<uint>(c.unicode()), 2, 16, QLatin1Char('0')).toUpper()
                       : QString(c);
    }
    return address;
}

namespace
{
/// Whether two paths begin with the same two folders, as those of one user's do.
bool areNeighbours(const QString &a, const QString &b)
{
    constexpr int Folders = 2;
    return a.section(u'/', 1, Folders) == b.section(u'/', 1, Folders) && a.count(u'/') > Folders;
}
} // namespace

QString addressFromDocument(const QString &path, const QString &documentPath, bool exists)
{
    const bool isNative = path.startsWith(u'/') && !path.startsWith(QStringLiteral("//"));
    if (!isNative || documentPath.isEmpty() || (!exists && !areNeighbours(path, documentPath)))
        return path;
    const QString slashed = exists ? path : QString(path).replace(u'\\', u'/');
    const QString relative = QDir(FolderOfPath(documentPath)).relativeFilePath(slashed);
    // A file's name may hold what has a meaning in addresses.
    const QString address = encodedAddress(relative);
    const bool looksLikeScheme = address.section(u'/', 0, 0).contains(u':');
    return looksLikeScheme ? QStringLiteral("./") + address : address;
}
