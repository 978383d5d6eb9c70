#pragma once

#include <QByteArray>
#include <QStringList>

/// The places in the system's table of mounts where users find what they have plugged in or mounted, in its order, each
/// once; not those that the system is made of.
QStringList mountedVolumes(const QByteArray &table);
