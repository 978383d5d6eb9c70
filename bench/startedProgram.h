#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <optional>

/// A display of our own with a window manager, where the machine has them.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();
    /// As in ":42"; empty if there is no such display.
    QString name() const { return m_name; }

private:
    QProcess m_server;
    QProcess m_manager;
    QString m_name;
};

struct StartFigures {
    double wall = 0;      ///< seconds from exec to rest, with the main window on show
    double processor = 0; ///< seconds of all its threads
    double memory = 0;    ///< proportional set size at rest, in bytes
};

/// Starts the program itself, waits until its main window is up and nothing moves, measures it and ends it. Nothing if
/// it does not come that far.
std::optional<StartFigures> startProgram(const QProcessEnvironment &environment);
