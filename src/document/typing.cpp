#include "document/typing.h"

#include "common/text.h"

qsizetype leadingBlanksBefore(QStringView text, qsizetype caret)
{
    const qsizetype lineBreak = FindBack(text, u"\r\n", caret).value_or(0);
    const QString line = Mid(text, lineBreak + 2, caret - lineBreak - 1).value_or(QString());
    qsizetype blanks = 0;
    while (blanks < line.size() && line[blanks] == u' ')
        ++blanks;
    return blanks;
}
