#pragma once

#include "forms/form.h"
#include "texttools/documentSearch.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;

/// The Find and Replace window, beside which the documents stay usable.
class frmFind final : public Form
{
    Q_OBJECT
public:
    explicit frmFind(ProgramContext &context);

    /// Shows what Replace needs: the replacement, and the button that replaces all.
    void SetFindReplace();
    /// Repeats the last search downwards or upwards, whether the window is on show or not; without a last search the
    /// window opens. On show, "downwards" is the direction that it shows and "upwards" the other.
    void FindAgain(bool upwards);

protected:
    bool Form_QueryUnload() override;
    void Form_Load() override;
    void Form_Unload() override;
    void presentWindow() override;

private:
    ui::Node fields();
    ui::Node options();
    ui::Node commands();
    void fillFindString();
    void fillAsLeft();
    void addShortcuts();

    void cboFindString_Change();
    void cboSearchType_Click();
    void cmdOK_Click();
    void cmdReplace_Click();
    void cmdReplaceAll_Click();
    void cmdClose_Click();

    void AddFindHistory();
    void AddReplaceHistory();
    SearchOrder order() const;
    void find(SearchOrder order);
    bool letEventsRun();
    bool asksForReplace() const;
    void enableButtons();

    DocumentSearch m_search;
    SearchOrder m_lastOrder; ///< as the window showed it when it was closed
    /// The other texts that it held then.
    struct Texts {
        QStringList find;
        QStringList replace;
        QString replacement;
    } m_lastTexts;
    bool m_closing = false; ///< it is to close once the replacing has stopped
    QComboBox *cboFindString = nullptr;
    QComboBox *cboReplace = nullptr;
    QComboBox *cboSearchDirection = nullptr;
    QComboBox *cboSearchType = nullptr;
    QCheckBox *chkCase = nullptr;
    QCheckBox *chkWholeWords = nullptr;
    QRadioButton *optSearchCurrentDoc = nullptr;
    QRadioButton *optSearchOpenDocs = nullptr;
    QPointer<QLabel> lblFound; ///< nothing while the window is closed
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdReplace = nullptr;
    QPushButton *cmdReplaceAll = nullptr;
    QPushButton *cmdClose = nullptr;
};

/// The rows of a history once `text` was searched for: it comes first unless one of the first 15 rows is the same, and
/// makes a list of more than 15 drop its rows behind the fourteenth.
QStringList withHistory(const QStringList &rows, const QString &text);
