#pragma once

#include "forms/form.h"

#include <functional>

class QPushButton;
namespace ui
{
class Node;
}

/// The small box over an insertion dialog that asks for one row of the dialog's list. It stays until what was entered
/// can be a row, or it is left by Cancel.
///
/// A form of this kind builds its controls (`Form_Load`), and `accept` takes the row from them into a field of its own,
/// which the form gives back from a function that calls `ask`.
class CompanionForm : public Form
{
    Q_OBJECT
public:
    struct Design {
        QString name;
        QString caption;
        QString okName;
        QString okCaption;
    };

    CompanionForm(ProgramContext &context, const Design &design);

protected:
    /// Shows the form and waits until it is gone; the window in front before has the focus again then.
    void ask();
    /// Takes what was entered; false if it cannot be a row, which the user has been told then.
    virtual bool accept() = 0;

    /// The button that accepts, which is the default one, and Cancel, which Escape presses. Once a load.
    ui::Node companionButtons();
    /// For `accept`: tells in a box what is missing and puts the focus into the field.
    bool refused(const QString &title, const QString &message, QWidget *field);

private:
    Design m_design;
};
