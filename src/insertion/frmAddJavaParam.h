#pragma once

#include "insertion/addParameterForm.h"

/// Asks for a parameter of an applet.
class frmAddJavaParam final : public AddParameterForm
{
    Q_OBJECT
public:
    explicit frmAddJavaParam(ProgramContext &context);
};
