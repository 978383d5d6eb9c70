#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <utility>

/// A program under conditions that its test makes.
struct FaultProcess {
    QString program;
    QStringList arguments;
    QList<std::pair<QByteArray, QByteArray>> variables = {}; ///< in addition to those of the test
    std::function<bool()> prepare = {};                      ///< runs in the process before the program starts
};

/// How it ended.
struct FaultOutcome {
    int status = -1; ///< the exit status; -1 for one that a signal ended
    QString output;  ///< of both channels
};

/// What a process gives back whose preparation was refused.
constexpr int NotPrepared = 99;

/// Runs it to its end, with nothing to read.
FaultOutcome runToEnd(const FaultProcess &process);

/// Starts it and gives its number once it has written its first line. -1 if it has not.
pid_t startToFirstLine(const FaultProcess &process);

/// Variables that let the system's calls fail as `rules` say, see shim.cpp.
QList<std::pair<QByteArray, QByteArray>> withFaults(const QByteArray &rules);

/// Lets a process act as a user without any rights, in a tree that such a user may enter; false where it cannot be.
bool actAsNobody();
/// Whether a test can have a program of this tree run as such a user: asked in a process of its own.
bool canActAsNobody();

/// Gives the process that calls it mounts of its own, which go with it. False where this machine lets nobody mount.
bool unshareMounts();
/// Mounts; false where the machine refuses it.
bool mountAt(const QString &what, const QString &where, const QByteArray &kind, const QByteArray &options);
/// Whether this machine lets a test mount a file system: asked in a process of its own.
bool canMount();
