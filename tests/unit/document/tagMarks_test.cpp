#include "document/tagMarks.h"

#include "services/timer.h"
#include "surface/editSurface.h"

#include <gtest/gtest.h>

namespace
{
/// The one ticker that was made ticks when a test says so.
class HeldTimers final : public TimerSource
{
public:
    std::unique_ptr<Ticker> makeTicker(std::function<void()> tick) override
    {
        class Held final : public Ticker
        {
        public:
            explicit Held(bool *runs) : m_runs(runs) {}
            void start(int) override { *m_runs = true; }
            void stop() override { *m_runs = false; }

        private:
            bool *m_runs;
        };
        m_tick = std::move(tick);
        return std::make_unique<Held>(&runs);
    }
    void tick()
    {
        if (runs)
            m_tick();
    }
    bool runs = false;

private:
    std::function<void()> m_tick;
};

class TagMarksTest : public testing::Test
{
protected:
    TagMarksTest()
    {
        QObject::connect(&surface, &EditSurface::SelChange, [this] { marks.follow(); });
        QObject::connect(&surface, &EditSurface::Change, [this] { marks.textChanged(); });
    }
    QList<MarkedRange> pairs() const
    {
        QList<MarkedRange> found = surface.markedRanges();
        found.removeIf([](const MarkedRange &mark) { return mark.kind != MarkKind::Pair; });
        return found;
    }

    EditSurface surface;
    HeldTimers timers;
    bool shown = true;
    TagMarks marks{surface, timers, [this] { return shown; }};
};

TEST_F(TagMarksTest, TheTagAtTheCaretAndItsPartnerAreMarked)
{
    surface.setText(QStringLiteral("<p title=\"a > b\">x</p>"));
    const QList<MarkedRange> both = {{0, 17, MarkKind::Pair}, {18, 4, MarkKind::Pair}};
    for (const qsizetype caret : {0, 1, 13, 15, 17, 18, 20, 22}) {
        surface.setSelStart(caret);
        EXPECT_EQ(pairs(), both) << caret;
    }
}

TEST_F(TagMarksTest, WhatIsNoTagMarksNone)
{
    surface.setText(QStringLiteral("a < b <br>cc<!-- <p>d</p> --><i>"));
    for (const qsizetype caret : {0, 3, 8, 11, 18, 22, 31}) {
        surface.setSelStart(caret);
        EXPECT_TRUE(pairs().isEmpty()) << caret;
    }
}

TEST_F(TagMarksTest, ATextThatIsReplacedAtTheCaretIsLookedAtAnew)
{
    surface.setText(QStringLiteral("<b></b>"));
    EXPECT_EQ(pairs().size(), 2);
    surface.setText(QStringLiteral("<b></i>"));
    EXPECT_EQ(pairs().size(), 0);
    surface.setText(QStringLiteral("<b></b>"));
    EXPECT_EQ(pairs().size(), 2);
    shown = false;
    marks.follow();
    EXPECT_TRUE(surface.markedRanges().isEmpty());
}

TEST_F(TagMarksTest, InALargeTextTagsAreLookedForAfterAPause)
{
    surface.setText(QStringLiteral("<b>") + QString(300'000, u'x') + QStringLiteral("</b>"));
    EXPECT_TRUE(pairs().isEmpty());
    timers.tick();
    EXPECT_EQ(pairs(), QList<MarkedRange>({{0, 3, MarkKind::Pair}, {300'003, 4, MarkKind::Pair}}));
    EXPECT_FALSE(timers.runs);
    shown = false;
    surface.setSelStart(5);
    EXPECT_FALSE(timers.runs);
}
} // namespace
