#pragma once

#include "services/pageView.h"

#include <QList>
#include <QObject>
#include <memory>

class QWebEngineProfile;
class RefusingProxy;
class RequestGuard;
class WebEngineView;

/// The module's root object.
class WebEngine final : public QObject, public PageEngine
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TAGWRIGHTER_PAGE_ENGINE)
    Q_INTERFACES(PageEngine)
public:
    WebEngine();
    ~WebEngine() override;

    void setSource(PageSource &source) override { m_source = &source; }
    std::unique_ptr<PageView> makeView(PageViewListener &listener, QWidget *parent) override;
    void shutDown() override;

private:
    void makeProfile();
    void startEngine();

    PageSource *m_source = nullptr;
    std::unique_ptr<RefusingProxy> m_proxy;       ///< outlives the profiles: the engine is told of it once
    std::unique_ptr<QWebEngineProfile> m_profile; ///< outlives every page
    RequestGuard *m_guard = nullptr;              ///< of the profile
    QList<WebEngineView *> m_views;
};
