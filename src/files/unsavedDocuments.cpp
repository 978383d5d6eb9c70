#include "files/unsavedDocuments.h"

#include "common/mainWindow.h"

QStringList unsavedCaptions(const MainWindow &mainWindow)
{
    QStringList captions;
    for (const Document *document : mainWindow.openDocuments())
        if (document->boolDirty)
            captions.append(document->documentCaption());
    return captions;
}

Document *documentOfRow(const MainWindow &mainWindow, const QString &row)
{
    const QString inMainWindow = QStringLiteral("Tagwrighter - [") + row + QStringLiteral("]");
    for (Document *document : mainWindow.openDocuments()) {
        const QString caption = document->documentCaption();
        if (caption == row || caption == inMainWindow)
            return document;
    }
    return nullptr;
}

QString saveAsTitle(const Document &document)
{
    return QStringLiteral("Save ") + document.documentCaption() + QStringLiteral(" As");
}
