// Draws the icons at the sizes that most screens ask for, so that a start need not: drawIcons FOLDER DRAWING...
//
// Writes FOLDER/SIDE.pixels for each of the sizes, in the form that widgets/iconPixels.h tells. Drawings in the text's
// own colour are kept as how opaque each pixel is, at the sizes of bars, menus and trees at scales of 1, 1.25, 1.5 and
// 2; those with colours of their own, which are for windows, at those sizes and at larger ones.
#include "widgets/iconPixels.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>
#include <algorithm>
#include <cstdio>

namespace
{
constexpr int smallSides[] = {16, 20, 24, 32};
constexpr int windowSides[] = {64, 128};

struct Drawing {
    QByteArray name;
    QByteArray source;
    bool isColoured = false;
};

QList<Drawing> read(const QStringList &paths)
{
    QList<Drawing> drawings;
    for (const QString &path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(path));
        const QByteArray source = file.readAll();
        drawings.append({QFileInfo(path).completeBaseName().toLatin1(), source, !source.contains("currentColor")});
        if (drawings.last().name.size() >= qsizetype(sizeof IconPixels::name))
            qFatal("%s has too long a name", qPrintable(path));
    }
    std::sort(drawings.begin(), drawings.end(), [](const Drawing &a, const Drawing &b) { return a.name < b.name; });
    return drawings;
}

QByteArray pixelsOf(const Drawing &drawing, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(QByteArray(drawing.source).replace("currentColor", "#000000"));
    if (!renderer.isValid())
        qFatal("%s is no drawing", drawing.name.constData());
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, side, side));
    painter.end();
    const auto *first = reinterpret_cast<const QRgb *>(image.constBits());
    const qsizetype count = qsizetype(side) * side;
    if (drawing.isColoured)
        return {reinterpret_cast<const char *>(first), count * qsizetype(sizeof(QRgb))};
    QByteArray opacities(count, '\0');
    std::transform(first, first + count, opacities.begin(),
                   [](QRgb pixel) { return static_cast<char>(qAlpha(pixel)); });
    return opacities;
}

template <typename Value>
void append(QByteArray &bytes, const Value &value)
{
    bytes.append(reinterpret_cast<const char *>(&value), sizeof value);
}

void write(const QString &folder, int side, const QList<Drawing> &drawings)
{
    QByteArray index;
    QByteArray pixels;
    append(index, static_cast<quint32>(drawings.size()));
    const qsizetype start = index.size() + drawings.size() * qsizetype(sizeof(IconPixels));
    for (const Drawing &drawing : drawings) {
        const QByteArray compressed = qCompress(pixelsOf(drawing, side), 9);
        IconPixels entry{.name = {},
                         .isColoured = drawing.isColoured,
                         .place = quint32(start + pixels.size()),
                         .length = quint32(compressed.size())};
        std::copy(drawing.name.begin(), drawing.name.end(), entry.name);
        append(index, entry);
        pixels += compressed;
    }
    QFile file(QStringLiteral("%1/%2.pixels").arg(folder).arg(side));
    if (!file.open(QIODevice::WriteOnly) || file.write(index + pixels) < 0 || !file.flush())
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}
} // namespace

int main(int argc, char **argv)
{
    const QStringList arguments(argv + 1, argv + argc);
    if (arguments.size() < 2) {
        std::fputs("drawIcons FOLDER DRAWING...\n", stderr);
        return 2;
    }
    QList<Drawing> drawings = read(arguments.mid(1));
    for (const int side : smallSides)
        write(arguments.constFirst(), side, drawings);
    drawings.removeIf([](const Drawing &drawing) { return !drawing.isColoured; });
    for (const int side : windowSides)
        write(arguments.constFirst(), side, drawings);
    return 0;
}
