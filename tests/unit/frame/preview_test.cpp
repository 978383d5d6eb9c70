// The live preview on a machine without a page engine, and at a start.
#include "browser/modulePageViews.h"
#include "browser/webBrowser.h"
#include "common/mainWindow.h"
#include "common/programState.h"
#include "desktop/desktopServices.h"
#include "forms/form.h"
#include "frame/application.h"
#include "services/fileSystem.h"
#include "services/services.h"
#include "services/settings.h"
#include "services/timer.h"
#include "unit/support/servicesOver.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace
{
/// No engine, and a note of each time that it was asked for.
class CountedViews final : public PageViews
{
public:
    CountedViews(const QString &folder, PageSource &source) : m_views({folder}, source) {}

    PageEngine *engine() override
    {
        ++asked;
        return m_views.engine();
    }
    QString reasonForNone() const override { return m_views.reasonForNone(); }
    PageSource &source() override { return m_views.source(); }

    int asked = 0;

private:
    ModulePageViews m_views;
};

/// Whether this process, which is linked as the program is, holds a library of that name.
bool librariesNamed(const char *name)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(name);
}

class PreviewTest : public testing::Test
{
protected:
    PreviewTest()
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(place, home.path().toUtf8());
        desktop = std::make_unique<DesktopServices>();
        Services &real = desktop->services();
        settings::write(real.settings, settings::WelcomeScreen, QStringLiteral("false"));
        views = std::make_unique<CountedViews>(home.path(), real.pageViews.source());
        services = std::make_unique<Services>(servicesOver(real, {.pageViews = views.get(), .appPath = home.path()}));
        application = std::make_unique<Application>(*services);
        application->form(QStringLiteral("frmMdi"))->Show();
    }

    ~PreviewTest() override
    {
        application.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Document &document() { return *application->context().mainWindow->activeDocument(); }
    template <class T>
    T &control(const char *name)
    {
        return dynamic_cast<T &>(*dynamic_cast<Form &>(document()).control(QLatin1String(name)));
    }
    QByteArray copy() const { return services->files.readAll(home.filePath(QStringLiteral("tmp_iprv.html"))).bytes; }

    QTemporaryDir home;
    std::unique_ptr<DesktopServices> desktop;
    std::unique_ptr<CountedViews> views;
    std::unique_ptr<Services> services;
    std::unique_ptr<Application> application;
};

TEST_F(PreviewTest, OfTheFirstEmptyPageAsksForNoEngine)
{
    auto &timer = control<Timer>("tmrUpdateLiveSplitPreview");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.Enabled(); })) << "half a second after the start";
    EXPECT_TRUE(copy().startsWith("<html>"));
    EXPECT_EQ(control<WebBrowser>("brwWebBrowser").Notice(), QString());
    EXPECT_EQ(views->asked, 0);
    EXPECT_TRUE(librariesNamed("libQt6Widgets"));
    EXPECT_FALSE(librariesNamed("libQt6WebEngine")) << "it comes with the module, which nothing is linked to";
    EXPECT_FALSE(librariesNamed("libQt6Quick"));
    EXPECT_FALSE(librariesNamed("libcurl"));
}

TEST_F(PreviewTest, WithoutAnEngineSaysWhatIsMissingAndLeavesTheEditorAlone)
{
    document().txtEdit().setSelText(QStringLiteral("one"));
    auto &timer = control<Timer>("tmrUpdateLiveSplitPreview");
    timer.fire();
    const auto &browser = control<WebBrowser>("brwWebBrowser");
    EXPECT_EQ(browser.Notice(),
              QStringLiteral("There is no preview: the program's part tagwrighter-webview.so is not installed."));
    EXPECT_EQ(views->asked, 1);
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file://") + home.filePath(QStringLiteral("tmp_iprv.html")));
    EXPECT_FALSE(application->context().state.PreviewBusy);
    EXPECT_TRUE(application->context().state.PreviewUseTempCopy);
    document().txtEdit().setSelText(QStringLiteral(" two"));
    EXPECT_TRUE(timer.Enabled());
    timer.fire();
    EXPECT_TRUE(copy().contains("one two"));
}

TEST_F(PreviewTest, TellsOthersThatItIsUnderWay)
{
    document().txtEdit().setSelText(QStringLiteral("one"));
    const ProgramState &state = application->context().state;
    bool busy = false;
    // An event that waits is dealt with while the preview is being made.
    QMetaObject::invokeMethod(
        application.get(), [&] { busy = state.PreviewBusy; }, Qt::QueuedConnection);
    control<Timer>("tmrUpdateLiveSplitPreview").fire();
    EXPECT_TRUE(busy);
    EXPECT_FALSE(state.PreviewBusy);
}

TEST_F(PreviewTest, SurvivesThatItsDocumentIsClosedMeanwhile)
{
    document().txtEdit().setSelText(QStringLiteral("one"));
    document().boolDirty = true;
    auto &form = dynamic_cast<Form &>(document());
    QMetaObject::invokeMethod(
        application.get(), [&] { form.unloadAgreed(); }, Qt::QueuedConnection);
    control<Timer>("tmrUpdateLiveSplitPreview").fire();
    EXPECT_EQ(application->context().mainWindow->activeDocument(), nullptr);
    EXPECT_FALSE(application->context().state.PreviewBusy);
}
} // namespace
