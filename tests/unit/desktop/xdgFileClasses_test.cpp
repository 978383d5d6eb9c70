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

TEST_F(FileClassesOfTheDesktop, AreLeftToAnInstalledPackage)
{
    put("share/applications/tagwrighter.desktop", "[Desktop Entry]\n");
    registerAll();
    EXPECT_EQ(names(), QStringList(q("share")));
    EXPECT_EQ(started, QStringList());
}

TEST_F(FileClassesOfTheDesktop, TakeBackTheDefaultAndLeaveHtmlToOthers)
{
    put("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=firefox-esr.desktop;other.desktop;\n");
    put("config/mimeapps.list",
        "# mine\n[Added Associations]\ntext/html=epiphany.desktop;\nimage/png=gimp.desktop\n\n"
        "[Default Applications]\ntext/css=kate.desktop;tagwrighter.desktop;\nimage/png=gimp.desktop\n");
    registerAll();
    EXPECT_EQ(get("config/mimeapps.list"),
              "# mine\n[Added Associations]\n"
              "text/html=epiphany.desktop;firefox-esr.desktop;other.desktop;tagwrighter.desktop;\n"
              "image/png=gimp.desktop\n\n"
              "[Default Applications]\ntext/css=tagwrighter.desktop;kate.desktop;\nimage/png=gimp.desktop\n"
              "application/x-tagwrighter-template=tagwrighter.desktop;\n"
              "application/x-tagwrighter-project=tagwrighter.desktop;\n"
              "application/x-tagwrighter-combined-template=tagwrighter.desktop;\n");
}

TEST_F(FileClassesOfTheDesktop, LeaveAListAloneThatTheyCannotRead)
{
    put("config/mimeapps.list", "[Default Applications]\ntext/css=\xFF.desktop\n");
    registerAll();
    EXPECT_EQ(get("config/mimeapps.list"), "[Default Applications]\ntext/css=\xFF.desktop\n");
}

TEST_F(FileClassesOfTheDesktop, PassOverRefusedWrites)
{
    put("data", "a file where the folder is to be");
    registerAll();
    EXPECT_EQ(get("data"), "a file where the folder is to be");
    EXPECT_EQ(started, QStringList());
    EXPECT_TRUE(get("config/mimeapps.list").contains("text/css=tagwrighter.desktop;"));
}

TEST_F(FileClassesOfTheDesktop, AreUnderstoodByTheDesktop)
{
    const QString updater = QStandardPaths::findExecutable(q("update-mime-database"));
    ASSERT_FALSE(updater.isEmpty()) << "shared-mime-info is missing";
    registerAll();
    ASSERT_EQ(QProcess::execute(updater, {path("data/mime")}), 0);
    const QByteArray globs = get("data/mime/globs2");
    EXPECT_TRUE(globs.contains("60:application/x-tagwrighter-template:*.tpl\n")) << globs.constData();
    EXPECT_TRUE(globs.contains("60:application/x-tagwrighter-project:*.tsp\n"));
    EXPECT_TRUE(globs.contains("60:application/x-tagwrighter-code-library:*.tcb\n"));
    EXPECT_TRUE(globs.contains("60:application/x-tagwrighter-combined-template:*.ctp\n"));
    EXPECT_FALSE(globs.contains("css"));
    EXPECT_FALSE(globs.contains("htm"));
    EXPECT_TRUE(get("data/mime/application/x-tagwrighter-project.xml").contains("Tagwrighter Project"));
}

TEST(FileClassTable, HoldsTheProgramsKindsOfFiles)
{
    struct Row {
        const char *extension, *className, *description;
        int icon;
        FileClassUse use;
    };
    const Row rows[] = {
        {"tpl", "Tagwrighter.Template", "Tagwrighter Template", 2, FileClassUse::Owned},
        {"tsp", "Tagwrighter.Project", "Tagwrighter Project", 4, FileClassUse::Owned},
        {"tcb", "Tagwrighter.CodeLibrary", "Tagwrighter Code Library", 3, FileClassUse::Data},
        {"ctp", "Tagwrighter.CombinedTemplate", "Tagwrighter Combined Template", 5, FileClassUse::Owned},
        {"css", "Tagwrighter.StyleSheet", "Tagwrighter Style Sheet", 6, FileClassUse::TakenOver},
        {"htm", "", "", 0, FileClassUse::Offered},
    };
    ASSERT_EQ(fileClassTable.size(), std::size(rows));
    for (size_t i = 0; i < fileClassTable.size(); ++i) {
        EXPECT_STREQ(fileClassTable[i].extension, rows[i].extension);
        EXPECT_STREQ(fileClassTable[i].className, rows[i].className);
        EXPECT_STREQ(fileClassTable[i].description, rows[i].description);
        EXPECT_EQ(fileClassTable[i].icon, rows[i].icon);
        EXPECT_EQ(fileClassTable[i].use, rows[i].use);
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
