#pragma once

#include "insertion/addParameterForm.h"
#include "widgets/layout.h"

#include <QList>
#include <QPointer>
#include <functional>

class ListView;

/// What follows the opening tag of an applet or object: a `param` element a line, and the closing tag `close` on a line
/// of its own. An element that is edited goes on with the closing tag that it has: `close` is empty then.
QString parametersMarkup(const QList<ElementParameter> &parameters, const QString &close);

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
