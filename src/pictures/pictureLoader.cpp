#include "pictures/pictureLoader.h"

#include "pictures/pictureReader.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QProcess>

namespace
{
constexpr int StartMilliseconds = 5000; // the start of a process on a busy machine, in which no file is read yet
constexpr int ReadMilliseconds = 1000;

void start(QProcess &reader, const QString &path, const QSize &largest)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(pictureReader::Mark), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    reader.setProcessEnvironment(environment);
    reader.setStandardInputFile(QProcess::nullDevice());
    reader.setStandardErrorFile(QProcess::nullDevice());
    reader.start(QCoreApplication::applicationFilePath(), pictureReader::arguments(path, largest), QIODevice::ReadOnly);
}

bool becomesReady(QProcess &reader)
{
    char first = 0;
    return (reader.bytesAvailable() > 0 || reader.waitForReadyRead(StartMilliseconds)) && reader.getChar(&first) &&
           first == pictureReader::Ready;
}

void end(QProcess &reader)
{
    if (reader.state() == QProcess::NotRunning)
        return;
    reader.kill();
    reader.waitForFinished();
}

/// False if the file holds no picture. A reader that was ended by its limits may have told the size before.
bool runs(QProcess &reader)
{
    const bool ready = becomesReady(reader);
    const bool finished = ready && (reader.state() == QProcess::NotRunning || reader.waitForFinished(ReadMilliseconds));
    end(reader);
    const bool saidNo = finished && reader.exitStatus() == QProcess::NormalExit && reader.exitCode() != 0;
    return ready && !saidNo;
}

QSize readSize(QDataStream &stream)
{
    qint32 width = 0;
    qint32 height = 0;
    stream >> width >> height;
    return stream.status() == QDataStream::Ok ? QSize(width, height) : QSize();
}

QImage readPixels(QDataStream &stream, const QSize &largest)
{
    const QSize size = readSize(stream);
    const int longest = std::max(largest.width(), largest.height()); // a camera on its side
    if (size.isEmpty() || size.width() > longest || size.height() > longest)
        return {};
    QImage pixels(size, QImage::Format_ARGB32_Premultiplied);
    const int bytes = static_cast<int>(pixels.sizeInBytes());
    const bool whole = stream.readRawData(reinterpret_cast<char *>(pixels.bits()), bytes) == bytes;
    return whole ? pixels : QImage();
}
} // namespace

std::optional<LoadedPicture> pictureOfAnswer(QIODevice &answer, const QSize &largest)
{
    QDataStream stream(&answer);
    const QSize size = readSize(stream);
    if (size.isEmpty())
        return std::nullopt;
    return LoadedPicture{size, readPixels(stream, largest)};
}

std::optional<LoadedPicture> LoadPicture(const QString &path, const QSize &largest)
{
    if (path.isEmpty() || qEnvironmentVariableIsSet(pictureReader::Mark)) // a reader starts no readers
        return std::nullopt;
    QProcess reader;
    start(reader, path, largest);
    if (!runs(reader))
        return std::nullopt;
    return pictureOfAnswer(reader, largest);
}
