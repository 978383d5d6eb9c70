#pragma once

#include <QList>
#include <QStringView>

/// The markup of a page, taken apart by the standard's own rules. All positions are UTF-16 units of the text, from 0.
namespace html
{
enum class TokenKind : quint8 {
    Text,
    RawText, ///< what script, style and their like hold; of textarea and title, too, where references count
    StartTag,
    EndTag,
    Comment,
    Doctype,
    CData,
    End, ///< of the text; from here on there is nothing else
};

/// What the standard calls a parse error and goes on from.
enum class Fault : quint8 {
    AttributeTwice,
    AttributeNameCharacter,  ///< a quote, "<" or "=" in the name
    AttributeValueCharacter, ///< a quote, "<", "=" or "`" in a value without quotes
    AttributeValueMissing,   ///< ">" behind the "="
    AttributesUnparted,      ///< no blank behind a value in quotes
    SlashInTag,
    TagNotClosed,
    TagNameMissing,
    EndTagWithAttributes,
    EndTagWithSlash,
    LessThanInText,
    CommentNotClosed,
    CommentAbrupt, ///< "<!-->" or "<!--->"
    CommentNested,
    CommentEndsWithBang,
    CommentBogus, ///< "<!" or "</" in front of what is neither a tag nor a declaration
    ProcessingInstruction,
    CDataInHtml,
    CDataNotClosed,
    DoctypeMalformed,
    NullCharacter,
};

struct Range {
    qsizetype start = 0;
    qsizetype length = 0;
    bool operator==(const Range &) const = default;
};

struct FoundFault {
    Fault fault;
    Range range;
    bool operator==(const FoundFault &) const = default;
};

struct Attribute {
    Range name;
    Range value;         ///< without its quotes
    bool valued = false; ///< there is a "=" behind the name
    char16_t quote = 0;  ///< around the value; 0 for none
    bool twice = false;  ///< the name stands in the tag before; browsers pass it over
    /// Behind the attribute, its closing quote included.
    qsizetype end() const { return valued ? value.start + value.length + (quote ? 1 : 0) : name.start + name.length; }
};

struct Token {
    TokenKind kind = TokenKind::End;
    Range range;
    Range name;               ///< of a tag or a document type
    Range publicId, systemId; ///< of a document type, without their quotes; start -1 for none
    bool selfClosing = false; ///< "/>"
    bool closed = true;       ///< false where the text ends inside
    bool blank = false;       ///< a text of nothing but blanks
    bool references = false;  ///< a "&" stands in it
    QList<Attribute> attributes;
    QList<FoundFault> faults;
    qsizetype end() const { return range.start + range.length; }
};

/// How the text behind a start tag is to be read.
enum class TextMode : quint8 {
    Markup,
    Raw,    ///< to the end tag: style, xmp, iframe, noembed, noframes
    Script, ///< the same, but for what stands in "<!--"
    Rcdata, ///< to the end tag, with references: textarea, title
    Plain,  ///< to the end of the text: plaintext
};

/// Hands out a text's tokens from its start to its end. It asks nobody what an element means: whoever reads tells it,
/// behind a start tag, how the text there is to be read. The text has to outlive it.
class Tokenizer
{
public:
    explicit Tokenizer(QStringView text, qsizetype start = 0) : m_text(text), m_at(start) {}

    /// The next token, in a place that it shares with all others, so that its lists keep their room.
    const Token &next();
    /// Behind the start tag of `name`: the text up to its end tag is one token.
    void setMode(TextMode mode, QStringView name)
    {
        m_mode = mode;
        m_rawName = name;
    }
    /// Whether an element of svg or math is open, where "<![CDATA[" is one.
    void setForeign(bool foreign) { m_foreign = foreign; }
    QStringView textOf(Range range) const { return m_text.mid(range.start, range.length); }

private:
    char16_t at(qsizetype position) const { return position < m_text.size() ? m_text[position].unicode() : u'\0'; }
    bool ended(qsizetype position) const { return position >= m_text.size(); }
    bool startsWith(qsizetype position, QLatin1String word, Qt::CaseSensitivity sensitivity) const
    {
        return m_text.mid(position, word.size()).compare(word, sensitivity) == 0;
    }
    void fault(Fault fault, qsizetype start, qsizetype length) { m_token.faults.append({fault, {start, length}}); }
    void begin(TokenKind kind);
    void finish(qsizetype end);
    void readText();
    void describeText(QStringView text);
    bool readRawText();
    qsizetype rawEnd(qsizetype from) const;
    qsizetype scriptEnd(qsizetype from) const;
    bool endsRaw(qsizetype position) const;
    void readMarkup();
    void readEndMark();
    void readDeclaration();
    void readTag(TokenKind kind, qsizetype nameStart);
    qsizetype readAttributes(qsizetype position);
    qsizetype readAttribute(qsizetype position);
    qsizetype readValue(Attribute &attribute, qsizetype position);
    qsizetype readQuoted(Attribute &attribute, qsizetype position);
    qsizetype readUnquoted(Attribute &attribute, qsizetype position);
    void markTwice(Attribute &attribute);
    void readComment();
    void readBogusComment(Fault why);
    void readCData();
    void readDoctype();
    qsizetype readIdentifiers(qsizetype position, qsizetype end);
    Range quotedIn(qsizetype &position, qsizetype end);
    qsizetype skipBlanks(qsizetype position) const;

    QStringView m_text;
    qsizetype m_at = 0;
    Token m_token;
    TextMode m_mode = TextMode::Markup;
    QStringView m_rawName;
    bool m_foreign = false;
};

/// The characters that part attributes and words of values.
constexpr bool isBlank(char16_t c)
{
    return c == u' ' || c == u'\n' || c == u'\r' || c == u'\t' || c == u'\f';
}
constexpr bool isLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
} // namespace html
