#pragma once

#include "forms/dialogForm.h"

class Inet;
class NumberField;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;
namespace ui
{
class Node;
}

/// The port that goes with a row of the list of protocols, in any case of its letters; nothing for another text.
QString portOfProtocol(const QString &protocol);

/// Sends the active document to a server.
class frmSavetoInternet final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmSavetoInternet(ProgramContext &context);

protected:
    void Form_Load() override;

private:
    void buildFields();
    ui::Node advancedPane();
    void takeOrigin();
    void proposeUserName();
    void warnOfPlainPassword();
    void growToContent();

    void cboProtocol_Click();
    void cmdAdvanced_Click();
    void cmdConnect_Click();
    void setProxy();
    void setTarget();
    std::optional<QString> upload(Document &document);
    void remember();
    void tellFailure(const QString &description);

    QComboBox *cboAddress = nullptr;
    QLineEdit *txtFileName = nullptr;
    QLineEdit *txtUserName = nullptr;
    QLineEdit *txtPassword = nullptr;
    QLabel *lblPlainPassword = nullptr;
    QPushButton *cmdAdvanced = nullptr;
    QWidget *picAdvanced = nullptr;
    QComboBox *cboProtocol = nullptr;
    NumberField *txtPort = nullptr;
    NumberField *txtRequestedTimeOut = nullptr;
    QRadioButton *optProxyDefault = nullptr;
    QRadioButton *optProxyDirect = nullptr;
    QRadioButton *optProxyUseSpecified = nullptr;
    QLineEdit *txtProxyName = nullptr;
    QLineEdit *txtProxyPort = nullptr;
    Inet *netSave = nullptr;
    bool m_portChosen = false; ///< the port is the user's, not the one that stands there at first
};
