// What holds for every dialog of the program, whoever made it.
#include "common/mainWindow.h"
#include "desktop/desktopServices.h"
#include "forms/fittingWindow.h"
#include "forms/form.h"
#include "forms/formRuntime.h"
#include "frame/application.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/settingsStore.h"
#include "widgets/accelerators.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace
{
class DialogsTest : public testing::Test
{
protected:
    DialogsTest()
    {
        qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
        qputenv("XDG_DATA_HOME", m_home.path().toUtf8());
        m_desktop = std::make_unique<DesktopServices>();
        settings::write(m_desktop->services().settings, settings::WelcomeScreen, QStringLiteral("false"));
        application = std::make_unique<Application>(m_desktop->services());
        application->form(QStringLiteral("frmMdi"))->Show();
        settle();
        // A box that a dialog brings up would wait for somebody without end.
        QObject::connect(&m_closer, &QTimer::timeout, [] {
            if (QWidget *box = QApplication::activeModalWidget())
                box->close();
        });
        m_closer.start(20);
    }
    ~DialogsTest() override
    {
        application.reset();
        settle();
    }

    static void settle()
    {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Runs `look` on each dialog, loaded and not yet shown.
    template <class Look>
    void forEach(const Look &look)
    {
        int dialogs = 0;
        for (const QString &name : application->forms().names()) {
            Form &form = *application->form(name);
            if (form.isLoaded() || name == u"frmSplash")
                continue;
            form.Load();
            if (form.isLoaded() && qobject_cast<QDialog *>(form.window())) {
                ++dialogs;
                look(form);
            }
            form.discard();
            application->context().mainWindow->setEnabled(true);
            settle();
        }
        EXPECT_GT(dialogs, 15);
    }

    std::unique_ptr<Application> application;

private:
    QTemporaryDir m_home;
    QTimer m_closer;
    std::unique_ptr<DesktopServices> m_desktop;
};

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

QList<QTabBar *> tabsOf(const QWidget &window)
{
    return window.findChildren<QTabBar *>();
}
} // namespace

TEST_F(DialogsTest, HaveNoAcceleratorTwice)
{
    forEach([](Form &form) {
        form.window()->show();
        const QList<QTabBar *> strips = tabsOf(*form.window());
        const int pages = strips.isEmpty() ? 1 : strips.first()->count();
        for (int page = 0; page < pages; ++page) {
            if (!strips.isEmpty())
                strips.first()->setCurrentIndex(page);
            const QMultiMap<QString, QString> found = accelerators(*form.window());
            for (const QString &letter : found.uniqueKeys())
                EXPECT_EQ(found.count(letter), 1)
                    << qPrintable(form.Name()) << ": " << qPrintable(found.values(letter).join(QStringLiteral(", ")));
        }
    });
}

TEST_F(DialogsTest, FitASmallScreenWithTheirButtonsInSight)
{
    const QSize room(700, 450);
    forEach([&](Form &form) {
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
    forEach([&](Form &form) {
        QWidget &window = *form.window();
        fitInto(window, room);
        window.show();
        settle();
        for (const QScrollArea *area : window.findChildren<QScrollArea *>())
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << qPrintable(form.Name());
    });
}
