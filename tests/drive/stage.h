#pragma once

#include "common/mainWindow.h"
#include "drive/carriedOver.h"
#include "drive/desktop.h"
#include "drive/outside.h"
#include "drive/referee.h"
#include "drive/script.h"
#include "drive/secondStarts.h"
#include "drive/servers.h"
#include "drive/standingRules.h"
#include "drive/world.h"

#include <memory>
#include <vector>

class Application;
class ProgramStart;
class Document;
class Form;

namespace drive
{
/// The stage on which a script is played: the program, the desktop around it and the world of files.
class Stage
{
public:
    Stage(Referee &toldTo, const World &ownWorld);
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;
    ~Stage();

    Referee &referee;
    const World &world;
    Servers servers;
    ScriptedTransfers transfers;
    ScriptedWizards wizards;
    Desktop desktop;
    SecondStarts secondStarts;
    StandingRules rules;

    /// Plays a whole script.
    void playScript(const std::vector<Line> &lines);
    /// Plays what is left of a script whose program was killed.
    void goOn(const std::vector<Line> &lines, const CarriedOver &carried);
    /// Plays the commands between a line and its `end`, as part of the command that the program is at.
    void playBlock(const Line &line);
    /// Fails for what the script has left open: boxes not looked at, `when`s and `during`s that never ran.
    void checkNothingIsLeft();

    /// Starts the program anew, with the text of its command line.
    void launch(const QString &commandLine);
    bool hasStarted() const { return m_started; }
    bool isRunning() const;
    /// The program; the script fails unless it runs.
    Application &program();
    /// The active document; the script fails if there is none.
    Document &activeDocument();

    /// Runs the command of a line, marks replaced.
    void run(const Line &line);
    void queueWhen(const Line &line);
    /// Plays the `when`s of modeless forms that have come up.
    void playShownForms();
    /// A command whose effect outlives the program: it is played again where the script goes on after a `kill`.
    void keepThroughKill(const Line &line) { m_lasting.append(line.number); }
    /// Ends the process at once, with the program in it; another one plays the rest of the script.
    [[noreturn]] void killProgram();

private:
    struct When {
        Line line;
        bool wasShown = false; ///< the form is on show from before, so it does not come up now
    };
    struct Frame {
        int opening = 0; ///< the number of the line whose block this is; 0 for the script
        int next = 0;    ///< the index of the command behind the one that is played
    };

    void play(const std::vector<Line> &lines, int opening, int from = 0);
    void playLine(const Line &line);
    void playWhen(Form &form);
    Line takeWhen(Form &form);
    Form *comeUp(When &when);
    CarriedOver carriedOver() const;
    void take(const CarriedOver &carried);

    std::unique_ptr<Application> m_program;
    std::unique_ptr<ProgramStart> m_start; ///< gone before the program that it tells
    bool m_started = false;
    std::vector<When> m_whens;
    std::vector<Frame> m_frames; ///< the innermost last
    QList<int> m_lasting;
};
} // namespace drive
