#pragma once

#include <QString>
#include <optional>

/// What `Execute` is told to do: to send a file of this machine under a name to the location at hand.
struct PutOperation {
    QString path;
    QString fileName;
    bool operator==(const PutOperation &) const = default;
};

/// The operation as a text: PUT, the path in double quotation marks, a blank, and the name as it stands.
QString putOperation(const PutOperation &operation);
/// Takes such a text apart. A name without quotation marks is all that follows, blanks included. Nothing for a text
/// that is no such operation.
std::optional<PutOperation> parsePutOperation(const QString &text);
