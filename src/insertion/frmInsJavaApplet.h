#pragma once

#include "insertion/appletElement.h"
#include "insertion/insertionForm.h"
#include "insertion/parameterList.h"

class NumberField;
class QComboBox;
class QLineEdit;

/// Inserts a Java applet, or edits the one under the caret.
class frmInsJavaApplet final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsJavaApplet(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    void forgetLastUse() override;

private:
    ui::Node sourceRows();
    ui::Node placeRows();
    void readTag();
    void showFields(const AppletFields &fields);
    AppletFields fields() const;

    QString LeftoverAttributes; ///< of the tag read last; it outlives the dialog and goes into the next new applet, too
    bool m_edited = false;      ///< outlives the dialog: once a tag was read, no applet gets a closing tag any more
    ParameterList m_parameters;
    QLineEdit *txtBase = nullptr;
    QLineEdit *txtSource = nullptr;
    QLineEdit *txtName = nullptr;
    QLineEdit *txtArchive = nullptr;
    QLineEdit *txtObject = nullptr;
    NumberField *txtWidth = nullptr;
    NumberField *txtHeight = nullptr;
    QComboBox *cboAlignment = nullptr;
    QLineEdit *txtAlternative = nullptr;
    NumberField *txtVert = nullptr;
    NumberField *txtHoz = nullptr;
};
