#pragma once

#include <QString>

struct sockaddr;

/// Whether an address of a socket is this machine's own: 127.0.0.0/8 or ::1.
bool isLoopback(const sockaddr &address);
/// Whether a host's name stands for such an address, without asking anybody: "localhost", or the address itself, with
/// or without brackets.
bool isLoopbackName(const QString &host);
