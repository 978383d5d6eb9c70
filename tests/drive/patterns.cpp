#include "drive/patterns.h"

#include "drive/stage.h"

#include <QRegularExpression>

namespace drive
{
QRegularExpression wholePattern(Stage &stage, const QString &text)
{
    QRegularExpression pattern(QRegularExpression::anchoredPattern(text),
                               QRegularExpression::DotMatchesEverythingOption);
    if (!pattern.isValid())
        stage.referee.wrong(QStringLiteral("%1 is no regular expression: %2").arg(text, pattern.errorString()));
    return pattern;
}
} // namespace drive
