#include "desktop/desktopClipboard.h"

#include "common/text.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace
{
const QMimeData *clipboardData()
{
    return QGuiApplication::clipboard()->mimeData();
}

struct PictureType {
    const char *mime;
    const char *kind;
};
// A drawing goes before its painted copy, what loses nothing before what does.
constexpr PictureType pictureTypes[] = {
    {"image/svg+xml", "svg"}, {"image/png", "png"},   {"image/gif", "gif"},
    {"image/webp", "webp"},   {"image/avif", "avif"}, {"image/jpeg", "jpg"},
};

QByteArray pngOf(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return !image.isNull() && image.save(&buffer, "PNG") ? bytes : QByteArray();
}
} // namespace

QString DesktopClipboard::text()
{
    if (hasFileList() || hasImage())
        return QString();
    const QMimeData *const data = clipboardData();
    return data ? withCrLf(data->text()) : QString();
}

void DesktopClipboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
}

bool DesktopClipboard::hasFileList()
{
    // A link copied in a browser is a list of addresses too, but of no files.
    const QMimeData *const data = clipboardData();
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    return !urls.isEmpty() && std::all_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); });
}

bool DesktopClipboard::hasImage()
{
    const QMimeData *const data = clipboardData();
    return data && data->hasImage() && !data->hasText();
}

QStringList DesktopClipboard::files()
{
    QStringList files;
    const QMimeData *const data = clipboardData();
    if (data && hasFileList())
        for (const QUrl &url : data->urls())
            files.append(url.toLocalFile());
    return files;
}

bool DesktopClipboard::offersPicture()
{
    const QMimeData *const data = clipboardData();
    if (!data || hasFileList())
        return false;
    const bool isThere = data->hasImage() ||
                         std::any_of(std::begin(pictureTypes), std::end(pictureTypes), [data](const PictureType &type) {
                             return data->hasFormat(QLatin1String(type.mime));
                         });
    return isThere && (!data->hasText() || isPicturesAddress(data->text(), data->html()));
}

/// The bytes are given as they come: nothing but the reader of pictures takes them apart. A picture without any is one
/// of this program's own desktop, which has it as pixels.
ClipboardPicture DesktopClipboard::picture()
{
    const QMimeData *const data = clipboardData();
    if (!data)
        return {};
    for (const PictureType &type : pictureTypes)
        if (const QByteArray bytes = data->data(QLatin1String(type.mime)); !bytes.isEmpty())
            return {QLatin1String(type.kind), bytes};
    return {QStringLiteral("png"), data->hasImage() ? pngOf(qvariant_cast<QImage>(data->imageData())) : QByteArray()};
}

bool isPicturesAddress(const QString &plain, const QString &markup)
{
    static const QRegularExpression blank(QStringLiteral("\\s"));
    static const QRegularExpression hidden(QStringLiteral("<!--.*?-->|<(head|title|style)\\b.*?</\\1>"),
                                           QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    if (plain.trimmed().contains(blank) || markup.count(QLatin1String("<img"), Qt::CaseInsensitive) != 1)
        return false;
    return QString(markup).remove(hidden).remove(tag).trimmed().isEmpty();
}
