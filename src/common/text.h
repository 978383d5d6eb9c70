#pragma once

#include <QString>
#include <optional>

/// Searches as the whole program states its arithmetic: positions count from 1, 0 stands for "not found", and
/// characters are compared by their codes. A search or a cut that cannot be done (a start below 1, a negative length)
/// gives no value: the step has failed and its caller keeps what it had.

/// The first place of `what` in `text` at or behind `start`. A start behind the end finds nothing; an empty `what` is
/// found at `start` itself.
std::optional<qsizetype> Find(QStringView text, QStringView what, qsizetype start = 1);

/// The last place of `what` that ends at or before `start`. Without a start the whole text is searched; a start behind
/// the end finds nothing; an empty `what` is found at `start` itself.
std::optional<qsizetype> FindBack(QStringView text, QStringView what, std::optional<qsizetype> start = std::nullopt);

/// `length` characters from the 1-based `start`, fewer where the text ends before; from there to the end without a
/// length.
std::optional<QString> Mid(QStringView text, qsizetype start, std::optional<qsizetype> length = std::nullopt);

/// Text without the blanks at its ends; other white space stays.
QString Trim(QStringView text);

/// Every line break (CR LF, LF, lone CR) as CR LF, which is how documents hold them in memory.
QString withCrLf(const QString &text);

/// Lower case character by character, so that every position stays what it was; a letter whose lower case is longer
/// stays as it is.
QString LCase(QStringView text);
inline QChar LCase(QChar c)
{
    if (c.unicode() < 128)
        return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + 32) : c;
    return c.toLower();
}

/// Upper case character by character, so that every position stays what it was; a letter whose upper case is longer
/// stays as it is.
QString UCase(QStringView text);
inline QChar UCase(QChar c)
{
    if (c.unicode() < 128)
        return c >= u'a' && c <= u'z' ? QChar(c.unicode() - 32) : c;
    return c.toUpper();
}
