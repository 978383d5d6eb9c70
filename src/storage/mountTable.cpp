#include "storage/mountTable.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <array>

namespace
{
constexpr std::array places{"/media/", "/run/media/", "/mnt/"};

/// Blanks, tabs, breaks and backslashes stand as three octal digits in the table.
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (qsizetype at = 0; at < field.size(); ++at) {
        bool ok = false;
        const QByteArray digits = field.mid(at + 1, 3);
        const int code = field[at] == '\\' && digits.size() == 3 ? digits.toInt(&ok, 8) : 0;
        text += ok ? static_cast<char>(code) : field[at];
        at += ok ? 3 : 0;
    }
    return text;
}

bool isUsers(const QByteArray &place)
{
    return std::any_of(places.begin(), places.end(), [&](const char *start) { return place.startsWith(start); });
}
} // namespace

QStringList mountedVolumes(const QByteArray &table)
{
    QStringList volumes;
    for (const QByteArray &line : table.split('\n')) {
        const QByteArray place = unescaped(line.split(' ').value(1));
        const QString volume = QFile::decodeName(place);
        if (isUsers(place) && !volumes.contains(volume))
            volumes.append(volume);
    }
    return volumes;
}
