#pragma once

#include "widgets/layout.h"

class QCheckBox;
class QLabel;
struct FileDetails;
struct ProgramContext;

/// The page of a properties window that shows what the file system knows of a file.
class FilePropertiesPage
{
public:
    /// Makes its controls, once a load of their form.
    ui::Node build();
    /// The name alone, of what has no file yet.
    void showName(const QString &name);
    /// Shows the file; the user is told what stands in the way.
    void show(ProgramContext &context, const QString &path);

private:
    void showDetails(const QString &path, const FileDetails &details);

    QLabel *lblFileName = nullptr;
    QLabel *lblType = nullptr;
    QLabel *lblMsDosName = nullptr;
    QLabel *lblCreated = nullptr;
    QLabel *lblLastModified = nullptr;
    QLabel *lblLastAccessed = nullptr;
    QLabel *lblLocation = nullptr;
    QLabel *lblSize = nullptr;
    QCheckBox *chkReadOnly = nullptr;
    QCheckBox *chkArchive = nullptr;
    QCheckBox *chkHidden = nullptr;
    QCheckBox *chkSystem = nullptr;
};
