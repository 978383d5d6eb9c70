#pragma once

#include <QString>
#include <optional>

namespace drive
{
/// The files of one script: the program's folder, the user's site and the user's home, in a folder of their own.
class World
{
public:
    /// Makes the folders. Nothing if the machine has no room for them.
    static std::optional<World> make();
    /// One that another process has made.
    static World at(const QString &root);

    const QString &root() const { return m_root; }
    QString app() const;
    QString site() const;
    QString home() const;
    QString state() const; ///< the program's own folder for what it remembers of a session
    /// What a script knows when its program is killed, for the process that goes on with it.
    QString carriedOverFile() const;

    /// Makes this the process's environment: home and desktop folders, time zone, language. Before the application
    /// object is made, which reads it.
    void setEnvironment() const;
    /// Fills the program's folder from the data files as an installation does.
    void seedProgramFolder(const QString &installedData) const;
    /// Takes all of it away, whatever permissions the script has set.
    void remove() const;

    /// The text with %APP%, %SITE%, %HOME% and %STATE% replaced by their paths.
    QString expanded(QString text) const;
    /// Whether the path lies in the world, by its name or behind the links on its way.
    bool holds(const QString &path) const;

private:
    QString stateHome() const;

    QString m_root;
};

/// Deletes a file, or a folder with all in it, links themselves and read-only ones included. False if something stays.
bool removeAll(const QString &path);
} // namespace drive
