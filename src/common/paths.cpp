#include "common/paths.h"

#include "common/text.h"

namespace
{
QString nameBehind(const QString &path, QChar separator)
{
    return path.sliced(path.lastIndexOf(separator) + 1);
}

QString folderBefore(const QString &path, const QString &name)
{
    const qsizetype place = Find(path, name, 1).value_or(0);
    return path.first(qMax<qsizetype>(place - 1, 0));
}
} // namespace

QChar separatorOf(QStringView path)
{
    const bool native = path.startsWith(u'/') && !path.startsWith(u"//");
    return native ? u'/' : u'\\';
}

QString PrependBackslash(const QString &text)
{
    return text.startsWith(u'\\') ? text : u'\\' + text;
}

QString FileNameOnly(const QString &path)
{
    return nameBehind(path, separatorOf(path));
}

QString FolderOfPath(const QString &path)
{
    return folderBefore(path, FileNameOnly(path));
}

QString UrlNameOnly(const QString &url)
{
    return nameBehind(url, u'/');
}

QString UrlFolderOfPath(const QString &url)
{
    return folderBefore(url, UrlNameOnly(url));
}

QString GetFileExtension(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(u'.');
    if (dot < 0 || path.indexOf(separatorOf(path), dot) >= 0)
        return QString();
    return path.sliced(dot + 1);
}

qint64 GetFileSizeKB(qint64 bytes)
{
    return bytes > 0 ? qMax<qint64>(bytes / 1024, 1) : 0;
}

QString NetPathName(const QString &path)
{
    return QString(path).replace(u'\\', u'/');
}

QString folderOf(const QString &path)
{
    return path.first(path.lastIndexOf(separatorOf(path)) + 1);
}

QString joinPath(const QString &folder, const QString &name)
{
    const QChar separator = separatorOf(folder);
    if (folder.isEmpty() || folder.endsWith(separator))
        return folder + name;
    return folder + separator + name;
}

QString withoutFinalSeparator(const QString &path)
{
    const QChar separator = separatorOf(path);
    qsizetype length = path.size();
    while (length > 1 && path[length - 1] == separator && path[length - 2] != u':')
        --length;
    return path.first(length);
}
