#include "codeknowledge/codeTitleBoxes.h"

#include "services/messageBoxes.h"
#include "services/services.h"
#include "widgets/controls.h"

#include <QLineEdit>

void tellTitleTaken(Services &services, const QString &title)
{
    services.messageBoxes.show(
        {QStringLiteral("File Already Exists"),
         QStringLiteral("The code library file, \"%1\", could not be created. An entry with that "
                        "name already exists.")
             .arg(title),
         MessageIcon::Critical, MessageButtons::OK});
}

void tellInvalidTitle(Services &services, QLineEdit &field)
{
    services.messageBoxes.show(
        {QStringLiteral("Invalid Name"),
         QStringLiteral("A filename can not contain any of the following characters:\r\n\\ / : * ? \" < > |\r\n\r\n"
                        "Please enter a different name and then try again."),
         MessageIcon::Exclamation, MessageButtons::OK});
    SelectAllText(&field);
    field.setFocus();
}
