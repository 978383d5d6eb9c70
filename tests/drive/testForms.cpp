#include "drive/testForms.h"

#include "drive/testDeskForm.h"
#include "drive/testForm.h"

namespace drive
{
std::unique_ptr<Form> makeTestForm(ProgramContext &context, const QString &name)
{
    if (name == QStringLiteral("frmTestDesk"))
        return std::make_unique<frmTestDesk>(context);
    if (name == QStringLiteral("frmTestBox"))
        return std::make_unique<frmTestBox>(context);
    if (name == QStringLiteral("frmTestControls"))
        return std::make_unique<frmTestControls>(context);
    return nullptr;
}

QStringList testFormNames()
{
    return {QStringLiteral("frmTestDesk"), QStringLiteral("frmTestBox"), QStringLiteral("frmTestControls")};
}
} // namespace drive
