#pragma once

#include <QSet>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

class PageSource;
class RefusingProxy;

/// Looks at each request before it is made. Pages have what the program serves them and what they hold themselves;
/// of other hosts nothing but what the user has allowed, which the proxy is then told to let pass.
class RequestGuard final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT
public:
    RequestGuard(PageSource &source, RefusingProxy &proxy, QObject *parent);

    void interceptRequest(QWebEngineUrlRequestInfo &request) override;
    /// The user has said that a page may be had from there. Holds until the next page.
    void letPage(const QUrl &address);

Q_SIGNALS:
    /// A page names something of another host.
    void otherHostNamed(const QUrl &page, const QUrl &address, bool shown);

private:
    bool refuses(const QWebEngineUrlRequestInfo &request);
    bool refusesOtherHost(const QWebEngineUrlRequestInfo &request);

    PageSource &m_source;
    RefusingProxy &m_proxy;
    QUrl m_page; ///< on another host, which may be had
};

bool isOnNetwork(const QUrl &address);
/// Whether two addresses are of the same scheme, host and port.
bool isSameHost(const QUrl &one, const QUrl &other);
