#include "widgets/droppedFiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

QStringList filesOf(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

void acceptFiles(QDropEvent &event)
{
    if (filesOf(*event.mimeData()).isEmpty()) {
        event.ignore();
        return;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
}
