#pragma once

#include "services/internetTransfer.h"

#include <QtPlugin>

/// What transfers stand on.
struct TransferGround {
    QString knownHosts;        ///< the file of the servers that are known by their keys
    bool loopbackOnly = false; ///< goes to this machine alone, and asks no name server
};

/// What moves the bytes of transfers: a module of its own, loaded with the first of them, for its libraries would cost
/// every start of the program dearly. The module's root object.
class TransferEngine
{
public:
    TransferEngine() = default;
    TransferEngine(const TransferEngine &) = delete;
    TransferEngine &operator=(const TransferEngine &) = delete;
    virtual ~TransferEngine() = default;

    /// As InternetTransfers has it.
    virtual StartedTransfer start(const TransferRequest &request, const TransferGround &ground,
                                  TransferWatcher &watcher) = 0;
    /// Lets go of what it holds. No transfer runs by then.
    virtual void shutDown() = 0;
};

Q_DECLARE_INTERFACE(TransferEngine, "org.tagwrighter.TransferEngine/1")
