#include "pictures/pictureLoader.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr QSize Largest(200, 100);
// A second for the reading itself; what the start of a process takes on a busy machine comes on top.
constexpr qint64 LongestMilliseconds = 6500;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

class PictureLoaderTest : public testing::Test
{
protected:
    QString path(const char *name) const { return folder.filePath(str(name)); }

    QString written(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    QTemporaryDir folder;
};

/// Half red, half blue.
QImage twoColours(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width(), size.height(), Qt::blue);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    EXPECT_TRUE(writer.write(image)) << format;
    return bytes;
}

bool isNearly(QColor got, QColor expected)
{
    return qAbs(got.red() - expected.red()) < 32 && qAbs(got.green() - expected.green()) < 32 &&
           qAbs(got.blue() - expected.blue()) < 32;
}

void expectTwoColours(const QImage &pixels)
{
    EXPECT_TRUE(isNearly(pixels.pixelColor(1, 1), Qt::red));
    EXPECT_TRUE(isNearly(pixels.pixelColor(pixels.width() - 2, pixels.height() - 2), Qt::blue));
}

QByteArray bigEndian(quint32 number)
{
    const char bytes[] = {static_cast<char>(number >> 24), static_cast<char>(number >> 16),
                          static_cast<char>(number >> 8), static_cast<char>(number)};
    return QByteArray(bytes, 4);
}

/// The check sum of a chunk.
quint32 checkSum(const QByteArray &bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

QByteArray pngChunk(const QByteArray &type, const QByteArray &data)
{
    const QByteArray body = type + data;
    return bigEndian(static_cast<quint32>(data.size())) + body + bigEndian(checkSum(body));
}

const QByteArray PngStart = QByteArray::fromHex("89504e470d0a1a0a");

/// The header of a true colour PNG of that size.
QByteArray pngHeader(quint32 width, quint32 height)
{
    return PngStart + pngChunk("IHDR", bigEndian(width) + bigEndian(height) + QByteArray::fromHex("0802000000"));
}

/// A PNG of one pixel whose text chunks hold 8 GB, compressed.
QByteArray pngWithSwollenTexts()
{
    const QByteArray swollen = qCompress(QByteArray(7'900'000, 'a'), 9).mid(4); // without the length that Qt puts first
    QByteArray bytes = pngHeader(1, 1);
    for (int i = 0; i < 1000; ++i)
        bytes += pngChunk("zTXt", "Comment" + QByteArray(2, '\0') + swollen);
    return bytes + pngChunk("IDAT", qCompress(QByteArray(4, '\0')).mid(4)) + pngChunk("IEND", {});
}

/// A drawing of a hundred thousand dashed circles: seconds of work on any machine.
QByteArray svgOfManyCircles()
{
    const QByteArray circle = "<circle cx=\"45\" cy=\"30\" r=\"29\" stroke=\"red\" stroke-width=\"3\" "
                              "stroke-dasharray=\"1,1\"/>";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"90\" height=\"60\">" + circle.repeated(100'000) +
           "</svg>";
}

TEST_F(PictureLoaderTest, ReadsEachKindOfPicture)
{
    for (const char *format : {"png", "jpg", "bmp", "ico", "cur", "webp"}) {
        const auto loaded = LoadPicture(written("picture", encoded(twoColours({40, 30}), format)), Largest);
        ASSERT_TRUE(loaded) << format;
        EXPECT_EQ(loaded->size, QSize(40, 30)) << format;
        EXPECT_EQ(loaded->pixels.size(), QSize(40, 30)) << format;
        expectTwoColours(loaded->pixels);
    }
}

TEST_F(PictureLoaderTest, ReadsTheFirstFrameOfAnAnimatedGif)
{
    // Two frames of 2 by 1 pixels, red and then blue.
    const QByteArray frame = QByteArray::fromHex("21f904000a0000002c00000000020001000002");
    const QByteArray gif = QByteArray::fromHex("474946383961020001008000 00ff00000000ff") +
                           QByteArray::fromHex("21ff0b4e45545343415045322e300301000000") + frame +
                           QByteArray::fromHex("02840a00") + frame + QByteArray::fromHex("028c0a00") + ";";
    const auto loaded = LoadPicture(written("a.gif", gif), Largest);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size, QSize(2, 1));
    EXPECT_EQ(loaded->pixels.pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(PictureLoaderTest, DrawsADrawing)
{
    const auto loaded = LoadPicture(
        written("a.svg", "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30\">"
                         "<rect width=\"20\" height=\"30\" fill=\"red\"/>"
                         "<rect x=\"20\" width=\"20\" height=\"30\" fill=\"blue\"/><text y=\"20\">A</text></svg>"),
        Largest);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size, QSize(40, 30));
    expectTwoColours(loaded->pixels);
}

TEST_F(PictureLoaderTest, ShrinksWhatIsLargerThanAskedForAndMeasuresItWhole)
{
    for (const char *format : {"png", "jpg", "bmp", "webp"}) {
        const auto loaded = LoadPicture(written("large", encoded(twoColours({600, 400}), format)), Largest);
        ASSERT_TRUE(loaded) << format;
        EXPECT_EQ(loaded->size, QSize(600, 400)) << format;
        EXPECT_EQ(loaded->pixels.size(), QSize(150, 100)) << format;
        expectTwoColours(loaded->pixels);
    }
}

TEST_F(PictureLoaderTest, TurnsAPhotographAsABrowserDoes)
{
    QByteArray jpeg = encoded(twoColours({600, 400}), "jpg");
    // The camera was turned: a table with one entry, orientation 6.
    const QByteArray turned = QByteArray::fromHex("ffe10022457869660000"
                                                  "4d4d002a00000008000101120003000000010006000000000000");
    jpeg.insert(2, turned);
    const auto loaded = LoadPicture(written("a.jpg", jpeg), QSize(300, 300));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size, QSize(400, 600));
    EXPECT_EQ(loaded->pixels.size(), QSize(200, 300));
    EXPECT_TRUE(isNearly(loaded->pixels.pixelColor(100, 10), Qt::red));
    EXPECT_TRUE(isNearly(loaded->pixels.pixelColor(100, 290), Qt::blue));
}

TEST_F(PictureLoaderTest, MeasuresAnEnormousPictureWithoutReadingIt)
{
    const auto loaded = LoadPicture(written("a.png", pngHeader(100'000, 50'000) + pngChunk("IDAT", {})), Largest);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size, QSize(100'000, 50'000));
    EXPECT_TRUE(loaded->pixels.isNull());
}

TEST_F(PictureLoaderTest, DrawsAnEnormousDrawingSmall)
{
    const auto loaded = LoadPicture(written("a.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40000\" "
                                                     "height=\"20000\"><rect width=\"40000\" height=\"20000\"/></svg>"),
                                    Largest);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->size, QSize(40000, 20000));
    EXPECT_EQ(loaded->pixels.size(), QSize(200, 100));
}

TEST_F(PictureLoaderTest, GivesNothingForWhatIsNoPicture)
{
    const QByteArray png = encoded(twoColours({40, 30}), "png");
    EXPECT_FALSE(LoadPicture({}, Largest));
    EXPECT_FALSE(LoadPicture(path("missing.gif"), Largest));
    EXPECT_FALSE(LoadPicture(folder.path(), Largest)) << "a folder";
    EXPECT_FALSE(LoadPicture(str("/dev/zero"), Largest));
    EXPECT_FALSE(LoadPicture(str("/dev/null"), Largest));
    EXPECT_FALSE(LoadPicture(str("http://example.org/a.gif"), Largest));
    EXPECT_FALSE(LoadPicture(written("empty.gif", {}), Largest));
    EXPECT_FALSE(LoadPicture(written("text.gif", "This is no picture"), Largest));
    EXPECT_FALSE(LoadPicture(written("header.gif", "GIF89a"), Largest));
    EXPECT_FALSE(LoadPicture(written("half.png", png.first(png.size() / 2)), Largest));
    EXPECT_FALSE(LoadPicture(written("nothing.png", pngHeader(0, 0)), Largest));
    EXPECT_FALSE(LoadPicture(written("broken.svg", "<svg width=\"10\" height=\"10\"><rect"), Largest));
}

TEST_F(PictureLoaderTest, WaitsForNoPipeAndReadsNoLockedFile)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe.gif")).constData(), 0600), 0);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(LoadPicture(path("pipe.gif"), Largest));
    EXPECT_LT(timer.elapsed(), LongestMilliseconds);
    const QString locked = written("locked.png", encoded(twoColours({40, 30}), "png"));
    ASSERT_TRUE(QFile::setPermissions(locked, QFileDevice::Permissions()));
    EXPECT_EQ(LoadPicture(locked, Largest).has_value(), ::geteuid() == 0) << "root reads anything";
}

TEST_F(PictureLoaderTest, EndsAReaderThatAHostileFileKeepsAtWork)
{
    const QString drawing = written("circles.svg", svgOfManyCircles());
    QElapsedTimer timer;
    timer.start();
    const auto loaded = LoadPicture(drawing, Largest);
    EXPECT_LT(timer.elapsed(), LongestMilliseconds);
    EXPECT_FALSE(loaded && !loaded->pixels.isNull());
    EXPECT_TRUE(!loaded || loaded->size == QSize(90, 60)) << "measured, if there was time for it";
}

TEST_F(PictureLoaderTest, OutlivesAFileThatSwells)
{
    const QString swelling = written("a.png", pngWithSwollenTexts());
    QElapsedTimer timer;
    timer.start();
    const auto loaded = LoadPicture(swelling, Largest);
    EXPECT_LT(timer.elapsed(), LongestMilliseconds);
    EXPECT_FALSE(loaded && loaded->size != QSize(1, 1));
}

TEST_F(PictureLoaderTest, RefusesAFileBeyondItsLimit)
{
    const QString large = written("a.png", encoded(twoColours({40, 30}), "png"));
    ASSERT_EQ(::truncate(QFile::encodeName(large).constData(), (64 << 20) + 1), 0);
    EXPECT_FALSE(LoadPicture(large, Largest));
}

TEST_F(PictureLoaderTest, ReadsNamesOfAnyCharacters)
{
    const QString named = written("-a \"b\" é?.png", encoded(twoColours({40, 30}), "png"));
    EXPECT_TRUE(LoadPicture(named, Largest));
}
/// A drawing of one picture, which it names so, over white.
QByteArray svgNaming(const QByteArray &reference)
{
    return "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"40\" height=\"30\">"
           "<rect width=\"40\" height=\"30\" fill=\"white\"/>"
           "<image width=\"40\" height=\"30\" xlink:href=\"" +
           reference + "\"/></svg>";
}

TEST_F(PictureLoaderTest, FollowsNoReferenceOutOfADrawing)
{
    QImage red(40, 30, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QByteArray picture = encoded(red, "png");
    const QByteArray path = written("red.png", picture).toUtf8();
    for (const QByteArray &reference : {path, "file://" + path, QByteArray("red.png")}) {
        const auto loaded = LoadPicture(written("a.svg", svgNaming(reference)), Largest);
        ASSERT_TRUE(loaded) << reference.constData();
        EXPECT_EQ(loaded->size, QSize(40, 30));
        EXPECT_TRUE(isNearly(loaded->pixels.pixelColor(20, 15), Qt::white)) << reference.constData();
    }
    for (const char *format : {"png", "jpg"}) {
        const QByteArray held = "data:image/" + QByteArray(format) + ";base64," + encoded(red, format).toBase64();
        const auto loaded = LoadPicture(written("b.svg", svgNaming(held)), Largest);
        ASSERT_TRUE(loaded) << format;
        EXPECT_TRUE(isNearly(loaded->pixels.pixelColor(20, 15), Qt::red)) << format;
    }
}

TEST_F(PictureLoaderTest, WaitsForNoPipeThatADrawingNames)
{
    ASSERT_EQ(::mkfifo(path("pipe").toUtf8().constData(), 0600), 0);
    const QByteArray pipe = path("pipe").toUtf8();
    const QByteArray sheet = "<?xml-stylesheet type=\"text/css\" href=\"" + pipe + "\"?>";
    QElapsedTimer taken;
    taken.start();
    EXPECT_TRUE(LoadPicture(written("a.svg", svgNaming(pipe)), Largest));
    QByteArray styled = svgNaming("none");
    styled.insert(styled.indexOf("<svg"), sheet);
    EXPECT_TRUE(LoadPicture(written("b.svg", styled), Largest));
    EXPECT_LT(taken.elapsed(), 2 * LongestMilliseconds);
}
} // namespace
