#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// How the characters of a file stand as bytes.
enum class Encoding {
    Utf8,
    Utf8Bom, ///< UTF-8 behind a byte order mark (EF BB BF)
    Windows1252,
    Utf16LE, ///< behind a byte order mark (FF FE)
    Utf16BE, ///< behind a byte order mark (FE FF)
    Other,   ///< the one that FileFormat::charset names
};

/// How the lines of a file end. In memory every break is CR LF.
enum class LineEnd {
    CrLf,
    Lf,
    Cr, ///< every break of the file is a lone CR
};

struct FileFormat {
    Encoding encoding = Encoding::Utf8;
    LineEnd lineEnd = LineEnd::CrLf;
    QString charset = {}; ///< of Encoding::Other: its name as charsetOfLabel() gives it
    bool operator==(const FileFormat &) const = default;
};

struct DecodedText {
    QString text; ///< every break as CR LF
    FileFormat format;
    bool mixedLineEnds = false; ///< the file has breaks of more than one kind; `format` holds the more frequent one
};

struct EncodedText {
    QByteArray bytes;
    Encoding encoding = Encoding::Utf8; ///< the one taken, which is not always the one asked for
    bool switchedToUtf8 = false;        ///< the encoding asked for cannot hold the text
};

/// Whether bytes begin with the byte order mark of UTF-16 and can be that: their number is even.
bool hasUtf16Mark(const QByteArray &bytes);

/// Reads a file of text. Never fails, and no character or byte is dropped: encode() with the format told gives the same
/// bytes again for every file whose line ends are all of one kind, except that bytes which begin with the byte order
/// mark of UTF-16 are never written as anything else.
///
/// Plainly, it is UTF-8 if the bytes are valid UTF-8, else Windows-1252, whose five undefined bytes stand for the
/// characters of the same code. By a Unicode row it is UTF-16 of the order that its byte order mark names,
/// little-endian without one; the missing half of a last odd byte counts as 0. A file without breaks gets CR LF, and so
/// does one with as many LF as CR LF.
DecodedText decode(const QByteArray &bytes, bool unicodeRow = false);

/// Reads a file in an encoding by its name, as charsetOfLabel() gives it. Nothing where the bytes are not valid in it,
/// or would not be written as the same bytes again; encode() may still make Unicode of what looks like it.
std::optional<DecodedText> decodeAs(const QByteArray &bytes, const QString &charset);

/// Writes text to be read by decode(), or decodePage(), as the same text.
///
/// Windows-1252 and an encoding by name give way to UTF-8 where a character does not fit, or where the bytes would read
/// back as UTF-8 or UTF-16. UTF-8 takes its mark where the text itself starts with that character, or holds half a
/// surrogate pair: such a half is written in the three bytes it would have as a character, which decode() takes behind
/// a mark only.
EncodedText encode(const QString &text, const FileFormat &format);

/// The characters that have no place in an encoding, each once, in the order of their first appearance; none for the
/// Unicode encodings.
QStringList charactersThatDoNotFit(const QString &text, const FileFormat &format);
/// The text with each such character as a numeric reference, "&#321;" for U+0141. Where all fit, and yet the text would
/// read back as another, that is every character but the ASCII ones. Half a surrogate pair stays: no page can refer to
/// it.
QString withReferences(const QString &text, const FileFormat &format);

/// The program's own text files: Windows-1252 with CR LF, UTF-8 where that cannot hold the text or would read back as
/// another. decodeOwnFile(encodeOwnFile(text)) is the text with every break as CR LF.
QByteArray encodeOwnFile(const QString &text);
QString decodeOwnFile(const QByteArray &bytes);

/// As shown to the user: "UTF-8", "UTF-8 with mark", "Windows-1252", "UTF-16 LE", "UTF-16 BE", "KOI8-R".
QString encodingName(const FileFormat &format);
/// "CR LF", "LF", "CR".
QString lineEndName(LineEnd lineEnd);
