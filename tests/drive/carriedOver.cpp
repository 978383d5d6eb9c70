#include "drive/carriedOver.h"

#include <QDataStream>
#include <QFile>

namespace drive
{
// Not in a namespace without a name: there, the operators of Qt's containers would not find them.
static QDataStream &operator<<(QDataStream &stream, const PlaceInScript &place)
{
    return stream << place.opening << place.next;
}

static QDataStream &operator>>(QDataStream &stream, PlaceInScript &place)
{
    return stream >> place.opening >> place.next;
}

static QDataStream &operator<<(QDataStream &stream, const ShownBox &shown)
{
    const MessageBox &box = shown.box;
    return stream << box.title << box.text << box.icon << box.buttons << shown.line;
}

static QDataStream &operator>>(QDataStream &stream, ShownBox &shown)
{
    MessageBox &box = shown.box;
    return stream >> box.title >> box.text >> box.icon >> box.buttons >> shown.line;
}

static QDataStream &operator<<(QDataStream &stream, const ShownDialog &dialog)
{
    return stream << dialog.kind << dialog.properties;
}

static QDataStream &operator>>(QDataStream &stream, ShownDialog &dialog)
{
    return stream >> dialog.kind >> dialog.properties;
}

static QDataStream &operator<<(QDataStream &stream, const DialogAnswer &answer)
{
    return stream << answer.kind << answer.text << answer.number.has_value() << answer.number.value_or(0)
                  << answer.colour;
}

static QDataStream &operator>>(QDataStream &stream, DialogAnswer &answer)
{
    bool hasNumber = false;
    int number = 0;
    stream >> answer.kind >> answer.text >> hasNumber >> number >> answer.colour;
    if (hasNumber)
        answer.number = number;
    return stream;
}

static QDataStream &operator<<(QDataStream &stream, const ScriptedFiles::Failing &failing)
{
    return stream << failing.path << failing.code << failing.act;
}

static QDataStream &operator>>(QDataStream &stream, ScriptedFiles::Failing &failing)
{
    return stream >> failing.path >> failing.code >> failing.act;
}

static QDataStream &operator<<(QDataStream &stream, const std::optional<DiskLimit> &disk)
{
    const DiskLimit limit = disk.value_or(DiskLimit());
    return stream << disk.has_value() << limit.folder << limit.bytes;
}

static QDataStream &operator>>(QDataStream &stream, std::optional<DiskLimit> &disk)
{
    bool isLimited = false;
    DiskLimit limit;
    stream >> isLimited >> limit.folder >> limit.bytes;
    disk = isLimited ? std::optional(limit) : std::nullopt;
    return stream;
}

namespace
{
/// Every field in one order, for writing and for reading.
template <class Carried, class Visit>
void visitFields(Carried &carried, const Visit &visit)
{
    visit(carried.places);
    visit(carried.waiting);
    visit(carried.lasting);
    visit(carried.clock);
    visit(carried.seed);
    visit(carried.answers);
    visit(carried.boxes);
    visit(carried.choices);
    visit(carried.dialogs);
    visit(carried.launched);
    visit(carried.refusals);
    visit(carried.help);
    visit(carried.secondStarts);
    visit(carried.failing);
    visit(carried.disk);
}
} // namespace

bool store(const CarriedOver &carried, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream stream(&file);
    visitFields(carried, [&](const auto &field) { stream << field; });
    return stream.status() == QDataStream::Ok && file.flush();
}

std::optional<CarriedOver> takeStored(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    CarriedOver carried;
    QDataStream stream(&file);
    visitFields(carried, [&](auto &field) { stream >> field; });
    file.close();
    file.remove();
    return stream.status() == QDataStream::Ok ? std::optional(carried) : std::nullopt;
}
} // namespace drive
