// The looks of a text's characters: what ranges laid over one another come to, beside a plain list of looks.
#include "surface/formatRuns.h"
#include "unit/support/processorTime.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace
{
class BesideAList : public ::testing::Test
{
protected:
    int below(int end) { return m_random.bounded(end); }
    int length() const { return static_cast<int>(m_looks.size()); }

    TextFormat anyFormat()
    {
        TextFormat format;
        if (below(3) > 0)
            format.colour = static_cast<ColourValue>(below(3)) * 0x112233U;
        if (below(3) > 0)
            format.bold = below(2) == 1;
        if (below(3) == 0)
            format.underline = below(2) == 1;
        return format;
    }

    /// In any order, over one another, and some of them outside of the text.
    QList<FormatRange> anyRanges()
    {
        QList<FormatRange> ranges;
        const bool inOrder = below(2) == 1;
        qsizetype start = below(20) - 5;
        for (int i = below(25); i > 0; --i) {
            ranges.append({start, below(30) - 3, anyFormat()});
            start = inOrder ? start + below(40) : below(length() + 10) - 5;
        }
        return ranges;
    }

    void layOver(const QList<FormatRange> &ranges)
    {
        const std::vector<Look> before = m_looks;
        for (const FormatRange &range : ranges) {
            for (qsizetype i = range.start;
                 range.start >= 0 && i < std::min<qsizetype>(range.start + range.length, length()); ++i)
                m_looks[static_cast<size_t>(i)] = merged(m_looks[static_cast<size_t>(i)], range.format);
        }
        std::vector<bool> told(m_looks.size());
        qsizetype behind = -1;
        for (const TextStretch &stretch : m_runs.apply(ranges)) {
            ASSERT_LT(behind, stretch.from) << "in their order, and not one beside another";
            ASSERT_LT(stretch.from, stretch.to);
            std::fill(told.begin() + stretch.from, told.begin() + stretch.to, true);
            behind = stretch.to;
        }
        for (size_t i = 0; i < m_looks.size(); ++i)
            ASSERT_EQ(told[i], before[i] != m_looks[i]) << i;
    }

    void replace()
    {
        const int position = below(length() + 1);
        const int removed = std::min(below(20), length() - position);
        const int added = below(20);
        const Look look = merged({}, anyFormat());
        m_runs.replace(position, removed, added, look);
        m_looks.erase(m_looks.begin() + position, m_looks.begin() + position + removed);
        m_looks.insert(m_looks.begin() + position, static_cast<size_t>(added), look);
    }

    void compare()
    {
        size_t runs = m_looks.empty() ? 0 : 1;
        for (size_t i = 0; i < m_looks.size(); ++i) {
            ASSERT_EQ(m_runs.lookAt(static_cast<qsizetype>(i)), m_looks[i]) << i;
            runs += i > 0 && m_looks[i] != m_looks[i - 1] ? 1 : 0;
        }
        qsizetype next = 0;
        m_runs.forEachRun(0, length(), [&](qsizetype from, qsizetype to, const Look &) {
            EXPECT_EQ(from, next);
            EXPECT_LT(from, to);
            next = to;
        });
        EXPECT_EQ(next, length());
        EXPECT_LE(m_runs.count(), runs + 1); // of which one may be left at the text's end
    }

    FormatRuns m_runs;
    std::vector<Look> m_looks;
    QRandomGenerator m_random{20261123};
};

TEST_F(BesideAList, RangesComeToWhatEachInTurnWouldDo)
{
    for (int i = 0; i < 3000; ++i) {
        if (i % 200 == 0) {
            m_looks.assign(static_cast<size_t>(below(300)), {});
            m_runs.reset(length());
        }
        ASSERT_NO_FATAL_FAILURE(below(3) == 0 ? replace() : layOver(anyRanges())) << i;
        ASSERT_NO_FATAL_FAILURE(compare()) << i;
    }
}

TEST(FormatRuns, RangesWithinRangesAreNotGoneThroughForEachOfThem)
{
    constexpr qsizetype count = 60'000;
    FormatRuns runs;
    runs.reset(2 * count);
    QList<FormatRange> nested;
    for (qsizetype i = 0; i < count; ++i)
        nested.append({i, 2 * (count - i), {static_cast<ColourValue>(i % 5), {}, {}}});
    const double start = processorMilliseconds();
    runs.apply(nested);
    EXPECT_LT(processorMilliseconds() - start, 2000); // each for each would be 1,800,000,000 steps
    for (const qsizetype place : {qsizetype(0), qsizetype(4), count - 1, count, 2 * count - 1}) {
        const qsizetype range = std::min(place, 2 * count - 1 - place); // the innermost one around it
        EXPECT_EQ(runs.lookAt(place).colour, static_cast<ColourValue>(range % 5)) << place;
    }
}
} // namespace
