#include "texttools/pageValues.h"

#include "common/html/tokenizer.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace
{
QStringView trimmed(QStringView value)
{
    while (!value.isEmpty() && html::isBlank(value.front().unicode()))
        value = value.mid(1);
    while (!value.isEmpty() && html::isBlank(value.back().unicode()))
        value.chop(1);
    return value;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool matches(const QString &pattern, QStringView value)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(value.toString()).hasMatch();
}

const QString Date = QStringLiteral(R"(\d{4,}-(0[1-9]|1[0-2])-(0[1-9]|[12]\d|3[01]))");
const QString Time = QStringLiteral(R"(([01]\d|2[0-3]):[0-5]\d(:[0-5]\d(\.\d{1,3})?)?)");
const QString Zone = QStringLiteral(R"((Z|[+-]([01]\d|2[0-3]):?[0-5]\d))");

ValueFault wrong(QStringView attribute, QStringView value, const QString &remedy)
{
    ValueFault fault;
    constexpr qsizetype Most = 60;
    QString shown = value.toString().simplified();
    if (shown.size() > Most)
        shown = shown.left(Most) + u'\u2026';
    fault.message = QStringLiteral("\"%1\" is no value of %2.").arg(shown, attribute.toString().toLower());
    fault.remedy = remedy;
    return fault;
}

/// The words of a closed list, for telling them.
QString told(const QStringList &words)
{
    constexpr int Most = 8;
    QStringList shown;
    for (const QString &word : words)
        if (!word.isEmpty())
            shown.append(word);
    if (shown.size() > Most)
        return QStringLiteral("One of %1 and others.").arg(shown.mid(0, Most).join(QStringLiteral(", ")));
    return QStringLiteral("One of %1.").arg(shown.join(QStringLiteral(", ")));
}

bool isOneOf(const QStringList &words, QStringView value, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return value.compare(word, sensitivity) == 0; });
}

bool isAutofill(QStringView value)
{
    static const NameTable names = NameTable::of(
        "on off name honorific-prefix given-name additional-name family-name honorific-suffix nickname "
        "username new-password current-password one-time-code organization-title organization street-address "
        "address-line1 address-line2 address-line3 address-level4 address-level3 address-level2 "
        "address-level1 country country-name postal-code cc-name cc-given-name cc-additional-name "
        "cc-family-name cc-number cc-exp cc-exp-month cc-exp-year cc-csc cc-type transaction-currency "
        "transaction-amount language bday bday-day bday-month bday-year sex url photo tel tel-country-code "
        "tel-national tel-area-code tel-local tel-local-prefix tel-local-suffix tel-extension email impp "
        "webauthn shipping billing home work mobile fax pager");
    const QList<QStringView> words = wordsOfValue(value);
    return std::all_of(words.begin(), words.end(), [](QStringView word) {
        return names.find(word) > 0 || word.startsWith(QLatin1String("section-"), Qt::CaseInsensitive);
    });
}

ValueFault faultOfWords(const AttributeRule &rule, QStringView attribute, QStringView value)
{
    for (const QStringView word : wordsOfValue(value))
        if (!isOneOf(rule.words, word))
            return wrong(attribute, word, told(rule.words));
    return {};
}

ValueFault faultOfFlag(QStringView attribute, QStringView value)
{
    if (value.isEmpty() || value.compare(attribute, Qt::CaseInsensitive) == 0)
        return {};
    ValueFault fault =
        wrong(attribute, value,
              QStringLiteral("%1 alone: it counts whatever its value is.").arg(attribute.toString().toLower()));
    if (value.compare(u"true", Qt::CaseInsensitive) == 0)
        fault.fix = QLatin1String("");
    return fault;
}

ValueFault faultOfName(QStringView attribute, QStringView value, bool many)
{
    if (value.isEmpty() && !many)
        return wrong(attribute, value, QStringLiteral("A name without blanks."));
    const bool blank = std::any_of(value.begin(), value.end(), [](QChar c) { return html::isBlank(c.unicode()); });
    return blank && !many ? wrong(attribute, value, QStringLiteral("A name without blanks.")) : ValueFault();
}

ValueFault faultOfNumber(const AttributeRule &rule, QStringView attribute, QStringView value)
{
    switch (rule.kind) {
    case ValueKind::Integer:
        return isInteger(value) ? ValueFault() : wrong(attribute, value, QStringLiteral("A whole number."));
    case ValueKind::Natural:
        if (isNatural(value))
            return {};
        break;
    case ValueKind::Positive:
        if (isNatural(value) && std::any_of(value.begin(), value.end(), [](QChar c) { return c != u'0'; }))
            return {};
        return wrong(attribute, value, QStringLiteral("A whole number from 1 up."));
    default:
        return isNumber(value) ? ValueFault() : wrong(attribute, value, QStringLiteral("A number."));
    }
    ValueFault fault = wrong(attribute, value, QStringLiteral("A whole number, without a unit."));
    if (value.endsWith(QLatin1String("px"), Qt::CaseInsensitive) && isNatural(value.chopped(2)))
        fault.fix = value.chopped(2).toString();
    return fault;
}

ValueFault faultOfTarget(QStringView attribute, QStringView value)
{
    static const QStringList known = {QStringLiteral("_blank"), QStringLiteral("_self"), QStringLiteral("_parent"),
                                      QStringLiteral("_top"), QStringLiteral("_unfencedTop")};
    if (value.isEmpty() || (value.startsWith(u'_') && !isOneOf(known, value)))
        return wrong(attribute, value,
                     QStringLiteral("A name that does not begin with \"_\", or one of _blank, _self, _parent, _top."));
    return {};
}

ValueFault faultOfCharacters(QStringView attribute, QStringView value)
{
    for (const QStringView word : wordsOfValue(value))
        if (word.size() > 2 || (word.size() == 2 && !word[0].isHighSurrogate()))
            return wrong(attribute, value, QStringLiteral("Single characters, parted by blanks."));
    return {};
}

ValueFault faultOfAddress(QStringView attribute, QStringView value, bool filled)
{
    if (filled && trimmed(value).isEmpty())
        return wrong(attribute, value, QStringLiteral("An address."));
    const QString why = faultOfUrl(trimmed(value));
    return why.isEmpty() ? ValueFault() : wrong(attribute, value, why);
}
} // namespace

QList<QStringView> wordsOfValue(QStringView value)
{
    QList<QStringView> words;
    qsizetype start = -1;
    for (qsizetype i = 0; i <= value.size(); ++i) {
        const bool blank = i == value.size() || html::isBlank(value[i].unicode());
        if (!blank && start < 0)
            start = i;
        if (blank && start >= 0) {
            words.append(value.mid(start, i - start));
            start = -1;
        }
    }
    return words;
}

bool isNatural(QStringView value)
{
    return !value.isEmpty() && std::all_of(value.begin(), value.end(), isDigit);
}

bool isInteger(QStringView value)
{
    return isNatural(value.startsWith(u'-') ? value.mid(1) : value);
}

bool isNumber(QStringView value)
{
    static const QRegularExpression number(QStringLiteral(R"(\A-?(\d+(\.\d+)?|\.\d+)([eE][+-]?\d+)?\z)"));
    return number.match(value.toString()).hasMatch();
}

bool isLanguage(QStringView value)
{
    static const QRegularExpression language(QStringLiteral(R"(\A(([a-z]{2,8}|[ix])(-[a-z0-9]{1,8})*)?\z)"),
                                             QRegularExpression::CaseInsensitiveOption);
    return language.match(value.toString()).hasMatch();
}

bool isDay(QStringView value)
{
    return matches(Date + QStringLiteral("([T ]%1%2)?").arg(Time, Zone), value);
}

bool isMoment(QStringView value)
{
    const QString duration =
        QStringLiteral(R"(P(\d+D)?(T(\d+H)?(\d+M)?(\d+(\.\d{1,3})?S)?)?|(\s*\d+(\.\d{1,3})?\s*[wdhms])+\s*)");
    const QString pattern =
        QStringLiteral(R"(%1([T ]%2%3?)?|%2|%3|\d{4,}|\d{4,}-(0[1-9]|1[0-2])|(0[1-9]|1[0-2])-\d\d|\d{4,}-W[0-5]\d|%4)")
            .arg(Date, Time, Zone, duration);
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern), QRegularExpression::CaseInsensitiveOption)
        .match(trimmed(value).toString())
        .hasMatch();
}

QString faultOfUrl(QStringView value)
{
    static const QRegularExpression scheme(QStringLiteral(R"(\A[a-z][a-z0-9+.-]*:)"),
                                           QRegularExpression::CaseInsensitiveOption);
    const bool data = value.startsWith(QLatin1String("data:"), Qt::CaseInsensitive) ||
                      value.startsWith(QLatin1String("javascript:"), Qt::CaseInsensitive);
    if (data)
        return {};
    for (const QChar c : value) {
        if (c == u' ')
            return QStringLiteral("A blank in an address is written as %20.");
        if (c == u'\\')
            return QStringLiteral("Folders of an address are parted by \"/\".");
        if (QStringView(u"<>\"^`{|}").contains(c) && !value.contains(u'{'))
            return QStringLiteral("\"%1\" may not stand in an address as it is.").arg(c);
    }
    if (value.count(u'#') > 1)
        return QStringLiteral("A second \"#\" is written as %23.");
    static const QRegularExpression percent(QStringLiteral("%(?![0-9A-Fa-f]{2})"));
    if (percent.match(value.toString()).hasMatch())
        return QStringLiteral("A \"%\" is followed by two hexadecimal digits; by itself it is written as %25.");
    static const QRegularExpression emptyHost(QStringLiteral(R"(\Ahttps?:(/?[^/]|//(?=[/?#]|\z)|\z))"),
                                              QRegularExpression::CaseInsensitiveOption);
    if (emptyHost.match(value.toString()).hasMatch())
        return QStringLiteral("The name of a host is missing behind \"//\".");
    return {};
}

ValueFault faultOfValue(const AttributeRule &rule, QStringView attribute, QStringView value)
{
    switch (rule.kind) {
    case ValueKind::Any:
        return {};
    case ValueKind::Some:
        return value.isEmpty() ? wrong(attribute, value, QStringLiteral("It may not be empty.")) : ValueFault();
    case ValueKind::Flag:
        return faultOfFlag(attribute, value);
    case ValueKind::Id:
        return faultOfName(attribute, value, false);
    case ValueKind::Ids:
        return {};
    case ValueKind::Url:
    case ValueKind::FilledUrl:
        return faultOfAddress(attribute, value, rule.kind == ValueKind::FilledUrl);
    case ValueKind::Integer:
    case ValueKind::Natural:
    case ValueKind::Positive:
    case ValueKind::Number:
        return faultOfNumber(rule, attribute, value);
    case ValueKind::Language:
        return isLanguage(value) ? ValueFault()
                                 : wrong(attribute, value, QStringLiteral("A language as in \"en\" or \"en-GB\"."));
    case ValueKind::HashName:
        return value.size() > 1 && value.startsWith(u'#')
                   ? ValueFault()
                   : wrong(attribute, value, QStringLiteral("\"#\" and the name of a map."));
    case ValueKind::MimeType:
        return matches(QStringLiteral(R"([\w!#$&^.+-]+/[\w!#$&^.+-]+(\s*;.*)?)"), value)
                   ? ValueFault()
                   : wrong(attribute, value, QStringLiteral("A type as in \"text/html\"."));
    case ValueKind::Target:
        return faultOfTarget(attribute, value);
    case ValueKind::Moment:
        return isMoment(value)
                   ? ValueFault()
                   : wrong(attribute, value, QStringLiteral("A date or time as in \"2026-04-05\" or \"14:30\"."));
    case ValueKind::Day:
        return isDay(value)
                   ? ValueFault()
                   : wrong(attribute, value, QStringLiteral("A date as in \"2026-04-05\" or \"2026-04-05T14:30Z\"."));
    case ValueKind::Characters:
        return faultOfCharacters(attribute, value);
    case ValueKind::Autocomplete:
        return isAutofill(value) ? ValueFault()
                                 : wrong(attribute, value,
                                         QStringLiteral("\"on\", \"off\" or what is to be filled in, as \"email\"."));
    case ValueKind::Word:
        return isOneOf(rule.words, value) ? ValueFault() : wrong(attribute, value, told(rule.words));
    case ValueKind::CaseWord:
        return isOneOf(rule.words, value, Qt::CaseSensitive) ? ValueFault() : wrong(attribute, value, told(rule.words));
    case ValueKind::Words:
        return faultOfWords(rule, attribute, value);
    }
    return {};
}
