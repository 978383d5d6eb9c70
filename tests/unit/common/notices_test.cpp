#include "common/notices.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace
{
Notice notice(const QString &key, NoticeKind kind = NoticeKind::Other, const QString &text = {})
{
    return {key, kind, text.isEmpty() ? key : text, {}};
}

/// The notices in the order in which they come, each one answered by taking it away.
QStringList inOrder(Notices &notices)
{
    QStringList texts;
    while (const Notice *current = notices.current()) {
        texts.append(current->text);
        notices.remove(QString(current->key));
    }
    return texts;
}

class NoticesTest : public testing::Test
{
protected:
    NoticesTest()
    {
        notices.watch([this] { ++changes; });
    }

    Notices notices;
    int changes = 0;
};
} // namespace

TEST_F(NoticesTest, HaveNothingToTellAtFirst)
{
    EXPECT_TRUE(notices.isEmpty());
    EXPECT_EQ(notices.current(), nullptr);
    notices.press(0);
    notices.remove(QStringLiteral("a"));
    EXPECT_EQ(changes, 0);
}

TEST_F(NoticesTest, ComeByKindAndThenInTheOrderOfComing)
{
    notices.put(notice(QStringLiteral("a")));
    notices.put(notice(QStringLiteral("b")));
    notices.put(notice(QStringLiteral("file"), NoticeKind::Outside));
    notices.put(notice(QStringLiteral("kill"), NoticeKind::Recovery));
    notices.put(notice(QStringLiteral("gone"), NoticeKind::Outside));
    const QStringList expected{QStringLiteral("kill"), QStringLiteral("file"), QStringLiteral("gone"),
                               QStringLiteral("a"), QStringLiteral("b")};
    EXPECT_EQ(inOrder(notices), expected);
}

TEST_F(NoticesTest, TakeThePlaceOfOneThatIsAboutTheSame)
{
    notices.put(notice(QStringLiteral("a"), NoticeKind::Other, QStringLiteral("first")));
    notices.put(notice(QStringLiteral("b")));
    notices.put(notice(QStringLiteral("a"), NoticeKind::Other, QStringLiteral("second")));
    const QStringList expected{QStringLiteral("second"), QStringLiteral("b")};
    EXPECT_EQ(inOrder(notices), expected);
}

TEST_F(NoticesTest, MoveWhenTheyBecomeOfAnotherKind)
{
    notices.put(notice(QStringLiteral("a")));
    notices.put(notice(QStringLiteral("b")));
    notices.put(notice(QStringLiteral("b"), NoticeKind::Outside));
    const QStringList expected{QStringLiteral("b"), QStringLiteral("a")};
    EXPECT_EQ(inOrder(notices), expected);
}

TEST_F(NoticesTest, AreGoneBeforeTheirAnswerRuns)
{
    bool wasThere = true;
    Notice asking = notice(QStringLiteral("a"));
    asking.buttons = {{QStringLiteral("Keep"), [&] { wasThere = notices.holds(QStringLiteral("a")); }}};
    notices.put(asking);
    notices.put(notice(QStringLiteral("b")));
    notices.press(0);
    EXPECT_FALSE(wasThere);
    ASSERT_NE(notices.current(), nullptr);
    EXPECT_EQ(notices.current()->key, QStringLiteral("b"));
    EXPECT_EQ(changes, 3);
}

TEST_F(NoticesTest, StayWhereAButtonIsNoAnswer)
{
    int shown = 0;
    Notice asking = notice(QStringLiteral("a"));
    asking.buttons = {{QStringLiteral("Show"), [&] { ++shown; }, true, false},
                      {QStringLiteral("Discard"), [&] { notices.remove(QStringLiteral("a")); }, true, false}};
    notices.put(asking);
    notices.press(0);
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(notices.holds(QStringLiteral("a")));
    notices.press(1);
    EXPECT_TRUE(notices.isEmpty());
}

TEST_F(NoticesTest, PassOverDisabledAndMissingButtons)
{
    int pressed = 0;
    Notice asking = notice(QStringLiteral("a"));
    asking.buttons = {{QStringLiteral("Load again"), [&] { ++pressed; }, false}};
    notices.put(asking);
    for (const int button : {-1, 0, 1})
        notices.press(button);
    EXPECT_EQ(pressed, 0);
    EXPECT_TRUE(notices.holds(QStringLiteral("a")));
}

TEST_F(NoticesTest, MayBePutAgainByTheirOwnAnswer)
{
    Notice asking = notice(QStringLiteral("a"));
    asking.buttons = {
        {QStringLiteral("Again"), [&] { notices.put(notice(QStringLiteral("a"), {}, QStringLiteral("new"))); }}};
    notices.put(asking);
    notices.press(0);
    ASSERT_NE(notices.current(), nullptr);
    EXPECT_EQ(notices.current()->text, QStringLiteral("new"));
}
