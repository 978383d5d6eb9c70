#include "document/linkTarget.h"

#include <gtest/gtest.h>

TEST(LinkTargetAt, IsTheAddressUnderThePosition)
{
    const QString text = QStringLiteral("<a class=\"x\" HREF=\"a.html?b&amp;c\">d</a><img src='e.png'><link href=f>");
    const auto at = [&text](const char *word) {
        return linkTargetAt(text, text.indexOf(QLatin1String(word))).toStdString();
    };
    EXPECT_EQ(at("a.html"), "a.html?b&c");
    EXPECT_EQ(at("amp;"), "a.html?b&c");
    EXPECT_EQ(at("e.png"), "e.png");
    EXPECT_EQ(at("f>"), "f");
    EXPECT_EQ(at("x\""), "");
    EXPECT_EQ(at("HREF"), "");
    EXPECT_EQ(at("d<"), "");
    EXPECT_EQ(linkTargetAt(u"href=\"a\"", 7), QString());
    EXPECT_EQ(linkTargetAt(u"<a href=\"a", 9), QString());
}

TEST(LocalTarget, StartsAtThePagesFolderOrTheSitesRoot)
{
    struct Row {
        const char *address;
        const char *root;
        const char *path;
    };
    const Row rows[] = {
        {"a.html", "", "/s/sub/a.html"},
        {"../b%20c.html#top", "", "/s/b c.html"},
        {"a.html?x=1", "", "/s/sub/a.html"},
        {"/c.html", "/s", "/s/c.html"},
        {"/s/c.html", "", "/s/c.html"},
        {"http://example.org/", "", ""},
        {"mailto:a@example.org", "", ""},
        {"//example.org/a", "", ""},
        {"#top", "", ""},
        {"", "", ""},
    };
    for (const Row &row : rows)
        EXPECT_EQ(localTarget(QLatin1String(row.address), QStringLiteral("/s/sub/page.html"), QLatin1String(row.root))
                      .toStdString(),
                  row.path)
            << row.address;
    EXPECT_EQ(localTarget(QStringLiteral("a.html"), QString(), QString()), QString());
}
