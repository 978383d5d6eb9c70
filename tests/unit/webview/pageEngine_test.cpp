// The real engine: what pages get to see, and what they do not.
#include "browser/modulePageViews.h"
#include "browser/servedPages.h"
#include "browser/webBrowser.h"
#include "unit/support/memorySettings.h"

#include <QDirIterator>
#include <QEventLoop>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
constexpr int Longest = 20000; // milliseconds

class PageEngineTest : public testing::Test
{
protected:
    PageEngineTest()
    {
        for (const char *place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qputenv(place, m_home.path().toUtf8());
        browser.resize(400, 300);
        browser.show();
    }

    void write(const char *name, const QByteArray &text)
    {
        QFile file(path(name));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QString path(const char *name) const { return m_site.filePath(QLatin1String(name)); }

    /// Shows a page of that name and waits until it is there.
    void show(const char *name, const QByteArray &text)
    {
        write(name, text);
        browser.Navigate(path(name));
        settle();
    }

    void settle()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !browser.isLoading(); }, Longest)) << "the page was not loaded";
    }

    QString text()
    {
        std::optional<QString> answer;
        browser.pageText([&answer](const QString &taken) { answer = taken; });
        return QTest::qWaitFor([&] { return answer.has_value(); }, Longest) ? *answer : QString();
    }
    bool comesToRead(const char *expected)
    {
        return QTest::qWaitFor([&] { return text() == QLatin1String(expected); }, Longest);
    }
    bool comesToShow(QColor colour, const QPoint &at)
    {
        return QTest::qWaitFor([&] { return browser.grab().toImage().pixelColor(at) == colour; }, Longest);
    }

    QTemporaryDir m_home;
    QTemporaryDir m_site;
    MemorySettings settings;
    ServedPages pages{settings, {}};
    ModulePageViews views{partFolders(), pages};
    WebBrowser browser{views};
};

const QByteArray RedImage =
    QByteArray::fromHex("47494638396101000100800000FF0000FFFFFF2C00000000010001000002024401003B");

TEST_F(PageEngineTest, PaintsAPageWithTheImagesBesideIt)
{
    write("pictures/red.gif", RedImage);
    show("page.htm", "<body style='margin:0'><img src='pictures/red.gif' width=100 height=100>");
    EXPECT_TRUE(comesToShow(Qt::red, {50, 50}));
    EXPECT_TRUE(comesToShow(Qt::white, {200, 200}));
}

TEST_F(PageEngineTest, TakesNewFilesWhenAPageIsShownAgain)
{
    write("style.css", "body { background: lime }");
    show("page.htm", "<link rel=stylesheet href=style.css><body>");
    EXPECT_TRUE(comesToShow(Qt::green, {200, 200}));
    write("style.css", "body { background: blue }");
    browser.Navigate(path("page.htm"));
    EXPECT_TRUE(comesToShow(Qt::blue, {200, 200}));
}

TEST_F(PageEngineTest, LetsScriptsReadNoFiles)
{
    write("secret.txt", "secret");
    write("own/data.txt", "data");
    ASSERT_TRUE(QFile::link(path("secret.txt"), path("own/link.txt")));
    show("own/page.htm", "<body><script>Promise.all(['data.txt', '../secret.txt', 'link.txt',"
                         "'file:///etc/passwd', 'qrc:/icons/x.svg'].map(name => fetch(name).then(r => r.text())"
                         ".catch(e => 'no'))).then(all => document.body.textContent = all.join(' '))</script>");
    EXPECT_TRUE(comesToRead("no no no no no")) << qPrintable(text());
}

TEST_F(PageEngineTest, ShowsNoFramesOfOtherFolders)
{
    write("secret.htm", "secret");
    write("own/frame.htm", "frame");
    show("own/page.htm",
         "<body><p id=p></p><iframe src=frame.htm></iframe><iframe src=../secret.htm></iframe><script>"
         "onload = () => p.textContent = Array.from(frames).map(f => { try { return f.document.body.textContent }"
         " catch (e) { return 'no' } }).map(t => t.includes('secret') ? 'secret' : t == 'frame' ? t : 'no')"
         ".join(' ')</script>");
    EXPECT_TRUE(QTest::qWaitFor([this] { return text().startsWith(u"frame no"); }, Longest)) << qPrintable(text());
}

TEST_F(PageEngineTest, ShowsATextInPlaceOfItsFileWithWhatStandsBesideIt)
{
    write("pictures/red.gif", RedImage);
    pages.setText(path("page.htm"), "<body style='margin:0'><img src='pictures/red.gif' width=100 height=100>");
    browser.Navigate(path("page.htm"));
    EXPECT_TRUE(comesToShow(Qt::red, {50, 50}));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file://") + path("page.htm"));
}

/// The memory of this process that is in use, in megabytes.
qint64 memoryInUse()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly) ? status.readLine().split(' ')[1].toLongLong() * 4096 / (1 << 20) : 0;
}

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 KeptBySanitizer = 256; ///< of memory that was given back, in megabytes, to find who still uses it
#else
constexpr qint64 KeptBySanitizer = 0;
#endif

/// How much memory this process takes on top while a page that does something a hundred thousand times a millisecond is
/// on show, until it is stopped or has done it for a while.
class FloodTest : public PageEngineTest
{
protected:
    qint64 memoryTakenBy(const QByteArray &what, int milliseconds)
    {
        show("page.htm", "Well");
        const qint64 before = memoryInUse();
        qint64 most = before;
        write("flood.htm", "<script>setInterval(() => { for (let i = 0; i < 100000; ++i) " + what + " }, 1)</script>");
        browser.Navigate(path("flood.htm"));
        // The program's own loop: a test's waiting would pause between the engine's events, which pile up then.
        QEventLoop loop;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &loop, [&] {
            most = std::max(most, memoryInUse());
            if (!browser.Notice().isEmpty())
                loop.quit();
        });
        look.start(10);
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
        return most - before - KeptBySanitizer;
    }
};

TEST_F(FloodTest, OfTheConsoleTakesNoMemory)
{
    EXPECT_LT(memoryTakenBy("console.log(i + 'x'.repeat(12000))", 4000), 100) << "megabytes";
}

TEST_F(FloodTest, OfErrorsIsStopped)
{
    const qint64 taken = memoryTakenBy("reportError(i + 'x'.repeat(12000))", Longest);
    EXPECT_EQ(browser.Notice(), QStringLiteral("This page reported errors without end, so it was stopped."));
    EXPECT_LT(taken, 500) << "megabytes";
}

TEST_F(FloodTest, OfTitlesTakesLittleMemory)
{
    EXPECT_LT(memoryTakenBy("document.title = i + 'x'.repeat(1e6)", 4000), 200) << "megabytes";
}

TEST_F(FloodTest, OfHistoryTakesLittleMemory)
{
    EXPECT_LT(memoryTakenBy("history.pushState('x'.repeat(1e6), '', '?' + i)", 4000), 400) << "megabytes";
}

TEST_F(FloodTest, OfBoxesTakesLittleMemory)
{
    EXPECT_LT(memoryTakenBy("alert(i + 'x'.repeat(12000))", 4000), 200) << "megabytes";
    EXPECT_TRUE(browser.Notice().startsWith(QStringLiteral("The page says: "))) << qPrintable(browser.Notice());
}

TEST_F(PageEngineTest, GivesPagesNoWindowsBoxesClipboardOrPlace)
{
    show("page.htm", "<body><script>alert('one');"
                     "const told = [confirm('two'), prompt('three'), open('x.htm'), document.execCommand('paste')];"
                     "const tell = what => document.body.textContent = told.concat(what).map(String).join(' ');"
                     "navigator.geolocation.getCurrentPosition(p => tell('place'), e => tell('nowhere'))</script>");
    EXPECT_TRUE(comesToRead("false null null false nowhere")) << qPrintable(text());
    EXPECT_EQ(browser.Notice(), QStringLiteral("The page says: three"));
}

TEST_F(PageEngineTest, KeepsNothingOnTheDisk)
{
    show("page.htm", "<body><script>localStorage.a = 'kept'; document.cookie = 'a=kept; max-age=10000';"
                     "document.body.textContent = localStorage.a</script>");
    EXPECT_TRUE(comesToRead("kept"));
    QDirIterator files(m_home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_FALSE(file.readAll().contains("kept")) << qPrintable(file.fileName());
    }
}

TEST_F(PageEngineTest, DownloadsNothing)
{
    write("archive.zip", QByteArray("PK\3\4"));
    browser.Navigate(path("archive.zip"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.Notice().isEmpty(); }, Longest));
    EXPECT_EQ(browser.Notice(),
              QStringLiteral("This is no page, and is not downloaded: file://") + path("archive.zip"));
    EXPECT_FALSE(browser.isLoading());
}

TEST_F(PageEngineTest, AsksBeforeAFormLeavesTheMachine)
{
    QStringList asked;
    browser.setMaySend([&asked](const QUrl &where) {
        asked << where.toString();
        return false;
    });
    show("page.htm", "<body>Page<form action='http://127.0.0.1:9/take' method=post><input name=a value=b></form>"
                     "<script>document.forms[0].submit()</script>");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !asked.isEmpty(); }, Longest));
    EXPECT_EQ(asked, QStringList(QStringLiteral("http://127.0.0.1:9/take")));
    settle();
    EXPECT_TRUE(text().startsWith(u"Page"));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file://") + path("page.htm"));
}

TEST_F(PageEngineTest, LetsAFormOfFilesPassUnasked)
{
    browser.setMaySend([](const QUrl &) {
        ADD_FAILURE() << "asked";
        return false;
    });
    write("next.htm", "Next");
    show("page.htm", "<body><form action=next.htm><input name=a value=b></form>"
                     "<script>document.forms[0].submit()</script>");
    EXPECT_TRUE(comesToRead("Next"));
}

TEST_F(PageEngineTest, StopsAnEndlessScriptAndGoesOn)
{
    browser.setPatience(1000);
    write("endless.htm", "<script>while (true) {}</script>");
    browser.Navigate(path("endless.htm"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.Notice().isEmpty(); }, Longest));
    EXPECT_EQ(browser.Notice(),
              QStringLiteral("A script of this page did not come to an end, so the page was stopped."));
    show("page.htm", "Well");
    EXPECT_TRUE(comesToRead("Well"));
    EXPECT_EQ(browser.Notice(), QString());
}

TEST_F(PageEngineTest, SurvivesTheEndOfAPagesProcess)
{
    show("page.htm", "Well");
    browser.Navigate(QStringLiteral("chrome://kill")); // makes the process end itself
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.Notice().isEmpty(); }, Longest));
    EXPECT_EQ(browser.Notice(), QStringLiteral("The page has ended: the process that showed it is gone."));
    show("page.htm", "Well again");
    EXPECT_TRUE(comesToRead("Well again"));
}

TEST_F(PageEngineTest, KeepsAPagesPlaceWhenItIsShownAgain)
{
    const QByteArray head = "<body style='margin:0'><div style='height:3000px;background:linear-gradient("
                            "red 1000px, blue 1000px)'>";
    show("page.htm", head + "<script>addEventListener('load', () => scrollTo(0, 1500))</script>");
    EXPECT_TRUE(comesToShow(Qt::blue, {50, 50}));
    show("other.htm", head);
    EXPECT_TRUE(comesToShow(Qt::blue, {50, 50})) << "the copy of a page is the page for its reader";
    for (int i = 0; i < 3; ++i)
        show("other.htm", head + "<script>addEventListener('load', () => setTimeout(() => "
                                 "document.title = scrollY, 100))</script>");
    EXPECT_TRUE(comesToShow(Qt::blue, {50, 50}));
}

TEST_F(PageEngineTest, CanBeShutDownUnderItsViewsAndStartedAgain)
{
    show("page.htm", "Well");
    views.engine()->shutDown();
    browser.Navigate(path("page.htm"));
    browser.Refresh();
    WebBrowser second(views);
    second.show();
    second.Navigate(path("page.htm"));
    std::optional<QString> answer;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !second.isLoading(); }, Longest));
    second.pageText([&answer](const QString &taken) { answer = taken; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, Longest));
    EXPECT_EQ(answer, QStringLiteral("Well"));
}
} // namespace
