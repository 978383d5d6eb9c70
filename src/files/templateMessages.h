#pragma once

#include "services/messageBoxes.h"

#include <QStringList>

/// What the user is told and asked about templates.

MessageBox templateReplaceQuestion(const QString &path);  ///< before a template is written over
MessageBox fileReplaceQuestion(const QString &path);      ///< before a file is unpacked over another
MessageBox notAddedMessage(const QString &name);          ///< a file could not be packed
MessageBox refusedNamesMessage(const QStringList &names); ///< files that would have left the chosen folder

/// The question about a template's accompanying files; `count` is their number, at least 1.
QString accompanyingFilesText(qsizetype count);

/// What the message about a saved template says.
struct SavedTemplateTexts {
    QString message;
    QString aboutList; ///< empty: there is no list
};
SavedTemplateTexts savedTemplateTexts(const QString &templateName, qsizetype count);
