#include "document/modBrowserControl.h"

#include <gtest/gtest.h>

namespace
{
TEST(ShowsSomething, IsWhatStandsInThePagesBody)
{
    const struct {
        const char *source;
        bool shows;
    } rows[] = {
        {"", false},
        {" \r\n\t", false},
        {"<html><head><title>Title</title></head>\r\n<body>\r\n\r\n</body>\r\n</html>", false},
        {"<BODY BGCOLOR=\"red\">\r\n</BODY >", false},
        {"<body>", false},
        {"<body>x", true},
        {"<body\r\nclass=a", true}, // which begins no body
        {"<body></body", true},     // nor ends it
        {"<body></bodywork>", true},
        {"<body> </body\r\n>x", false},
        {"<body>\r\n</Body\t>\r\n</html>", false},
        {"<html><body>\r\n<p></p>\r\n</body></html>", true},
        {"<html><body>\r\nx\r\n</body></html>", true},
        {"<frameset><frame src=\"a.htm\"></frameset>", true},
        {"text", true},
    };
    for (const auto &row : rows)
        EXPECT_EQ(showsSomething(QLatin1String(row.source)), row.shows) << row.source;
}
} // namespace
