#include "unit/codeknowledge/dataFiles.h"

#include <gtest/gtest.h>

namespace
{
using namespace datafiles;

TEST(DataFiles, AreReadByTheirMarks)
{
    const Html read = readHtml("\xBB"
                               "a\r\n\xBB\xBBhref=URL\r\n\xBB\xAB"
                               "name=\r\n\xBB\xBB\xAB"
                               "b\r\n\xAB"
                               "tt\r\n");
    EXPECT_EQ(read.faults, QStringList());
    ASSERT_EQ(read.elements.size(), 2U);
    EXPECT_EQ(read.elements[0].syntaxLine(), words("<a href=[URL] name=>"));
    EXPECT_FALSE(read.elements[0].attributes[0].deprecated);
    EXPECT_TRUE(read.elements[0].attributes[1].deprecated);
    EXPECT_EQ(markedValues(read.elements[0].attributes[1]), QStringList{words("-b")});
    EXPECT_TRUE(read.elements[1].deprecated);
    EXPECT_EQ(read.elements[1].syntaxLine(), words("<tt>"));
}

TEST(DataFiles, WithFaultsAreToldFrom)
{
    for (const char *bytes : {"\xBB"
                              "a",
                              "\xBB"
                              "a\n",
                              "a\r\n",
                              "\xBB"
                              "a\r\n\r\n",
                              "\xBB"
                              "a \r\n",
                              "\xBB\xBB"
                              "href=\r\n",
                              "\xBB"
                              "a\r\n\xBB\xBB"
                              "ismap\r\n\xBB\xBB\xBB"
                              "yes\r\n",
                              "\xAB\xBB"
                              "a\r\n",
                              "\xBB"
                              "a\xE9\r\n",
                              "\xBB"
                              "a\xBB\r\n",
                              "\xBB"
                              "a\r\n\xBB\xBB\xBB\xBB"
                              "x\r\n"})
        EXPECT_FALSE(readHtml(bytes).faults.isEmpty()) << bytes;
    for (const char *bytes : {"\xBB\xBB"
                              "red\r\n",
                              "\xBB"
                              "color\r\n\xBB\xAB"
                              "red\r\n",
                              "\xBB\xBB\xBB"
                              "color\r\n"})
        EXPECT_FALSE(readCss(bytes).faults.isEmpty()) << bytes;
}
} // namespace
