#include "widgets/mainWindowFrame.h"

#include "widgets/droppedFiles.h"

#include <QCloseEvent>

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
