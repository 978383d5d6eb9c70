#include "webview/webEngine.h"

#include "webview/requestGuard.h"
#include "webview/webEngineView.h"

#include <QLoggingCategory>
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
    // Without this a file's images and styles are not loaded either; RequestGuard says which files a page may have.
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    settings.setDefaultTextEncoding(QStringLiteral("UTF-8"));
}
} // namespace

WebEngine::WebEngine()
{
    // It would tell all about its graphics at its start.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false"));
    // Drawing by the processor is quick enough for a page beside its source, needs no graphics driver, and leaves the
    // main window as it is; a surface of the graphics card would have that made anew before the user's eyes.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

WebEngine::~WebEngine() = default;

void WebEngine::makeProfile()
{
    m_profile = std::make_unique<QWebEngineProfile>(); // without a name it is off the record
    shutIn(*m_profile->settings());
    m_profile->setUrlRequestInterceptor(new RequestGuard(m_profile.get()));
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
    auto view = std::make_unique<WebEngineView>(*m_profile, listener, parent);
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
