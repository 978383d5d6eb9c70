#pragma once

#include <QString>
#include <optional>

struct ProgramContext;

/// The file dialog behind a "Browse..." button. Made anew with the form's controls, it remembers the last name chosen.
class BrowseDialog
{
public:
    BrowseDialog() = default;
    /// `filter` as in FileDialogRequest; its second row is the one preselected.
    explicit BrowseDialog(const QString &filter) : m_filter(filter) {}

    /// Shows the dialog. The full path chosen; when it is left without a choice, the name chosen before, empty at
    /// first, or nothing where the field is to stay as it is.
    std::optional<QString> browse(ProgramContext &context);

private:
    QString m_filter;
    QString m_fileName;
};
