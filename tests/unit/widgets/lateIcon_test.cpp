#include "widgets/lateIcon.h"

#include <QPixmap>
#include <gtest/gtest.h>

namespace
{
QIcon square(int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::red);
    return picture;
}
} // namespace

TEST(LateIcon, IsMadeOnceAndWhenItIsFirstAskedFor)
{
    int made = 0;
    const QIcon icon = lateIcon([&made] {
        ++made;
        return square(16);
    });
    const QList<QIcon> copies = {icon};
    EXPECT_EQ(made, 0);
    EXPECT_EQ(icon.pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(copies.first().actualSize(QSize(16, 16)), QSize(16, 16));
    EXPECT_EQ(made, 1);
}

TEST(LateIcon, HasTheSizesOfWhatItIsMadeOf)
{
    EXPECT_EQ(lateIcon([] { return square(24); }).availableSizes(), QList<QSize>{QSize(24, 24)});
    EXPECT_TRUE(lateIcon([] { return QIcon(); }).isNull());
    EXPECT_FALSE(lateIcon([] { return square(24); }).isNull());
}
