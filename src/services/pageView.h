#pragma once

#include "common/pageElement.h"

#include <QByteArray>
#include <QIODevice>
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

/// The scheme of the addresses under which pages are shown. None of them ever gets an address of a file.
inline constexpr const char *PageScheme = "tagwrighter-page";

/// A page, or something that stands beside one, as the program hands it out.
struct PagePart {
    QByteArray type;                  ///< the media type alone: of its characters the page itself tells
    std::unique_ptr<QIODevice> bytes; ///< open for reading
};

/// Where pages come from: it says what stands behind their addresses, and what a page may have.
class PageSource
{
public:
    PageSource() = default;
    PageSource(const PageSource &) = delete;
    PageSource &operator=(const PageSource &) = delete;
    virtual ~PageSource() = default;

    /// The address under which the engine is to show what the program goes to. A file gets one of PageScheme, and may
    /// be had there from now on; any other address stays as it is.
    virtual QUrl servedAddress(const QUrl &address) = 0;
    /// The way back, for the user to read. An address that was never given out stays as it is.
    virtual QUrl ownAddress(const QUrl &served) const = 0;
    /// What a page gets at an address of PageScheme; nothing if it may not have it, or if nothing is there.
    virtual std::optional<PagePart> open(const QUrl &served) = 0;
    /// Whether something is there, but not for a page that asks for it under this address.
    virtual bool holdsBack(const QUrl &served) const = 0;
    /// Whether a page may show pictures, styles and scripts of other hosts.
    virtual bool showsOtherHosts(const QUrl &served) const = 0;

    /// From now on the page of that path shows this text instead of what its file holds.
    virtual void setText(const QString &path, const QByteArray &bytes) = 0;
    virtual void dropText(const QString &path) = 0;
    /// The page of that path is a copy of one in this folder, and may what pages there may; none where it is empty.
    virtual void setFolderOf(const QString &copy, const QString &folder) = 0;
};

/// What a page view tells its owner, from the event loop or from within a call of the owner's. All addresses are the
/// program's own.
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
    /// No process can be had for any page any more, until the program is started anew.
    virtual void engineEnded() = 0;
    virtual void closeAsked() = 0;                     ///< the page's script wants its window closed
    virtual void messageGiven(const QString &) = 0;    ///< the page's script wants the user to read this
    virtual void downloadRefused(const QUrl &) = 0;    ///< not a page: it would have been saved as a file
    virtual void navigates(bool inFrame) = 0;          ///< the page goes somewhere by itself, or one of its frames does
    virtual void consoleWritten(qsizetype length) = 0; ///< an error of the page's scripts, so many characters long
    /// The page wants to send a form out of the machine. It was not sent; PageView::sendForm does it.
    virtual void formHeldBack(const QUrl &where) = 0;
    virtual void linkRefused(const QUrl &) = 0;           ///< the page wanted to go to another host, or into a file
    virtual void otherHostRefused(const QUrl &) = 0;      ///< a picture, style or script of another host, not allowed
    virtual void otherHostShown(const QUrl &) = 0;        ///< the same, allowed
    virtual void elementClicked(const ElementPath &) = 0; ///< with the left button; the page may be going elsewhere
    virtual void fileRefused(const QUrl &) = 0;           ///< a file that is there, but not for this page
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
    /// Marks the first of these that the page has for certain, in place of the one that was marked before, and scrolls
    /// to it where nothing of it can be seen. The page itself is not changed. None: nothing is marked any more.
    virtual void mark(const ElementPath &path) = 0;
    /// Hands over the text of the element that is marked; empty without one.
    virtual void markedText(std::function<void(const QString &)> taken) = 0;
    /// How far the page is scrolled down, in logical pixels.
    virtual int scrollTop() const = 0;
    /// Sends the form that was held back last, this once. False if the page has it no more.
    virtual void sendForm(std::function<void(bool)> sent) = 0;
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

    /// Where all pages come from, before the first view is made. It outlives them.
    virtual void setSource(PageSource &source) = 0;
    /// A view without a page. `listener` lives as long as the view.
    virtual std::unique_ptr<PageView> makeView(PageViewListener &listener, QWidget *parent) = 0;
    /// Ends every page there still is; views that outlive this do nothing. Before the application object goes.
    virtual void shutDown() = 0;
};

#define TAGWRIGHTER_PAGE_ENGINE "tagwrighter.PageEngine/2"
Q_DECLARE_INTERFACE(PageEngine, TAGWRIGHTER_PAGE_ENGINE)
