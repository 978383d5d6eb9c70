#include "drive/carriedOver.h"

#include "drive/world.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using drive::CarriedOver;
using drive::DialogAnswer;
using drive::DialogKind;
using drive::ScriptedFiles;

namespace
{
class CarriedOverTest : public testing::Test
{
protected:
    void TearDown() override { world.remove(); }
    QString path() const { return world.carriedOverFile(); }

    drive::World world = *drive::World::make();
};
} // namespace

TEST_F(CarriedOverTest, ComesBackWhole)
{
    CarriedOver carried;
    carried.places = {{7, 2}, {0, 5}};
    carried.waiting = {3};
    carried.lasting = {1, 2};
    carried.clock = QDateTime(QDate(2026, 3, 1), QTime(14, 5, 9));
    carried.seed = 42;
    carried.answers = {MessageAnswer::No, MessageAnswer::Retry};
    carried.boxes = {
        {{QStringLiteral("Ask"), QStringLiteral("Really?"), MessageIcon::Question, MessageButtons::YesNo}, 12}};
    carried.choices = {{DialogAnswer::Kind::Path, QStringLiteral("/a.htm"), 2},
                       {DialogAnswer::Kind::Colour, QString(), {}, 255}};
    carried.dialogs = {{DialogKind::Save, {{QStringLiteral("Title"), QStringLiteral("Save As")}}}};
    carried.launched = {QStringLiteral("/bin/true")};
    carried.refusals = 1;
    carried.help = {QStringLiteral("contents")};
    carried.secondStarts = {QStringLiteral("running")};
    carried.failing = {{QStringLiteral("/a.htm"), 70, ScriptedFiles::Act::List}};
    carried.disk = drive::DiskLimit{"/site", 10};
    ASSERT_TRUE(drive::store(carried, path()));
    const auto got = drive::takeStored(path());
    ASSERT_TRUE(got);
    EXPECT_EQ(got->places, carried.places);
    EXPECT_EQ(got->waiting, carried.waiting);
    EXPECT_EQ(got->lasting, carried.lasting);
    EXPECT_EQ(got->clock, carried.clock);
    EXPECT_EQ(got->seed, carried.seed);
    EXPECT_EQ(got->answers, carried.answers);
    ASSERT_EQ(got->boxes.size(), 1);
    EXPECT_EQ(drive::boxText(got->boxes[0].box), drive::boxText(carried.boxes[0].box));
    EXPECT_EQ(got->boxes[0].line, 12);
    ASSERT_EQ(got->choices.size(), 2);
    EXPECT_EQ(got->choices[0].text, QStringLiteral("/a.htm"));
    EXPECT_EQ(got->choices[0].number, 2);
    EXPECT_EQ(got->choices[1].number, std::nullopt);
    EXPECT_EQ(got->choices[1].colour, 255U);
    ASSERT_EQ(got->dialogs.size(), 1);
    EXPECT_EQ(got->dialogs[0].told(), carried.dialogs[0].told());
    EXPECT_EQ(got->launched, carried.launched);
    EXPECT_EQ(got->refusals, 1);
    EXPECT_EQ(got->help, carried.help);
    EXPECT_EQ(got->secondStarts, carried.secondStarts);
    ASSERT_EQ(got->failing.size(), 1);
    EXPECT_EQ(got->failing[0].act, ScriptedFiles::Act::List);
    ASSERT_TRUE(got->disk);
    EXPECT_EQ(got->disk->bytes, 10);
}

TEST_F(CarriedOverTest, IsTakenOnce)
{
    EXPECT_FALSE(drive::takeStored(path()));
    ASSERT_TRUE(drive::store({}, path()));
    EXPECT_TRUE(drive::takeStored(path()));
    EXPECT_FALSE(QFileInfo::exists(path()));
    EXPECT_FALSE(drive::takeStored(path()));
}
