#include "webview/requestGuard.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace
{
bool isShownOnly(QWebEngineUrlRequestInfo::ResourceType type)
{
    switch (type) {
    case QWebEngineUrlRequestInfo::ResourceTypeStylesheet:
    case QWebEngineUrlRequestInfo::ResourceTypeScript:
    case QWebEngineUrlRequestInfo::ResourceTypeImage:
    case QWebEngineUrlRequestInfo::ResourceTypeFontResource:
    case QWebEngineUrlRequestInfo::ResourceTypeMedia:
    case QWebEngineUrlRequestInfo::ResourceTypeFavicon:
        return true;
    default:
        return false;
    }
}

/// Whether a file stands in the page's folder or below, links on its way followed.
bool standsBeside(const QUrl &file, const QUrl &page)
{
    if (!page.isLocalFile())
        return false;
    const QString folder = QFileInfo(QFileInfo(page.toLocalFile()).path()).canonicalFilePath();
    const QString place = QFileInfo(file.toLocalFile()).canonicalFilePath();
    return !folder.isEmpty() && place.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}
} // namespace

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const QUrl url = request.requestUrl();
    if (request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
        return; // the page itself, which takes the place of the one that asks
    if (url.scheme() == u"qrc")
        request.block(true); // the program's own resources
    else if (url.isLocalFile() && !isShownOnly(request.resourceType()) && !standsBeside(url, request.firstPartyUrl()))
        request.block(true);
}
