#pragma once

#include "forms/dialogForm.h"

class FileList;
class FolderList;
class NodeTree;
class QPlainTextEdit;
class QPoint;

/// The user's code library: a tree of categories and entries, whose code goes into the active document.
class frmCodeLibrary final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmCodeLibrary(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    ui::Node library();
    ui::Node entry();
    ui::Node commands();
    void addPopup();
    void FillCodeLibraryTree();
    bool addCategory(const QString &folder);
    void LoadCodeEntry(const QString &key);
    void tellFailure(const QString &title, const QString &text);

    void trvCode_NodeClick(int node);
    void trvCode_NodeDblClick(int node);
    void cmdInsert_Click();
    void renameEntry();
    void deleteEntry();
    QString selectedEntry() const; ///< the path of its file; empty if a category is selected, or nothing

    QString m_code; ///< of the entry on show, as its file has it
    NodeTree *trvCode = nullptr;
    QPlainTextEdit *txtPreview = nullptr;
    QPlainTextEdit *txtDescription = nullptr;
    FolderList *dirCodeLocation = nullptr;
    FileList *filCodeFiles = nullptr;
};
