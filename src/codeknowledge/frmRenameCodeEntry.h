#pragma once

#include "forms/form.h"

#include <optional>

class QLineEdit;

/// Asks for another title for an entry of the code library.
class frmRenameCodeEntry final : public Form
{
    Q_OBJECT
public:
    explicit frmRenameCodeEntry(ProgramContext &context);

    /// Renames the entry's file as the user says; the path of its new name, nothing if it keeps the old one.
    std::optional<QString> rename(const QString &path);

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();
    bool move(const QString &target);

    QString m_path;
    std::optional<QString> m_renamed;
    QLineEdit *txtCodeTitle = nullptr;
};
