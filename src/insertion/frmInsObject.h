#pragma once

#include "insertion/insertionForm.h"
#include "insertion/parameterList.h"
#include "insertion/tagUnderCaret.h"

class NumberField;
class QComboBox;
class QLineEdit;

/// What the object dialog holds. Numbers are the texts of their boxes; one of "0" is as good as none.
struct ObjectFields {
    QString classId;
    QString codeBase;
    QString codeType;
    QString data;
    QString type;
    QString archive;
    QString name;
    QString align;
    QString width;
    QString height;
    QString border;
    QString hSpace;
    QString vSpace;
    QString leftoverAttributes; ///< what goes into the tag as it stands, with its own blank in front
    QList<ElementParameter> parameters;
    bool edited = false; ///< the element is there already, with its closing tag
};

QString objectMarkup(const ObjectFields &fields);

/// The `object` element around a caret, as ReadTagUnderCaret finds it, and the fields that it fills.
std::optional<TagUnderCaret> readObjectTag(const QString &text, qsizetype selStart, qsizetype selLength);
ObjectFields objectFields(const TagUnderCaret &tag);

/// Inserts an object, or edits the one under the caret.
class frmInsObject final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmInsObject(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

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
