#include "drive/stage.h"

#include "common/mainWindow.h"
#include "desktop/programStart.h"
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/told.h"
#include "forms/form.h"
#include "frame/application.h"

#include <QScopeGuard>
#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace drive
{
namespace
{
/// The command of a line, wherever it stands; nothing if there is none.
const Line *lineNumbered(const std::vector<Line> &lines, int number)
{
    for (const Line &line : lines) {
        if (line.number == number)
            return &line;
        if (const Line *inner = lineNumbered(line.block, number))
            return inner;
    }
    return nullptr;
}
} // namespace

Stage::Stage(Referee &toldTo, const World &ownWorld)
    : referee(toldTo),
      world(ownWorld),
      transfers(ownWorld.home() + QStringLiteral("/.local/share/tagwrighter/known_hosts")),
      wizards(ownWorld.app()),
      desktop(toldTo, ownWorld, transfers, wizards),
      secondStarts(ownWorld)
{
    desktop.modalLoop.shown = [this](Form &form) { playWhen(form); };
    desktop.boxes.playBlock = [this](const Line &line) { playBlock(line); };
    desktop.yielder.yielded = [this] { playShownForms(); };
}

Stage::~Stage() = default;

void Stage::playScript(const std::vector<Line> &lines)
{
    // An author who has chosen nothing is asked which habits to edit by; a script that has not is no such author.
    const QString habits = qEnvironmentVariable("TAGWRIGHTER_HABITS", QStringLiteral("classic"));
    desktop.services().settings.SaveSetting(QStringLiteral("QWRK77XE"), QStringLiteral("Settings"),
                                            QStringLiteral("EditingHabits"), habits);
    play(lines, 0);
}

void Stage::goOn(const std::vector<Line> &lines, const CarriedOver &carried)
{
    m_started = true;
    take(carried);
    for (const QList<int> &kept : {carried.lasting, carried.waiting})
        for (const int number : kept)
            if (const Line *line = lineNumbered(lines, number))
                playLine(*line);
    for (auto place = carried.places.rbegin(); place != carried.places.rend(); ++place)
        m_frames.push_back({place->opening, place->next});
    while (!m_frames.empty()) {
        const Frame frame = m_frames.back();
        m_frames.pop_back();
        const Line *block = lineNumbered(lines, frame.opening);
        play(block ? block->block : lines, frame.opening, frame.next);
    }
}

void Stage::playBlock(const Line &line)
{
    const int outer = referee.line();
    insideEvent([&] {
        settle();
        play(line.block, line.number);
    });
    referee.enterLine(outer);
}

void Stage::play(const std::vector<Line> &lines, int opening, int from)
{
    m_frames.push_back({opening, from});
    const auto left = qScopeGuard([this] { m_frames.pop_back(); });
    for (auto index = static_cast<std::size_t>(from); index < lines.size(); ++index) {
        m_frames.back().next = static_cast<int>(index) + 1;
        rules.enter(*this, lines[index]);
        playLine(lines[index]);
        settle();
        playShownForms();
        rules.check(*this);
    }
}

void Stage::playLine(const Line &line)
{
    insideEvent([&] { run(line); });
}

void Stage::run(const Line &line)
{
    referee.enterLine(line.number);
    Line call = line;
    for (QString &word : call.words)
        word = servers.expanded(desktop.expanded(world.expanded(word)));
    commandNamed(call.command)->run(*this, call);
}

void Stage::launch(const QString &commandLine)
{
    m_start.reset();
    m_program.reset();
    m_program = std::make_unique<Application>(desktop.services());
    m_started = true;
    m_start = std::make_unique<ProgramStart>();
    if (!m_start->begin(*m_program, desktop.services(), commandLine))
        m_program.reset(); // another one has taken the line
}

bool Stage::isRunning() const
{
    return m_program && !m_program->hasEnded();
}

Application &Stage::program()
{
    if (!isRunning())
        referee.fail(QStringLiteral("the program running"),
                     m_started ? QStringLiteral("one that has ended") : QStringLiteral("one that was not started"));
    return *m_program;
}

Document &Stage::activeDocument()
{
    MainWindow *window = program().context().mainWindow;
    Document *document = window ? window->activeDocument() : nullptr;
    if (!document)
        referee.fail(QStringLiteral("an active document"), QStringLiteral("none"));
    return *document;
}

void Stage::queueWhen(const Line &line)
{
    Form *form = isRunning() ? program().form(line.words.front()) : nullptr;
    m_whens.push_back({line, form && form->Visible()});
}

/// The form that a `when` waits for, if it has come up since.
Form *Stage::comeUp(When &when)
{
    Form *form = isRunning() ? program().form(when.line.words.front()) : nullptr;
    const bool shown = form && form->Visible();
    when.wasShown = when.wasShown && shown;
    return shown && !when.wasShown ? form : nullptr;
}

void Stage::playShownForms()
{
    const auto next = [this] {
        return std::find_if(m_whens.begin(), m_whens.end(), [this](When &when) { return comeUp(when); });
    };
    for (auto when = next(); when != m_whens.end(); when = next()) {
        const Line line = when->line;
        m_whens.erase(when);
        playBlock(line);
    }
}

void Stage::playWhen(Form &form)
{
    if (!form.Visible())
        return;
    const Line when = takeWhen(form);
    playBlock(when);
    if (form.Visible())
        referee.failAt(when.number, QStringLiteral("%1 left at the end of its `when`").arg(form.Name()),
                       QStringLiteral("it still on show"));
}

Line Stage::takeWhen(Form &form)
{
    const auto found = std::find_if(m_whens.begin(), m_whens.end(),
                                    [&](const When &when) { return when.line.words.front() == form.Name(); });
    if (found == m_whens.end()) {
        QStringList waiting;
        for (const When &when : m_whens)
            waiting.append(when.line.words.front());
        referee.fail(QStringLiteral("a `when` waiting for %1, which is shown as a modal box").arg(form.Name()),
                     QStringLiteral("a `when` for %1")
                         .arg(waiting.isEmpty() ? QStringLiteral("no form") : waiting.join(QStringLiteral(", "))));
    }
    Line when = found->line;
    m_whens.erase(found);
    return when;
}

CarriedOver Stage::carriedOver() const
{
    CarriedOver carried = desktop.carriedOver();
    for (auto frame = m_frames.rbegin(); frame != m_frames.rend(); ++frame)
        carried.places.append({frame->opening, frame->next});
    for (const When &when : m_whens)
        carried.waiting.append(when.line.number);
    carried.lasting = m_lasting;
    carried.secondStarts = secondStarts.told.all();
    return carried;
}

void Stage::take(const CarriedOver &carried)
{
    desktop.take(carried);
    secondStarts.told.set(carried.secondStarts);
}

void Stage::killProgram()
{
    if (!store(carriedOver(), world.carriedOverFile()))
        referee.fail(QStringLiteral("room to keep what the script still knows"), QStringLiteral("none"));
    referee.tellKilled();
    ::raise(SIGKILL);
    ::_exit(StatusFailed); // not reached
}

void Stage::checkNothingIsLeft()
{
    if (!desktop.boxes.shown.isEmpty()) {
        const ShownBox &box = desktop.boxes.shown.oldest();
        referee.failAt(box.line, QStringLiteral("every box to be looked at"), boxText(box.box));
    }
    if (const auto line = desktop.boxes.unshown())
        referee.failAt(line->number, QStringLiteral("a box with the title %1").arg(quoted(line->words.front())),
                       QStringLiteral("a `when-box` that never ran"));
    if (!m_whens.empty())
        referee.failAt(m_whens.front().line.number,
                       QStringLiteral("%1 to be shown").arg(m_whens.front().line.words.front()),
                       QStringLiteral("a `when` that never ran"));
    const auto missed = desktop.yielder.missed();
    if (!missed.isEmpty()) {
        const auto &act = missed.front();
        referee.failAt(act.line, QStringLiteral("a long pass that yields %1 times").arg(act.number),
                       act.yields ? QStringLiteral("one that yielded %1 times").arg(*act.yields)
                                  : QStringLiteral("no pass"));
    }
}
} // namespace drive
