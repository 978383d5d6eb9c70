#include "widgets/mainWindowFrame.h"

#include <QCloseEvent>
#include <QMimeData>
#include <QUrl>

namespace
{
/// The local files of a drag, in its order; empty if it holds no list of files.
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
} // namespace

MainWindowFrame::MainWindowFrame(std::function<void()> closeRequested) : m_closeRequested(std::move(closeRequested))
{
    setAcceptDrops(true);
}

void MainWindowFrame::closeEvent(QCloseEvent *event)
{
    event->ignore();
    m_closeRequested();
}

void MainWindowFrame::dragEnterEvent(QDragEnterEvent *event)
{
    acceptFiles(*event);
}

void MainWindowFrame::dragMoveEvent(QDragMoveEvent *event)
{
    acceptFiles(*event);
}

void MainWindowFrame::dropEvent(QDropEvent *event)
{
    acceptFiles(*event);
    if (event->isAccepted() && m_dropped)
        m_dropped(filesOf(*event->mimeData()));
}
