#include "common/addressText.h"

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

TEST(AddressFromDocument, isTheWayFromThePageToTheFile)
{
    const QString page = QStringLiteral("/home/me/site/sub/page.html");
    const QList<Row> rows{
        {"beside the page", QStringLiteral("/home/me/site/sub/a.png"), page, QStringLiteral("a.png")},
        {"below", QStringLiteral("/home/me/site/sub/img/a.png"), page, QStringLiteral("img/a.png")},
        {"above", QStringLiteral("/home/me/site/img/a.png"), page, QStringLiteral("../img/a.png")},
        {"a folder that only begins alike", QStringLiteral("/home/me/site/subject/a.png"), page,
         QStringLiteral("../subject/a.png")},
        {"letters count in their case", QStringLiteral("/home/me/site/Sub/a.png"), page,
         QStringLiteral("../Sub/a.png")},
        {"what has a meaning in addresses", QStringLiteral("/home/me/site/sub/a b#1?%.png"), page,
         QStringLiteral("a%20b%231%3F%25.png")},
        {"letters of all languages", QStringLiteral("/home/me/site/sub/é.png"), page, QStringLiteral("é.png")},
        {"a name like a scheme", QStringLiteral("/home/me/site/sub/a:b.png"), page, QStringLiteral("./a:b.png")},
        {"a document without a file", QStringLiteral("/home/me/a.png"), QString(), QStringLiteral("/home/me/a.png")},
        {"relative already", QStringLiteral("a b.png"), page, QStringLiteral("a b.png")},
        {"an address", QStringLiteral("http://example.org/a b"), page, QStringLiteral("http://example.org/a b")},
        {"an address of any scheme", QStringLiteral("//example.org/a"), page, QStringLiteral("//example.org/a")},
        {"from the root of a site", QStringLiteral("/img/a.png"), page, QStringLiteral("/img/a.png")},
        {"from the root of a site that is called home", QStringLiteral("/home/a.png"), page,
         QStringLiteral("/home/a.png")},
        {"backslashes", QStringLiteral("/home/me/site/sub/img\\a.png"), page, QStringLiteral("img/a.png")},
    };
    for (const Row &row : rows)
        EXPECT_EQ(addressFromDocument(row.path, row.document, false).toStdString(), row.expected.toStdString())
            << row.what;
    EXPECT_EQ(addressFromDocument(QStringLiteral("/usr/share/a.png"), page, true),
              QStringLiteral("../../../../usr/share/a.png"));
    EXPECT_EQ(addressFromDocument(QStringLiteral("/home/me/site/sub/a\\b.png"), page, true),
              QStringLiteral("a%5Cb.png"));
}
