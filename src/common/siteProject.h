#pragma once

#include <QString>

/// The open site project as the other subsystems know it.
class SiteProject
{
public:
    SiteProject() = default;
    SiteProject(const SiteProject &) = delete;
    SiteProject &operator=(const SiteProject &) = delete;
    virtual ~SiteProject() = default;

    virtual bool isOpen() const = 0;
    /// Adds one file to the open project's pages, or to its other files. What stands in the way is told to the user.
    virtual void AddFileToProject(const QString &path, bool isEditorFile) = 0;
};
