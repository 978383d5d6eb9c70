#pragma once

#include "insertion/addParameterForm.h"
#include "widgets/layout.h"

#include <QList>
#include <QPointer>
#include <functional>

class ListView;

/// `lstParam` of a dialog, with the buttons `cmdAddPar` and `cmdRemPar`. Made anew with the form's controls.
class ParameterList
{
public:
    using Ask = std::function<std::optional<ElementParameter>()>;

    /// `ask` is how a parameter is asked for; once a load of the form.
    ui::Node build(const QString &label, const Ask &ask);

    QList<ElementParameter> parameters() const;

private:
    void cmdAddPar_Click(const Ask &ask);
    void cmdRemPar_Click();

    QPointer<ListView> lstParam;
};
