#include "insertion/frmAddJavaParam.h"

frmAddJavaParam::frmAddJavaParam(ProgramContext &context)
    : AddParameterForm(context, QStringLiteral("frmAddJavaParam"), QStringLiteral("Add Applet Parameter"))
{
}
