#include "files/metaElements.h"

#include <gtest/gtest.h>

namespace
{
TEST(MetaContent, IsReadUpToTheNextDoubleQuote)
{
    const QString page = QStringLiteral("<META Name=\"Author\" Content=\"Ann Other\">\r\n"
                                        "<meta name=\"keywords\" content=\"\">\r\n"
                                        "<meta  name=\"description\" content=\"two blanks\">");
    EXPECT_EQ(metaContent(page, QStringLiteral("author")), QStringLiteral("Ann Other"));
    EXPECT_EQ(metaContent(page, QStringLiteral("keywords")), QString());
    EXPECT_EQ(metaContent(page, QStringLiteral("description")), QString());
    EXPECT_EQ(metaContent(QStringLiteral("<meta name=\"author\" content=\"open"), QStringLiteral("author")), QString());
}
} // namespace
