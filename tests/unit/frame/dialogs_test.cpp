// What holds for every dialog of the program, whoever made it.
#include "forms/fittingWindow.h"
#include "forms/form.h"
#include "unit/support/wholeProgram.h"
#include "widgets/accelerators.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

namespace
{
using DialogsTest = WholeProgram;

QString captionOf(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return group->title();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label && label->buddy() ? label->text() : QString();
}

/// The accelerators of what is on show, each with the caption that bears it.
QMultiMap<QString, QString> accelerators(const QWidget &window)
{
    QMultiMap<QString, QString> found;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (widget->isVisible() && !acceleratorOf(captionOf(*widget)).isEmpty())
            found.insert(acceleratorOf(captionOf(*widget)), captionOf(*widget));
    return found;
}
} // namespace

TEST_F(DialogsTest, HaveNoAcceleratorTwice)
{
    forEachDialog([](Form &form) {
        form.window()->show();
        forEachPage(*form.window(), [&form] {
            const QMultiMap<QString, QString> found = accelerators(*form.window());
            for (const QString &letter : found.uniqueKeys())
                EXPECT_EQ(found.count(letter), 1)
                    << qPrintable(form.Name()) << ": " << qPrintable(found.values(letter).join(QStringLiteral(", ")));
        });
    });
}

TEST_F(DialogsTest, FitASmallScreenWithTheirButtonsInSight)
{
    const QSize room(700, 450);
    forEachDialog([&](Form &form) {
        QWidget &window = *form.window();
        fitInto(window, room);
        window.show();
        settle();
        EXPECT_LE(window.width(), room.width()) << qPrintable(form.Name());
        EXPECT_LE(window.height(), room.height()) << qPrintable(form.Name());
        for (const char *name : {"cmdOK", "cmdOk", "cmdCancel", "cmdClose"})
            if (const auto *button = window.findChild<QPushButton *>(QLatin1String(name));
                button && button->isVisible()) {
                const QRect place(button->mapTo(&window, QPoint()), button->size());
                EXPECT_TRUE(window.rect().contains(place)) << qPrintable(form.Name()) << " " << name;
            }
    });
}

// What most small screens have at least, less a title bar and a panel of the desktop.
TEST_F(DialogsTest, NeedNoScrollingFromSideToSideAt800By600)
{
    const QSize room(792, 540);
    forEachDialog([&](Form &form) {
        QWidget &window = *form.window();
        fitInto(window, room);
        window.show();
        settle();
        for (const QScrollArea *area : window.findChildren<QScrollArea *>())
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << qPrintable(form.Name());
    });
}
