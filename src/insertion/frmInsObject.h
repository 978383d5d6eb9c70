#pragma once

#include "insertion/insertionForm.h"
#include "insertion/objectElement.h"
#include "insertion/parameterList.h"

class NumberField;
class QComboBox;
class QLineEdit;

/// Inserts an object, or edits the one under the caret.
class frmInsObject final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsObject(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;
    void forgetLastUse() override;

private:
    ui::Node sourceRows();
    ui::Node placeRows();
    void readTag();
    void showFields(const ObjectFields &fields);
    ObjectFields fields() const;

    QString LeftoverAttributes; ///< of the tag read last; it outlives the dialog and goes into the next new object, too
    bool m_edited = false;      ///< outlives the dialog: once a tag was read, no object gets a closing tag any more
    ParameterList m_parameters;
    QLineEdit *txtObject = nullptr;
    QLineEdit *txtCodeBase = nullptr;
    QComboBox *cboClassIDContentType = nullptr;
    QLineEdit *txtData = nullptr;
    QComboBox *cboDataContentType = nullptr;
    QLineEdit *txtArchive = nullptr;
    QLineEdit *txtName = nullptr;
    QComboBox *cboAlignment = nullptr;
    NumberField *txtWidth = nullptr;
    NumberField *txtHeight = nullptr;
    NumberField *txtBorder = nullptr;
    NumberField *txtHSpace = nullptr;
    NumberField *txtVSpace = nullptr;
};
