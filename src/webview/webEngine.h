#pragma once

#include "services/pageView.h"

#include <QList>
#include <QObject>
#include <memory>

class QWebEngineProfile;
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

    std::unique_ptr<PageView> makeView(PageViewListener &listener, QWidget *parent) override;
    void shutDown() override;

private:
    void makeProfile();

    std::unique_ptr<QWebEngineProfile> m_profile; ///< outlives every page
    QList<WebEngineView *> m_views;
};
