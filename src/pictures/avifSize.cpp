#include "pictures/avifSize.h"

#include <QList>
#include <algorithm>
#include <limits>
#include <utility>

namespace
{
/// Bytes of a file, read from front to back: numbers have their highest byte first. Reading behind the end gives zeros
/// and is remembered.
class Reading
{
public:
    explicit Reading(QByteArrayView bytes) : m_rest(bytes) {}

    quint64 number(qsizetype bytes)
    {
        quint64 number = 0;
        for (const char byte : taken(bytes))
            number = number << 8 | static_cast<uchar>(byte);
        return number;
    }
    QByteArrayView taken(qsizetype bytes)
    {
        m_failed = m_failed || bytes > m_rest.size();
        return m_failed ? QByteArrayView() : std::exchange(m_rest, m_rest.sliced(bytes)).first(bytes);
    }
    QByteArrayView rest() const { return m_rest; }
    bool hasFailed() const { return m_failed; }
    bool isAtEnd() const { return m_failed || m_rest.isEmpty(); }

private:
    QByteArrayView m_rest;
    bool m_failed = false;
};

struct Box {
    QByteArrayView kind;
    QByteArrayView content;
};

/// The boxes that stand one behind the other; a damaged one ends them.
QList<Box> boxesOf(QByteArrayView bytes)
{
    QList<Box> boxes;
    for (Reading reading(bytes); !reading.isAtEnd();) {
        const qsizetype before = reading.rest().size();
        quint64 length = reading.number(4);
        const QByteArrayView kind = reading.taken(4);
        if (length == 1)
            length = reading.number(8);
        const auto header = static_cast<quint64>(before - reading.rest().size());
        if (length == 0) // up to the end
            length = static_cast<quint64>(before);
        if (reading.hasFailed() || length < header || length > static_cast<quint64>(before))
            break;
        boxes.append({kind, reading.taken(static_cast<qsizetype>(length - header))});
    }
    return boxes;
}

/// The content of the first box of that kind; null where there is none.
QByteArrayView boxOf(const QList<Box> &boxes, QByteArrayView kind)
{
    for (const Box &box : boxes)
        if (box.kind == kind)
            return box.content;
    return {};
}

/// What the header of a box with a version says; its content follows in the reading.
struct Version {
    int number = 0;
    quint64 flags = 0;
};

Version versionOf(Reading &reading)
{
    const auto number = static_cast<int>(reading.number(1));
    return {number, reading.number(3)};
}

bool isAvif(const QList<Box> &boxes)
{
    Reading brands(boxOf(boxes, "ftyp"));
    const QByteArrayView main = brands.taken(4);
    brands.taken(4); // its version
    if (main == "avif" || main == "avis")
        return true;
    while (!brands.isAtEnd())
        if (const QByteArrayView brand = brands.taken(4); brand == "avif" || brand == "avis")
            return true;
    return false;
}

quint64 mainItem(QByteArrayView box)
{
    Reading reading(box);
    return reading.number(versionOf(reading).number == 0 ? 2 : 4);
}

/// The numbers, from 1, of the properties that belong to an item.
QList<qsizetype> propertiesOf(quint64 item, QByteArrayView associations)
{
    Reading reading(associations);
    const Version version = versionOf(reading);
    const bool wide = version.flags & 1;
    for (quint64 left = reading.number(4); left > 0 && !reading.isAtEnd(); --left) {
        const quint64 owner = reading.number(version.number == 0 ? 2 : 4);
        QList<qsizetype> properties;
        for (quint64 count = reading.number(1); count > 0 && !reading.isAtEnd(); --count)
            properties.append(static_cast<qsizetype>(reading.number(wide ? 2 : 1) & (wide ? 0x7fff : 0x7f)));
        if (owner == item)
            return properties;
    }
    return {};
}

std::optional<QSize> sizeIn(QByteArrayView extents)
{
    Reading reading(extents);
    versionOf(reading);
    const quint64 width = reading.number(4);
    const quint64 height = reading.number(4);
    constexpr auto Most = static_cast<quint64>(std::numeric_limits<int>::max());
    if (reading.hasFailed() || width == 0 || height == 0 || width > Most || height > Most)
        return std::nullopt;
    return QSize(static_cast<int>(width), static_cast<int>(height));
}

bool liesOnItsSide(QByteArrayView rotation)
{
    return Reading(rotation).number(1) & 1; // in quarters of a turn
}
} // namespace

std::optional<QSize> avifSize(QByteArrayView file)
{
    const QList<Box> boxes = boxesOf(file);
    if (!isAvif(boxes))
        return std::nullopt;
    const QByteArrayView meta = boxOf(boxes, "meta");
    const QList<Box> about = boxesOf(meta.sliced(std::min<qsizetype>(meta.size(), 4))); // behind its version
    const QList<Box> properties = boxesOf(boxOf(about, "iprp"));
    const QList<Box> values = boxesOf(boxOf(properties, "ipco"));
    std::optional<QSize> size;
    bool turned = false;
    for (const qsizetype number : propertiesOf(mainItem(boxOf(about, "pitm")), boxOf(properties, "ipma"))) {
        if (number < 1 || number > values.size())
            continue;
        const Box &property = values[number - 1];
        if (property.kind == "ispe")
            size = sizeIn(property.content);
        else if (property.kind == "irot")
            turned = liesOnItsSide(property.content);
    }
    return size && turned ? size->transposed() : size;
}
