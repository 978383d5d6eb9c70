#include "insertion/frmAddObjectParam.h"

frmAddObjectParam::frmAddObjectParam(ProgramContext &context)
    : AddParameterForm(context, QStringLiteral("frmAddObjectParam"), QStringLiteral("Add Object Parameter"))
{
}
