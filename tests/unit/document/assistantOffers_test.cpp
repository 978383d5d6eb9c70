#include "document/assistantOffers.h"

#include "texttools/pageRules.h"

#include <QFile>
#include <gtest/gtest.h>

namespace
{
using Kind = TagPlace::Kind;

struct PlaceRow {
    const char *before;
    TagPlace place;
};

TEST(TagPlaceAtEnd, TellsWhatIsTyped)
{
    const QString a = QStringLiteral("a");
    const QString href = QStringLiteral("href");
    const PlaceRow rows[] = {
        {"", {}},
        {"text", {}},
        {"<b>text", {}},
        {"x <", {Kind::Element, 2, 3, {}, {}, {}, false}},
        {"<di", {Kind::Element, 0, 1, {}, {}, {}, false}},
        {"</di", {Kind::EndTag, 0, 2, {}, {}, {}, false}},
        {"<!-", {}},
        {"<a ", {Kind::Attribute, 0, 3, a, {}, {}, false}},
        {"<A hr", {Kind::Attribute, 0, 3, a, {}, {}, false}},
        {"<a href=x ta", {Kind::Attribute, 0, 10, a, {}, {href}, false}},
        {"<a href", {Kind::Attribute, 0, 3, a, {}, {}, false}},
        {"<a href=", {Kind::Value, 0, 8, a, href, {href}, false}},
        {"<a href=im", {Kind::Value, 0, 8, a, href, {href}, false}},
        {"<a href=\"i m", {Kind::Value, 0, 9, a, href, {href}, true}},
        {"<a href=\"x\"", {Kind::Elsewhere, 0, 0, a, {}, {href}, false}},
        {"<a href='a>b' ", {Kind::Attribute, 0, 14, a, {}, {href}, false}},
        {"<a href=x>", {}},
        {"a < b", {}},
    };
    for (const PlaceRow &row : rows) {
        const TagPlace place = tagPlaceAtEnd(QString::fromUtf8(row.before));
        EXPECT_EQ(place.kind, row.place.kind) << row.before;
        const bool isSame = row.place.kind == Kind::Elsewhere || place == row.place;
        EXPECT_TRUE(isSame) << row.before << ' ' << place.start;
    }
}

class OffersTest : public testing::Test
{
protected:
    OffersTest()
    {
        QFile file(QStringLiteral(TEST_SOURCE_DIR "/data/Page.rules"));
        if (file.open(QFile::ReadOnly))
            rules = PageRules::read(file.readAll());
    }
    QStringList offered(const char *before) const
    {
        QStringList texts;
        for (const Offer &offer : offersAtEnd(QString::fromUtf8(before), sources()).rows)
            texts.append(offer.text);
        return texts;
    }
    OfferSources sources() const
    {
        return {.vocabulary = rules ? &rules->today() : nullptr,
                .classes =
                    [] {
                        return QStringList{QStringLiteral("big"), QStringLiteral("note")};
                    },
                .ids = [] { return QStringList{QStringLiteral("top")}; },
                .files =
                    [](const QString &folder) {
                        return folder == u"img/" ? QStringList{QStringLiteral("a.png")}
                                                 : QStringList{QStringLiteral("img/"), QStringLiteral("index.html")};
                    }};
    }
    static QStringList names(const char *list) { return QString::fromLatin1(list).split(u' '); }

    std::shared_ptr<const PageRules> rules;
};

TEST_F(OffersTest, AreElementsThatMayStandThere)
{
    ASSERT_TRUE(rules);
    EXPECT_EQ(offered("<ul><l"), names("li template"));                   // what begins with it, and what holds it
    EXPECT_TRUE(offered("<ul><li>one<l").contains(QStringLiteral("li"))); // the item's end tag may be left out
    EXPECT_FALSE(offered("<p><d").contains(QStringLiteral("div")));
    EXPECT_TRUE(offered("<div><d").contains(QStringLiteral("div")));
    EXPECT_FALSE(offered("<a href=x><b><a").contains(QStringLiteral("a"))); // no link within a link
    const QStringList inRow = offered("<table><tr><t");
    for (const QString &name : names("td th tr tbody template")) // a row and its group may stay open as well
        EXPECT_TRUE(inRow.contains(name)) << name.toStdString();
    EXPECT_FALSE(inRow.contains(QStringLiteral("table")));
    EXPECT_TRUE(offered("<zz").isEmpty());
    EXPECT_TRUE(offered("<script>if (a<b").isEmpty());
}

TEST_F(OffersTest, PutWhatIsDeprecatedLast)
{
    const QStringList rows = offered("<div><b");
    const qsizetype last = std::max(rows.indexOf(QStringLiteral("button")), rows.indexOf(QStringLiteral("tbody")));
    EXPECT_GT(rows.indexOf(QStringLiteral("big")), last);
    EXPECT_EQ(rows.first(), QStringLiteral("b"));
    EXPECT_LT(rows.indexOf(QStringLiteral("br")), rows.indexOf(QStringLiteral("label"))); // which holds a "b"
}

TEST_F(OffersTest, AreAttributesWithTheElementsOwnFirst)
{
    const QStringList rows = offered("<img ");
    EXPECT_LT(rows.indexOf(QStringLiteral("src")), 3); // what it must have stands in front
    EXPECT_LT(rows.indexOf(QStringLiteral("width")), rows.indexOf(QStringLiteral("class")));
    EXPECT_LT(rows.indexOf(QStringLiteral("class")), rows.indexOf(QStringLiteral("border")));
    EXPECT_FALSE(rows.contains(QStringLiteral("href")));
    EXPECT_FALSE(offered("<img alt='' ").contains(QStringLiteral("alt")));
    EXPECT_TRUE(offered("<unknown ").isEmpty());
    const Offers sources = offersAtEnd(u"<input disa", this->sources());
    ASSERT_FALSE(sources.rows.isEmpty());
    EXPECT_EQ(sources.rows[0].written, QStringLiteral("disabled")); // which takes no value
    const Offers withValue = offersAtEnd(u"<a hre", this->sources());
    EXPECT_EQ(withValue.start, 3);
    EXPECT_EQ(withValue.rows[0].written, QStringLiteral("href=\"\""));
    EXPECT_EQ(withValue.rows[0].caretBack, 1);
}

TEST_F(OffersTest, AreValuesNamesAndFiles)
{
    EXPECT_EQ(offered("<input type=\"che"), QStringList{QStringLiteral("checkbox")});
    EXPECT_EQ(offered("<p class=\""), names("big note"));
    EXPECT_EQ(offered("<p class=\"big no"), QStringList{QStringLiteral("note")});
    EXPECT_EQ(offered("<p id=t"), QStringList{QStringLiteral("top")});
    EXPECT_EQ(offered("<a href=\""), names("img/ index.html"));
    EXPECT_EQ(offersAtEnd(u"<img src=\"img/", sources()).start, 14);
    EXPECT_EQ(offered("<img src=\"img/"), QStringList{QStringLiteral("a.png")});
    EXPECT_TRUE(offered("<p title=\"x").isEmpty());
}

TEST_F(OffersTest, AreEndTagsOfWhatIsOpen)
{
    EXPECT_EQ(offered("<div><p>a <b>c</"), names("b p div"));
    EXPECT_EQ(offered("<div><p>a <b>c</b></"), names("p div"));
    EXPECT_EQ(offersAtEnd(u"<div>a</d", sources()).rows.at(0).written, QStringLiteral("div>"));
    EXPECT_TRUE(offered("<br></").isEmpty());
    EXPECT_EQ(offered("<script>a</"), QStringList{QStringLiteral("script")});
}

TEST_F(OffersTest, TellTheElementsOwnSyntax)
{
    ASSERT_TRUE(rules);
    const QString syntax = ownSyntax(rules->today(), QStringLiteral("ol"));
    EXPECT_TRUE(syntax.startsWith(QStringLiteral("<ol reversed start= type="))) << syntax.toStdString();
    EXPECT_TRUE(syntax.endsWith(
        QStringLiteral("and %1 attributes that all elements take").arg(rules->today().commonAttributes().size())));
    EXPECT_EQ(ownSyntax(rules->today(), QStringLiteral("nothing")), QString());
}

TEST(NamesInStyleSheet, StandInSelectors)
{
    const QString sheet = QStringLiteral("/* .no */ .big, p.note:hover{color:#fff; background:url(a.png)}\n"
                                         "#top{margin:.5em} @media print{.thin{top:0} #side a{}} .big{}");
    EXPECT_EQ(namesInStyleSheet(sheet, u'.'),
              (QStringList{QStringLiteral("big"), QStringLiteral("note"), QStringLiteral("thin")}));
    EXPECT_EQ(namesInStyleSheet(sheet, u'#'), (QStringList{QStringLiteral("side"), QStringLiteral("top")}));
}
} // namespace
