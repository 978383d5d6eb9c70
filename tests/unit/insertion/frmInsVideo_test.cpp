#include "insertion/frmInsVideo.h"

#include <gtest/gtest.h>

namespace
{
QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// The fields as the dialog opens, with a path.
VideoFields opened()
{
    VideoFields fields;
    fields.path = str("a.avi");
    fields.align = str("(none)");
    return fields;
}

/// What stands between the path and the loop, or behind it, if one field is another than at the opening.
template <class Change>
QString changed(const Change &change)
{
    VideoFields fields = opened();
    change(fields);
    return videoMarkup(fields);
}
} // namespace

TEST(VideoMarkup, OfTheFieldsAsTheDialogOpens)
{
    EXPECT_EQ(videoMarkup(opened()), str("<img dynsrc=\"a.avi\" start=\"fileopen\" loop=\"1\" loopdelay=\"1\">"));
}

TEST(VideoMarkup, OfAllFieldsInTheirOrder)
{
    const VideoFields fields{.path = str("img/a.avi"),
                             .altText = str("A film"),
                             .align = str("left"),
                             .width = str("80"),
                             .height = str("60"),
                             .inPercent = true,
                             .thickness = str("2"),
                             .horizontalSpacing = str("3"),
                             .verticalSpacing = str("4"),
                             .startsOnOpen = true,
                             .startsOnMouseOver = true,
                             .controls = true,
                             .repeatsForever = true,
                             .loop = str("5"),
                             .loopDelay = str("6")};
    EXPECT_EQ(videoMarkup(fields),
              str("<img dynsrc=\"img/a.avi\" alt=\"A film\" align=\"left\" width=\"80%\" height=\"60%\" border=\"2\" "
                  "hspace=\"3\" vspace=\"4\" start=\"fileopen, mouseover\" controls loop=\"infinite\" "
                  "loopdelay=\"6\">"));
}

TEST(VideoMarkup, WritesTheAlignmentUnlessItIsTheDefault)
{
    struct Row {
        const char *align;
        const char *attribute;
    };
    const Row rows[] = {{"(none)", ""},
                        {"bottom", ""},
                        {"middle", " align=\"middle\""},
                        {"top", " align=\"top\""},
                        {"right", " align=\"right\""},
                        {"", " align=\"\""}};
    for (const Row &row : rows) {
        const QString markup = changed([&](VideoFields &fields) { fields.align = str(row.align); });
        EXPECT_EQ(markup, str("<img dynsrc=\"a.avi\"") + str(row.attribute) +
                              str(" start=\"fileopen\" loop=\"1\" loopdelay=\"1\">"));
    }
}

TEST(VideoMarkup, StartsByEachRule)
{
    struct Row {
        bool onOpen;
        bool onMouseOver;
        const char *attribute;
    };
    const Row rows[] = {
        {true, true, " start=\"fileopen, mouseover\""},
        {true, false, " start=\"fileopen\""},
        {false, true, " start=\"mouseover & Chr(34)"}, // never closed, by intent
        {false, false, ""},
    };
    for (const Row &row : rows) {
        const QString markup = changed([&](VideoFields &fields) {
            fields.startsOnOpen = row.onOpen;
            fields.startsOnMouseOver = row.onMouseOver;
        });
        EXPECT_EQ(markup, str("<img dynsrc=\"a.avi\"") + str(row.attribute) + str(" loop=\"1\" loopdelay=\"1\">"));
    }
}

TEST(VideoMarkup, SizesInPixelsHaveNoSign)
{
    const QString markup = changed([](VideoFields &fields) {
        fields.width = str("320");
        fields.height = str("0");
    });
    EXPECT_EQ(markup,
              str("<img dynsrc=\"a.avi\" width=\"320\" height=\"0\" start=\"fileopen\" loop=\"1\" loopdelay=\"1\">"));
}

TEST(VideoMarkup, AnEmptyLoopIsWrittenAndAnEmptyDelayIsNot)
{
    const QString markup = changed([](VideoFields &fields) {
        fields.loop.clear();
        fields.loopDelay.clear();
    });
    EXPECT_EQ(markup, str("<img dynsrc=\"a.avi\" start=\"fileopen\" loop=\"\">"));
}
