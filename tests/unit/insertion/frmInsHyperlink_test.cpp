#include "insertion/frmInsHyperlink.h"

#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *what;
    HyperlinkFields fields;
    const char *expected;
};

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

HyperlinkFields link(const char *kind, const char *prefix, const char *url, const char *target, const char *text)
{
    return {.kind = str(kind),
            .prefix = str(prefix),
            .url = str(url),
            .target = str(target),
            .fromImage = false,
            .text = str(text),
            .imagePath = {}};
}

HyperlinkFields fromImage(const char *imagePath, const char *alternative)
{
    return {.kind = str("(other)"),
            .prefix = {},
            .url = str("a.htm"),
            .target = {},
            .fromImage = true,
            .text = str(alternative),
            .imagePath = str(imagePath)};
}
} // namespace

TEST(HyperlinkMarkup, EachKindAndFace)
{
    const QList<Row> rows{
        {"an external link", link("External link", "http://", "example.org/a.htm", "main", "Go"),
         "<a href=\"http://example.org/a.htm\" target=\"main\">Go</a>"},
        {"an internal link names its place, by intent", link("Internal link", "#", "top", "", "Up"),
         "<a name=\"#top\">Up</a>"},
        {"an anchor links without a prefix, by intent", link("Anchor", "", "top", "", "Up"), "<a href=\"top\">Up</a>"},
        {"mail", link("Email", "mailto:", "me@example.org", "", "Write"),
         "<a href=\"mailto:me@example.org\">Write</a>"},
        {"a file", link("File", "file://", "/a.htm", "", "A"), "<a href=\"file:///a.htm\">A</a>"},
        {"a file by FTP", link("FTP (file)", "ftp://", "example.org/a.zip", "", "A"),
         "<a href=\"ftp://example.org/a.zip\">A</a>"},
        {"prefix and address are joined with nothing between", link("(other)", "news:", "comp.lang", "", "News"),
         "<a href=\"news:comp.lang\">News</a>"},
        {"the name of the kind counts in its own letters only", link("internal link", "#", "top", "", "Up"),
         "<a href=\"#top\">Up</a>"},
        {"an empty face", link("(other)", "", "a.htm", "", ""), "<a href=\"a.htm\"></a>"},
        {"nothing is escaped", link("(other)", "", "a?b=1&c=\"2\"", "<t>", "A < B"),
         "<a href=\"a?b=1&c=\"2\"\" target=\"<t>\">A < B</a>"},
        {"an image", fromImage("up.gif", "Up"), "<a href=\"a.htm\"><img src=\"up.gif\" alt=\"Up\"></a>"},
        {"an image without a path or a text", fromImage("", ""), "<a href=\"a.htm\"><img src=\"\" alt=\"\"></a>"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(hyperlinkMarkup(row.fields), str(row.expected)) << row.what;
}
