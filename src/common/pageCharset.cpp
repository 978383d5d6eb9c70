#include "common/pageCharset.h"

#include "common/charsets.h"
#include "common/utf8.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{
/// As far as a page's bytes are searched for the name of its encoding.
constexpr qsizetype SearchedBytes = 64 * 1024;

/// A name of an encoding in a page.
struct Mention {
    qsizetype start = 0;
    QString name;
};

/// An attribute's value: where it starts in the page, without its quotes.
struct Value {
    qsizetype start = 0;
    QString text;
};

Value unquoted(const Value &value)
{
    const bool quoted = value.text.startsWith(u'"') || value.text.startsWith(u'\'');
    return quoted ? Value{value.start + 1, value.text.sliced(1, value.text.size() - 2)} : value;
}

/// The attributes of a tag, by their names in lower case; the first of a name counts.
QHash<QString, Value> attributesOf(const QString &tag, qsizetype tagStart)
{
    static const QRegularExpression attribute(QStringLiteral(R"re(([^\s=/>"']+)\s*=\s*("[^"]*"|'[^']*'|[^\s>"']+))re"));
    QHash<QString, Value> attributes;
    for (auto match = attribute.globalMatch(tag); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString name = found.captured(1).toLower();
        if (!attributes.contains(name))
            attributes.insert(name, unquoted({tagStart + found.capturedStart(2), found.captured(2)}));
    }
    return attributes;
}

Mention trimmed(const Value &value)
{
    qsizetype blanks = 0;
    while (blanks < value.text.size() && value.text[blanks].isSpace())
        ++blanks;
    return {value.start + blanks, value.text.trimmed()};
}

Mention mentionInMeta(const QString &tag, qsizetype tagStart)
{
    const QHash<QString, Value> attributes = attributesOf(tag, tagStart);
    if (attributes.contains(QStringLiteral("charset")))
        return trimmed(attributes.value(QStringLiteral("charset")));
    if (attributes.value(QStringLiteral("http-equiv")).text.toLower() != u"content-type")
        return {};
    static const QRegularExpression charset(QStringLiteral(R"re(charset\s*=\s*["']?([^\s"';]+))re"),
                                            QRegularExpression::CaseInsensitiveOption);
    const Value content = attributes.value(QStringLiteral("content"));
    const QRegularExpressionMatch match = charset.match(content.text);
    return {content.start + qMax<qsizetype>(match.capturedStart(1), 0), match.captured(1)};
}

Mention mentionInXml(const QString &pageText)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"re(^<\?xml\s[^?>]*?\bencoding\s*=\s*(?:"([^"]*)"|'([^']*)'))re"));
    const QRegularExpressionMatch match = declaration.match(pageText);
    const int group = match.capturedStart(2) >= 0 ? 2 : 1;
    return match.hasMatch() ? Mention{match.capturedStart(group), match.captured(group)} : Mention();
}

/// All of them in their order, or the first one alone.
QList<Mention> mentionsIn(const QString &pageText, bool onlyFirst)
{
    // What a tag holds in quotes may hold a ">" too.
    static const QRegularExpression piece(
        QStringLiteral(R"re(<!--.*?(?:-->|$)|<meta(?=[\s/])(?:[^>"']++|"[^"]*+"|'[^']*+')*+)re"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QList<Mention> mentions;
    const auto take = [&](const Mention &mention) {
        if (!mention.name.isEmpty())
            mentions.append(mention);
        return onlyFirst && !mentions.isEmpty();
    };
    if (take(mentionInXml(pageText)))
        return mentions;
    for (auto match = piece.globalMatch(pageText); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString tag = found.captured();
        if (!tag.startsWith(u"<!--") && take(mentionInMeta(tag, found.capturedStart())))
            break;
    }
    return mentions;
}

QString withNewMeta(const QString &pageText, const QString &charset)
{
    static const QRegularExpression head(QStringLiteral(R"re(<head(?:\s(?:[^>"']++|"[^"]*+"|'[^']*+')*+)?>)re"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = head.match(pageText);
    if (!match.hasMatch())
        return pageText;
    QString page = pageText;
    return page.insert(match.capturedEnd(), QStringLiteral("\r\n<meta charset=\"%1\">").arg(charset));
}

constexpr std::array utf8Names{"utf-8", "utf8", "unicode-1-1-utf-8", "x-unicode20utf8"};
constexpr std::array windows1252Names{"windows-1252", "cp1252",     "x-cp1252",  "ansi_x3.4-1968", "ascii",
                                      "us-ascii",     "cp819",      "ibm819",    "csisolatin1",    "latin1",
                                      "l1",           "iso-8859-1", "iso8859-1", "iso88591",       "iso_8859-1"};
constexpr std::array littleEndianNames{"utf-16", "utf-16le", "unicode", "csunicode", "ucs-2", "unicodefeff"};
constexpr std::array bigEndianNames{"utf-16", "utf-16be", "unicodefffe"};

template <std::size_t Count>
bool contains(const std::array<const char *, Count> &names, const QString &name)
{
    return std::any_of(names.begin(), names.end(), [&](const char *known) { return name == QLatin1String(known); });
}

/// UTF-8 that no other encoding is to be taken for: it has a mark, or characters that only it writes so.
bool isSurelyUtf8(const QByteArray &bytes)
{
    const std::optional<Utf8Contents> contents = utf8Contents(bytes);
    return contents && !contents->onlyAscii;
}
} // namespace

QString declaredCharset(const QString &pageText)
{
    const QList<Mention> mentions = mentionsIn(pageText, true);
    return mentions.isEmpty() ? QString() : mentions.first().name;
}

bool namesEncoding(const QString &charset, const FileFormat &format)
{
    const QString name = charset.trimmed().toLower();
    switch (format.encoding) {
    case Encoding::Utf8:
    case Encoding::Utf8Bom:
        return contains(utf8Names, name);
    case Encoding::Windows1252:
        return contains(windows1252Names, name);
    case Encoding::Utf16LE:
        return contains(littleEndianNames, name);
    case Encoding::Utf16BE:
        return contains(bigEndianNames, name);
    case Encoding::Other:
        return charsetOfLabel(charset) == format.charset;
    }
    return false;
}

QString withDeclaredCharset(const QString &pageText, const QString &charset)
{
    const QList<Mention> mentions = mentionsIn(pageText, false);
    if (mentions.isEmpty())
        return withNewMeta(pageText, charset);
    QString page = pageText;
    for (auto mention = mentions.rbegin(); mention != mentions.rend(); ++mention)
        page.replace(mention->start, mention->name.size(), charset);
    return page;
}

DecodedText decodePage(const QByteArray &bytes, bool unicodeRow)
{
    if (unicodeRow || hasUtf16Mark(bytes))
        return decode(bytes, true);
    if (isSurelyUtf8(bytes))
        return decode(bytes);
    const QString label = declaredCharset(QString::fromLatin1(bytes.first(qMin(bytes.size(), SearchedBytes))));
    const std::optional<QString> charset = charsetOfLabel(label);
    if (!charset)
        return decode(bytes);
    return decodeAs(bytes, *charset).value_or(decode(bytes));
}
