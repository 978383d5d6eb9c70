#include "widgets/iconPixels.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QResource>
#include <algorithm>
#include <cstring>

namespace
{
/// The entry of an icon. The file stands in the program at any address, so nothing in it is read where it is.
bool findIcon(const uchar *file, const QByteArray &name, IconPixels &found)
{
    quint32 count = 0;
    std::memcpy(&count, file, sizeof count);
    const auto entry = [file](quint32 number) {
        IconPixels read;
        std::memcpy(&read, file + sizeof number + number * sizeof read, sizeof read);
        return read;
    };
    quint32 first = 0;
    while (first < count) {
        const quint32 middle = first + (count - first) / 2;
        found = entry(middle);
        const int order = qstrcmp(found.name, name.constData());
        if (order == 0)
            return true;
        (order < 0 ? first : count) = order < 0 ? middle + 1 : middle;
    }
    return false;
}
} // namespace

QImage drawnIcon(const QString &name, int side, const QColor &colour)
{
    const QResource file(QStringLiteral(":/icons/%1.pixels").arg(side));
    IconPixels icon;
    if (!file.isValid() || !findIcon(file.data(), name.toLatin1(), icon))
        return {};
    const QByteArray pixels = qUncompress(file.data() + icon.place, icon.length);
    const auto *from = reinterpret_cast<const uchar *>(pixels.constData());
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        if (icon.isColoured) {
            std::memcpy(line, from, static_cast<size_t>(side) * sizeof(QRgb));
            from += static_cast<size_t>(side) * sizeof(QRgb);
            continue;
        }
        std::transform(from, from + side, line, [rgb = colour.rgb()](uchar opacity) {
            return qPremultiply((rgb & 0xffffff) | static_cast<QRgb>(opacity) << 24);
        });
        from += side;
    }
    return image;
}
