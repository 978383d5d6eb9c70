#include "pictures/pictureReader.h"

#include "pictures/avifSize.h"
#include "storage/localFileSystem.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
constexpr qint64 LargestFile = 64 << 20;
constexpr rlim_t LargestMemory = 256 << 20;
constexpr qint64 MostPixels = 25'000'000; // decoded in well under a second, and in 200 MB at 8 bytes each
constexpr int NoPicture = 1;

/// The address space that the process takes up now, in bytes.
rlim_t memoryInUse()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly))
        return LargestMemory;
    return status.readLine().split(' ').constFirst().toULongLong() * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

void limitSelf()
{
    const rlimit noCores{0, 0};
    ::setrlimit(RLIMIT_CORE, &noCores);
    rusage used = {};
    ::getrusage(RUSAGE_SELF, &used);
    // The program waits for a second; this ends the reader where the program itself is gone.
    const rlim_t seconds = static_cast<rlim_t>(used.ru_utime.tv_sec) + 2;
    const rlimit time{seconds, seconds};
    ::setrlimit(RLIMIT_CPU, &time);
    // A reader that waits uses none of that time.
    ::alarm(3);
    const rlim_t bytes = memoryInUse() + LargestMemory;
    const rlimit memory{bytes, bytes};
    ::setrlimit(RLIMIT_AS, &memory);
}

/// From here on nothing can be opened any more: a drawing may name files, and what never ends to be read.
void openNothingMore()
{
    const int lowest = ::open("/dev/null", O_RDONLY | O_CLOEXEC); // all numbers below it are taken, and now it is, too
    const auto most = static_cast<rlim_t>(lowest) + 1;
    const rlimit files{most, most};
    ::setrlimit(RLIMIT_NOFILE, &files);
}

/// What a drawing needs beside its own bytes is brought in beforehand: what reads the pictures that it holds itself,
/// fonts for its text, and the threads that scale.
void bringInWhatDrawingsNeed()
{
    QByteArray nothing("?");
    QBuffer buffer(&nothing);
    (void)QImageReader(&buffer).canRead(); // asks each kind of picture in turn, which brings them in
    QImage paper(1024, 1024, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    paper = paper.scaled(512, 512, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&paper);
    for (const char *family : {"sans-serif", "serif", "monospace"}) {
        painter.setFont(QFont(QLatin1String(family)));
        painter.drawText(0, 8, QStringLiteral("a"));
    }
}

QByteArray sizeBytes(const QSize &size)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << qint32(size.width()) << qint32(size.height());
    return bytes;
}

QByteArray pixelBytes(const QImage &picture)
{
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return sizeBytes(pixels.size()) +
           QByteArray::fromRawData(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
}

bool isDrawing(const QImageReader &reader)
{
    return reader.format().startsWith("svg");
}

bool isTooLarge(const QImageReader &reader)
{
    const QSize size = reader.size(); // a drawing is drawn at any size
    return !isDrawing(reader) && qint64(size.width()) * size.height() > MostPixels;
}

QSize within(const QSize &size, const QSize &largest)
{
    const bool fits = size.width() <= largest.width() && size.height() <= largest.height();
    return fits ? size : size.scaled(largest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

/// The size as a browser shows the picture, which may have been taken with the camera on its side.
QSize shownSize(const QImageReader &reader)
{
    const bool onItsSide = reader.transformation() & QImageIOHandler::TransformationRotate90;
    return onItsSide ? reader.size().transposed() : reader.size();
}

void send(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

int readPicture(const QString &path, const QSize &largest)
{
    LocalFileSystem files;
    if (files.size(path).value_or(0) > LargestFile)
        return NoPicture;
    const auto drawing = [] {
        bringInWhatDrawingsNeed();
        openNothingMore();
    };
    return pictureReader::decode(files.readAll(path).bytes, largest, {.send = send, .beforeDrawing = drawing})
               ? 0
               : NoPicture;
}
} // namespace

bool pictureReader::decode(QByteArray bytes, const QSize &largest, const Steps &steps)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!reader.canRead()) {
        const std::optional<QSize> size = avifSize(bytes); // which browsers show, and nothing here does
        if (size)
            steps.send(sizeBytes(*size));
        return size.has_value();
    }
    if (isDrawing(reader))
        steps.beforeDrawing();
    if (reader.size().isEmpty())
        return false;
    steps.send(sizeBytes(shownSize(reader)));
    if (isTooLarge(reader))
        return true;
    if (const QSize size = within(reader.size(), largest); size != reader.size())
        reader.setScaledSize(size);
    const QImage picture = reader.read();
    if (picture.isNull())
        return false;
    steps.send(pixelBytes(picture));
    return true;
}

QStringList pictureReader::arguments(const QString &path, const QSize &largest)
{
    return {path, QString::number(largest.width()), QString::number(largest.height())};
}

std::optional<int> readPictureIfAsked(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty(pictureReader::Mark) || argc < 4)
        return std::nullopt;
    const QGuiApplication application(argc, argv); // drawings hold text, which needs the fonts
    const QStringList arguments = QGuiApplication::arguments();
    limitSelf();
    send(QByteArray(1, pictureReader::Ready));
    return readPicture(arguments[1], QSize(arguments[2].toInt(), arguments[3].toInt()));
}
