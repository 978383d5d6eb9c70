#pragma once

#include "forms/form.h"

#include <optional>

class ListView;

/// Lists the files that are to be packed with a page, for the user to add others and to take some out.
class frmMsgCombinedTemplateFilesToSave final : public Form
{
    Q_OBJECT
public:
    explicit frmMsgCombinedTemplateFilesToSave(ProgramContext &context);

    /// The paths that it starts with; before it is shown.
    void setFiles(const QStringList &paths) { m_files = paths; }
    /// The paths as the user left them; nothing if the list was left by Cancel or its close box.
    const std::optional<QStringList> &chosen() const { return m_chosen; }

protected:
    void Form_Load() override;

private:
    void addFile(const QString &path);
    bool holds(const QString &path) const;
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdOK_Click();

    QStringList m_files;
    std::optional<QStringList> m_chosen;
    ListView *lstAccompanyingFiles = nullptr;
};
