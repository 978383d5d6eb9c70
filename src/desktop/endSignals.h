#pragma once

#include <QObject>
#include <functional>

/// Turns the system's requests to end (SIGTERM, SIGHUP, SIGINT) into an event of the program: `asked` runs from the
/// event loop, where everything may be done, and not in the signal itself. One at a time in a process.
class EndSignals final : public QObject
{
public:
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals() override;

private:
    int m_sockets[2] = {-1, -1};
};
