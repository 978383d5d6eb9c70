#include "webview/enginePage.h"

#include "webview/pageScripts.h"
#include "webview/requestGuard.h"

#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

namespace
{
/// Whether it may have begun with the program: a page can go on meanwhile, and send a form just then.
bool mayBeOwn(QWebEnginePage::NavigationType type)
{
    return type == QWebEnginePage::NavigationTypeTyped || type == QWebEnginePage::NavigationTypeReload ||
           type == QWebEnginePage::NavigationTypeBackForward;
}
} // namespace

EnginePage::EnginePage(QWebEngineProfile &profile, RequestGuard &guard, PageSource &source, PageViewListener &listener,
                       QObject *parent)
    : QWebEnginePage(&profile, parent), m_guard(guard), m_source(source), m_listener(listener)
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this, &EnginePage::refuse);
    connect(this, &QWebEnginePage::loadFinished, this, [this] { m_goesTo.clear(); });
    scripts().insert({withoutWaysOut(), notesForms()});
}

void EnginePage::refuse(const QUrl &origin, Feature feature)
{
    setFeaturePermission(origin, feature, PermissionDeniedByUser);
}

void EnginePage::letOwn(const QUrl &address)
{
    m_isOwn = true;
    m_isRestless = false;
    m_goesTo = isOnNetwork(address) ? address : QUrl();
    m_mayBeSent = false;
}

void EnginePage::sendForm(std::function<void(bool)> sent)
{
    m_mayBeSent = true;
    runJavaScript(sendsForm(m_heldBack), QWebEngineScript::ApplicationWorld,
                  [sent = std::move(sent)](const QVariant &done) { sent(done.toBool()); });
}

bool EnginePage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    const bool isOwn = isMainFrame && mayBeOwn(type) && std::exchange(m_isOwn, false);
    m_isRestless = m_isRestless || (isMainFrame && !isOwn);
    if (!isOwn)
        m_listener.navigates(!isMainFrame);
    if (isOnNetwork(url))
        return isMainFrame ? acceptsOnNetwork(url, type, isOwn) : refusesLink(url);
    if (isOwn)
        return true;
    if (url.scheme() == QLatin1String(PageScheme))
        return acceptsServed(url);
    if (url.scheme() == u"about" || url.scheme() == u"data" || url.scheme() == u"blob")
        return true;
    return refusesLink(url);
}

bool EnginePage::acceptsServed(const QUrl &address)
{
    if (!m_source.holdsBack(address))
        return true;
    m_listener.fileRefused(m_source.ownAddress(address));
    return false;
}

bool EnginePage::refusesLink(const QUrl &address)
{
    m_listener.linkRefused(address);
    return false;
}

bool EnginePage::acceptsOnNetwork(const QUrl &address, NavigationType type, bool isOwn)
{
    if (type == NavigationTypeFormSubmitted && !std::exchange(m_mayBeSent, false)) {
        m_heldBack = address;
        m_listener.formHeldBack(address);
        return false;
    }
    const bool leadsOn = isOwn || type == NavigationTypeRedirect;
    const QUrl &agreed = type == NavigationTypeFormSubmitted ? m_heldBack : m_goesTo;
    if (!isSameHost(address, agreed) || !(leadsOn || type == NavigationTypeFormSubmitted))
        return refusesLink(address);
    m_goesTo = address;
    m_guard.letPage(address);
    return true;
}

QWebEnginePage *EnginePage::createWindow(WebWindowType)
{
    return nullptr;
}

QStringList EnginePage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

void EnginePage::javaScriptAlert(const QUrl &, const QString &message)
{
    m_listener.messageGiven(message);
}

bool EnginePage::javaScriptConfirm(const QUrl &, const QString &message)
{
    m_listener.messageGiven(message);
    return false;
}

bool EnginePage::javaScriptPrompt(const QUrl &, const QString &message, const QString &, QString *)
{
    m_listener.messageGiven(message);
    return false;
}

// The page's author reads its errors in a browser's tools; the program's own output is not the place for them.
void EnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &message, int, const QString &)
{
    m_listener.consoleWritten(message.size());
}
