#pragma once

#include <QPoint>
#include <QString>
#include <QtPlugin>
#include <functional>
#include <memory>
#include <optional>

class QUrl;
class QWidget;

/// The view of web pages. Its one implementation stands in a module that is loaded with the first page, so these
/// classes are all that the two have in common; there is nothing in them to link.

/// What a page view tells its owner, from the event loop or from within a call of the owner's.
class PageViewListener
{
public:
    PageViewListener() = default;
    PageViewListener(const PageViewListener &) = delete;
    PageViewListener &operator=(const PageViewListener &) = delete;
    virtual ~PageViewListener() = default;

    virtual void loadStarted() = 0;
    virtual void loadFinished() = 0; ///< well, badly or called off
    virtual void addressChanged(const QUrl &address) = 0;
    /// The process that runs the page has gone, by itself or by endPage(). The view shows nothing until it loads again.
    virtual void pageEnded() = 0;
    virtual void closeAsked() = 0;                   ///< the page's script wants its window closed
    virtual void messageGiven(const QString &) = 0;  ///< the page's script wants the user to read this
    virtual void downloadRefused(const QUrl &) = 0;  ///< not a page: it would have been saved as a file
    virtual bool maySendForm(const QUrl &where) = 0; ///< whether the user's input may leave the machine; waits
};

/// One view. Destroying it ends its page.
class PageView
{
public:
    PageView() = default;
    PageView(const PageView &) = delete;
    PageView &operator=(const PageView &) = delete;
    virtual ~PageView() = default;

    virtual QWidget *widget() = 0; ///< a child of the parent given; nothing once the engine was shut down
    /// Loads a page, or the same one again. A page that its owner loaded before keeps its place in the scrolling.
    virtual void load(const QUrl &address) = 0;
    virtual void back() = 0;
    virtual void forward() = 0;
    virtual void stop() = 0;
    virtual void reload() = 0;

    /// Calls `answered` once the page's scripts leave room for it; never if they do not, or if the page ends before.
    virtual void ask(std::function<void()> answered) = 0;
    /// Hands over the page's text as a reader sees it.
    virtual void text(std::function<void(const QString &)> taken) = 0;
    /// Hands over the middle of the first place where the text stands in the page, which is scrolled to where it can be
    /// seen, in the view's logical pixels; nothing if it does not stand there in one piece.
    virtual void place(const QString &text, std::function<void(const std::optional<QPoint> &)> taken) = 0;
    /// How far the page is scrolled down, in logical pixels.
    virtual int scrollTop() const = 0;
    /// Ends the process that runs the page, whatever it is doing.
    virtual void endPage() = 0;
};

/// What makes the views: the module's root object. All views share one profile, which keeps nothing on the disk.
class PageEngine
{
public:
    PageEngine() = default;
    PageEngine(const PageEngine &) = delete;
    PageEngine &operator=(const PageEngine &) = delete;
    virtual ~PageEngine() = default;

    /// A view without a page. `listener` lives as long as the view.
    virtual std::unique_ptr<PageView> makeView(PageViewListener &listener, QWidget *parent) = 0;
    /// Ends every page there still is; views that outlive this do nothing. Before the application object goes.
    virtual void shutDown() = 0;
};

#define TAGWRIGHTER_PAGE_ENGINE "tagwrighter.PageEngine/1"
Q_DECLARE_INTERFACE(PageEngine, TAGWRIGHTER_PAGE_ENGINE)
