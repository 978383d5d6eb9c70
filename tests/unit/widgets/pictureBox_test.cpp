#include "widgets/pictureBox.h"

#include <QPainter>
#include <QTest>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

class PictureBoxTest : public testing::Test
{
protected:
    PictureBoxTest()
    {
        box.resize(100, 80);
        box.show();
        QObject::connect(&box, &PictureBox::mousePressed, &box, [this](const PointerState &s) { note("down", s); });
        QObject::connect(&box, &PictureBox::mouseMoved, &box, [this](const PointerState &s) { note("move", s); });
        QObject::connect(&box, &PictureBox::mouseReleased, &box, [this](const PointerState &s) { note("up", s); });
        QObject::connect(&box, &PictureBox::clicked, &box, [this] { events.append(str("click")); });
        QObject::connect(&box, &PictureBox::doubleClicked, &box, [this] { events.append(str("dblclick")); });
    }

    void note(const char *event, const PointerState &state)
    {
        events.append(QStringLiteral("%1 %2 %3").arg(str(event)).arg(state.position.x()).arg(state.position.y()));
    }

    PictureBox box;
    QStringList events;
};

TEST_F(PictureBoxTest, TellsTheMouseInItsOwnCoordinates)
{
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(3, 4));
    QTest::mouseMove(&box, QPoint(20, 30));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(21, 31));
    EXPECT_THAT(events, ElementsAre(str("down 3 4"), str("move 20 30"), str("up 21 31"), str("click")));
}

TEST_F(PictureBoxTest, IsNotClickedByAReleaseOutside)
{
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(3, 4));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(300, 4));
    EXPECT_THAT(events, ElementsAre(str("down 3 4"), str("up 300 4")));
}

TEST_F(PictureBoxTest, IsNotClickedByTheRightButton)
{
    QTest::mouseClick(&box, Qt::RightButton, {}, QPoint(3, 4));
    EXPECT_THAT(events, ElementsAre(str("down 3 4"), str("up 3 4")));
}

TEST_F(PictureBoxTest, TellsADoubleClickInPlaceOfASecondPressAndClick)
{
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(3, 4));
    events.clear();
    QTest::mouseDClick(&box, Qt::LeftButton, {}, QPoint(3, 4));
    QTest::mouseRelease(&box, Qt::LeftButton, {}, QPoint(3, 4));
    EXPECT_EQ(events.count(str("dblclick")), 1);
    EXPECT_EQ(events.count(str("click")), 0);
    EXPECT_EQ(events.last(), str("up 3 4"));
}

TEST_F(PictureBoxTest, IsClickedBySpaceWhereTheKeyboardReachesIt)
{
    EXPECT_EQ(box.focusPolicy(), Qt::NoFocus);
    box.setClickableByKeyboard(true);
    EXPECT_EQ(box.focusPolicy(), Qt::StrongFocus);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_THAT(events, ElementsAre(str("click")));
}

TEST_F(PictureBoxTest, ShowsItsPictureAndWhatItsFormPaintsOverIt)
{
    QPixmap red(10, 10);
    red.fill(Qt::red);
    box.setPicture(red);
    box.setPaint([](QPainter &painter) { painter.fillRect(0, 0, 2, 2, Qt::blue); });
    const QImage shown = box.grab().toImage();
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::blue));
    EXPECT_EQ(shown.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_NE(shown.pixelColor(50, 50), QColor(Qt::red));
    box.setFit(PictureBox::Fit::Stretch);
    EXPECT_EQ(box.grab().toImage().pixelColor(50, 50), QColor(Qt::red));
    box.setFit(PictureBox::Fit::SizeToPicture);
    EXPECT_EQ(box.size(), QSize(10, 10));
}
} // namespace
