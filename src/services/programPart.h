#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

/// The folders in which the parts of the running program can stand: beside an installation's binaries, or in a build
/// tree.
QStringList partFolders();

/// A part of the program that is a module of its own: its libraries cost a start nothing, and where it is not installed
/// all else works. It is loaded by its first use, and stays so to the end of the process.
class ProgramPart
{
public:
    /// `fileName` is the module's. It is taken from the first of these folders in which it can be loaded.
    ProgramPart(const QStringList &folders, const QString &fileName);

    /// What the module offers, by the interface that it and the program share; null if there is no such module, or one
    /// of another version, which reason() explains then. It is looked for again at each call that has none yet.
    template <typename Engine>
    Engine *engine()
    {
        return qobject_cast<Engine *>(rootObject(qobject_interface_iid<Engine *>()));
    }

    QString fileName() const { return m_fileName; }
    /// Whether one of the folders has a file of that name, be it a module or not.
    bool isInstalled() const { return !files().isEmpty(); }
    /// Why the last call of engine() found none: a sentence, or the system's own words.
    QString reason() const { return m_reason; }

private:
    QStringList files() const;
    QObject *rootObject(const char *interface);

    QStringList m_folders;
    QString m_fileName;
    QObject *m_rootObject = nullptr;
    QString m_reason;
};
