#include "services/commonDialogs.h"

#include <gtest/gtest.h>

namespace
{
struct EndingRow {
    const char *name;
    int row;
    const char *expected;
};

TEST(WithEnding, AddsTheFirstEndingOfTheRowWhereThereIsNone)
{
    const QString filter =
        QStringLiteral("All Files (*.*)|*.*|HTML Files|*.html;*.htm|Templates|*.tpl|Names|read*|Bare");
    const EndingRow rows[] = {
        {"/s/page", 2, "/s/page.html"},     {"/s/page", 3, "/s/page.tpl"},
        {"/s.d/page", 2, "/s.d/page.html"}, {"/s/page.txt", 2, "/s/page.txt"}, // an ending of the user's own
        {"/s/page.", 2, "/s/page."},        {"/s/.htaccess", 2, "/s/.htaccess"},
        {"/s/page", 1, "/s/page"}, // any name will do
        {"/s/page", 4, "/s/page"},          {"/s/page", 5, "/s/page"},
        {"/s/page", 0, "/s/page"},          {"/s/page", 6, "/s/page"},
        {"/s/there", 2, "/s/there"}, // a file that is there was meant
    };
    const auto exists = [](const QString &path) { return path == u"/s/there"; };
    for (const EndingRow &row : rows)
        EXPECT_EQ(withEnding({QLatin1String(row.name), row.row}, filter, exists).fileName, QLatin1String(row.expected))
            << row.name << " " << row.row;
}
} // namespace
