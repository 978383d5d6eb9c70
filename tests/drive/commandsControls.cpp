// What the user does with one control or form.
#include "common/document.h"
#include "drive/commands.h"
#include "drive/controlAdapter.h"
#include "drive/input.h"
#include "drive/stage.h"
#include "drive/targets.h"
#include "drive/told.h"
#include "forms/form.h"

#include <QPointer>
#include <QWidget>

namespace drive
{
namespace
{
/// Does something with a control that the user can reach, and fails where it cannot be done.
template <class Act>
void act(Stage &stage, const Line &line, const Act &done)
{
    const Target target = findTarget(stage, line.words[0]);
    const ActionResult result = done(readyControl(stage, target));
    if (!result.done)
        stage.referee.fail(QStringLiteral("%1 %2 to be done").arg(line.command, line.words.join(u' ')), result.reason);
}

bool truthOf(Stage &stage, const QString &word)
{
    if (word != QStringLiteral("0") && word != QStringLiteral("1"))
        stage.referee.wrong(QStringLiteral("%1 is neither 0 nor 1").arg(word));
    return word == QStringLiteral("1");
}

void set(Stage &stage, const Line &line)
{
    act(stage, line, [&](QObject &control) { return setValue(control, line.words[1]); });
}

std::optional<bool> selection(Stage &stage, const Line &line)
{
    return line.words.size() > 2 ? std::optional(truthOf(stage, line.words[2])) : std::nullopt;
}

void pickRow(Stage &stage, const Line &line)
{
    const auto selected = selection(stage, line);
    act(stage, line, [&](QObject &control) { return pick(control, line.words[1], selected); });
}

void dblpickRow(Stage &stage, const Line &line)
{
    act(stage, line, [&](QObject &control) { return dblpick(control, line.words[1]); });
}

void check(Stage &stage, const Line &line)
{
    const bool ticked = truthOf(stage, line.words[2]);
    act(stage, line, [&](QObject &control) { return tick(control, line.words[1], ticked); });
}

void actOnNode(Stage &stage, const Line &line)
{
    static const QHash<QString, NodeAction> actions = {
        {QStringLiteral("click"), NodeAction::Click},
        {QStringLiteral("dblclick"), NodeAction::DoubleClick},
        {QStringLiteral("enter"), NodeAction::Enter},
    };
    const auto action = actions.find(line.words[2]);
    if (action == actions.end())
        stage.referee.wrong(QStringLiteral("%1 is none of click, dblclick and enter").arg(line.words[2]));
    act(stage, line, [&](QObject &control) { return node(control, line.words[1], *action); });
}

void scrollBar(Stage &stage, const Line &line)
{
    act(stage, line, [&](QObject &control) { return scroll(control, line.words[1]); });
}

void focusForm(Stage &stage, const Target &target)
{
    requireInput(stage, *target.form, target.name);
    if (Document *document = documentOf(*target.form)) {
        activateWindowOf(*target.form);
        document->activate();
    } else {
        activate(stage, *target.form);
    }
}

void moveFocus(Stage &stage, const Line &line)
{
    const Target target = findTarget(stage, line.words[0]);
    if (!target.control) {
        focusForm(stage, target);
        return;
    }
    act(stage, line, [](QObject &control) { return focus(control); });
}

void closeForm(Stage &stage, const Line &line)
{
    Form &form = findForm(stage, line.words[0]);
    requireInput(stage, form, QStringLiteral("the close box of %1").arg(form.Name()));
    form.window()->close();
}

constexpr Command commands[] = {
    {"set", 2, 2, set},        {"pick", 2, 3, pickRow},     {"dblpick", 2, 2, dblpickRow}, {"check", 3, 3, check},
    {"node", 3, 3, actOnNode}, {"scroll", 2, 2, scrollBar}, {"focus", 1, 1, moveFocus},    {"close", 1, 1, closeForm},
};
} // namespace

std::span<const Command> controlCommands()
{
    return commands;
}
} // namespace drive
