// Ends that the desktop asks for: whatever was typed is on the disk before the process has gone.
#include "faultProcess.h"
#include "storage/localFileSystem.h"
#include "storage/recoveryFolder.h"
#include "unit/support/sandbox.h"

#include <QDirIterator>
#include <QFileInfo>
#include <csignal>
#include <sys/wait.h>

namespace
{
class AskedEnds : public Sandbox
{
protected:
    void SetUp() override { put("site/a.htm", "old\r\n"); }

    QString page() const { return path("site/a.htm"); }

    /// All files below the test's folder but kept text, each with its bytes.
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> all;
        QDirIterator each(path(""), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString file = each.next();
            if (!file.contains(QStringLiteral("/recovery/")))
                all.insert(file, get(QDir(path("")).relativeFilePath(file).toUtf8().constData()));
        }
        return all;
    }

    /// The texts that the next start would bring back.
    QStringList keptTexts()
    {
        LocalFileSystem disk;
        RecoveryFolder kept(disk, path("home/state/tagwrighter"));
        QStringList texts;
        for (const RecoveryFolder::Found &found : kept.takeOver().pages)
            texts << found.page.text;
        return texts;
    }

    /// Starts the program, has a user type, and sends the signal at once; the exit status.
    int endBy(int signal, const QStringList &mode = {})
    {
        const QByteArray home = QFile::encodeName(path("home"));
        const pid_t program = startToFirstLine({QStringLiteral(EDITED),
                                                QStringList(page()) + mode,
                                                {{"HOME", home},
                                                 {"XDG_CONFIG_HOME", home + "/config"},
                                                 {"XDG_DATA_HOME", home + "/data"},
                                                 {"XDG_STATE_HOME", home + "/state"}}});
        EXPECT_GT(program, 0);
        const QMap<QString, QByteArray> before = files();
        ::kill(program, signal);
        int status = -1;
        ::waitpid(program, &status, 0);
        EXPECT_EQ(files(), before) << "nothing but the text is written";
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
};

TEST_F(AskedEnds, BySignalKeepTheText)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(signal);
        EXPECT_EQ(endBy(signal), 0);
        EXPECT_EQ(keptTexts().value(0), QStringLiteral("typed old\r\n"));
        EXPECT_EQ(get("site/a.htm"), "old\r\n");
        QDir(path("home")).removeRecursively();
    }
}

TEST_F(AskedEnds, BySignalKeepTheTextWhileTheListOfUnsavedFilesIsOnShow)
{
    EXPECT_EQ(endBy(SIGTERM, {QStringLiteral("list")}), 0);
    const QStringList texts = keptTexts();
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[0], QStringLiteral("typed old\r\n"));
    EXPECT_TRUE(texts[1].contains(QStringLiteral("more ")));
}

TEST_F(AskedEnds, BySignalKeepTheTextWhileADialogIsOnShow)
{
    EXPECT_EQ(endBy(SIGTERM, {QStringLiteral("box")}), 0);
    EXPECT_EQ(keptTexts(), QStringList(QStringLiteral("typed old\r\n")));
}
} // namespace
