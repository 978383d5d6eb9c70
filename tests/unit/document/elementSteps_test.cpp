#include "document/elementSteps.h"

#include "surface/editSurface.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    qsizetype start;
    qsizetype length;
    qsizetype newStart;
    qsizetype newLength;
};

void expectSteps(void (*step)(TextSurface &), std::initializer_list<Row> rows)
{
    for (const Row &row : rows) {
        EditSurface surface;
        surface.setText(QString::fromUtf8(row.text));
        surface.setSelStart(row.start);
        surface.setSelLength(row.length);
        step(surface);
        EXPECT_EQ(surface.SelStart(), row.newStart) << row.text << ' ' << row.start;
        EXPECT_EQ(surface.SelLength(), row.newLength) << row.text << ' ' << row.start;
    }
}

TEST(NextElement, IsTheFirstBehindTheSelection)
{
    expectSteps(&SelectNextElement, {
                                        {"<p>one <b>two", 0, 0, 0, 3},
                                        {"<p>one <b>two", 0, 3, 7, 3},
                                        {"<p>one <b>two", 1, 0, 7, 3},
                                        {"a < b <i>", 0, 0, 2, 7}, // a bare "<" reaches to the next ">"
                                    });
}

TEST(NextElement, ChangesNothingBehindTheLast)
{
    expectSteps(&SelectNextElement, {
                                        {"<p>one", 0, 3, 0, 3},
                                        {"<p>one", 6, 0, 6, 0},
                                        {"one>", 1, 2, 1, 2}, // a ">" alone is no element
                                        {"", 0, 0, 0, 0},
                                    });
}

TEST(NextElement, OfATagThatIsNotClosedIsItsStart)
{
    expectSteps(&SelectNextElement, {{"a <b", 0, 0, 2, 0}, {"<b", 0, 0, 0, 0}});
}

TEST(PreviousElement, IsTheLastThatStartsInFrontOfTheSelection)
{
    expectSteps(&SelectPreviousElement, {
                                            {"<p>one <b>two", 13, 0, 7, 3},
                                            {"<p>one <b>two", 7, 3, 0, 3},
                                            {"<p>one", 2, 0, 0, 3}, // from inside of it
                                            {"a<b c", 3, 0, 1, 0},  // not closed
                                        });
}

TEST(PreviousElement, ChangesNothingInFrontOfTheFirst)
{
    expectSteps(&SelectPreviousElement,
                {{"<p>one", 0, 3, 0, 3}, {"<p>one", 0, 0, 0, 0}, {"one <p>", 2, 1, 2, 1}, {"", 0, 0, 0, 0}});
}
} // namespace
