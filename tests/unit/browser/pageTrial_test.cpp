#include "browser/pageTrial.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace
{
/// A program that does as the script says.
QString programOf(const QTemporaryDir &folder, const QByteArray &script)
{
    QFile file(folder.filePath(QStringLiteral("program")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.close();
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    return file.fileName();
}
} // namespace

TEST(PageTrial, GoesByWhatBecameOfTheProcessThatTried)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(showsPages(programOf(folder, "exit 0\n")));
    QFile::remove(folder.filePath(QStringLiteral("program")));
    EXPECT_FALSE(showsPages(programOf(folder, "exit 1\n")));
    QFile::remove(folder.filePath(QStringLiteral("program")));
    EXPECT_FALSE(showsPages(programOf(folder, "kill -ABRT $$\n"))); // as the engine ends it
    EXPECT_FALSE(showsPages(folder.filePath(QStringLiteral("none"))));
}

TEST(PageTrial, TellsTheProcessThatItIsToTry)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(showsPages(programOf(folder, "[ \"$TAGWRIGHTER_TRIES_PAGES$QT_QPA_PLATFORM\" = 1offscreen ]\n")));
}

TEST(PageTrial, IsNothingThatThisProcessIsAskedFor)
{
    EXPECT_FALSE(triesPages());
}
