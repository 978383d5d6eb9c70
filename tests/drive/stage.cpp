#include "drive/stage.h"

#include "common/mainWindow.h"
#include "drive/commands.h"
#include "drive/events.h"
#include "drive/told.h"
#include "forms/form.h"
#include "frame/application.h"

#include <algorithm>

namespace drive
{
Stage::Stage(Referee &toldTo, const World &ownWorld) : referee(toldTo), world(ownWorld), desktop(toldTo, ownWorld)
{
    desktop.modalLoop.shown = [this](Form &form) { playWhen(form); };
}

Stage::~Stage() = default;

void Stage::play(const std::vector<Line> &lines)
{
    for (const Line &line : lines) {
        playLine(line);
        settle();
    }
}

void Stage::playLine(const Line &line)
{
    referee.enterLine(line.number);
    Line call = line;
    for (QString &word : call.words)
        word = world.expanded(word);
    insideEvent([&] { commandNamed(call.command)->run(*this, call); });
}

void Stage::launch(const QString &commandLine)
{
    m_program.reset();
    m_program = std::make_unique<Application>(desktop.services());
    m_program->Main(commandLine);
}

bool Stage::isRunning() const
{
    return m_program && !m_program->hasEnded();
}

Application &Stage::program()
{
    if (!isRunning())
        referee.fail(QStringLiteral("the program running"),
                     m_program ? QStringLiteral("one that has ended") : QStringLiteral("one that was not started"));
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

void Stage::playWhen(Form &form)
{
    if (!form.Visible())
        return;
    const int outer = referee.line();
    const Line when = takeWhen(form);
    insideEvent([&] {
        settle();
        play(when.block);
    });
    referee.enterLine(outer);
    if (form.Visible())
        referee.failAt(when.number, QStringLiteral("%1 left at the end of its `when`").arg(form.Name()),
                       QStringLiteral("it still on show"));
}

Line Stage::takeWhen(Form &form)
{
    const auto found = std::find_if(m_whens.begin(), m_whens.end(),
                                    [&](const Line &when) { return when.words.front() == form.Name(); });
    if (found == m_whens.end()) {
        QStringList waiting;
        for (const Line &when : m_whens)
            waiting.append(when.words.front());
        referee.fail(QStringLiteral("a `when` waiting for %1, which is shown as a modal box").arg(form.Name()),
                     QStringLiteral("a `when` for %1")
                         .arg(waiting.isEmpty() ? QStringLiteral("no form") : waiting.join(QStringLiteral(", "))));
    }
    Line when = *found;
    m_whens.erase(found);
    return when;
}

void Stage::checkNothingIsLeft()
{
    if (!desktop.boxes.shown.isEmpty()) {
        const ShownBox &box = desktop.boxes.shown.oldest();
        referee.failAt(box.line, QStringLiteral("every box to be looked at"), boxText(box.box));
    }
    if (!m_whens.empty())
        referee.failAt(m_whens.front().number,
                       QStringLiteral("%1 to be shown as a modal box").arg(m_whens.front().words.front()),
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
