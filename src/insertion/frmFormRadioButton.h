#pragma once

#include "insertion/insertionForm.h"

#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;

/// What the radio button dialog holds.
struct RadioFields {
    QString group = {};
    QString value = {};
    QString caption = {}; ///< the words behind the button; without them its value stands there
    bool selected = false;
};

QString radioMarkup(const RadioFields &fields);

/// The names of the groups that a page's radio buttons form, each once, in the page's order. Of the page's `input`
/// tags the first hundred count; of those, radio buttons whose name stands in double quotes.
QStringList radioGroups(const QString &text);

/// Writes one of several choices.
class frmFormRadioButton final : public InsertionForm
{
    Q_OBJECT
public:
    explicit frmFormRadioButton(ProgramContext &context);

protected:
    void Form_Load() override;
    std::optional<QString> markup() override;

private:
    QComboBox *cboName = nullptr;
    QLineEdit *txtValue = nullptr;
    QLineEdit *txtCaption = nullptr;
    QCheckBox *chkSelected = nullptr;
};
