#pragma once

#include "forms/dialogForm.h"
#include "texttools/rootConversion.h"

class QLineEdit;
class QRadioButton;
class TextSurface;

/// Rewrites the links of the active document between a local folder and an Internet address.
class frmChangeRootDirectory final : public DialogForm
{
    Q_OBJECT
public:
    explicit frmChangeRootDirectory(ProgramContext &context);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdBrowse_Click();
    void cmdChange_Click();
    bool hasRoots();
    void completeRoots();
    bool isAgreed();
    void convert();
    bool toInternet() const;
    RootConversion conversion() const;
    void tell(const QString &title, const QString &text, bool failed = false);

    QString m_internetRoot; ///< as it was typed when the window was closed last: pages of a site share it
    QLineEdit *txtLocal = nullptr;
    QLineEdit *txtInternet = nullptr;
    QRadioButton *optLocalInternet = nullptr;
    QRadioButton *optInternetLocal = nullptr;
};
