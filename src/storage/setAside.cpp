#include "storage/setAside.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace
{
constexpr int MostNames = 1000;
}

std::optional<QString> setAside(const QString &path)
{
    const QByteArray from = QFile::encodeName(path);
    for (int number = 1; number < MostNames; ++number) {
        const QString name = path + QStringLiteral(".aside") + (number == 1 ? QString() : QString::number(number));
        if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, QFile::encodeName(name).constData(), RENAME_NOREPLACE) ==
            0)
            return name;
        if (errno != EEXIST)
            return std::nullopt;
    }
    return std::nullopt;
}
