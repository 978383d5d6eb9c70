#include "webview/webEngine.h"

#include "webview/pageServer.h"
#include "webview/refusingProxy.h"
#include "webview/requestGuard.h"
#include "webview/webEngineView.h"

#include <QLoggingCategory>
#include <QNetworkProxyFactory>
#include <QQuickWindow>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace
{
/// Pages may be whatever somebody else wrote. They are shown as a browser would show them, but reach nothing beyond
/// themselves and the files beside them.
void shutIn(QWebEngineSettings &settings)
{
    for (const auto attribute :
         {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::JavascriptCanPaste, QWebEngineSettings::LocalContentCanAccessRemoteUrls,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::HyperlinkAuditingEnabled,
          QWebEngineSettings::DnsPrefetchEnabled, QWebEngineSettings::ScreenCaptureEnabled,
          QWebEngineSettings::FullScreenSupportEnabled, QWebEngineSettings::FocusOnNavigationEnabled})
        settings.setAttribute(attribute, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    settings.setDefaultTextEncoding(QStringLiteral("UTF-8"));
}
/// What the engine is started with: everything goes through the proxy, what goes to this machine included; no name is
/// looked up; nothing is sent past the proxy; and a script has as much memory as a page may need.
QByteArray flags(quint16 proxyPort)
{
    return " --proxy-server=127.0.0.1:" + QByteArray::number(proxyPort) +
           " --proxy-bypass-list=<-loopback>"
           " --host-resolver-rules=\"MAP * ~NOTFOUND, EXCLUDE 127.0.0.1\""
           " --force-webrtc-ip-handling-policy=disable_non_proxied_udp"
           " --js-flags=--max-old-space-size=512";
}
} // namespace

WebEngine::WebEngine()
{
    PageServer::registerScheme();
    // It would tell all about its graphics at its start.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    // Drawing by the processor is quick enough for a page beside its source, needs no graphics driver, and leaves the
    // main window as it is; a surface of the graphics card would have that made anew before the user's eyes.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

WebEngine::~WebEngine() = default;

/// The first profile starts the engine, which reads its flags from the environment then, once. What the program starts
/// later is not to find them there.
void WebEngine::startEngine()
{
    constexpr const char *Flags = "QTWEBENGINE_CHROMIUM_FLAGS";
    m_proxy = std::make_unique<RefusingProxy>();
    QNetworkProxyFactory::setUseSystemConfiguration(true); // or else the engine would not look at its flags for a proxy
    const bool had = qEnvironmentVariableIsSet(Flags);
    const QByteArray before = qgetenv(Flags);
    qputenv(Flags, before + flags(m_proxy->port()));
    m_profile = std::make_unique<QWebEngineProfile>(); // without a name it is off the record
    if (had)
        qputenv(Flags, before);
    else
        qunsetenv(Flags);
}

void WebEngine::makeProfile()
{
    if (m_proxy)
        m_profile = std::make_unique<QWebEngineProfile>();
    else
        startEngine();
    shutIn(*m_profile->settings());
    m_guard = new RequestGuard(*m_source, *m_proxy, m_profile.get());
    auto *server = new PageServer(*m_source, m_profile.get());
    m_profile->setUrlRequestInterceptor(m_guard);
    m_profile->installUrlSchemeHandler(PageScheme, server);
    // Told from the event loop, as the engine waits for what is decided.
    connect(
        m_guard, &RequestGuard::otherHostNamed, this,
        [this](const QUrl &page, const QUrl &address, bool shown) {
            for (WebEngineView *view : std::as_const(m_views))
                view->tellOtherHost(page, address, shown);
        },
        Qt::QueuedConnection);
    connect(
        server, &PageServer::heldBack, this,
        [this](const QUrl &page, const QUrl &address) {
            for (WebEngineView *view : std::as_const(m_views))
                view->tellHeldBack(page, address);
        },
        Qt::QueuedConnection);
    connect(m_profile.get(), &QWebEngineProfile::downloadRequested, this, [this](QWebEngineDownloadRequest *download) {
        download->cancel();
        for (WebEngineView *view : std::as_const(m_views))
            view->tellDownload(*download);
    });
}

std::unique_ptr<PageView> WebEngine::makeView(PageViewListener &listener, QWidget *parent)
{
    if (!m_profile)
        makeProfile();
    auto view = std::make_unique<WebEngineView>(*m_profile, *m_guard, *m_source, listener, parent);
    view->setForget([this](WebEngineView *gone) { m_views.removeAll(gone); });
    m_views.append(view.get());
    return view;
}

void WebEngine::shutDown()
{
    for (WebEngineView *view : std::as_const(m_views))
        view->end();
    m_views.clear();
    m_profile.reset();
}
