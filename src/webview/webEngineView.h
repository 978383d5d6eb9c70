#pragma once

#include "services/pageView.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QUrl>
#include <QWebEnginePage>

class EnginePage;
class QWebEngineDownloadRequest;
class QWebEngineProfile;
class QWebEngineView;
class RequestGuard;

/// One page and the widget that shows it.
class WebEngineView final : public QObject, public PageView
{
    Q_OBJECT
public:
    WebEngineView(QWebEngineProfile &profile, RequestGuard &guard, PageSource &source, PageViewListener &listener,
                  QWidget *parent);
    ~WebEngineView() override;

    /// Called once when this view goes.
    void setForget(std::function<void(WebEngineView *)> forget) { m_forget = std::move(forget); }
    /// Ends the page and takes the widget away; what comes after that does nothing.
    void end();
    void tellDownload(const QWebEngineDownloadRequest &download);
    void tellOtherHost(const QUrl &page, const QUrl &address, bool shown);
    void tellHeldBack(const QUrl &page, const QUrl &address);

    QWidget *widget() override;
    void load(const QUrl &address) override;
    void back() override;
    void forward() override;
    void stop() override;
    void reload() override;
    void ask(std::function<void()> answered) override;
    void text(std::function<void(const QString &)> taken) override;
    void place(const QString &text, std::function<void(const std::optional<QPoint> &)> taken) override;
    void mark(const ElementPath &path) override;
    void markedText(std::function<void(const QString &)> taken) override;
    int scrollTop() const override;
    void sendForm(std::function<void(bool)> sent) override;
    void endPage() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchClicks();
    void askForElement(const QPointF &place);
    void tellClick();
    bool shows(const QUrl &page) const;
    void followPage();
    void goByHistory(QWebEnginePage::WebAction action);
    void loadStarted();
    void loadFinished(bool whole);
    bool isCutShort() const;
    void loadInAnotherProcess();
    void comeAnew();
    void killPage();
    void ended();
    void terminated(QWebEnginePage::RenderProcessTerminationStatus status);
    void restorePlace();

    PageSource &m_source;
    PageViewListener &m_listener;
    std::function<void(WebEngineView *)> m_forget;
    QPointer<EnginePage> m_page;
    QPointer<QWebEngineView> m_view;
    QUrl m_loaded;   ///< what the owner asked for last, as it is served
    QUrl m_left;     ///< what was on show then
    QPointF m_place; ///< where the page before was scrolled to
    int m_presses = 0;
    bool m_isClick = false;    ///< the button has come up where it went down
    ElementPath m_pressedPath; ///< the element at that place; empty until the page has told it
    QPointF m_pressed;         ///< where the left button went down
    bool m_keepsPlace = false; ///< the load under way is to be scrolled there
    bool m_isLoading = false;  ///< that; it has not come to its end
    int m_attempts = 0;        ///< that are left to load in another process
    bool m_comesAnew = false;  ///< its process is being ended, to load in another one
    bool m_ended = false;      ///< the page's process has gone and nothing was loaded since
};
