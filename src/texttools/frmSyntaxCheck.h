#pragma once

#include "forms/form.h"
#include "texttools/checkDictionary.h"
#include "texttools/checkScan.h"
#include "texttools/codeWords.h"

#include <memory>

class Document;
class QLineEdit;
class QListWidget;
class QPushButton;

/// The syntax checker. Its load begins to check the active document, and it is on show while it stands at a word that
/// it does not know; the documents stay usable.
class frmSyntaxCheck final : public Form
{
    Q_OBJECT
public:
    explicit frmSyntaxCheck(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void presentWindow() override;

private:
    void build();
    ui::Node words();
    ui::Node commands();
    ui::Node hiddenLists();
    void followDocument();
    void readDictionaries();
    QStringList linesOf(const QString &path) const;
    bool appendLine(const QString &path, const QString &line);
    void addRow(const QString &row);

    void InitializeSyntaxCheck(bool resume);
    CheckScan::Result scan(CheckScan &own);
    void showWord();
    void showSuggestions(const QStringList &names);
    void finish();
    void goOn();
    bool canAct() const;
    void showBusy(bool busy);

    void cmdIgnore_Click();
    void cmdIgnoreAll_Click();
    void cmdAdd_Click();
    void cmdAlwaysExclude_Click();
    void cmdChange_Click();
    void changeOnly(const CheckScan::Place &place);
    void changeAsStep(const CheckScan::Place &place);
    void txtChangeTo_Change();
    void lstSuggestions_Click();

    Document *m_document = nullptr; ///< the one that is checked; nothing once it is closed
    QMetaObject::Connection m_closing;
    std::unique_ptr<CodeWords> m_words;
    CheckDictionary m_dictionary;
    std::shared_ptr<CheckScan> m_scan; ///< of this load
    bool m_checking = false;
    bool m_stands = false; ///< at a word
    QString DicPath;
    QString m_exclusionsPath;
    QLineEdit *txtSyntax = nullptr;
    QLineEdit *txtChangeTo = nullptr;
    QListWidget *lstSuggestions = nullptr;
    QListWidget *lstAddedSyntaxes = nullptr;
    QListWidget *lstExclusions = nullptr;
    QListWidget *lstIgnoreAll = nullptr;
    QPushButton *cmdChange = nullptr;
    QPushButton *cmdAlwaysExclude = nullptr;
};
