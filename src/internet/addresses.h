#pragma once

#include <QString>

/// Addresses as the two Internet dialogs take them apart and put them together. None of these fails: what is no address
/// stays what it is.

/// Where a document that was opened from an address came from: the address up to its file's name, "*|*", and the name,
/// which is what follows the last "/".
QString originOf(const QString &address);
QString originOf(const QString &location, const QString &fileName);

/// The two parts of an origin.
struct Origin {
    QString location;
    QString fileName;
};
Origin parseOrigin(const QString &origin);

/// The address of a file in a location. The name stands as it is, blanks and special characters included: what an
/// address cannot hold of it is written in codes.
QString addressOfFile(const QString &location, const QString &fileName);

/// The address without the password in front of its host, as it may be shown and kept.
QString withoutPassword(const QString &address);

/// The server of an address, in lower case and with its port where the address names one; without what stands in front
/// of "@".
QString serverOf(const QString &address);

/// Whether a password would go to this address as plain text.
bool sendsPlainPassword(const QString &address);
