#pragma once

#include <QString>

/// A path with slashes as it stands in an address: per cent signs for blanks, quotes and the signs that have a meaning
/// there. Letters of all languages stay.
QString encodedAddress(const QString &path);

/// The way from the document at `documentPath` to a file of this machine: with slashes, steps up to parent folders, and
/// per cent signs for what an address cannot hold. What is no full native path, and with `exists` false what hardly is
/// one of this machine (but an address from the root of a site), stays as it is; so does all without a document's path.
QString addressFromDocument(const QString &path, const QString &documentPath, bool exists);
