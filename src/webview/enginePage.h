#pragma once

#include "services/pageView.h"

#include <QWebEnginePage>

/// A page whose scripts get nothing from the user but through its owner: no boxes of their own, no windows, no files.
class EnginePage final : public QWebEnginePage
{
    Q_OBJECT
public:
    EnginePage(QWebEngineProfile &profile, PageViewListener &listener, QObject *parent);

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

    PageViewListener &m_listener;
};
