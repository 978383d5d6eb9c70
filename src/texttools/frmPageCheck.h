#pragma once

#include "forms/form.h"
#include "texttools/pageCheck.h"

#include <QPointer>
#include <memory>
#include <optional>

class Document;
class EditSurface;
class ListView;
class PageChecker;
class QLabel;
class QPushButton;
class Timer;

/// The check of a page: a list of what is wrong with the active document, which stays usable. Where the program edits
/// as today's editors do, the check goes on by itself a moment after each pause in the typing, window or not, and marks
/// what it finds in the text.
class frmPageCheck final : public Form
{
    Q_OBJECT
public:
    explicit frmPageCheck(ProgramContext &context);
    ~frmPageCheck() override;

    QObject *control(const QString &name) const override;
    /// The user has chosen by which rules to edit: the page in front is looked at from now on, or left alone.
    void takeOverHabits();

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void presentWindow() override;

private:
    void build();
    void followFocus(QWidget *now);
    void follow(EditSurface *surface);
    void forget();
    void forgetProblems();
    void addKeys(QWidget *mainWindow);
    void txtEdit_Change();
    void tmrPageCheck_Timer();
    bool checksByItself() const;
    Document *documentOf(const EditSurface *surface) const;
    void check(Document &document);
    PageCheckContext contextOf(const Document &document) const;
    bool readRules();
    void showProblems();
    void tell(const QString &text);
    void selectRow(int row);
    void lstProblems_Click();
    void cmdGoTo_Click();
    void cmdPutRight_Click();
    void goRound(int by);
    void goTo(int row, bool focus);
    std::optional<int> rowAfterCheck(const PageProblem &problem) const;

    std::shared_ptr<const PageRules> m_rules;
    std::unique_ptr<PageChecker> m_checker; ///< of the page that was checked last
    std::unique_ptr<Timer> tmrPageCheck;
    QPointer<EditSurface> m_surface; ///< the one that was checked last, or is waiting to be
    QList<PageProblem> m_problems;   ///< of its text as it was checked
    QString m_checked;               ///< that text
    QMetaObject::Connection m_change;
    QMetaObject::Connection m_closing;
    QPointer<QObject> m_keys; ///< there while the main window has the keys that go round
    // At the program's end the window may go before the pages do, which then tell that they have gone.
    QPointer<ListView> lstProblems;
    QPointer<QLabel> lblFound;
    QPushButton *cmdGoTo = nullptr;
    QPushButton *cmdPutRight = nullptr;
};
