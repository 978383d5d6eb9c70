#pragma once

#include "drive/answers.h"
#include "drive/desktop.h"
#include "drive/diskRoom.h"

#include <QDateTime>
#include <QString>

/// What a script still knows when its program has been killed. The program's process is gone with all that it held;
/// the one that plays the rest of the script starts from this.
namespace drive
{
/// Where a list of commands is to go on: those of the block that the command in line `opening` starts (0: the script's
/// own), from the index `next`.
struct PlaceInScript {
    int opening = 0;
    int next = 0;
    bool operator==(const PlaceInScript &) const = default;
};

struct CarriedOver {
    QList<PlaceInScript> places; ///< the innermost first; they are played one after the other
    QList<int> waiting;          ///< lines of commands that wait for something: `when`, `when-box`, `during`
    QList<int> lasting;          ///< lines of commands whose effect outlives the program: a server, a network
    QDateTime clock;
    quint32 seed = 0;
    QList<MessageAnswer> answers;
    QList<ShownBox> boxes;
    QList<DialogAnswer> choices;
    QList<ShownDialog> dialogs;
    QStringList launched;
    int refusals = 0;
    QStringList help;
    QStringList secondStarts;
    QList<ScriptedFiles::Failing> failing;
    std::optional<DiskLimit> disk;
};

/// False if the file cannot be written.
bool store(const CarriedOver &carried, const QString &path);
/// Nothing if there is no such file, or none that store() wrote.
std::optional<CarriedOver> takeStored(const QString &path);
} // namespace drive
