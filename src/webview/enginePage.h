#pragma once

#include "services/pageView.h"

#include <QUrl>
#include <QWebEnginePage>

class RequestGuard;

/// A page whose scripts get nothing from the user but through its owner: no boxes of their own, no windows, no files,
/// and no way to another host.
class EnginePage final : public QWebEnginePage
{
    Q_OBJECT
public:
    EnginePage(QWebEngineProfile &profile, RequestGuard &guard, PageSource &source, PageViewListener &listener,
               QObject *parent);

    /// The owner goes somewhere, as the user wants it: the next navigation is not the page's own.
    void letOwn(const QUrl &address);
    /// Whether the page has wanted to go elsewhere itself since then.
    bool isRestless() const { return m_isRestless; }
    /// Sends the form that was held back last; see PageView.
    void sendForm(std::function<void(bool)> sent);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &oldFiles, const QStringList &types) override;
    void javaScriptAlert(const QUrl &origin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &message, const QString &given, QString *result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int line,
                                  const QString &source) override;

private:
    void refuse(const QUrl &origin, Feature feature);
    bool acceptsOnNetwork(const QUrl &address, NavigationType type, bool isOwn);
    bool refusesLink(const QUrl &address);
    bool acceptsServed(const QUrl &address);

    RequestGuard &m_guard;
    PageSource &m_source;
    PageViewListener &m_listener;
    bool m_isOwn = false; ///< the next navigation is the owner's
    bool m_isRestless = false;
    QUrl m_goesTo;   ///< the other host to which the load under way was let
    QUrl m_heldBack; ///< where the form that was held back last goes
    bool m_mayBeSent = false;
};
