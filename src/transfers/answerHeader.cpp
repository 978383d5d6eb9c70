#include "transfers/answerHeader.h"

#include <algorithm>

namespace
{
constexpr int Farewell = 221;
constexpr QByteArrayView ContentType("content-type:");

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}
} // namespace

std::optional<AnswerStatus> answerStatus(const QByteArray &line)
{
    const bool web = startsWebAnswer(line);
    const QByteArray answer = web ? line.mid(line.indexOf(' ') + 1) : line;
    if (answer.size() < 3 || !std::all_of(answer.begin(), answer.begin() + 3, isDigit))
        return std::nullopt;
    const int code = answer.first(3).toInt();
    const bool complete = web || answer.size() == 3 || answer[3] == ' ';
    if (!complete || code == Farewell)
        return std::nullopt;
    return AnswerStatus{code, QString::fromUtf8(answer.mid(4))};
}

bool startsWebAnswer(const QByteArray &line)
{
    return line.startsWith("HTTP/");
}

std::optional<QString> charsetOfHeader(const QByteArray &line)
{
    if (line.size() <= ContentType.size() || line.first(ContentType.size()).toLower() != ContentType)
        return std::nullopt;
    const QString value = QString::fromLatin1(line.sliced(ContentType.size())).toLower();
    const qsizetype mark = value.indexOf(QStringLiteral("charset="));
    if (mark < 0)
        return QString();
    return value.sliced(mark + 8).section(u';', 0, 0).trimmed().remove(u'"').remove(u'\'');
}
