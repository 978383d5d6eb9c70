#include "widgets/programIcon.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QPixmap>

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
