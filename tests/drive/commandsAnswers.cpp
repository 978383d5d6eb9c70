// What is answered to boxes and dialogs that are yet to come.
#include "drive/commands.h"
#include "drive/stage.h"
#include "drive/told.h"

namespace drive
{
namespace
{
int countOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const int number = word.toInt(&ok);
    if (!ok || number < 1)
        stage.referee.wrong(QStringLiteral("%1 is no number from 1 on").arg(word));
    return number;
}

void answer(Stage &stage, const Line &line)
{
    const auto button = parseAnswer(line.words[0]);
    if (!button)
        stage.referee.wrong(QStringLiteral("%1 is none of OK, Yes, No, Cancel and Retry").arg(line.words[0]));
    stage.desktop.boxes.queue(*button);
}

void choose(Stage &stage, const Line &line)
{
    DialogAnswer choice{DialogAnswer::Kind::Path, line.words[0]};
    if (line.words.size() > 1)
        choice.number = countOf(stage, line.words[1]);
    stage.desktop.dialogs.queue(choice);
}

void chooseFiles(Stage &stage, const Line &line)
{
    DialogAnswer choice{DialogAnswer::Kind::Path, line.words[0]};
    choice.others = line.words.sliced(1);
    stage.desktop.dialogs.queue(choice);
}

void chooseCancel(Stage &stage, const Line &)
{
    stage.desktop.dialogs.queue({DialogAnswer::Kind::Cancel, QString()});
}

void chooseColour(Stage &stage, const Line &line)
{
    const auto colour = parseHashColour(line.words[0]);
    if (!colour)
        stage.referee.wrong(QStringLiteral("%1 is no colour such as #FF8000").arg(line.words[0]));
    stage.desktop.dialogs.queue({DialogAnswer::Kind::Colour, QString(), {}, *colour});
}

void chooseFolder(Stage &stage, const Line &line)
{
    stage.desktop.dialogs.queue({DialogAnswer::Kind::Folder, line.words[0]});
}

void chooseFont(Stage &stage, const Line &line)
{
    DialogAnswer choice{DialogAnswer::Kind::Font, line.words[0]};
    if (line.words.size() > 1)
        choice.number = countOf(stage, line.words[1]);
    stage.desktop.dialogs.queue(choice);
}

void chooseCopies(Stage &stage, const Line &line)
{
    stage.desktop.dialogs.queue({DialogAnswer::Kind::Copies, QString(), countOf(stage, line.words[0])});
}

void refuseLaunch(Stage &stage, const Line &)
{
    stage.desktop.launcher.refuseNext();
}

void when(Stage &stage, const Line &line)
{
    stage.queueWhen(line);
}

void whenBox(Stage &stage, const Line &line)
{
    const auto button = parseAnswer(line.words[1]);
    if (!button)
        stage.referee.wrong(QStringLiteral("%1 is none of OK, Yes, No, Cancel and Retry").arg(line.words[1]));
    stage.desktop.boxes.queueBlock({line, *button});
}

constexpr Command commands[] = {
    {"answer", 1, 1, answer},
    {"choose", 1, 2, choose},
    {"choose-files", 2, -1, chooseFiles},
    {"choose-cancel", 0, 0, chooseCancel},
    {"choose-colour", 1, 1, chooseColour},
    {"choose-folder", 1, 1, chooseFolder},
    {"choose-font", 1, 2, chooseFont},
    {"choose-copies", 1, 1, chooseCopies},
    {"refuse-launch", 0, 0, refuseLaunch},
    {"when", 1, 1, when},
    {"when-box", 2, 2, whenBox},
};
} // namespace

std::span<const Command> answerCommands()
{
    return commands;
}
} // namespace drive
