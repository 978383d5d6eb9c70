#pragma once

#include <QString>

/// A path with slashes as it stands in an address: per cent signs for blanks, quotes and the signs that have a meaning
/// there. Letters of all languages stay.
QString encodedAddress(const QString &path);
