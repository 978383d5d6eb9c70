#pragma once

#include <QString>
#include <memory>

class Application;
class OneInstance;
struct Services;

/// A start of the program on this desktop: by itself, or by way of the one that runs already.
class ProgramStart
{
public:
    ProgramStart();
    ProgramStart(const ProgramStart &) = delete;
    ProgramStart &operator=(const ProgramStart &) = delete;
    ~ProgramStart();

    /// Runs the program with what stands behind its name, as one line. False if a program that runs already has taken
    /// the line over: this start is at its end. "--new-instance" in front of it is for those who want another one,
    /// "--started-anew" for a program that starts itself again.
    bool begin(Application &program, const Services &services, const QString &commandLine);

private:
    std::unique_ptr<OneInstance> m_instance;
};

/// What tells a start that the one before it has just ended by itself, for this one to go on where it stood.
inline const QString StartedAnewOption = QStringLiteral("--started-anew");
/// What keeps a start apart from the one that runs, as the first word of the line.
inline const QString NewInstanceOption = QStringLiteral("--new-instance");
