#include "widgets/readableStyle.h"

#include "widgets/contrast.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <gtest/gtest.h>

namespace
{
QPalette theme(bool dark)
{
    QPalette palette;
    palette.setColor(QPalette::Window, dark ? QColor(42, 42, 46) : QColor(239, 240, 241));
    palette.setColor(QPalette::WindowText, dark ? QColor(230, 230, 230) : QColor(35, 38, 41));
    palette.setColor(QPalette::Base, dark ? QColor(29, 29, 32) : QColor(252, 252, 252));
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    palette.setColor(QPalette::Button, palette.color(QPalette::Window));
    palette.setColor(QPalette::ButtonText, palette.color(QPalette::WindowText));
    return palette;
}

/// What a control looks like by itself, without the focus.
QImage pictureOf(QWidget &control, QStyle &style, bool dark)
{
    control.setStyle(&style);
    control.setPalette(theme(dark));
    control.resize(control.sizeHint());
    QImage picture(control.size(), QImage::Format_RGB32);
    picture.fill(theme(dark).color(QPalette::Window));
    control.render(&picture);
    return picture;
}

/// The greatest contrast that any pixel of the row through the control's middle has to the window, in its first part:
/// where its edge is, and no text yet.
double edgeContrast(const QImage &picture, bool dark, int width = 6)
{
    double greatest = 1;
    for (int x = 0; x < width; ++x)
        greatest = std::max(greatest,
                            contrast(picture.pixelColor(x, picture.height() / 2), theme(dark).color(QPalette::Window)));
    return greatest;
}

class ReadableStyleTest : public testing::Test
{
protected:
    ReadableStyle style{QStringLiteral("Fusion")};
    std::unique_ptr<QStyle> toolkit{QStyleFactory::create(QStringLiteral("Fusion"))};
};
} // namespace

TEST(OutlineOnDark, CanBeToldFromWhatItParts)
{
    for (const int shade : {0, 20, 35, 60, 90}) {
        QPalette palette = theme(true);
        palette.setColor(QPalette::Window, QColor(shade, shade, shade));
        palette.setColor(QPalette::Base, QColor(shade / 2, shade / 2, shade / 2));
        EXPECT_TRUE(isDark(palette));
        EXPECT_GE(contrast(outlineOnDark(palette), palette.color(QPalette::Window)), 3.0) << shade;
        EXPECT_GE(contrast(outlineOnDark(palette), palette.color(QPalette::Base)), 3.0) << shade;
        EXPECT_GE(contrast(focusOnDark(palette), palette.color(QPalette::Window)), 3.0) << shade;
        EXPECT_GE(contrast(focusOnDark(palette), palette.color(QPalette::Base)), 3.0) << shade;
    }
    EXPECT_FALSE(isDark(theme(false)));
}

TEST_F(ReadableStyleTest, ShowsTheEdgesOfControlsInTheDark)
{
    QCheckBox check;
    QRadioButton option;
    QLineEdit field;
    QPlainTextEdit area;
    QComboBox list;
    for (QWidget *control : QList<QWidget *>{&check, &option, &field, &area, &list}) {
        const double before = edgeContrast(pictureOf(*control, *toolkit, true), true);
        const double now = edgeContrast(pictureOf(*control, style, true), true);
        EXPECT_LT(before, 2.0) << control->metaObject()->className();
        EXPECT_GE(now, 3.0) << control->metaObject()->className();
    }
}

TEST_F(ReadableStyleTest, ShowsFaintlyWhereADisabledControlIs)
{
    QCheckBox check;
    QRadioButton option;
    QLineEdit field;
    QComboBox list;
    for (QWidget *control : QList<QWidget *>{&check, &option, &field, &list}) {
        const double enabled = edgeContrast(pictureOf(*control, style, true), true);
        control->setEnabled(false);
        const double disabled = edgeContrast(pictureOf(*control, style, true), true);
        EXPECT_GE(disabled, 1.5) << control->metaObject()->className();
        EXPECT_LT(disabled, enabled) << control->metaObject()->className();
    }
}

TEST_F(ReadableStyleTest, ShowsTabsInTheDarkAndWhichIsInFront)
{
    for (const auto shape : {QTabBar::RoundedNorth, QTabBar::RoundedSouth}) {
        QTabBar tabs;
        tabs.setShape(shape);
        tabs.addTab(QStringLiteral("One"));
        tabs.addTab(QStringLiteral("Two"));
        tabs.setCurrentIndex(1);
        EXPECT_LT(edgeContrast(pictureOf(tabs, *toolkit, true), true), 2.0);
        const QImage picture = pictureOf(tabs, style, true);
        EXPECT_GE(edgeContrast(picture, true), 3.0);
        // The line along the closed side of the one in front differs from that of the other.
        const int y = shape == QTabBar::RoundedNorth ? 0 : picture.height() - 1;
        EXPECT_NE(picture.pixelColor(tabs.tabRect(0).center().x(), y),
                  picture.pixelColor(tabs.tabRect(1).center().x(), y));
    }
}

TEST_F(ReadableStyleTest, ShowsTheSliderOfAScrollBarInTheDark)
{
    QScrollBar bar(Qt::Horizontal);
    bar.setMaximum(100);
    bar.setPageStep(20);
    QStyleOptionSlider option;
    const auto sliderContrast = [&](QStyle &drawn) {
        const QImage picture = pictureOf(bar, drawn, true);
        option.initFrom(&bar);
        option.maximum = 100;
        option.pageStep = 20;
        option.orientation = Qt::Horizontal;
        const QRect slider = drawn.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
        return contrast(picture.pixelColor(slider.left(), slider.center().y()), theme(true).color(QPalette::Window));
    };
    EXPECT_LT(sliderContrast(*toolkit), 2.0);
    EXPECT_GE(sliderContrast(style), 3.0);
}

// The toolkit's highlight is no brighter than a dark window; without an outline of its own, the one control that keys
// go to would be the one without an edge.
TEST_F(ReadableStyleTest, ShowsTheEdgeOfWhatHasTheFocusInTheDark)
{
    QStyleOptionFrame frame;
    frame.rect = QRect(0, 0, 60, 22);
    frame.palette = theme(true);
    frame.palette.setColor(QPalette::Highlight, QColor(36, 80, 122));
    frame.state = QStyle::State_Enabled | QStyle::State_HasFocus;
    QImage picture(60, 22, QImage::Format_RGB32);
    picture.fill(frame.palette.color(QPalette::Window));
    QPainter painter(&picture);
    style.drawPrimitive(QStyle::PE_FrameLineEdit, &frame, &painter);
    painter.end();
    EXPECT_GE(edgeContrast(picture, true), 3.0);
    EXPECT_NE(focusOnDark(frame.palette), outlineOnDark(frame.palette));
}

// The toolkit keeps the pixels of each icon, so one that is made at every painting fills its store.
TEST_F(ReadableStyleTest, GivesTheSameIconUntilThePaletteChanges)
{
    const QIcon first = style.standardIcon(QStyle::SP_TitleBarCloseButton);
    EXPECT_FALSE(first.isNull());
    EXPECT_EQ(style.standardIcon(QStyle::SP_TitleBarCloseButton).cacheKey(), first.cacheKey());
    EXPECT_NE(style.standardIcon(QStyle::SP_TitleBarNormalButton).cacheKey(), first.cacheKey());
    QStyleOption other;
    other.direction = QApplication::isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft;
    EXPECT_NE(style.standardIcon(QStyle::SP_TitleBarCloseButton, &other).cacheKey(), first.cacheKey());
    QPalette palette = theme(true);
    style.polish(palette);
    EXPECT_NE(style.standardIcon(QStyle::SP_TitleBarCloseButton).cacheKey(), first.cacheKey());
}

/// Each icon is read from a file, and the first one brings the readers of all kinds of pictures along.
class CountingStyle final : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const override
    {
        ++icons;
        return QProxyStyle::standardIcon(icon, option, widget);
    }
    mutable int icons = 0;
};

TEST_F(ReadableStyleTest, MakesAnIconWhenItIsSeenAndNotBefore)
{
    auto *base = new CountingStyle;
    style.setBaseStyle(base);
    const QIcon asked = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_EQ(base->icons, 0);
    EXPECT_FALSE(asked.pixmap(16).isNull());
    EXPECT_EQ(base->icons, 1);
}

TEST_F(ReadableStyleTest, ShowsWhatIsGroupedOnEitherGround)
{
    for (const bool dark : {false, true}) {
        QGroupBox group(QStringLiteral("Size"));
        group.setMinimumSize(100, 100);
        const double frame = edgeContrast(pictureOf(group, style, dark), dark);
        EXPECT_GE(frame, dark ? 1.5 : 1.2) << dark;
        EXPECT_LT(frame, 3.0) << "it is no field";
    }
    QPalette black = theme(true);
    black.setColor(QPalette::Window, Qt::black);
    EXPECT_GE(contrast(groupOutline(black), Qt::black), 1.5);
}

TEST_F(ReadableStyleTest, TellsTheButtonThatEnterPressesInTheDark)
{
    QPushButton plain(QStringLiteral("Cancel"));
    QPushButton byEnter(QStringLiteral("Cancel"));
    byEnter.setDefault(true);
    EXPECT_NE(pictureOf(plain, style, true), pictureOf(byEnter, style, true));
    EXPECT_GE(edgeContrast(pictureOf(byEnter, style, true), true), 3.0);
}

TEST_F(ReadableStyleTest, KeepsCaptionsOffTheEdgesOfTheirButtons)
{
    for (const char *caption : {"OK", "Change the page's charset", "Clear History"}) {
        QPushButton button{QLatin1String(caption)};
        button.setStyle(&style);
        EXPECT_GE(button.sizeHint().width(), button.fontMetrics().horizontalAdvance(button.text()) + 18) << caption;
    }
}

TEST_F(ReadableStyleTest, ChangesNothingInTheLight)
{
    QCheckBox check;
    QComboBox list;
    QScrollBar bar;
    QTabBar tabs;
    tabs.addTab(QStringLiteral("One"));
    for (QWidget *control : QList<QWidget *>{&check, &list, &bar, &tabs})
        EXPECT_EQ(pictureOf(*control, style, false), pictureOf(*control, *toolkit, false))
            << control->metaObject()->className();
}
