#include "insertion/modExcludePath.h"

#include <QList>
#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *what;
    QString path;
    QString document;
    QString expected;
};
} // namespace

TEST(ExcludePath, theDocumentsFolderGoesFromThePath)
{
    const QList<Row> rows{
        {"the folder in another case", QStringLiteral("c:\\site\\img\\a.gif"), QStringLiteral("C:\\Site\\page.htm"),
         QStringLiteral("img\\a.gif")},
        {"the folder in the middle cuts its length off the front", QStringLiteral("D:\\copy\\c:\\site\\x.gif"),
         QStringLiteral("C:\\Site\\page.htm"), QStringLiteral("c:\\site\\x.gif")},
        {"a document without a file", QStringLiteral("C:\\Site\\a.gif"), QString(), QStringLiteral("C:\\Site\\a.gif")},
        {"a sibling folder stays whole", QStringLiteral("C:\\Other\\a.gif"), QStringLiteral("C:\\Site\\page.htm"),
         QStringLiteral("C:\\Other\\a.gif")},
        {"nothing but the folder stays whole", QStringLiteral("C:\\Site\\"), QStringLiteral("C:\\Site\\page.htm"),
         QStringLiteral("C:\\Site\\")},
        {"native paths", QStringLiteral("/home/me/site/css/a.css"), QStringLiteral("/home/me/site/index.html"),
         QStringLiteral("css/a.css")},
    };
    for (const Row &row : rows)
        EXPECT_EQ(withoutDocumentFolder(row.path, row.document), row.expected) << row.what;
}
