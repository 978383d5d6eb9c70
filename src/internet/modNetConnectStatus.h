#pragma once

#include <QString>

struct ProgramContext;

/// Whether the address can be gone to: the machine is in a network, or the address is its own.
bool IsInternetConnected(ProgramContext &context, const QString &address);
