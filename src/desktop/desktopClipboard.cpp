#include "desktop/desktopClipboard.h"

#include "common/text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace
{
const QMimeData *clipboardData()
{
    return QGuiApplication::clipboard()->mimeData();
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
