// Looking at what the program has shown, started and asked for.
#include "drive/commands.h"
#include "drive/patterns.h"
#include "drive/stage.h"
#include "drive/told.h"

#include <QRegularExpression>

namespace drive
{
namespace
{
const QString None = QStringLiteral("none");

/// The oldest box not yet looked at, which is looked at now.
MessageBox nextBox(Stage &stage, const QString &expected)
{
    if (stage.desktop.boxes.shown.isEmpty())
        stage.referee.fail(expected, None);
    return stage.desktop.boxes.shown.take().box;
}

template <class Value>
bool fits(Stage &stage, const QString &word, const std::optional<Value> &expected, Value got)
{
    if (!expected)
        stage.referee.wrong(QStringLiteral("%1 is no icon, and no buttons, of a box").arg(word));
    return *expected == got;
}

void expectBox(Stage &stage, const Line &line)
{
    const QString expected = QStringLiteral("the box %1").arg(quotedList(line.words));
    const MessageBox box = nextBox(stage, expected);
    const auto &words = line.words;
    bool same = box.title == words[0];
    if (words.size() > 1)
        same = same && box.text == words[1];
    if (words.size() > 2)
        same = fits(stage, words[2], parseIcon(words[2]), box.icon) && same;
    if (words.size() > 3)
        same = fits(stage, words[3], parseButtons(words[3]), box.buttons) && same;
    if (!same)
        stage.referee.fail(expected, boxText(box));
}

void expectBoxMatch(Stage &stage, const Line &line)
{
    const QRegularExpression pattern = wholePattern(stage, line.words[1]);
    const QString expected =
        QStringLiteral("the box %1 with a text that matches %2").arg(quoted(line.words[0]), line.words[1]);
    const MessageBox box = nextBox(stage, expected);
    if (box.title != line.words[0] || !pattern.match(box.text).hasMatch())
        stage.referee.fail(expected, boxText(box));
}

void expectNoBox(Stage &stage, const Line &)
{
    if (!stage.desktop.boxes.shown.isEmpty())
        stage.referee.fail(QStringLiteral("no box"), boxText(stage.desktop.boxes.shown.oldest().box));
}

void lookAtBoxes(Stage &stage, const Line &line)
{
    const QString expected = QStringLiteral("boxes %1, all of them").arg(quoted(line.words[0]));
    do {
        const MessageBox box = nextBox(stage, expected);
        if (box.title != line.words[0])
            stage.referee.fail(expected, boxText(box));
    } while (!stage.desktop.boxes.shown.isEmpty());
}

/// Whether the dialog has what one "NAME=VALUE" says.
bool hasProperty(Stage &stage, const ShownDialog &dialog, const QString &word)
{
    const qsizetype equals = word.indexOf(u'=');
    const auto value = equals > 0 ? dialog.property(word.left(equals)) : std::nullopt;
    if (!value)
        stage.referee.wrong(QStringLiteral("%1 is no NAME=VALUE of %2").arg(word, dialog.told()));
    return *value == word.mid(equals + 1);
}

void expectDialog(Stage &stage, const Line &line)
{
    const auto kind = parseDialogKind(line.words[0]);
    if (!kind)
        stage.referee.wrong(QStringLiteral("%1 is no kind of dialog").arg(line.words[0]));
    const QString expected = QStringLiteral("the dialog %1").arg(line.words.join(u' '));
    if (stage.desktop.dialogs.shown.isEmpty())
        stage.referee.fail(expected, None);
    const ShownDialog dialog = stage.desktop.dialogs.shown.take();
    if (dialog.kind != *kind)
        stage.referee.fail(expected, dialog.told());
    for (const QString &word : line.words.mid(1))
        if (!hasProperty(stage, dialog, word))
            stage.referee.fail(expected, dialog.told());
}

void expectNoDialog(Stage &stage, const Line &)
{
    if (!stage.desktop.dialogs.shown.isEmpty())
        stage.referee.fail(QStringLiteral("no dialog"), stage.desktop.dialogs.shown.oldest().told());
}

void expectText(Stage &stage, Recorded<QString> &record, const QString &what, const QString &text)
{
    const QString expected = QStringLiteral("%1 %2").arg(what, quoted(text));
    if (record.isEmpty())
        stage.referee.fail(expected, None);
    const QString got = record.take();
    if (got != text)
        stage.referee.fail(expected, quotedAgainst(text, got));
}

void expectTextMatch(Stage &stage, Recorded<QString> &record, const QString &what, const QString &form)
{
    const QRegularExpression pattern = wholePattern(stage, form);
    const QString expected = QStringLiteral("%1 to match %2").arg(what, form);
    if (record.isEmpty())
        stage.referee.fail(expected, None);
    const QString got = record.take();
    if (!pattern.match(got).hasMatch())
        stage.referee.fail(expected, quoted(got));
}

void expectNothing(Stage &stage, const Recorded<QString> &record, const QString &what)
{
    if (!record.isEmpty())
        stage.referee.fail(QStringLiteral("no %1").arg(what), quoted(record.oldest()));
}

void expectLaunched(Stage &stage, const Line &line)
{
    expectText(stage, stage.desktop.launcher.launched, QStringLiteral("the start of"), line.words[0]);
}

void expectLaunchedMatch(Stage &stage, const Line &line)
{
    expectTextMatch(stage, stage.desktop.launcher.launched, QStringLiteral("what is started"), line.words[0]);
}

void expectNoLaunched(Stage &stage, const Line &)
{
    expectNothing(stage, stage.desktop.launcher.launched, QStringLiteral("start of a program or browser"));
}

void expectHelp(Stage &stage, const Line &line)
{
    expectText(stage, stage.desktop.help.shown, QStringLiteral("the help on"), line.words[0]);
}

void expectHelpMatch(Stage &stage, const Line &line)
{
    expectTextMatch(stage, stage.desktop.help.shown, QStringLiteral("the help's topic"), line.words[0]);
}

void expectSecond(Stage &stage, const Line &line)
{
    expectTextMatch(stage, stage.secondStarts.told, QStringLiteral("what the second start says"), line.words[0]);
}

void expectNoHelp(Stage &stage, const Line &)
{
    expectNothing(stage, stage.desktop.help.shown, QStringLiteral("help"));
}

constexpr Command commands[] = {
    {"expect-box", 1, 4, expectBox},
    {"expect-box-match", 2, 2, expectBoxMatch},
    {"expect-no-box", 0, 0, expectNoBox},
    {"look-at-boxes", 1, 1, lookAtBoxes},
    {"expect-dialog", 1, -1, expectDialog},
    {"expect-no-dialog", 0, 0, expectNoDialog},
    {"expect-launched", 1, 1, expectLaunched},
    {"expect-launched-match", 1, 1, expectLaunchedMatch},
    {"expect-no-launched", 0, 0, expectNoLaunched},
    {"expect-help", 1, 1, expectHelp},
    {"expect-help-match", 1, 1, expectHelpMatch},
    {"expect-second", 1, 1, expectSecond},
    {"expect-no-help", 0, 0, expectNoHelp},
};
} // namespace

std::span<const Command> recordCommands()
{
    return commands;
}
} // namespace drive
