#include "webview/enginePage.h"

EnginePage::EnginePage(QWebEngineProfile &profile, PageViewListener &listener, QObject *parent)
    : QWebEnginePage(&profile, parent), m_listener(listener)
{
    connect(this, &QWebEnginePage::featurePermissionRequested, this, &EnginePage::refuse);
}

void EnginePage::refuse(const QUrl &origin, Feature feature)
{
    setFeaturePermission(origin, feature, PermissionDeniedByUser);
}

bool EnginePage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool)
{
    const bool stays = url.isLocalFile() || url.scheme() == u"about" || url.scheme() == u"data";
    if (type == NavigationTypeFormSubmitted && !stays)
        return m_listener.maySendForm(url);
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
void EnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) {}
