#include "drive/desktop.h"

#include "drive/world.h"

#include <QFile>
#include <gtest/gtest.h>

using drive::DialogAnswer;
using drive::DialogKind;
using drive::ScriptedFiles;
using drive::ScriptedYielder;

namespace
{
class FilesTest : public testing::Test
{
protected:
    void TearDown() override { world.remove(); }
    QString path() const { return world.site() + QStringLiteral("/a.txt"); }

    drive::World world = *drive::World::make();
    LocalFileSystem real;
    ScriptedFiles files{real};
};

std::optional<int> codeOf(const std::optional<FileError> &error)
{
    return error ? std::optional(error->code) : std::nullopt;
}
} // namespace

TEST_F(FilesTest, FailTheNextWriteOfThatFileOnly)
{
    files.failNext({path(), 61, ScriptedFiles::Act::Write});
    EXPECT_EQ(codeOf(files.writeWhole(world.site() + QStringLiteral("/b.txt"), "b")), std::nullopt);
    EXPECT_EQ(codeOf(files.writeWhole(world.site() + QStringLiteral("/./a.txt"), "a")), 61);
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_EQ(codeOf(files.writeWhole(path(), "a")), std::nullopt);
    EXPECT_EQ(files.readAll(path()).bytes, "a");
}

TEST_F(FilesTest, FailReadsApartFromWrites)
{
    ASSERT_FALSE(files.writeWhole(path(), "a"));
    files.failNext({path(), 62, ScriptedFiles::Act::Read});
    EXPECT_EQ(codeOf(files.writeWhole(path(), "b")), std::nullopt);
    EXPECT_EQ(codeOf(files.readAll(path()).error), 62);
    EXPECT_EQ(files.readAll(path()).bytes, "b");
}

TEST_F(FilesTest, FailCopiesAtTheirEnd)
{
    ASSERT_FALSE(files.writeWhole(path(), "a"));
    const QString copy = world.site() + QStringLiteral("/copy.txt");
    files.failNext({copy, 70, ScriptedFiles::Act::Write});
    EXPECT_EQ(codeOf(files.copyFile(path(), copy)), 70);
    files.failNext({path(), 75, ScriptedFiles::Act::Read});
    EXPECT_EQ(codeOf(files.copyFile(path(), copy)), 75);
    EXPECT_FALSE(QFile::exists(copy));
}

TEST_F(FilesTest, FailTheNextListing)
{
    files.failNext({world.site(), 70, ScriptedFiles::Act::List});
    EXPECT_EQ(codeOf(files.readAll(world.site()).error), codeOf(real.readAll(world.site()).error));
    EXPECT_EQ(codeOf(files.list(world.site()).error), 70);
    EXPECT_EQ(codeOf(files.list(world.site()).error), std::nullopt);
}

TEST(ScriptedYielder, ActsAtTheNumberedYieldOfTheNextPass)
{
    ScriptedYielder yielder;
    QList<int> acts;
    int yields = 0;
    yielder.yield(); // of a pass that began before
    for (const int number : {3, 1})
        yielder.queue({10, number, [&acts, &yields] { acts.append(yields); }});
    yielder.beginPass();
    while (yields < 4) {
        ++yields;
        yielder.yield();
    }
    EXPECT_EQ(acts, (QList<int>{1, 3}));
    EXPECT_TRUE(yielder.missed().isEmpty());
}

TEST(ScriptedYielder, TellsWhatThePassDidNotReach)
{
    ScriptedYielder yielder;
    yielder.queue({10, 2, [] { FAIL(); }});
    ASSERT_EQ(yielder.missed().size(), 1);
    EXPECT_EQ(yielder.missed()[0].yields, std::nullopt);
    yielder.beginPass();
    yielder.yield();
    EXPECT_EQ(yielder.missed()[0].yields, 1);
    yielder.beginPass();
    yielder.yield();
    yielder.yield();
    ASSERT_EQ(yielder.missed().size(), 1);
    EXPECT_EQ(yielder.missed()[0].line, 10);
    EXPECT_EQ(yielder.missed()[0].yields, 1);
}

TEST(ScriptedYielder, LeavesOutThePassesThatItsActsCause)
{
    ScriptedYielder yielder;
    int late = 0;
    yielder.queue({1, 1, [&] {
                       yielder.beginPass();
                       yielder.yield();
                   }});
    yielder.queue({2, 2, [&] { ++late; }});
    yielder.beginPass();
    yielder.yield();
    EXPECT_EQ(late, 0);
    yielder.yield();
    EXPECT_EQ(late, 1);
    EXPECT_TRUE(yielder.missed().isEmpty());
}

TEST(DialogAnswer, FitsTheDialogsOfItsKindAndACancelAll)
{
    struct Row {
        DialogAnswer::Kind answer;
        QList<DialogKind> dialogs;
    };
    const QList<DialogKind> all = {DialogKind::Open,   DialogKind::Save, DialogKind::Colour,
                                   DialogKind::Folder, DialogKind::Font, DialogKind::Print};
    const Row rows[] = {
        {DialogAnswer::Kind::Cancel, all},
        {DialogAnswer::Kind::Path, {DialogKind::Open, DialogKind::Save}},
        {DialogAnswer::Kind::Colour, {DialogKind::Colour}},
        {DialogAnswer::Kind::Folder, {DialogKind::Folder}},
        {DialogAnswer::Kind::Font, {DialogKind::Font}},
        {DialogAnswer::Kind::Copies, {DialogKind::Print}},
    };
    for (const Row &row : rows)
        for (const DialogKind dialog : all)
            EXPECT_EQ((DialogAnswer{row.answer, QString()}).fits(dialog), row.dialogs.contains(dialog))
                << static_cast<int>(row.answer) << qPrintable(drive::dialogName(dialog));
}

TEST(Names, OfBoxesReadBothWays)
{
    EXPECT_EQ(drive::parseButtons(QStringLiteral("YesNoCancel")), MessageButtons::YesNoCancel);
    EXPECT_EQ(drive::buttonsName(MessageButtons::RetryCancel), QStringLiteral("RetryCancel"));
    EXPECT_EQ(drive::parseIcon(QStringLiteral("none")), MessageIcon::None);
    EXPECT_EQ(drive::parseAnswer(QStringLiteral("Maybe")), std::nullopt);
}
