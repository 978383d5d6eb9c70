#pragma once

#include "insertion/addParameterForm.h"

/// Asks for a parameter of an object.
class frmAddObjectParam final : public AddParameterForm
{
    Q_OBJECT
public:
    explicit frmAddObjectParam(ProgramContext &context);
};
