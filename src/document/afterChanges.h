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
    /// The surface has to outlive it. A change after which `isWanted` says no is let pass, without a timer or an event.
    AfterChanges(EditSurface &edit, std::function<bool()> isWanted, std::function<void()> act);

    void soon(); ///< at the end of the event, whatever the text's length

private:
    void noteChange();

    EditSurface &m_edit;
    std::function<bool()> m_isWanted;
    std::function<void()> m_act;
    QTimer m_pause;
    bool m_queued = false;
};
