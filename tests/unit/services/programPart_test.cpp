#include "services/programPart.h"

#include "services/paperEngine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
const QString papers = QStringLiteral("tagwrighter-papers.so");
const QString transfers = QStringLiteral("tagwrighter-transfers.so");

/// Where a module of the program that is being tested stands.
QString moduleFile(const QString &name)
{
    for (const QString &folder : partFolders())
        if (QFile::exists(folder + u'/' + name))
            return folder + u'/' + name;
    return {};
}

class ProgramPartTest : public testing::Test
{
protected:
    QString path(const char *folder) const { return home.filePath(QString::fromLatin1(folder)); }

    /// A file of the name that the module has, in a new folder.
    void put(const char *folder, const QString &module)
    {
        ASSERT_TRUE(QDir().mkpath(path(folder)));
        ASSERT_TRUE(QFile::copy(module, path(folder) + u'/' + papers));
    }

    void putText(const char *folder)
    {
        ASSERT_TRUE(QDir().mkpath(path(folder)));
        QFile file(path(folder) + u'/' + papers);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write("no module"), 9);
    }

    QTemporaryDir home;
};

TEST_F(ProgramPartTest, IsLoadedOnce)
{
    ProgramPart part(partFolders(), papers);
    auto *engine = part.engine<PaperEngine>();
    ASSERT_NE(engine, nullptr) << qPrintable(part.reason());
    EXPECT_EQ(part.engine<PaperEngine>(), engine);
    EXPECT_TRUE(part.isInstalled());
}

TEST_F(ProgramPartTest, TellsThatItIsNotInstalled)
{
    ASSERT_TRUE(QDir().mkpath(path("there/tagwrighter-papers.so"))); // a folder is no module
    ProgramPart part({path("none"), path("there")}, papers);
    EXPECT_EQ(part.engine<PaperEngine>(), nullptr);
    EXPECT_FALSE(part.isInstalled());
    EXPECT_EQ(part.reason(), QStringLiteral("The program's part tagwrighter-papers.so is not installed."));
}

TEST_F(ProgramPartTest, TellsTheSystemsWordsOfAFileThatIsNoModule)
{
    putText("broken");
    ProgramPart part({path("broken")}, papers);
    EXPECT_EQ(part.engine<PaperEngine>(), nullptr);
    EXPECT_TRUE(part.isInstalled());
    EXPECT_TRUE(part.reason().contains(path("broken"))) << qPrintable(part.reason());
}

TEST_F(ProgramPartTest, TellsAModuleOfAnotherVersion)
{
    put("other", moduleFile(transfers));
    ProgramPart part({path("other")}, papers);
    EXPECT_EQ(part.engine<PaperEngine>(), nullptr);
    EXPECT_EQ(part.reason(), QStringLiteral("The program's part tagwrighter-papers.so is of another version."));
}

TEST_F(ProgramPartTest, IsTakenFromTheFirstFolderThatHasIt)
{
    putText("broken");
    put("other", moduleFile(transfers));
    put("right", moduleFile(papers));
    ProgramPart part({path("broken"), path("other"), path("right")}, papers);
    EXPECT_NE(part.engine<PaperEngine>(), nullptr) << qPrintable(part.reason());
}

TEST_F(ProgramPartTest, IsFoundOnceItHasBeenInstalled)
{
    ProgramPart part({path("later")}, papers);
    EXPECT_EQ(part.engine<PaperEngine>(), nullptr);
    put("later", moduleFile(papers));
    EXPECT_NE(part.engine<PaperEngine>(), nullptr) << qPrintable(part.reason());
}
} // namespace
