#pragma once

#include "insertion/insertionForm.h"

#include <QStringList>

class QComboBox;
class QLineEdit;

/// What the button dialog holds.
struct ButtonFields {
    QString type = {}; ///< one of buttonTypes
    QString name = {};
    QString value = {};
};

/// The kinds of buttons as the dialog calls them, the usual one first.
QStringList buttonTypes();

QString buttonMarkup(const ButtonFields &fields);

/// Writes a button, above all the one that sends a form.
class frmFormButton final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormButton(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QComboBox *cboType = nullptr;
    QLineEdit *txtName = nullptr;
    QLineEdit *txtValue = nullptr;
};
