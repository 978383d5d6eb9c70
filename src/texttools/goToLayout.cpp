#include "texttools/goToLayout.h"

#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/numberField.h"

#include <QPushButton>

namespace
{
constexpr int LongestNumber = 12;
}

GoToControls goToControls(const QString &fieldName, const QString &label, const ui::Handler &go,
                          const ui::Handler &cancel)
{
    NumberField *number = ui::number(fieldName, LongestNumber);
    QPushButton *cmdGoTo = ui::button(QStringLiteral("cmdGoTo"), QStringLiteral("&Go To"), go);
    QPushButton *cmdCancel = ui::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), cancel);
    const ui::Node fields = ui::rows({ui::row(label, number)});
    return {number, cmdGoTo, cmdCancel, ui::beside({fields, ui::buttons({cmdGoTo, cmdCancel})})};
}

void tellExceeded(Services &services, const QString &title, NumberField &field, const QString &counted)
{
    services.messageBoxes.show(
        {title, QStringLiteral("The number %1 exceeds the number of %2 in the document").arg(field.text(), counted),
         MessageIcon::Exclamation, MessageButtons::OK});
    SelectAllText(&field);
}
