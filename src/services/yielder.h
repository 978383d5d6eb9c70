#pragma once

#include <QElapsedTimer>

/// Where a long pass gives way to events. What runs meanwhile may be anything that a user can do: after a yield, the
/// pass makes sure that what it works on is still there.
class Yielder
{
public:
    Yielder() = default;
    Yielder(const Yielder &) = delete;
    Yielder &operator=(const Yielder &) = delete;
    virtual ~Yielder() = default;

    /// A long pass begins; the yields up to the next beginPass are its.
    virtual void beginPass() = 0;
    /// The pass can be interrupted here. Cheap enough to be called at every step.
    virtual void yield() = 0;
    /// The same for a pass that waits for something to come: nothing is done until there is an event.
    virtual void waitForEvents() = 0;
};

/// Gives the message queue a turn, but no more than one in 4 ms: a pass shorter than that runs in one go.
class EventYielder final : public Yielder
{
public:
    void beginPass() override;
    void yield() override;
    void waitForEvents() override;

private:
    QElapsedTimer m_sinceTurn;
};
