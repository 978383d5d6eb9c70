#include "desktop/xdgFileClasses.h"

#include "desktop/fileClassTable.h"
#include "desktop/xdgFiles.h"
#include "unit/support/sandbox.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class FileClassesOfTheDesktop : public Sandbox
{
protected:
    void registerAll(const char *program = "/opt/my tools/tagwrighter")
    {
        XdgFileClasses classes({path("data"), path("config"), {path("share")}, q(program)},
                               [&](const QString &updater, const QStringList &arguments) {
                                   started += updater + QLatin1Char(' ') + arguments.join(u' ');
                               });
        classes.registerAll();
    }

    QStringList started;
};

TEST_F(FileClassesOfTheDesktop, AreWrittenOnTheFirstStartAndTheUpdatersRun)
{
    registerAll();
    EXPECT_EQ(started, QStringList({q("update-mime-database ") + path("data/mime"),
                                    q("update-desktop-database ") + path("data/applications")}));
    const QByteArray entry = get("data/applications/tagwrighter.desktop");
    EXPECT_TRUE(entry.contains("\nExec=\"/opt/my tools/tagwrighter\" %f\n")) << entry.constData();
    EXPECT_TRUE(entry.contains("\nMimeType=application/x-tagwrighter-template;application/x-tagwrighter-project;"
                               "application/x-tagwrighter-combined-template;text/css;\n"))
        << entry.constData();
    EXPECT_EQ(get("config/mimeapps.list"), "[Default Applications]\n"
                                           "application/x-tagwrighter-template=tagwrighter.desktop;\n"
                                           "application/x-tagwrighter-project=tagwrighter.desktop;\n"
                                           "application/x-tagwrighter-combined-template=tagwrighter.desktop;\n"
                                           "text/css=tagwrighter.desktop;\n"
                                           "\n"
                                           "[Added Associations]\n"
                                           "text/html=tagwrighter.desktop;\n");
}

TEST_F(FileClassesOfTheDesktop, AreNotWrittenAgainWhereTheyStand)
{
    registerAll();
    started.clear();
    const char *const files[] = {"data/mime/packages/tagwrighter.xml", "data/applications/tagwrighter.desktop",
                                 "config/mimeapps.list"};
    QList<quint64> before;
    const auto inodes = [&] {
        QList<quint64> list;
        for (const char *file : files) {
            struct stat status = {};
            EXPECT_EQ(::stat(QFile::encodeName(path(file)).constData(), &status), 0) << file;
            list += status.st_ino;
        }
        return list;
    };
    before = inodes();
    registerAll();
    EXPECT_EQ(inodes(), before);
    EXPECT_EQ(started, QStringList());
}

TEST_F(FileClassesOfTheDesktop, FollowTheProgramToAnotherPlace)
{
    registerAll("/old/tagwrighter");
    started.clear();
    registerAll("/new/tagwrighter");
    EXPECT_TRUE(get("data/applications/tagwrighter.desktop").contains("Exec=\"/new/tagwrighter\" %f"));
    EXPECT_EQ(started, QStringList(q("update-desktop-database ") + path("data/applications")));
}

TEST_F(FileClassesOfTheDesktop, AreLeftToAnInstalledPackageButForTheUsersAssociations)
{
    put("share/applications/tagwrighter.desktop", "[Desktop Entry]\n");
    registerAll();
    EXPECT_EQ(names(), QStringList({q("config"), q("share")}));
    EXPECT_TRUE(get("config/mimeapps.list").contains("\ntext/css=tagwrighter.desktop;\n"));
    EXPECT_EQ(started, QStringList());
}

QByteArray packaged(const char *name)
{
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/packaging/") + q(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

// A package tells the desktop the same.
TEST_F(FileClassesOfTheDesktop, AreThoseOfThePackage)
{
    EXPECT_EQ(packaged("tagwrighter-mime.xml"), mimePackage().toUtf8());
    const QByteArray entry = packaged("tagwrighter.desktop");
    for (const FileClass &row : fileClassTable)
        EXPECT_EQ(entry.contains(QByteArray(row.mimeType) + ';'), row.use != FileClassUse::Data) << row.mimeType;
    for (const FileClass &row : fileClassTable) {
        const QByteArray icon = "icons/tagwrighter-" + QByteArray::number(row.icon) + ".svg";
        EXPECT_TRUE(row.icon == 0 || !packaged(icon.constData()).isEmpty()) << icon.constData();
    }
}

TEST(ExecWord, IsQuotedByTheRulesOfDesktopEntries)
{
    EXPECT_EQ(execWord(q("/usr/bin/tagwrighter")), q("\"/usr/bin/tagwrighter\""));
    EXPECT_EQ(execWord(q("/my tools/t")), q("\"/my tools/t\""));
    EXPECT_EQ(execWord(q("/a$b`c\"d")), q("\"/a\\\\$b\\\\`c\\\\\"d\""));
    EXPECT_EQ(execWord(q("/a\\b")), q("\"/a\\\\\\\\b\""));
    EXPECT_EQ(execWord(q("/100%f")), q("\"/100%%f\""));
}
} // namespace
