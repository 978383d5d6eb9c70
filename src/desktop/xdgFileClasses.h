#pragma once

#include "services/fileClasses.h"

#include <QStringList>
#include <functional>

/// The folders in which a Linux desktop keeps what it knows of programs and types.
struct XdgPlaces {
    QString dataHome;     ///< $XDG_DATA_HOME
    QString configHome;   ///< $XDG_CONFIG_HOME
    QStringList dataDirs; ///< $XDG_DATA_DIRS, the more important first
    QString program;      ///< full path of the running program
};

/// The places of the running program's user.
XdgPlaces currentXdgPlaces();

/// Registers with the desktop by the user's own files. Where a package has put the program's desktop entry into one of
/// the shared folders, that has registered the program and its types for everybody, and only the user's associations
/// are written.
class XdgFileClasses final : public FileClasses
{
public:
    /// Starts a program in the background, if it is there.
    using Run = std::function<void(const QString &program, const QStringList &arguments)>;

    XdgFileClasses(XdgPlaces xdgPlaces, Run runInBackground);

    void registerAll() override;

private:
    void registerProgram(const QString &entry);
    QStringList otherHtmlPrograms() const;

    XdgPlaces places;
    Run run;
};

/// The way of starting a program that XdgFileClasses takes outside of tests: some seconds later, from the event loop.
void startInBackground(const QString &program, const QStringList &arguments);
