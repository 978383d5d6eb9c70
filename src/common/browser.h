#pragma once

#include <QString>

/// The browser of a document window: where it stands, and what its commands do.
class Browser
{
public:
    Browser() = default;
    Browser(const Browser &) = delete;
    Browser &operator=(const Browser &) = delete;
    virtual ~Browser() = default;

    /// The address of the page on show, or of the one that was asked for last; "about:blank" at first. A file's is a
    /// URL.
    virtual QString LocationURL() const = 0;
    /// Goes to a native path or a URL. While a page is being loaded, the newest target waits for that to end.
    virtual void Navigate(const QString &target) = 0;
    /// The same for a page that comes along with the text by itself: what the user was asked about it is not asked
    /// anew.
    virtual void Follow(const QString &target) = 0;
    /// The same as Follow where a page was loaded before; otherwise the target is only noted, for the next Refresh to
    /// load.
    virtual void NavigateIfRunning(const QString &target) = 0;

    // Without a page, or with nowhere to go, these do nothing.
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    virtual void Stop() = 0;
    virtual void Refresh() = 0;
};
