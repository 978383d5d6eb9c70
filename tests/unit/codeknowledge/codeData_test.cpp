#include "unit/codeknowledge/dataFiles.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <gmock/gmock.h>

namespace
{
using namespace datafiles;
using testing::IsSubsetOf;

/// The names that stand more than once.
QStringList repeated(const QStringList &names)
{
    QSet<QString> seen;
    QStringList again;
    for (const QString &name : names) {
        if (seen.contains(name))
            again << name;
        seen << name;
    }
    return again;
}

QStringList namesOf(const auto &all)
{
    QStringList names;
    for (const auto &each : all)
        names << each.name;
    return names;
}

TEST(CodeData, IsWellFormed)
{
    EXPECT_EQ(html().faults.join(u'\n'), QString());
    EXPECT_EQ(css().faults.join(u'\n'), QString());
}

TEST(CodeData, HoldsAllThatThereIs)
{
    EXPECT_GE(html().elements.size(), 140U);
    EXPECT_GE(css().properties.size(), 600U);
    size_t attributes = 0;
    for (const Element &element : html().elements)
        attributes += element.attributes.size();
    EXPECT_GE(attributes, 4000U);
}

// What is typed finds the first row that begins so, which is not to be one that is out of use.
TEST(CodeData, NamesElementsInLowerCaseAndByLetterTheDeprecatedOnesLast)
{
    QStringList current;
    QStringList deprecated;
    for (const Element &element : html().elements) {
        EXPECT_EQ(element.name, element.name.toLower());
        EXPECT_TRUE(element.deprecated || deprecated.isEmpty()) << qPrintable(element.name);
        (element.deprecated ? deprecated : current) << element.name;
    }
    for (const QStringList &names : {current, deprecated}) {
        QStringList sorted = names;
        sorted.sort();
        EXPECT_EQ(names, sorted);
    }
    EXPECT_EQ(repeated(current + deprecated), QStringList());
}

TEST(CodeData, HoldsDrawingsAndFormulasUnderTheirEntries)
{
    QStringList names;
    for (const auto &[entry, element] : html().inner) {
        EXPECT_NE(html().element(entry), nullptr) << qPrintable(entry);
        names << entry + u'>' + element.name;
        for (const char *name : {"class=", "id=", "style=", "onclick="})
            EXPECT_NE(element.attribute(words(name)), nullptr) << qPrintable(names.last()) << ' ' << name;
    }
    EXPECT_EQ(names.filter(words("svg>")).size(), 62); // and svg itself
    EXPECT_EQ(names.filter(words("math>")).size(), 32);
    EXPECT_EQ(repeated(names), QStringList());
}

TEST(CodeData, FindsTableFirstOfAllThatBeginSo)
{
    QStringList names = namesOf(html().elements);
    EXPECT_EQ(names.filter(QRegularExpression(QStringLiteral("^ta"))).value(0), words("table"));
}

TEST(CodeData, NamesNoAttributeOfAnElementAndNoValueOfAnAttributeTwice)
{
    for (const Element &element : html().elements) {
        EXPECT_EQ(repeated(namesOf(element.attributes)), QStringList()) << qPrintable(element.name);
        for (const Attribute &attribute : element.attributes)
            EXPECT_EQ(repeated(markedValues(attribute)), QStringList()) << qPrintable(element.name + attribute.name);
    }
}

// A second property of a name would end the program's reading there.
TEST(CodeData, NamesNoPropertyTwice)
{
    EXPECT_EQ(repeated(namesOf(css().properties)), QStringList());
    for (const Property &property : css().properties)
        EXPECT_EQ(repeated(property.values), QStringList()) << qPrintable(property.name);
}

TEST(CodeData, HasAValueForEveryProperty)
{
    const QStringList every{words("inherit"), words("initial"), words("revert"), words("unset")};
    for (const Property &property : css().properties)
        EXPECT_THAT(every, IsSubsetOf(property.values)) << qPrintable(property.name);
}

// --- What elements have in common ---

TEST(CodeData, PutsOwnAttributesFirstThenGlobalOnesThenEventsThenWhatIsDeprecated)
{
    const Element *image = html().element(words("img"));
    ASSERT_NE(image, nullptr);
    const QStringList names = namesOf(image->attributes);
    EXPECT_EQ(names.first(3), (QStringList{words("src="), words("alt"), words("alt=")}));
    const qsizetype firstGlobal = names.indexOf(words("accesskey="));
    const qsizetype firstEvent = names.indexOf(words("onabort="));
    const qsizetype firstDeprecated = names.indexOf(words("align="));
    EXPECT_LT(names.indexOf(words("width=")), firstGlobal);
    EXPECT_LT(names.indexOf(words("writingsuggestions=")), firstEvent);
    EXPECT_EQ(firstEvent, names.indexOf(QRegularExpression(QStringLiteral("^on.*"))));
    EXPECT_EQ(names[firstDeprecated - 1], words("onwheel="));
    EXPECT_TRUE(std::is_sorted(names.begin() + firstEvent, names.begin() + firstDeprecated));
    for (qsizetype i = 0; i < names.size(); ++i)
        EXPECT_EQ(image->attributes[static_cast<size_t>(i)].deprecated, i >= firstDeprecated) << qPrintable(names[i]);
}

TEST(CodeData, GivesEveryElementTheGlobalAttributesAndTheEvents)
{
    for (const Element &element : html().elements) {
        if (element.name == words("!doctype"))
            continue; // no element
        for (const char *name : {"class=", "id=", "style=", "lang=", "tabindex=", "nonce=", "autofocus", "onclick=",
                                 "ondblclick=", "onkeypress=", "onmouseover=", "onload=", "onfocus=", "onpointerdown="})
            EXPECT_NE(element.attribute(words(name)), nullptr) << qPrintable(element.name) << ' ' << name;
        if (element.name == words("math") || element.name == words("svg"))
            continue; // of other languages
        for (const char *name :
             {"accesskey=", "contenteditable=", "dir=", "draggable=", "enterkeyhint=", "hidden", "hidden=", "inert",
              "inputmode=", "itemscope", "popover=", "spellcheck=", "title=", "translate="})
            EXPECT_NE(element.attribute(words(name)), nullptr) << qPrintable(element.name) << ' ' << name;
    }
}

TEST(CodeData, GivesEventsOfTheWindowToBodyAndFramesetAlone)
{
    for (const Element &element : html().elements) {
        const bool window = element.name == words("body") || element.name == words("frameset");
        EXPECT_EQ(element.attribute(words("onbeforeunload=")) != nullptr, window) << qPrintable(element.name);
        EXPECT_EQ(element.attribute(words("onunload=")) != nullptr, window) << qPrintable(element.name);
    }
}
} // namespace
