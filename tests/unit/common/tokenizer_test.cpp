#include "common/html/tokenizer.h"

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <string>

namespace
{
using html::TextMode;
using html::TokenKind;

QString kindName(TokenKind kind)
{
    static const char *const names[] = {"text", "raw", "start", "end", "comment", "doctype", "cdata", ""};
    return QLatin1String(names[static_cast<int>(kind)]);
}

TextMode modeOf(const QString &name)
{
    if (name == u"script")
        return TextMode::Script;
    if (name == u"style" || name == u"xmp")
        return TextMode::Raw;
    if (name == u"title" || name == u"textarea")
        return TextMode::Rcdata;
    return name == u"plaintext" ? TextMode::Plain : TextMode::Markup;
}

/// The tokens of a text as "kind:text", parted by "|"; elements that hold raw text are known by their names.
QString tokens(const QString &text, bool foreign = false)
{
    html::Tokenizer tokenizer(text);
    tokenizer.setForeign(foreign);
    QStringList told;
    qsizetype at = 0;
    while (true) {
        const html::Token &token = tokenizer.next();
        EXPECT_EQ(token.range.start, at); // nothing is passed over
        at = token.end();
        if (token.kind == TokenKind::End)
            break;
        told << kindName(token.kind) + u':' + tokenizer.textOf(token.range).toString();
        const QStringView name = tokenizer.textOf(token.name);
        if (token.kind == TokenKind::StartTag)
            tokenizer.setMode(modeOf(name.toString().toLower()), name);
    }
    EXPECT_EQ(at, text.size());
    return told.join(u'|');
}

struct TokenRow {
    const char *text;
    const char *tokens;
};

TEST(Tokenizer, TakesATextApart)
{
    const TokenRow rows[] = {
        {"", ""},
        {"a", "text:a"},
        {"<p>a</p>", "start:<p>|text:a|end:</p>"},
        {"<P A=1>x", "start:<P A=1>|text:x"},
        {"a<b", "text:a|start:<b"},
        {"1 < 2", "text:1 |text:<|text: 2"},
        {"<a title=\">\">", "start:<a title=\">\">"},
        {"<a title='>'>x", "start:<a title='>'>|text:x"},
        {"<!DOCTYPE html>x", "doctype:<!DOCTYPE html>|text:x"},
        {"<!-- <p> -->x", "comment:<!-- <p> -->|text:x"},
        {"<!-->x", "comment:<!-->|text:x"},
        {"<!--->x", "comment:<!--->|text:x"},
        {"<!-- a --!>x", "comment:<!-- a --!>|text:x"},
        {"<!-- a", "comment:<!-- a"},
        {"<?x ?>y", "comment:<?x ?>|text:y"},
        {"</>x", "comment:</>|text:x"},
        {"</ a>x", "comment:</ a>|text:x"},
        {"<![CDATA[a]]>", "comment:<![CDATA[a]]>"},
        {"<br/>", "start:<br/>"},
        {"</", "text:</"},
    };
    for (const TokenRow &row : rows)
        EXPECT_EQ(tokens(QString::fromUtf8(row.text)).toStdString(), row.tokens) << row.text;
}

TEST(Tokenizer, ReadsRawTextToItsEndTag)
{
    const TokenRow rows[] = {
        {"<style>a<b></style>c", "start:<style>|raw:a<b>|end:</style>|text:c"},
        {"<style></style>", "start:<style>|end:</style>"},
        {"<title>a<b></TITLE>", "start:<title>|raw:a<b>|end:</TITLE>"},
        {"<title>a</titles></title>", "start:<title>|raw:a</titles>|end:</title>"},
        {"<script>a</script>b", "start:<script>|raw:a|end:</script>|text:b"},
        {"<script><!-- </script>b", "start:<script>|raw:<!-- |end:</script>|text:b"},
        {"<script><!-- <script> </script> --></script>b",
         "start:<script>|raw:<!-- <script> </script> -->|end:</script>|text:b"},
        {"<script><!--><script></script>b", "start:<script>|raw:<!--><script>|end:</script>|text:b"},
        {"<script>a", "start:<script>|raw:a"},
        {"<plaintext></plaintext>", "start:<plaintext>|raw:</plaintext>"},
    };
    for (const TokenRow &row : rows)
        EXPECT_EQ(tokens(QString::fromUtf8(row.text)).toStdString(), row.tokens) << row.text;
}

TEST(Tokenizer, KnowsCDataInForeignContentAlone)
{
    EXPECT_EQ(tokens(QStringLiteral("<![CDATA[<a>]]>b"), true).toStdString(), "cdata:<![CDATA[<a>]]>|text:b");
    EXPECT_EQ(tokens(QStringLiteral("<![CDATA[<a>]]>b")).toStdString(), "comment:<![CDATA[<a>|text:]]>b");
}

/// The attributes of the first tag as "name=value", without "=" where there is none; twice: "name!".
QString attributes(const QString &text)
{
    html::Tokenizer tokenizer(text);
    QStringList told;
    for (const html::Attribute &attribute : tokenizer.next().attributes)
        told << tokenizer.textOf(attribute.name).toString() + (attribute.twice ? QStringLiteral("!") : QString()) +
                    (attribute.valued ? u'=' + tokenizer.textOf(attribute.value).toString() : QString());
    return told.join(u'|');
}

TEST(Tokenizer, ReadsAttributes)
{
    const TokenRow rows[] = {
        {"<a b c>", "b|c"},      {"<a b=1 c='2' d=\"3\">", "b=1|c=2|d=3"},
        {"<a b = 1>", "b=1"},    {"<a b=1/>", "b=1/"},
        {"<a b='1'c>", "b=1|c"}, {"<a b B=2>", "b|B!=2"},
        {"<a b=>", "b="},        {"<a =b>", "=b"},
        {"<a/b>", "b"},          {"<a b=\"x>", "b=x>"},
    };
    for (const TokenRow &row : rows)
        EXPECT_EQ(attributes(QString::fromUtf8(row.text)).toStdString(), row.tokens) << row.text;
}

using html::Fault;
struct FaultRow {
    const char *text;
    QList<Fault> faults;
    qsizetype start;
};

TEST(Tokenizer, TellsWhatItStumblesOver)
{
    const FaultRow rows[] = {
        {"<a b b>", {Fault::AttributeTwice}, 5},
        {"<a b\"c>", {Fault::AttributeNameCharacter}, 4},
        {"<a b=c\"d>", {Fault::AttributeValueCharacter}, 6},
        {"<a b=>", {Fault::AttributeValueMissing}, 3},
        {"<a b=\"c\"d>", {Fault::AttributesUnparted}, 8},
        {"<a / b>", {Fault::SlashInTag}, 3},
        {"<a b", {Fault::TagNotClosed}, 0},
        {"</>", {Fault::TagNameMissing}, 0},
        {"</a b>", {Fault::EndTagWithAttributes}, 4},
        {"</a/>", {Fault::EndTagWithSlash}, 3},
        {"< a", {Fault::LessThanInText}, 0},
        {"<!-- a", {Fault::CommentNotClosed}, 0},
        {"<!-->", {Fault::CommentAbrupt}, 0},
        {"<!-- a <!-- b -->", {Fault::CommentNested}, 7},
        {"<!-- a <!-->", {}, 0},
        {"<!-- a --!>", {Fault::CommentEndsWithBang}, 7},
        {"<!a>", {Fault::CommentBogus}, 0},
        {"<?a?>", {Fault::ProcessingInstruction}, 0},
        {"<![CDATA[a]]>", {Fault::CDataInHtml}, 0},
        {"<!DOCTYPE>", {Fault::DoctypeMalformed}, 0},
        {"<!DOCTYPE html x>", {Fault::DoctypeMalformed}, 0},
        {"<!DOCTYPE html PUBLIC \"a\" \"b\">", {}, 0},
        {"<!doctype html>", {}, 0},
        {"<a b='\"' c=\"'\" d/>", {}, 0},
    };
    for (const FaultRow &row : rows) {
        const QString text = QString::fromUtf8(row.text);
        html::Tokenizer tokenizer(text);
        QList<Fault> faults;
        const QList<html::FoundFault> found = tokenizer.next().faults;
        for (const html::FoundFault &fault : found)
            faults << fault.fault;
        EXPECT_EQ(faults, row.faults) << row.text;
        EXPECT_EQ(found.isEmpty() ? row.start : found[0].range.start, row.start) << row.text;
    }
}
} // namespace
