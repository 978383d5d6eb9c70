#include "browser/pageFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QHash<QString, QByteArray> &shownTypes()
{
    static const QHash<QString, QByteArray> types = [] {
        struct Row {
            const char *endings;
            const char *type;
        };
        constexpr Row rows[] = {
            {"html htm shtml shtm", "text/html"},
            {"xhtml xht", "application/xhtml+xml"},
            {"xml xsl xslt", "application/xml"},
            {"txt", "text/plain"},
            {"svg", "image/svg+xml"},
            {"png", "image/png"},
            {"apng", "image/apng"},
            {"jpg jpeg jpe jfif", "image/jpeg"},
            {"gif", "image/gif"},
            {"webp", "image/webp"},
            {"avif", "image/avif"},
            {"bmp dib", "image/bmp"},
            {"ico cur", "image/x-icon"},
            {"css", "text/css"},
            {"js mjs", "text/javascript"},
            {"woff", "font/woff"},
            {"woff2", "font/woff2"},
            {"ttf", "font/ttf"},
            {"otf", "font/otf"},
            {"ttc", "font/collection"},
            {"mp3", "audio/mpeg"},
            {"m4a", "audio/mp4"},
            {"aac", "audio/aac"},
            {"wav", "audio/wav"},
            {"flac", "audio/flac"},
            {"oga ogg opus", "audio/ogg"},
            {"mp4 m4v", "video/mp4"},
            {"webm", "video/webm"},
            {"ogv", "video/ogg"},
            {"mov", "video/quicktime"},
            {"vtt", "text/vtt"},
        };
        QHash<QString, QByteArray> byEnding;
        for (const Row &row : rows)
            for (const QString &ending : QString::fromLatin1(row.endings).split(u' '))
                byEnding.insert(ending, row.type);
        return byEnding;
    }();
    return types;
}

/// Whether there are bytes that no text has.
bool isBinary(const QByteArray &bytes)
{
    return std::any_of(bytes.begin(), bytes.end(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code <= 0x08 || code == 0x0B || (code >= 0x0E && code <= 0x1A) || (code >= 0x1C && code <= 0x1F);
    });
}

/// Of the beginning of a file, whose number of bytes tells nothing.
bool beginsWithUtf16Mark(const QByteArray &bytes)
{
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

/// Holds a place in the file system without opening what stands there: merely opening a device can set something off.
class Place
{
public:
    explicit Place(const QString &path)
    {
        if (!path.contains(QChar(0)))
            m_descriptor = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
        m_there = m_descriptor >= 0 && ::fstat(m_descriptor, &m_status) == 0;
    }
    Place(const Place &) = delete;
    Place &operator=(const Place &) = delete;
    ~Place()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    bool isFile() const { return m_there && S_ISREG(m_status.st_mode); }
    bool hasOneName() const { return m_there && m_status.st_nlink == 1; }
    /// Where it really stands, links followed; empty if that cannot be told.
    QString realPath() const { return m_there ? QFile::symLinkTarget(link()) : QString(); }

    std::unique_ptr<QIODevice> open() const
    {
        const int descriptor = ::open(QFile::encodeName(link()).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        auto file = std::make_unique<QFile>();
        if (descriptor >= 0 && file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
            return file;
        if (descriptor >= 0)
            ::close(descriptor);
        return nullptr;
    }

private:
    QString link() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

    int m_descriptor = -1;
    bool m_there = false;
    struct stat m_status = {};
};

QString realFolder(const QString &folder)
{
    return QFileInfo(folder).canonicalFilePath();
}

/// The way from a folder to what stands below it; empty if it does not.
QString wayBelow(const QString &folder, const QString &path)
{
    const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
    return !folder.isEmpty() && path.startsWith(start) ? path.sliced(start.size()) : QString();
}

bool isClosed(const QString &realPath, const QString &folder, const QStringList &closed)
{
    for (const QString &name : closed) {
        const QString real = realFolder(name);
        if (!wayBelow(real, realPath).isEmpty() && wayBelow(real, folder).isEmpty())
            return true;
    }
    return false;
}
} // namespace

QByteArray pageFiles::shownType(const QString &name)
{
    return shownTypes().value(QFileInfo(name).suffix().toLower());
}

QByteArray pageFiles::pageType(const QString &name, const QByteArray &beginning)
{
    if (QByteArray type = shownType(name); !type.isEmpty())
        return type;
    if (isBinary(beginning) && !beginsWithUtf16Mark(beginning))
        return "application/octet-stream";
    return beginsWithUtf16Mark(beginning) || beginning.trimmed().startsWith('<') ? "text/html" : "text/plain";
}

bool pageFiles::isPlain(const QString &relative)
{
    for (const QStringView part : QStringView(relative).split(u'/'))
        if (part.isEmpty() || part.startsWith(u'.'))
            return false;
    return true;
}

std::unique_ptr<QIODevice> pageFiles::openWithin(const QString &path, const Fence &fence)
{
    const Place place(path);
    if (!place.isFile() || !place.hasOneName())
        return nullptr;
    const QString folder = realFolder(fence.folder);
    const QString real = place.realPath();
    if (!isPlain(wayBelow(folder, real)) || isClosed(real, folder, fence.closed))
        return nullptr;
    return place.open();
}

std::unique_ptr<QIODevice> pageFiles::openRegular(const QString &path)
{
    const Place place(path);
    return place.isFile() ? place.open() : nullptr;
}
