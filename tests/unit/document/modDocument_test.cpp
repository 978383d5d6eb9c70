#include "document/modDocument.h"

#include <gtest/gtest.h>

namespace
{
TEST(BuiltInPage, HasTheFourMetaLinesIfAskedFor)
{
    EXPECT_EQ(builtInPage(true), QStringLiteral("<html>\r\n"
                                                "<head>\r\n"
                                                "<title>Enter_Title_Here</title>\r\n"
                                                "<meta name=\"description\" content=\"\">\r\n"
                                                "<meta name=\"keywords\" content=\"\">\r\n"
                                                "<meta name=\"author\" content=\"\">\r\n"
                                                "<meta name=\"generator\" content=\"Tagwrighter\">\r\n"
                                                "</head>\r\n"
                                                "<body>\r\n"
                                                "\r\n"
                                                "</body>\r\n"
                                                "</html>"));
}

TEST(BuiltInPage, LeavesThemOutOtherwise)
{
    EXPECT_EQ(builtInPage(false), QStringLiteral("<html>\r\n<head>\r\n<title>Enter_Title_Here</title>\r\n</head>\r\n"
                                                 "<body>\r\n\r\n</body>\r\n</html>"));
}
} // namespace
