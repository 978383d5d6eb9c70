#include "files/metaElements.h"

#include "common/text.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{
using Attributes = QHash<QString, QString>;

QString unquoted(const QString &value)
{
    const bool quoted = value.startsWith(u'"') || value.startsWith(u'\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

/// The attributes of a tag, by their names in lower case; the first of a name counts.
Attributes attributesOf(const QString &tag)
{
    static const QRegularExpression attribute(QStringLiteral(R"re(([^\s=/>"']+)\s*=\s*("[^"]*"|'[^']*'|[^\s>"']+))re"));
    Attributes attributes;
    for (auto match = attribute.globalMatch(tag); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString name = found.captured(1).toLower();
        if (!attributes.contains(name))
            attributes.insert(name, unquoted(found.captured(2)));
    }
    return attributes;
}

QString charsetOf(const Attributes &attributes)
{
    if (attributes.contains(QStringLiteral("charset")))
        return attributes.value(QStringLiteral("charset")).trimmed();
    if (attributes.value(QStringLiteral("http-equiv")).toLower() != u"content-type")
        return {};
    static const QRegularExpression charset(QStringLiteral(R"re(charset\s*=\s*["']?([^\s"';]+))re"),
                                            QRegularExpression::CaseInsensitiveOption);
    return charset.match(attributes.value(QStringLiteral("content"))).captured(1);
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
} // namespace

QString declaredCharset(const QString &pageText)
{
    // What a tag holds in quotes may hold a ">" too.
    static const QRegularExpression piece(
        QStringLiteral(R"re(<!--.*?(?:-->|$)|<meta(?=[\s/])(?:[^>"']++|"[^"]*+"|'[^']*+')*+)re"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    for (auto match = piece.globalMatch(pageText); match.hasNext();) {
        const QString tag = match.next().captured();
        const QString charset = tag.startsWith(u"<!--") ? QString() : charsetOf(attributesOf(tag));
        if (!charset.isEmpty())
            return charset;
    }
    return {};
}

bool namesEncoding(const QString &charset, Encoding encoding)
{
    const QString name = charset.trimmed().toLower();
    switch (encoding) {
    case Encoding::Utf8:
    case Encoding::Utf8Bom:
        return contains(utf8Names, name);
    case Encoding::Windows1252:
        return contains(windows1252Names, name);
    case Encoding::Utf16LE:
        return contains(littleEndianNames, name);
    case Encoding::Utf16BE:
        return contains(bigEndianNames, name);
    }
    return false;
}

QString metaContent(const QString &pageText, const QString &name)
{
    const QString opening = QStringLiteral("<meta name=\"") + name + QStringLiteral("\" content=\"");
    const qsizetype found = Find(LCase(pageText), opening).value_or(0);
    if (found == 0)
        return {};
    const qsizetype start = found + opening.size();
    const qsizetype end = Find(pageText, u"\"", start).value_or(0);
    return end == 0 ? QString() : Mid(pageText, start, end - start).value_or(QString());
}
