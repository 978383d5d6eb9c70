#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The file of the addresses that were typed, one a line.

/// Its addresses, in their order. An empty line, which is what a cleared history holds, is none.
QStringList addressesOf(const QByteArray &file);
/// The file with an address behind the others.
QByteArray withAddress(const QByteArray &file, const QString &address);
