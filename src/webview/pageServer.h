#pragma once

#include <QWebEngineUrlSchemeHandler>

class PageSource;

/// Hands out what stands behind the addresses of pages.
class PageServer final : public QWebEngineUrlSchemeHandler
{
    Q_OBJECT
public:
    PageServer(PageSource &source, QObject *parent);

    /// Makes the scheme known. Before the engine starts, which looks at it once.
    static void registerScheme();
    void requestStarted(QWebEngineUrlRequestJob *job) override;

Q_SIGNALS:
    /// A file is there, but not for who asked for it: the host of a page.
    void heldBack(const QUrl &page, const QUrl &address);

private:
    PageSource &m_source;
};
