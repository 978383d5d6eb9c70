#include "webview/requestGuard.h"

#include "services/pageView.h"
#include "webview/refusingProxy.h"

namespace
{
using Info = QWebEngineUrlRequestInfo;

/// What a page only shows or runs, and cannot read.
bool isPartOfPage(Info::ResourceType type)
{
    switch (type) {
    case Info::ResourceTypeStylesheet:
    case Info::ResourceTypeScript:
    case Info::ResourceTypeImage:
    case Info::ResourceTypeFontResource:
        return true;
    default:
        return false;
    }
}

bool isServedKind(Info::ResourceType type)
{
    switch (type) {
    case Info::ResourceTypeMainFrame:
    case Info::ResourceTypeSubFrame:
    case Info::ResourceTypeMedia:
    case Info::ResourceTypeFavicon:
    case Info::ResourceTypeSubResource: // the subtitles of a film
        return true;
    default:
        return isPartOfPage(type);
    }
}

/// What a page makes of its own text and holds itself.
bool isMadeByPage(const QUrl &address)
{
    const QString scheme = address.scheme();
    return scheme == u"data" || scheme == u"blob" || scheme == u"about";
}

bool isServed(const QUrl &address)
{
    return address.scheme() == QLatin1String(PageScheme);
}
} // namespace

bool isOnNetwork(const QUrl &address)
{
    return address.scheme() == u"http" || address.scheme() == u"https";
}

bool isSameHost(const QUrl &one, const QUrl &other)
{
    return one.scheme() == other.scheme() && one.host() == other.host() && one.port() == other.port();
}

RequestGuard::RequestGuard(PageSource &source, RefusingProxy &proxy, QObject *parent)
    : QWebEngineUrlRequestInterceptor(parent), m_source(source), m_proxy(proxy)
{
}

void RequestGuard::letPage(const QUrl &address)
{
    m_page = address;
}

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    if (refuses(request))
        request.block(true);
}

bool RequestGuard::refuses(const QWebEngineUrlRequestInfo &request)
{
    const QUrl address = request.requestUrl();
    if (isServed(address))
        return !isServedKind(request.resourceType());
    if (isOnNetwork(address))
        return refusesOtherHost(request);
    return !isMadeByPage(address);
}

bool RequestGuard::refusesOtherHost(const QWebEngineUrlRequestInfo &request)
{
    const QUrl address = request.requestUrl();
    const QUrl page = request.firstPartyUrl();
    const bool isPage = request.resourceType() == Info::ResourceTypeMainFrame;
    if (!isPage && !(isPartOfPage(request.resourceType()) && isServed(request.initiator()) && isServed(page)))
        return true;
    const bool allowed = isPage ? isSameHost(address, m_page) : m_source.showsOtherHosts(page);
    if (!isPage)
        Q_EMIT otherHostNamed(page, address, allowed);
    if (allowed)
        m_proxy.letPass(address);
    return !allowed;
}
