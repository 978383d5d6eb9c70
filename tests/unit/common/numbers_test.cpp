#include "common/numbers.h"

#include <QString>
#include <gtest/gtest.h>

TEST(WholeNumber, IsWhatTheTextStartsWith)
{
    struct Row {
        const char *text;
        qint64 expected;
    };
    const Row rows[] = {
        {"", 0},
        {"0", 0},
        {"7", 7},
        {"007", 7},
        {" 12 ", 12},
        {"12abc", 12},
        {"12 34", 12},
        {"abc", 0},
        {"1.9", 1},
        {"-5", -5},
        {"+5", 5},
        {"- 5", 0},
        {"50%", 50},
        {"9999999999", 9999999999},
        {"9223372036854775807", 9223372036854775807},
        {"9223372036854775808", 9223372036854775807},
        {"99999999999999999999", 9223372036854775807},
        {"-99999999999999999999", -9223372036854775807},
    };
    for (const Row &row : rows)
        EXPECT_EQ(wholeNumber(QString::fromUtf8(row.text)), row.expected) << row.text;
}
