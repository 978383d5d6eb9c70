#include "document/tagPairs.h"

#include <gtest/gtest.h>

namespace
{
std::string names(const char *text)
{
    QStringList found;
    for (const FoundTag &tag : tagsOf(QString::fromUtf8(text)))
        found.append((tag.kind == FoundTag::Kind::Close ? QStringLiteral("/") : QString()) + tag.name +
                     (tag.kind == FoundTag::Kind::Alone ? QStringLiteral("!") : QString()));
    return found.join(u' ').toStdString();
}

TEST(TagsOf, FindsTagsAndNothingElse)
{
    EXPECT_EQ(names("<!DOCTYPE html><P class=a>x<br></p>"), "p br! /p");
    EXPECT_EQ(names("<a title=\"<b>\" href='>'>x</a>"), "a /a");
    EXPECT_EQ(names("<!-- <p> --><i/>"), "i!");
    EXPECT_EQ(names("<script>if (a<b) '<p>'</script><p>"), "script /script p");
    EXPECT_EQ(names("a < b <b <i>"), "i");
    EXPECT_EQ(names("<p it's>x</p>"), "p /p");
    EXPECT_EQ(names("<h1>x</h1"), "h1");
    EXPECT_EQ(names(""), "");
}

TEST(TagPairAt, GivesTheTagAndItsPartner)
{
    struct Row {
        const char *text;
        qsizetype position;
        qsizetype tag; ///< -1: none
        qsizetype partner;
    };
    const Row rows[] = {
        {"<p>a</p>", 0, 0, 4},
        {"<p>a</p>", 3, 0, 4},
        {"<p>a</p>", 6, 4, 0},
        {"<div><div></div></div>", 2, 0, 16},
        {"<div><div></div></div>", 7, 5, 10},
        {"<ul><li>a</ul>", 5, -1, 0},
        {"<ul><li>a</ul>", 1, 0, 9},
        {"<br>", 1, -1, 0},
        {"<b><i></i></b>", 3, 3, 6}, // between two, the one behind
        {"abc", 1, -1, 0},
    };
    for (const Row &row : rows) {
        const auto pair = tagPairAt(QString::fromUtf8(row.text), row.position);
        EXPECT_EQ(pair ? pair->tag.start : -1, row.tag) << row.text << " " << row.position;
        if (pair) {
            EXPECT_EQ(pair->partner.start, row.partner) << row.text << " " << row.position;
        }
    }
}

TEST(MissingEndTag, IsWhatTheStartTagLacks)
{
    struct Row {
        const char *text; ///< "|" is the caret
        const char *tag;
    };
    const Row rows[] = {
        {"<p>|", "</p>"},
        {"<DIV class=\"a\">|", "</DIV>"},
        {"<br>|", ""},
        {"<img src=\"a\">|", ""},
        {"<p/>|", ""},
        {"<p>|</p>", ""},
        {"<p>|text</p>", ""},
        {"<div><div>|</div>", "</div>"}, // the one there is the outer's
        {"<div><div>|</div></div>", ""},
        {"<ul><li>a<li>b</ul><ul><li>|</li></ul>", ""},
        {"<!-- <p>|", ""},
        {"<script>if (a>|", ""},
        {"<a title=\"x>|", ""},
        {"</p>|", ""},
        {"a>|", ""},
        {"<script>|", "</script>"},
        {"<my-part>|<p>", "</my-part>"},
    };
    for (const Row &row : rows) {
        QString text = QString::fromUtf8(row.text);
        const qsizetype caret = text.indexOf(u'|');
        EXPECT_EQ(missingEndTag(text.remove(caret, 1), caret).toStdString(), row.tag) << row.text;
    }
}

TEST(DoubledEndTag, IsTheOneBehindTheSameWithoutAStartTag)
{
    struct Row {
        const char *text; ///< "|" is the caret
        qsizetype length;
    };
    const Row rows[] = {
        {"<b>x</b>|</b>", 4},
        {"<ul><li>a</LI>|</li></ul>", 5},
        {"<b><b>x</b>|</b>", 0},
        {"<b>x</b>|</i>", 0},
        {"<b>x</b> |</b>", 0},
        {"<b>x</b>|", 0},
        {"<ul><li>a</li></ul>|</ul>", 5},
    };
    for (const Row &row : rows) {
        QString text = QString::fromUtf8(row.text);
        const qsizetype caret = text.indexOf(u'|');
        EXPECT_EQ(doubledEndTagBehind(text.remove(caret, 1), caret), row.length) << row.text;
    }
}

TEST(EndTagOfOpenElement, IsTheInnermostOnes)
{
    EXPECT_EQ(endTagOfOpenElement(u"<ul><LI>a", 9), QStringLiteral("</LI>"));
    EXPECT_EQ(endTagOfOpenElement(u"<ul><li>a</li>", 14), QStringLiteral("</ul>"));
    EXPECT_EQ(endTagOfOpenElement(u"<br>", 4), QString());
}
} // namespace
