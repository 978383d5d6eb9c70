#pragma once

#include "browser/burst.h"
#include "common/browser.h"
#include "services/pageView.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <optional>

class PageFocus;
class PageViews;
class QFrame;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// The internal browser: a control that shows web pages.
///
/// The engine comes with the first page that is worth it; before that the browser is an empty sheet in the theme's
/// colour. What keeps a page from being shown is told in a strip above it.
class WebBrowser final : public QWidget, public Browser, private PageViewListener
{
    Q_OBJECT
public:
    explicit WebBrowser(PageViews &views, QWidget *parent = nullptr);
    ~WebBrowser() override;

    QString LocationURL() const override { return m_location; }
    void Navigate(const QString &target) override;
    void Follow(const QString &target) override;
    void NavigateIfRunning(const QString &target) override;
    void GoBack() override;
    void GoForward() override;
    void Stop() override;
    void Refresh() override;

    /// A page is being loaded, or waits for that.
    bool isLoading() const { return m_loading || m_isAsking; }
    /// What the strip says; empty while it is hidden.
    QString Notice() const;
    /// Hands over the text of the page on show; at once, and empty, without one.
    void pageText(const std::function<void(const QString &)> &taken);
    /// Hands over the middle of the first place where the text stands in the page on show, scrolled into view, in
    /// logical pixels; nothing if it does not stand there.
    void placeOfText(const QString &text, const std::function<void(const std::optional<QPoint> &)> &taken);
    /// Marks one of these elements in the page on show, as PageView::mark does, until it is loaded anew; nothing while
    /// it is loading.
    void mark(const ElementPath &path);
    /// Hands over the text of the element that is marked; at once, and empty, without a page.
    void markedText(const std::function<void(const QString &)> &taken);
    int ScrollTop() const; ///< how far the page on show is scrolled down, in logical pixels
    /// Asks whether a page may send a form to a place outside this machine, and waits. Without it, none may. A page is
    /// asked for once: "no" holds until the user loads it anew.
    void setMaySend(std::function<bool(const QUrl &)> maySend) { m_maySend = std::move(maySend); }

    /// The user has put the keyboard into the page and not moved it elsewhere in its window since.
    bool isFocusHeld() const;
    /// The user has moved the keyboard to another part of the page's window.
    void releaseFocus();

    /// After how long a page that leaves no room for anything else counts as one whose script never ends, in
    /// milliseconds.
    void setPatience(int milliseconds);

Q_SIGNALS:
    void clickedAt(const ElementPath &path); ///< an element of the page on show, with the left button
    void navigationStarted();
    void navigationFinished();
    /// The user wants the page again, and none can be shown any more before the program is started anew.
    void startAnewWanted();
    void focusTaken(); ///< the engine has taken the keyboard by itself; whoever had it is to take it back
    /// The page names pictures, styles or scripts of other hosts, which are shown, or not allowed.
    void otherHostsNamed(bool shown);

private:
    void loadStarted() override;
    void loadFinished() override;
    void addressChanged(const QUrl &address) override;
    void pageEnded() override;
    void engineEnded() override;
    void closeAsked() override;
    void messageGiven(const QString &message) override;
    void downloadRefused(const QUrl &address) override;
    void navigates(bool inFrame) override;
    void consoleWritten(qsizetype length) override;
    void formHeldBack(const QUrl &where) override;
    void linkRefused(const QUrl &address) override;
    void otherHostRefused(const QUrl &address) override;
    void otherHostShown(const QUrl &address) override;
    void fileRefused(const QUrl &address) override;
    void elementClicked(const ElementPath &path) override;

    void note(const QUrl &address);
    bool makeView();
    void showView(bool shown);
    void load(const QUrl &address);
    void loadWaiting();
    void watch();
    void askPage();
    void askToSend(const QUrl &where);
    void sendForm(const QUrl &where);
    void stopPage(const QString &reason);
    void tell(const QString &notice, bool canLoadAgain);
    void tellOfPage(const QString &notice);

    PageViews &m_views;
    std::unique_ptr<PageView> m_view;
    QPointer<PageFocus> m_focus; ///< of the view; nothing without one
    QVBoxLayout *m_layout;
    QFrame *m_strip;
    QLabel *m_notice;
    QPushButton *m_again;
    std::function<bool(const QUrl &)> m_maySend;

    QString m_location;
    QUrl m_address;                ///< what m_location says
    std::optional<QUrl> m_waiting; ///< to be loaded when the load under way has ended
    bool m_loading = false;
    bool m_gone = false;       ///< the page has ended, the view shows nothing
    bool m_engineGone = false; ///< and so has what makes the processes of pages

    QTimer m_watch;             ///< ticks while a page is being loaded
    QElapsedTimer m_sinceStart; ///< of the load under way
    QElapsedTimer m_sinceAsked; ///< valid while the page owes an answer
    int m_patience;             ///< milliseconds
    QString m_whyStopped;       ///< the page is being ended, for what it did

    bool m_isAsking = false;  ///< the user is being asked, or about to be
    bool m_hasSaidNo = false; ///< to this page, which is not asked for again
    Burst m_ownNavigations;   ///< of the page by itself
    Burst m_slowNavigations;  ///< the same, looked at over a longer time
    Burst m_frameNavigations; ///< of its frames
    Burst m_consoleLines;
};
