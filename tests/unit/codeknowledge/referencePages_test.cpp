#include "unit/codeknowledge/dataFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <gmock/gmock.h>

namespace
{
using namespace datafiles;

const QString folder = QStringLiteral("help/topics/reference/");

QString pageText(const QString &name)
{
    return QString::fromUtf8(bytesOf(folder + name));
}

QStringList pageNames()
{
    return QDir(QStringLiteral(TEST_SOURCE_DIR "/data/") + folder).entryList({QStringLiteral("*")}, QDir::Files);
}

QString titleOf(const QString &page)
{
    return QRegularExpression(QStringLiteral("<title>(.*)</title>")).match(page).captured(1);
}

QStringList captures(const QString &text, const char *pattern)
{
    QStringList found;
    const QRegularExpression expression(QLatin1String{pattern});
    for (auto i = expression.globalMatch(text); i.hasNext();)
        found << i.next().captured(1);
    return found;
}

/// The page of what all elements of drawings, or of formulas, have in common; empty for other elements.
QString sharedOf(const QString &entry)
{
    const bool math = entry == words("math");
    return math || entry == words("svg")
               ? pageText(math ? words("FormulaAttributes.htm") : words("DrawingAttributes.htm"))
               : QString();
}

TEST(ReferencePages, StandForEveryElement)
{
    for (const Element &element : html().elements) {
        const QString page = pageText(QStringLiteral("Tag_%1.htm").arg(element.name.toUpper()));
        EXPECT_TRUE(page.contains(QStringLiteral("<h1>&lt;%1&gt;</h1>").arg(element.name))) << qPrintable(element.name);
        EXPECT_EQ(page.contains(QStringLiteral("class=\"deprecated\"")), element.deprecated)
            << qPrintable(element.name);
        EXPECT_TRUE(page.contains(QStringLiteral("<p class=\"syntax\"><code>&lt;%1").arg(element.name)))
            << qPrintable(element.name);
    }
}

TEST(ReferencePages, StandForEveryElementOfDrawingsAndFormulas)
{
    for (const auto &[entry, element] : html().inner) {
        const QString page = pageText(QStringLiteral("Tag_%1.htm").arg(element.name.toUpper()));
        EXPECT_TRUE(page.contains(QStringLiteral("<h1>&lt;%1&gt;</h1>").arg(element.name))) << qPrintable(element.name);
        if (html().element(element.name))
            continue; // its page is that of HTML
        const QString of = QStringLiteral("<a href=\"Tag_%1.htm\">").arg(entry.toUpper());
        EXPECT_TRUE(page.contains(of)) << qPrintable(element.name);
        const bool drawn = entry == words("svg");
        const QString shared = pageText(drawn ? words("DrawingAttributes.htm") : words("FormulaAttributes.htm"));
        for (const Attribute &attribute : element.attributes) {
            const QString told = QStringLiteral("<code>%1</code>").arg(attribute.name);
            EXPECT_TRUE(page.contains(told) || shared.contains(told) ||
                        html().element(words("div"))->attribute(attribute.name))
                << qPrintable(element.name + u' ' + attribute.name);
        }
    }
}

TEST(ReferencePages, TellOfEachAttributeAndItsValues)
{
    for (const Element &element : html().elements) {
        const QString page = pageText(QStringLiteral("Tag_%1.htm").arg(element.name.toUpper()));
        for (const Attribute &attribute : element.attributes) {
            const bool isEvent = attribute.name.startsWith(QLatin1String("on"));
            if (html().element(isEvent ? words("body") : words("span"))->attribute(attribute.name))
                continue; // it has them in common with others, and pages of their own tell of these
            if (sharedOf(element.name).contains(QStringLiteral("<code>%1</code>").arg(attribute.name)))
                continue;
            EXPECT_TRUE(page.contains(QStringLiteral("<code>%1</code>").arg(attribute.name)))
                << qPrintable(element.name + u' ' + attribute.name);
            for (const Value &value : attribute.values)
                EXPECT_TRUE(page.contains(QStringLiteral("<code>%1</code>").arg(value.text.toHtmlEscaped())))
                    << qPrintable(element.name + u' ' + attribute.name + value.text);
        }
    }
}

TEST(ReferencePages, HaveATitleAndOneHeadingAndTellTheirEncoding)
{
    for (const QString &name : pageNames()) {
        const QString page = pageText(name);
        EXPECT_FALSE(titleOf(page).isEmpty()) << qPrintable(name);
        EXPECT_EQ(page.count(QStringLiteral("<h1>")), 1) << qPrintable(name);
        EXPECT_TRUE(page.contains(QStringLiteral("<meta charset=\"utf-8\">"))) << qPrintable(name);
        EXPECT_FALSE(page.contains(QChar::ReplacementCharacter)) << qPrintable(name);
    }
}

// They have to be read on a dark ground as well as on a light one.
TEST(ReferencePages, LeaveColoursToTheHelpWindow)
{
    for (const QString &name : pageNames())
        EXPECT_EQ(captures(pageText(name), "(<(?:script|style|font)\\b|<[^>]*\\s(?:style|bgcolor|color)=[^>]*>)"),
                  QStringList())
            << qPrintable(name);
}

TEST(ReferencePages, LinkToPagesAndPlacesThatExist)
{
    for (const QString &name : pageNames()) {
        for (const QString &target : captures(pageText(name), "<a href=\"([^\"]*)\"")) {
            const QString file = target.section(u'#', 0, 0);
            const QString place = target.section(u'#', 1);
            const QString page = pageText(file.isEmpty() ? name : file);
            EXPECT_FALSE(page.isEmpty()) << qPrintable(name + u' ' + target);
            EXPECT_TRUE(place.isEmpty() || page.contains(QStringLiteral("<a name=\"%1\">").arg(place)))
                << qPrintable(name + u' ' + target);
        }
    }
}

TEST(ReferencePages, AreAllReachedFromTheIndex)
{
    QStringList reached{QStringLiteral("ReferenceIndex.htm")};
    for (qsizetype i = 0; i < reached.size(); ++i) {
        for (const QString &target : captures(pageText(reached.at(i)), "<a href=\"([^\"#]+)")) {
            if (!reached.contains(target))
                reached << target;
        }
    }
    reached << QStringLiteral("Information_KeywordNotFound.htm"); // only F1 leads there
    reached.sort();
    QStringList all = pageNames();
    all.sort();
    EXPECT_EQ(reached, all);
}

TEST(ReferencePages, TellOfEveryProperty)
{
    QString pages;
    for (const QString &name : pageNames().filter(QRegularExpression(QStringLiteral("^Css_"))))
        pages += pageText(name);
    for (const Property &property : css().properties)
        EXPECT_TRUE(pages.contains(QStringLiteral("<code>%1:</code>").arg(property.name))) << qPrintable(property.name);
}

TEST(ReferencePages, AreListedByTheirTitlesForTheIndexOfTheHelp)
{
    QStringList expected;
    for (const QString &name : pageNames()) {
        if (name != QLatin1String("Information_KeywordNotFound.htm"))
            expected << titleOf(pageText(name)) + QStringLiteral("\ttopics/reference/") + name;
    }
    expected.sort();
    const QString list = QString::fromUtf8(bytesOf(QStringLiteral("help/index-reference.txt")));
    EXPECT_TRUE(list.endsWith(u'\n'));
    QStringList lines = list.split(u'\n', Qt::SkipEmptyParts);
    lines.sort();
    EXPECT_EQ(lines, expected);
}
} // namespace
