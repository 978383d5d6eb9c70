#include "files/templateMessages.h"

#include "common/quoted.h"

namespace
{
QString alreadyExists(const QString &what, const QString &path)
{
    return what + quoted(path) + QStringLiteral(" already exists.\r\n\r\nDo you want to replace it?");
}
} // namespace

MessageBox templateReplaceQuestion(const QString &path)
{
    return {.title = QStringLiteral("File Already Exists"),
            .text = alreadyExists(QStringLiteral("The template file "), path),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNoCancel};
}

MessageBox fileReplaceQuestion(const QString &path)
{
    return {.title = QStringLiteral("File Already Exists"),
            .text = alreadyExists(QStringLiteral("The file "), path),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo};
}

MessageBox notAddedMessage(const QString &name)
{
    return {.title = QStringLiteral("Unexpected Error!"),
            .text = QStringLiteral("An unexpected error occurred while trying to add the file ") + quoted(name) +
                    QStringLiteral(" to the template. The template is made without it."),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

MessageBox refusedNamesMessage(const QStringList &names)
{
    QString text = QStringLiteral("These files of the template were not saved, for their names lead out of the chosen "
                                  "folder:\r\n");
    for (const QString &name : names)
        text += QStringLiteral("\r\n") + quoted(name);
    return {.title = QStringLiteral("Files Not Saved"),
            .text = text,
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::OK};
}

QString accompanyingFilesText(qsizetype count)
{
    if (count == 1)
        return QStringLiteral(
            "The template file you have chosen to create a new document from contains one accompanying "
            "file.  It is recommended that you save this file so that the new document can access it.");
    return QStringLiteral("The template file you have chosen to create a new document from contains ") +
           QString::number(count) +
           QStringLiteral(" accompanying files.  It is recommended that you save these files so that the new document "
                          "can access them.");
}

SavedTemplateTexts savedTemplateTexts(const QString &templateName, qsizetype count)
{
    if (count == 0)
        return {QStringLiteral("The combined template file has been successfully created. No accompanying files were "
                               "located within the source document that needed to be included with the template."),
                {}};
    const QString start = QStringLiteral("The combined template file, ") + quoted(templateName);
    if (count == 1)
        return {start + QStringLiteral(", has been successfully created. One accompanying file was located within the "
                                       "source document.  This file was added to the template."),
                QStringLiteral("The file listed below was added to the saved template. A copy of this file will be "
                               "made available when the template is next opened.")};
    return {start + QStringLiteral(", has been successfully created. ") + QString::number(count) +
                QStringLiteral(" accompanying files were located within the source document.  These files were added "
                               "to the template."),
            QStringLiteral("The files listed below were added to the saved template. Copies of these files will be "
                           "made available when the template is next opened.")};
}
