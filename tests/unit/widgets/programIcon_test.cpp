#include "widgets/iconPixels.h"
#include "widgets/programIcon.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace
{
/// The colour of the picture's most opaque pixel.
QColor inkOf(const QPixmap &picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    QColor ink(0, 0, 0, 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > ink.alpha())
                ink = image.pixelColor(x, y);
    return ink;
}

/// How far any channel of any pixel of two pictures of one size is apart.
int difference(const QImage &one, const QImage &other)
{
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = std::max(
                {most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    return most;
}

/// A drawing as it looks where nobody has drawn it before.
QImage drawnAnew(const QString &path, int side, const QColor &colour)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(file.readAll().replace("currentColor", colour.name().toLatin1())).render(&painter);
    return image;
}
} // namespace

TEST(ProgramIcon, isDrawnAtTheSizeAndScaleAskedFor)
{
    const QIcon icon = programIcon(QStringLiteral("save"));
    EXPECT_EQ(icon.pixmap(QSize(16, 16), 1.0).size(), QSize(16, 16));
    const QPixmap large = icon.pixmap(QSize(16, 16), 2.0);
    EXPECT_EQ(large.size(), QSize(32, 32));
    EXPECT_EQ(large.devicePixelRatio(), 2.0);
}

TEST(ProgramIcon, followsTheThemesTextColour)
{
    const QPalette before = QApplication::palette();
    const QIcon icon = programIcon(QStringLiteral("bold"));
    for (const QColor colour : {QColor(20, 30, 40), QColor(230, 220, 210)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Active, QPalette::ButtonText, colour);
        QApplication::setPalette(palette);
        EXPECT_EQ(inkOf(icon.pixmap(QSize(24, 24), 2.0)).rgb(), colour.rgb());
    }
    QApplication::setPalette(before);
}

TEST(ProgramIcon, aNameWithoutADrawingGivesAnEmptyIcon)
{
    EXPECT_TRUE(programIcon(QStringLiteral("nothing-of-that-name")).isNull());
    EXPECT_TRUE(programIcon(QString()).isNull());
}

TEST(ProgramIcon, theProgramsOwnIsInColours)
{
    EXPECT_FALSE(applicationIcon().pixmap(QSize(48, 48)).isNull());
}

TEST(ProgramIcon, isKeptAtTheSizesOfBarsAndNotAtThoseOfWindows)
{
    const QIcon icon = applicationIcon();
    EXPECT_EQ(icon.pixmap(QSize(96, 96), 1.0).cacheKey(), icon.pixmap(QSize(96, 96), 1.0).cacheKey());
    const QPixmap held = icon.pixmap(QSize(128, 128), 1.0);
    EXPECT_NE(icon.pixmap(QSize(128, 128), 1.0).cacheKey(), held.cacheKey());
}

TEST(ProgramIcon, whatTheBuildHasDrawnLooksAsTheDrawingDoes)
{
    const QColor colour(200, 90, 30);
    QDirIterator drawings(QStringLiteral(":/icons"), {QStringLiteral("*.svg")});
    int count = 0;
    while (drawings.hasNext()) {
        const QString path = drawings.next();
        const QString name = drawings.fileInfo().completeBaseName();
        for (const int side : {16, 20, 24, 32}) {
            const QImage drawn = drawnIcon(name, side, colour);
            ASSERT_EQ(drawn.size(), QSize(side, side)) << qPrintable(name);
            QImage over(side, side, QImage::Format_RGB32); // as they look on a ground: what cannot be seen is alike
            over.fill(Qt::white);
            QImage anew = over;
            QPainter(&over).drawImage(0, 0, drawn);
            QPainter(&anew).drawImage(0, 0, drawnAnew(path, side, colour));
            EXPECT_LE(difference(over, anew), 3) << qPrintable(name) << " at " << side;
        }
        ++count;
    }
    EXPECT_GT(count, 80);
    EXPECT_TRUE(drawnIcon(QStringLiteral("save"), 17, colour).isNull());
    EXPECT_TRUE(drawnIcon(QStringLiteral("nothing-of-that-name"), 16, colour).isNull());
    EXPECT_EQ(drawnIcon(QStringLiteral("tagwrighter"), 128, {}).width(), 128);
}
