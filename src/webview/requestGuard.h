#pragma once

#include <QWebEngineUrlRequestInterceptor>

/// Says which files a page may have. What a page only shows (images, styles, fonts, sounds) and its scripts may stand
/// anywhere, as sites keep them in folders of their own; what it could read and pass on (frames, data fetched by
/// script) stands in its own folder or below.
class RequestGuard final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo &request) override;
};
