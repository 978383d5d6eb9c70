#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <curl/curl.h>

/// How an upload comes to its place: under a temporary name beside it first, which takes the place once it is whole.
/// Where the server can't do that, straight to its place.
enum class UploadWay { ByTemporaryName, Straight };

/// What the server is told around the sending. A command that starts with "*" may fail.
struct UploadCommands {
    QList<QByteArray> before;
    QList<QByteArray> after;
};

/// The names in the folder of an upload: where it belongs, where it is sent first, and where the file of before is put
/// aside meanwhile. Plain, not in codes.
struct UploadNames {
    QString target;
    QString temporary;
    QString aside;
};
UploadNames uploadNames(const QString &target);

/// Whether a server of that protocol can have a method for renaming, which it is to be asked about.
bool mayMove(const QString &scheme);
/// Whether what a web server says it allows (the header's value, "GET, PUT, MOVE") has that method.
bool allowsMove(const QByteArray &allowed);
/// Whether a server of that protocol has commands for renaming, and the name is one that they can hold.
bool canRename(const QString &scheme, const QString &target);

/// `folder`: the address's path, in codes. `retry`: it went by a temporary name before, and that failed.
UploadCommands uploadCommands(UploadWay way, const QString &scheme, const QString &folder, const UploadNames &names,
                              bool retry);
/// What takes a temporary file away that was left behind.
UploadCommands cleanupCommands(const QString &scheme, const QString &folder, const UploadNames &names);

/// Whether the failure is a refusal of the temporary name or of the renaming, so that the straight way may still work.
/// `responseCode`: the server's.
bool refusesTemporaryName(CURLcode code, long responseCode);
