#include "drive/scriptRun.h"
#include "pictures/pictureReader.h"

#include <QStringList>
#include <algorithm>
#include <cstdio>

namespace
{
constexpr int Misused = 2;

QStringList wordsOf(int count, char **words)
{
    QStringList all;
    for (int i = 1; i < count; ++i)
        all.append(QString::fromLocal8Bit(words[i]));
    return all;
}
} // namespace

int main(int count, char **words)
{
    if (const std::optional<int> status = readPictureIfAsked(count, words))
        return *status;
    const QStringList asked = wordsOf(count, words);
    if (asked.size() == 3 && asked.front() == QLatin1String(drive::SecondStartOption))
        return drive::playSecondStart(asked[1], asked[2]);
    drive::RunOptions options;
    options.installedData = QStringLiteral(TAGWRIGHTER_DATA);
    QStringList files = asked;
    options.keepWorld = files.removeAll(QStringLiteral("--keep")) > 0;
    const bool unknown =
        std::any_of(files.begin(), files.end(), [](const QString &word) { return word.startsWith(u'-'); });
    if (files.isEmpty() || unknown) {
        std::fputs("tagwrighter-drive SCRIPT... [--keep]: plays scripts of the scripted user\n", stderr);
        return Misused;
    }
    int worst = 0;
    for (const QString &file : files)
        worst = std::max(worst, drive::runScript(file, options));
    return worst;
}
