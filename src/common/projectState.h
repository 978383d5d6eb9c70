#pragma once

#include <QString>
#include <functional>

/// The open site project beside its lists, which are on the pane.
struct ProjectState {
    bool ProjectOpen = false;    ///< the commands of an open project are enabled
    bool ProjectChanged = false; ///< its list of files holds changes that its file does not
    QString SiteName = {};
    QString SiteAuthor = {};
    std::function<bool()> save = {}; ///< writes the project file; false if it could not

    /// Nothing is known of a project, and there is nothing to save.
    void forget()
    {
        ProjectChanged = false;
        SiteName.clear();
        SiteAuthor.clear();
    }
};
