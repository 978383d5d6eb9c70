#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class EditSurface;

/// Does something that reads a whole document after each change of its text: at the end of the event, or in the next
/// pause where the text is so long that typing would feel it.
class AfterChanges final : public QObject
{
public:
    /// The surface has to outlive it.
    AfterChanges(EditSurface &edit, std::function<void()> act);

    void soon(); ///< at the end of the event, whatever the text's length

private:
    void noteChange();

    EditSurface &m_edit;
    std::function<void()> m_act;
    QTimer m_pause;
    bool m_queued = false;
};
