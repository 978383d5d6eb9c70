#include "texttools/pageFaults.h"

namespace
{
struct Told {
    html::Fault fault;
    const char *rule;
    const char *message;
    const char *remedy;
};
using html::Fault;
constexpr Told table[] = {
    {Fault::AttributeTwice, "attribute-twice", "The attribute is in the tag already.", "One of the two."},
    {Fault::AttributeNameCharacter, "attribute-name", "This character may not stand in the name of an attribute.",
     "A quotation mark in front of it may be missing."},
    {Fault::AttributeValueCharacter, "attribute-value", "This character may stand in a value in quotation marks only.",
     "Quotation marks around the value."},
    {Fault::AttributeValueMissing, "attribute-value", "There is no value behind the \"=\".", "A value, or no \"=\"."},
    {Fault::AttributesUnparted, "attributes-unparted", "There is no blank in front of the next attribute.",
     "A blank here."},
    {Fault::SlashInTag, "slash-in-tag", "A \"/\" stands alone in the tag.", "The tag without it."},
    {Fault::TagNotClosed, "unclosed-tag", "The tag is not closed.", "A \">\", or a quotation mark that is missing."},
    {Fault::TagNameMissing, "bogus-comment", "The name of the tag is missing.", ""},
    {Fault::EndTagWithAttributes, "end-tag", "An end tag has no attributes.", "The tag without them."},
    {Fault::EndTagWithSlash, "end-tag", "An end tag does not end with \"/>\".", "\">\""},
    {Fault::LessThanInText, "less-than", "A \"<\" that begins no tag.", "&lt;"},
    {Fault::CommentNotClosed, "unclosed-comment", "The comment is not closed.", "\"-->\" behind it."},
    {Fault::CommentAbrupt, "comment", "The comment ends where it begins.", "<!-- -->"},
    {Fault::CommentNested, "comment", "A comment may not stand in a comment.", "\"-->\" in front of it."},
    {Fault::CommentEndsWithBang, "comment", "A comment ends with \"-->\".", "-->"},
    {Fault::CommentBogus, "bogus-comment", "This is no tag; browsers take it for a comment.", "<!-- and -->, or &lt;"},
    {Fault::ProcessingInstruction, "bogus-comment", "HTML has no \"<?\"; browsers take it for a comment.", ""},
    {Fault::CDataInHtml, "bogus-comment", "\"<![CDATA[\" may stand in svg and math only.", ""},
    {Fault::CDataNotClosed, "unclosed-comment", "\"<![CDATA[\" is not closed.", "\"]]>\" behind it."},
    {Fault::DoctypeMalformed, "doctype", "This is no document type that browsers know.", "<!DOCTYPE html>"},
    {Fault::NullCharacter, "character", "A character that no page may hold.", "The text without it."},
};

void addFix(const html::FoundFault &found, QStringView text, PageProblem &problem)
{
    switch (found.fault) {
    case Fault::AttributesUnparted:
        problem.fix = {{found.range.start, 0, QStringLiteral(" ")}};
        break;
    case Fault::LessThanInText:
        problem.fix = {{found.range.start, 1, QStringLiteral("&lt;")}};
        break;
    case Fault::EndTagWithSlash:
    case Fault::SlashInTag:
        problem.fix = {{found.range.start, 1,
                        text.size() > found.range.start + 1 && found.fault == Fault::SlashInTag ? QStringLiteral(" ")
                                                                                                : QString()}};
        break;
    case Fault::CommentEndsWithBang:
        problem.fix = {{found.range.start, found.range.length, QStringLiteral("-->")}};
        break;
    default:
        break;
    }
}

bool isAlnum(char16_t c)
{
    return html::isLetter(c) || (c >= u'0' && c <= u'9');
}

/// The reference whose "&" stands at the start of a text.
class Reference
{
public:
    Reference(QStringView text, bool inAttribute, const PageRules &rules)
        : m_text(text), m_inAttribute(inAttribute), m_rules(rules)
    {
    }
    /// What is wrong with it, and its length; empty where nothing is.
    QString fault()
    {
        if (at(1) == u'#')
            return numberFault();
        if (!html::isLetter(at(1)))
            return {};
        return nameFault();
    }
    qsizetype length() const { return m_length; }
    /// What has to be put behind it to make it right.
    bool lacksSemicolon() const { return m_lacksSemicolon; }

private:
    char16_t at(qsizetype i) const { return i < m_text.size() ? m_text[i].unicode() : u'\0'; }

    QString numberFault()
    {
        const bool hex = at(2) == u'x' || at(2) == u'X';
        qsizetype end = hex ? 3 : 2;
        const qsizetype digits = end;
        while (hex ? QStringView(u"0123456789abcdefABCDEF").contains(QChar(at(end))) && at(end)
                   : at(end) >= u'0' && at(end) <= u'9')
            ++end;
        m_length = end;
        if (end == digits)
            return QStringLiteral("The number of the character is missing.");
        bool valid = false;
        const uint code = m_text.mid(digits, end - digits).toUInt(&valid, hex ? 16 : 10);
        if (!valid || code == 0 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000) ||
            (code >= 0x80 && code < 0xA0) || (code < 0x20 && code != 9 && code != 10 && code != 12))
            return QStringLiteral("There is no character of that number.");
        m_lacksSemicolon = at(end) != u';';
        return m_lacksSemicolon ? QStringLiteral("The \";\" behind it is missing.") : QString();
    }

    QString nameFault()
    {
        qsizetype end = 1;
        while (isAlnum(at(end)))
            ++end;
        m_length = end;
        const QString name = m_text.mid(1, end - 1).toString();
        if (at(end) == u';') {
            if (m_rules.isReference(name + u';'))
                return {};
            m_length = end + 1;
            if (m_inAttribute || !startsKnown(name))
                return QStringLiteral("There is no character of that name.");
        }
        return openFault(name, end);
    }

    /// Old names count without ";", too, in text wherever they stand.
    QString openFault(const QString &name, qsizetype end)
    {
        for (qsizetype length = name.size(); length > 1; --length) {
            if (!m_rules.isReference(name.left(length)))
                continue;
            const char16_t next = at(1 + length);
            if (m_inAttribute && (next == u'=' || isAlnum(next)))
                return {};
            m_length = 1 + length;
            m_lacksSemicolon = length == end - 1;
            return QStringLiteral("Browsers read \"&%1\" as a character; the \";\" behind it is missing.")
                .arg(name.left(length));
        }
        return {};
    }

    bool startsKnown(const QString &name) const
    {
        for (qsizetype length = name.size(); length > 1; --length)
            if (m_rules.isReference(name.left(length)))
                return true;
        return false;
    }

    QStringView m_text;
    bool m_inAttribute;
    const PageRules &m_rules;
    qsizetype m_length = 1;
    bool m_lacksSemicolon = false;
};
} // namespace

void tellFault(const html::FoundFault &found, QStringView text, PageProblems &problems)
{
    for (const Told &told : table) {
        if (told.fault != found.fault || !problems.wants(told.rule))
            continue;
        PageProblem &problem =
            problems.error(told.rule, found.range, QString::fromLatin1(told.message), QString::fromLatin1(told.remedy));
        addFix(found, text, problem);
    }
}

void checkReferences(QStringView text, html::Range part, bool inAttribute, const PageRules &rules,
                     PageProblems &problems)
{
    const QStringView inside = text.mid(part.start, part.length);
    for (qsizetype at = inside.indexOf(u'&'); at >= 0; at = inside.indexOf(u'&', at + 1)) {
        Reference reference(inside.mid(at), inAttribute, rules);
        const QString fault = reference.fault();
        if (fault.isEmpty() || !problems.wants("character-reference"))
            continue;
        PageProblem &problem =
            problems.error("character-reference", {part.start + at, reference.length()}, fault,
                           QStringLiteral("A \";\" behind the name, or &amp; for a \"&\" that is meant as such."));
        if (reference.lacksSemicolon() && !inAttribute)
            problem.fix = {{part.start + at + reference.length(), 0, QStringLiteral(";")}};
    }
}
