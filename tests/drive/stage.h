#pragma once

#include "common/mainWindow.h"
#include "drive/desktop.h"
#include "drive/referee.h"
#include "drive/script.h"
#include "drive/world.h"

#include <memory>
#include <vector>

class Application;
class Document;
class Form;

namespace drive
{
/// The stage on which a script is played: the program, the desktop around it and the world of files.
class Stage
{
public:
    Stage(Referee &referee, const World &world);
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;
    ~Stage();

    Referee &referee;
    const World &world;
    Desktop desktop;

    /// Plays the commands one after the other; each has its effects behind it before the next begins.
    void play(const std::vector<Line> &lines);
    /// Fails for what the script has left open: boxes not looked at, `when`s and `during`s that never ran.
    void checkNothingIsLeft();

    /// Starts the program anew, with the text of its command line.
    void launch(const QString &commandLine);
    bool hasStarted() const { return m_program != nullptr; }
    bool isRunning() const;
    /// The program; the script fails unless it runs.
    Application &program();
    /// The active document; the script fails if there is none.
    Document &activeDocument();

    void queueWhen(const Line &line) { m_whens.push_back(line); }

private:
    void playLine(const Line &line);
    void playWhen(Form &form);
    Line takeWhen(Form &form);

    std::unique_ptr<Application> m_program;
    std::vector<Line> m_whens;
};
} // namespace drive
