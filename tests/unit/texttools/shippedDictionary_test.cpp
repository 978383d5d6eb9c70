// The dictionary that the program brings along: that it keeps the checker quiet on pages that are right, and holds
// nothing that no such page needs.
#include "codeknowledge/codeLibraries.h"
#include "common/encodings.h"
#include "storage/localFileSystem.h"
#include "texttools/checkDictionary.h"
#include "texttools/codeWords.h"
#include "texttools/syntaxScan.h"

#include <QDirIterator>
#include <QFile>
#include <gtest/gtest.h>
#include <memory>

namespace
{
const QString source = QStringLiteral(TEST_SOURCE_DIR);

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Page {
    QString name;
    QString text;
};

QList<Page> pagesUnder(const QString &folder)
{
    QStringList paths;
    QDirIterator walk(source + folder, {QStringLiteral("*.htm"), QStringLiteral("*.html")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths += walk.next();
    paths.sort();
    QList<Page> pages;
    for (const QString &path : paths)
        pages += {path.sliced(source.size()), decode(bytesOf(path)).text};
    return pages;
}

class ShippedDictionary : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static CodeLibraries codes;
        LocalFileSystem files;
        codes.LoadCodeLibraries(files, source + QStringLiteral("/data"));
        words = std::make_unique<CodeWords>(codes);
    }
    static void TearDownTestSuite() { words.reset(); }

    /// The first word that a check of the page stops at; empty if it stops at none.
    static QString firstStop(const QString &text, const CheckDictionary &dictionary)
    {
        SyntaxScan scan(*words, dictionary);
        scan.begin(false);
        SyntaxScan::Result result = SyntaxScan::Result::Yield;
        while ((result = scan.advance(text)) == SyntaxScan::Result::Yield)
            ;
        if (result == SyntaxScan::Result::Finished)
            return {};
        const auto &stop = scan.stop();
        const QString around = text.mid(qMax<qsizetype>(0, stop.selStart - 20), 60).simplified();
        return result == SyntaxScan::Result::Failed
                   ? QStringLiteral("failed")
                   : QStringLiteral("%1 of %2: %3").arg(stop.word, scan.TagName(), around);
    }

    static CheckDictionary dictionaryOf(const QStringList &rows)
    {
        CheckDictionary dictionary;
        for (const QString &row : rows)
            dictionary.add(row);
        return dictionary;
    }

    const QStringList rows = dictionaryLines(bytesOf(source + QStringLiteral("/data/Syntax.dic")));
    static inline std::unique_ptr<CodeWords> words;
};

TEST_F(ShippedDictionary, KeepsTheCheckQuietOnPagesThatAreRight)
{
    const CheckDictionary dictionary = dictionaryOf(rows);
    const QList<Page> pages = pagesUnder(QStringLiteral("/tests/unit/texttools/pages"));
    ASSERT_GE(pages.size(), 10);
    for (const Page &page : pages)
        EXPECT_EQ(firstStop(page.text, dictionary), QString()) << page.name.toStdString();
}

TEST_F(ShippedDictionary, KeepsTheCheckQuietOnTheHelp)
{
    const CheckDictionary dictionary = dictionaryOf(rows);
    const QList<Page> pages = pagesUnder(QStringLiteral("/data/help/topics"));
    ASSERT_GE(pages.size(), 40);
    for (const Page &page : pages)
        EXPECT_EQ(firstStop(page.text, dictionary), QString()) << page.name.toStdString();
}

TEST_F(ShippedDictionary, KeepsTheCheckQuietOnTheCodeLibrary)
{
    const CheckDictionary dictionary = dictionaryOf(rows);
    QDirIterator walk(source + QStringLiteral("/data/CodeLibrary"), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        EXPECT_EQ(firstStop(decodeOwnFile(bytesOf(path)), dictionary), QString()) << path.toStdString();
    }
}

/// The page of the combined one stands beside the picture and the style sheet that it is packed with.
TEST_F(ShippedDictionary, KeepsTheCheckQuietOnTheTemplates)
{
    const CheckDictionary dictionary = dictionaryOf(rows);
    QStringList pages;
    QDirIterator templates(source + QStringLiteral("/data/Template"), {QStringLiteral("*.tpl")}, QDir::Files);
    while (templates.hasNext())
        pages += templates.next();
    QDirIterator packed(source + QStringLiteral("/tools/templates/card"), {QStringLiteral("*.html")}, QDir::Files);
    while (packed.hasNext())
        pages += packed.next();
    ASSERT_EQ(pages.size(), 6);
    for (const QString &path : pages)
        EXPECT_EQ(firstStop(decode(bytesOf(path)).text, dictionary), QString()) << path.toStdString();
}

TEST_F(ShippedDictionary, HoldsNoRowThatNoPageNeeds)
{
    const QList<Page> pages = pagesUnder(QStringLiteral("/tests/unit/texttools/pages"));
    ASSERT_GT(rows.size(), 100);
    EXPECT_EQ(QSet<QString>(rows.begin(), rows.end()).size(), rows.size());
    for (const QString &row : rows) {
        QStringList others = rows;
        others.removeOne(row);
        const CheckDictionary dictionary = dictionaryOf(others);
        EXPECT_TRUE(std::any_of(pages.begin(), pages.end(), [&](const Page &page) {
            return !firstStop(page.text, dictionary).isEmpty();
        })) << row.toStdString();
    }
}

/// Errors are still found.
TEST_F(ShippedDictionary, HidesNoError)
{
    const CheckDictionary dictionary = dictionaryOf(rows);
    for (const char *page : {"<bogus>", "<p><imgg src=\"x\"></p>", "<a herf=\"x\" id=\"y\">",
                             "<img scr=\"x\" alt=\"y\">", "<input type=tex>", "<tabel>", "<p data-=\"x\" id=\"y\">"})
        EXPECT_NE(firstStop(QString::fromUtf8(page), dictionary), QString()) << page;
}
} // namespace
