#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// What a server says in front of what it sends, line by line. Lines are given without the blanks at their ends.

struct AnswerStatus {
    int code = 0;
    QString words; ///< behind the code
    bool operator==(const AnswerStatus &) const = default;
};
/// "HTTP/1.1 404 Not Found", "550 No such file". Nothing for any other line, for one that another line of the same
/// answer follows ("550-No"), and for the farewell of an FTP server, which says nothing of the transfer before.
std::optional<AnswerStatus> answerStatus(const QByteArray &line);

/// Whether the line is the first of a web server's answer.
bool startsWebAnswer(const QByteArray &line);

/// The encoding that a "Content-Type:" line names, in lower case; empty for one that names none, nothing for any other
/// line.
std::optional<QString> charsetOfHeader(const QByteArray &line);
