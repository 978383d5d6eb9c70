// The files and settings of the script's world: preparing them and looking at them.
#include "common/fileErrors.h"
#include "drive/commands.h"
#include "drive/diskRoom.h"
#include "drive/events.h"
#include "drive/patterns.h"
#include "drive/stage.h"
#include "drive/told.h"
#include "services/settingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace drive
{
namespace
{
constexpr int FileMilliseconds = 2000;

/// A file system tells time in steps: what is written twice within one would look as if it had been written once.
void makeNewer(const QString &path, const QDateTime &before)
{
    const QFileInfo info(path);
    if (before.isValid() && info.lastModified() <= before) {
        QFile file(path);
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(before.addMSecs(10), QFileDevice::FileModificationTime);
    }
}

void write(Stage &stage, const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    const QDateTime before = QFileInfo(path).lastModified();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        stage.referee.wrong(QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString()));
    file.close();
    makeNewer(path, before);
}

QByteArray bytesOf(Stage &stage, const QString &word)
{
    const auto bytes = bytesOfHexadecimal(word);
    if (!bytes)
        stage.referee.wrong(QStringLiteral("%1 is no bytes in pairs of hexadecimal digits").arg(word));
    return *bytes;
}

/// Only what lies in the script's world may be taken away or locked by it.
void requireInWorld(Stage &stage, const QString &path)
{
    if (!stage.world.holds(path))
        stage.referee.wrong(QStringLiteral("%1 does not lie in %APP%, %SITE% or %HOME%").arg(path));
}

void makeFile(Stage &stage, const Line &line)
{
    write(stage, line.words[0], line.words[1].toUtf8());
}

void makeFileHex(Stage &stage, const Line &line)
{
    write(stage, line.words[0], bytesOf(stage, line.words[1]));
}

void makeFolder(Stage &stage, const Line &line)
{
    if (!QDir().mkpath(line.words[0]))
        stage.referee.wrong(QStringLiteral("%1 cannot be made").arg(line.words[0]));
}

void remove(Stage &stage, const Line &line)
{
    requireInWorld(stage, line.words[0]);
    if (!removeAll(line.words[0]))
        stage.referee.wrong(QStringLiteral("%1 cannot be removed").arg(line.words[0]));
}

void readOnly(Stage &stage, const Line &line)
{
    const QString &path = line.words[0];
    requireInWorld(stage, path);
    QFileDevice::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    if (QFileInfo(path).isDir())
        permissions |= QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    if (!QFile::setPermissions(path, permissions))
        stage.referee.wrong(QStringLiteral("%1 cannot be made read-only").arg(path));
}

int codeOf(Stage &stage, const QString &word)
{
    bool ok = false;
    const int code = word.toInt(&ok);
    if (!ok)
        stage.referee.wrong(QStringLiteral("%1 is no error code").arg(word));
    return code;
}

void failWrites(Stage &stage, const Line &line)
{
    stage.desktop.files.failNext({line.words[0], codeOf(stage, line.words[1]), ScriptedFiles::Act::Write});
}

void failReads(Stage &stage, const Line &line)
{
    stage.desktop.files.failNext({line.words[0], codeOf(stage, line.words[1]), ScriptedFiles::Act::Read});
}

void failListing(Stage &stage, const Line &line)
{
    stage.desktop.files.failNext({line.words[0], PermissionDeniedError, ScriptedFiles::Act::List});
}

void limitDiskBelow(Stage &stage, const Line &line)
{
    requireInWorld(stage, line.words[0]);
    if (line.words.size() < 2) {
        liftDiskLimit();
        return;
    }
    bool ok = false;
    const qint64 bytes = line.words[1].toLongLong(&ok);
    if (!ok || bytes < 0)
        stage.referee.wrong(QStringLiteral("%1 is no number of bytes").arg(line.words[1]));
    const QString folder = QFileInfo(line.words[0]).canonicalFilePath();
    if (folder.isEmpty())
        stage.referee.wrong(QStringLiteral("there is no folder %1").arg(line.words[0]));
    limitDisk(QFile::encodeName(folder), bytes);
}

void renameFile(Stage &stage, const Line &line)
{
    for (const QString &path : {line.words[0], line.words[1]})
        requireInWorld(stage, path);
    if (::rename(QFile::encodeName(line.words[0]).constData(), QFile::encodeName(line.words[1]).constData()) != 0)
        stage.referee.wrong(QStringLiteral("%1 cannot be renamed to %2: %3")
                                .arg(line.words[0], line.words[1], QString::fromLocal8Bit(std::strerror(errno))));
}

void touch(Stage &stage, const Line &line)
{
    const QString &path = line.words[0];
    requireInWorld(stage, path);
    const QDateTime before = QFileInfo(path).lastModified();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime))
        stage.referee.wrong(QStringLiteral("%1 cannot be touched: %2").arg(path, file.errorString()));
    file.close();
    makeNewer(path, before);
}

/// What another program does, as a line for the shell.
void playOutside(Stage &stage, const Line &line)
{
    QProcess shell;
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line.words[0]});
    const bool ended = shell.waitForFinished() && shell.exitStatus() == QProcess::NormalExit;
    if (!ended || shell.exitCode() != 0)
        stage.referee.wrong(QStringLiteral("%1 failed: %2").arg(line.words[0], QString::fromUtf8(shell.readAll())));
}

/// The bytes of a file; nothing if there is no such file.
std::optional<QByteArray> contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

/// Waits until the file holds the bytes; what it holds by then.
std::optional<QByteArray> awaitContents(const QString &path, const QByteArray &expected)
{
    std::optional<QByteArray> got;
    const auto holds = [&] {
        got = contentsOf(path);
        return got == expected;
    };
    return comesTrue(holds, FileMilliseconds) ? expected : got;
}

void expectFile(Stage &stage, const Line &line)
{
    const auto got = awaitContents(line.words[0], line.words[1].toUtf8());
    if (got == line.words[1].toUtf8())
        return;
    const QString text = got ? QString::fromUtf8(*got) : QString();
    const QString bytes = got && text.toUtf8() != *got ? QStringLiteral("the bytes ") + hexadecimal(*got) : QString();
    const QString told = bytes.isEmpty() ? quotedAgainst(line.words[1], text) : bytes;
    stage.referee.fail(QStringLiteral("%1 to hold %2").arg(line.words[0], quoted(line.words[1])),
                       got ? told : QStringLiteral("no such file"));
}

void expectFileHex(Stage &stage, const Line &line)
{
    const QByteArray expected = bytesOf(stage, line.words[1]);
    const auto got = awaitContents(line.words[0], expected);
    if (got != expected)
        stage.referee.fail(QStringLiteral("%1 to hold the bytes %2").arg(line.words[0], hexadecimal(expected)),
                           got ? hexadecimal(*got) : QStringLiteral("no such file"));
}

void expectNoFile(Stage &stage, const Line &line)
{
    const QString &path = line.words[0];
    const auto isThere = [&] { return QFileInfo::exists(path) || QFileInfo(path).isSymLink(); };
    if (!comesTrue([&] { return !isThere(); }, FileMilliseconds))
        stage.referee.fail(QStringLiteral("no file %1").arg(path), QStringLiteral("one"));
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Unsorted);
}

void expectFolder(Stage &stage, const Line &line)
{
    const QString &folder = line.words[0];
    QStringList expected = line.words.mid(1);
    QStringList got;
    expected.sort();
    const auto holds = [&] {
        got = namesIn(folder);
        got.sort();
        return got == expected;
    };
    if (!comesTrue(holds, FileMilliseconds))
        stage.referee.fail(QStringLiteral("%1 to hold %2").arg(folder, quotedList(expected)), quotedList(got));
}

void saveSetting(Stage &stage, const Line &line)
{
    const auto &words = line.words;
    stage.desktop.services().settings.SaveSetting(words[0], words[1], words[2], words[3]);
}

void deleteSetting(Stage &stage, const Line &line)
{
    stage.desktop.services().settings.DeleteSetting(line.words[0], line.words[1], line.words[2]);
}

/// A setting's value; nothing if it is not stored. Two reads with different defaults tell that from any value.
std::optional<QString> settingOf(Stage &stage, const Line &line)
{
    SettingsStore &store = stage.desktop.services().settings;
    const auto read = [&](const QString &fallback) {
        return store.GetSetting(line.words[0], line.words[1], line.words[2], fallback);
    };
    const QString value = read(QStringLiteral("a"));
    return value == read(QStringLiteral("b")) ? std::optional(value) : std::nullopt;
}

QString told(const std::optional<QString> &setting)
{
    return setting ? quoted(*setting) : QStringLiteral("no such setting");
}

QString nameOfSetting(const Line &line)
{
    return QStringLiteral("the setting %1").arg(line.words.first(3).join(u' '));
}

void expectSetting(Stage &stage, const Line &line)
{
    const auto got = settingOf(stage, line);
    if (got != line.words[3])
        stage.referee.fail(QStringLiteral("%1 %2").arg(nameOfSetting(line), quoted(line.words[3])), told(got));
}

void expectSettingMatch(Stage &stage, const Line &line)
{
    const QRegularExpression pattern = wholePattern(stage, line.words[3]);
    const auto got = settingOf(stage, line);
    if (!got || !pattern.match(*got).hasMatch())
        stage.referee.fail(QStringLiteral("%1 to match %2").arg(nameOfSetting(line), line.words[3]), told(got));
}

void expectNoSetting(Stage &stage, const Line &line)
{
    if (const auto got = settingOf(stage, line))
        stage.referee.fail(QStringLiteral("no %1").arg(nameOfSetting(line).mid(4)), quoted(*got));
}

constexpr Command commands[] = {
    {"file", 2, 2, makeFile},
    {"file-hex", 2, 2, makeFileHex},
    {"make-folder", 1, 1, makeFolder},
    {"remove", 1, 1, remove},
    {"read-only", 1, 1, readOnly},
    {"fail-writes", 2, 2, failWrites},
    {"fail-reads", 2, 2, failReads},
    {"fail-listing", 1, 1, failListing},
    {"disk-full", 1, 2, limitDiskBelow},
    {"rename", 2, 2, renameFile},
    {"touch", 1, 1, touch},
    {"outside", 1, 1, playOutside},
    {"setting", 4, 4, saveSetting},
    {"no-setting", 3, 3, deleteSetting},
    {"expect-file", 2, 2, expectFile},
    {"expect-file-hex", 2, 2, expectFileHex},
    {"expect-no-file", 1, 1, expectNoFile},
    {"expect-folder", 1, -1, expectFolder},
    {"expect-setting", 4, 4, expectSetting},
    {"expect-setting-match", 4, 4, expectSettingMatch},
    {"expect-no-setting", 3, 3, expectNoSetting},
};
} // namespace

std::span<const Command> fileCommands()
{
    return commands;
}
} // namespace drive
