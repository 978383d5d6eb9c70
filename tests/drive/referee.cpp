#include "drive/referee.h"

#include <cstdio>
#include <unistd.h>

namespace drive
{
void Referee::failAt(int line, const QString &expected, const QString &got) const
{
    end(line, QStringLiteral("expected %1, got %2").arg(expected, got), StatusFailed);
}

void Referee::wrongAt(int line, const QString &reason) const
{
    end(line, reason, StatusScriptWrong);
}

void Referee::end(int line, const QString &message, int status) const
{
    if (passesOver)
        throw PassedOver();
    const QByteArray told = QStringLiteral("%1:%2: %3\n").arg(m_file).arg(line).arg(message).toUtf8();
    std::fwrite(told.constData(), 1, static_cast<std::size_t>(told.size()), stderr);
    std::fflush(nullptr);
    m_progress.finished = true;
    _exit(status);
}
} // namespace drive
