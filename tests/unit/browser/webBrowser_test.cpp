#include "browser/webBrowser.h"
#include "services/pageViews.h"
#include "unit/support/noPages.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// What is done with a view that shows nothing, and what its page would tell.
struct Page {
    QStringList calls;
    PageViewListener *listener = nullptr;
    QWidget *widget = nullptr;
    bool answers = true;
    bool hasForm = true;

    void finish()
    {
        listener->loadStarted();
        listener->loadFinished();
    }
    QStringList taken() { return std::exchange(calls, {}); }
};

class PretendedView final : public PageView
{
public:
    PretendedView(Page &page, PageViewListener &listener, QWidget *parent) : m_page(page)
    {
        m_page.listener = &listener;
        m_page.widget = new QWidget(parent);
    }

    QWidget *widget() override { return m_page.widget; }
    void load(const QUrl &address) override { m_page.calls << QStringLiteral("load ") + address.toString(); }
    void back() override { m_page.calls << QStringLiteral("back"); }
    void forward() override { m_page.calls << QStringLiteral("forward"); }
    void stop() override { m_page.calls << QStringLiteral("stop"); }
    void reload() override { m_page.calls << QStringLiteral("reload"); }
    void ask(std::function<void()> answered) override
    {
        if (m_page.answers)
            answered();
    }
    void text(std::function<void(const QString &)> taken) override { taken(QStringLiteral("text")); }
    void place(const QString &text, std::function<void(const std::optional<QPoint> &)> taken) override
    {
        taken(text == QStringLiteral("text") ? std::optional(QPoint(10, 20)) : std::nullopt);
    }
    void mark(const ElementPath &path) override
    {
        m_page.calls << QStringLiteral("mark ") + (path.isEmpty() ? QString() : path.constFirst().name);
    }
    void markedText(std::function<void(const QString &)> taken) override { taken(QStringLiteral("marked")); }
    int scrollTop() const override { return 30; }
    void sendForm(std::function<void(bool)> sent) override
    {
        m_page.calls << QStringLiteral("send");
        sent(m_page.hasForm);
    }
    void endPage() override { m_page.calls << QStringLiteral("end"); }

private:
    Page &m_page;
};

class PretendedViews final : public PageViews, public PageEngine
{
public:
    PageSource &source() override { return m_source; }
    void setSource(PageSource &) override {}
    PageEngine *engine() override
    {
        ++asked;
        return isThere ? this : nullptr;
    }
    QString reasonForNone() const override { return QStringLiteral("It is not there."); }
    std::unique_ptr<PageView> makeView(PageViewListener &listener, QWidget *parent) override
    {
        return std::make_unique<PretendedView>(page, listener, parent);
    }
    void shutDown() override {}

    Page page;
    bool isThere = true;
    int asked = 0;

private:
    NoPages m_source;
};

class WebBrowserTest : public testing::Test
{
protected:
    WebBrowserTest() { browser.show(); }

    QString strip() { return browser.Notice(); }
    QPushButton *again() { return browser.findChild<QPushButton *>(); }
    static QString file(const char *name) { return QStringLiteral("/site/") + QLatin1String(name); }

    PretendedViews views;
    Page &page = views.page;
    WebBrowser browser{views};
};

TEST_F(WebBrowserTest, MarksElementsOfAPageThatIsOnShow)
{
    const ElementPath path{{.name = QStringLiteral("p"), .number = 1, .total = 2}};
    ElementPath clicked;
    QObject::connect(&browser, &WebBrowser::clickedAt, [&clicked](const ElementPath &at) { clicked = at; });
    browser.mark(path);
    browser.Navigate(file("a.html"));
    page.taken();
    browser.mark(path);
    EXPECT_EQ(page.taken(), QStringList()) << "it is loading";
    page.finish();
    page.taken();
    browser.mark(path);
    EXPECT_EQ(page.taken(), QStringList{QStringLiteral("mark p")});
    browser.mark({});
    EXPECT_EQ(page.taken(), QStringList{QStringLiteral("mark ")});
    page.listener->elementClicked(path);
    EXPECT_EQ(clicked, path);
    page.listener->pageEnded();
    browser.mark(path);
    EXPECT_EQ(page.taken(), QStringList());
}

TEST_F(WebBrowserTest, IsAtAnEmptyPageWithoutAnEngine)
{
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("about:blank"));
    browser.GoBack();
    browser.GoForward();
    browser.Stop();
    browser.Refresh();
    EXPECT_EQ(views.asked, 0);
    QString text = QStringLiteral("untouched");
    browser.pageText([&text](const QString &taken) { text = taken; });
    EXPECT_EQ(text, QString());
}

TEST_F(WebBrowserTest, TellsTheNewAddressAtOnce)
{
    const struct {
        const char *target;
        const char *address;
    } rows[] = {
        {"/site/a.htm", "file:///site/a.htm"},
        {"/site/my page#1.htm", "file:///site/my%20page%231.htm"},
        {"/site/100%.htm", "file:///site/100%25.htm"},
        {"http://example.org/a?b=c#d", "http://example.org/a?b=c#d"},
        {"about:blank", "about:blank"},
        {"example.org", "http://example.org"},
    };
    for (const auto &row : rows) {
        browser.Navigate(QLatin1String(row.target));
        EXPECT_EQ(browser.LocationURL(), QLatin1String(row.address)) << row.target;
    }
}

TEST_F(WebBrowserTest, LoadsOnceMoreForAllThatIsAskedDuringALoad)
{
    browser.Navigate(file("a.htm"));
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/a.htm")));
    EXPECT_TRUE(browser.isLoading());
    browser.Navigate(file("b.htm"));
    browser.Navigate(file("c.htm"));
    EXPECT_THAT(page.taken(), IsEmpty());
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file:///site/c.htm"));
    page.listener->addressChanged(QUrl(QStringLiteral("file:///site/a.htm")));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file:///site/c.htm")) << "that is where it is going";
    page.finish();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/c.htm")));
    EXPECT_TRUE(browser.isLoading());
    page.finish();
    EXPECT_THAT(page.taken(), IsEmpty());
    EXPECT_FALSE(browser.isLoading());
}

TEST_F(WebBrowserTest, DropsWhatWaitsWhenItIsStopped)
{
    browser.Navigate(file("a.htm"));
    browser.Navigate(file("b.htm"));
    page.taken();
    browser.Stop();
    page.finish();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("stop")));
}

TEST_F(WebBrowserTest, TellsTheBeginningAndTheEndOfEachNavigation)
{
    const QSignalSpy started(&browser, &WebBrowser::navigationStarted);
    const QSignalSpy finished(&browser, &WebBrowser::navigationFinished);
    browser.Navigate(file("a.htm"));
    page.listener->loadStarted();
    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(finished.count(), 0);
    page.listener->loadFinished();
    EXPECT_EQ(finished.count(), 1);
    page.finish(); // a link in the page
    EXPECT_EQ(started.count(), 2);
    EXPECT_EQ(finished.count(), 2);
}

TEST_F(WebBrowserTest, FollowsThePagesOwnNavigation)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.listener->addressChanged(QUrl(QStringLiteral("file:///site/my%20b.htm")));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file:///site/my%20b.htm"));
}

TEST_F(WebBrowserTest, ShowsTheViewWithItsFirstPage)
{
    browser.Navigate(file("a.htm"));
    EXPECT_FALSE(page.widget->isVisible());
    page.finish();
    EXPECT_TRUE(page.widget->isVisible());
    browser.Navigate(file("b.htm"));
    EXPECT_TRUE(page.widget->isVisible()) << "the old page stays until the new one is there";
}

TEST_F(WebBrowserTest, LetsASlowLoadHoldANewerOneUpForAWhileOnly)
{
    browser.setPatience(100);
    browser.Navigate(file("slow.htm"));
    page.listener->loadStarted();
    browser.Navigate(file("b.htm"));
    page.taken();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !page.calls.isEmpty(); }));
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/b.htm")));
    EXPECT_TRUE(page.widget->isVisible()) << "what there is of a slow page is shown";
}

TEST_F(WebBrowserTest, StopsAPageWhoseScriptNeverEnds)
{
    browser.setPatience(100);
    page.answers = false;
    browser.Navigate(file("endless.htm"));
    page.listener->loadStarted();
    page.taken();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !page.calls.isEmpty(); }));
    EXPECT_EQ(page.taken().first(), QStringLiteral("end"));
    EXPECT_EQ(strip(), QString());
    page.listener->pageEnded();
    EXPECT_EQ(strip(), QStringLiteral("A script of this page did not come to an end, so the page was stopped."));
    EXPECT_FALSE(browser.isLoading());
    EXPECT_FALSE(page.widget->isVisible());
    page.taken();
    ASSERT_TRUE(again()->isVisible());
    again()->click();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/endless.htm")));
    EXPECT_EQ(strip(), QString());
}

TEST_F(WebBrowserTest, LeavesAPageAloneThatAnswersHoweverLongItLoads)
{
    browser.setPatience(50);
    browser.Navigate(file("long.htm"));
    page.listener->loadStarted();
    page.taken();
    QTest::qWait(300);
    EXPECT_THAT(page.taken(), IsEmpty());
    EXPECT_TRUE(browser.isLoading());
}

TEST_F(WebBrowserTest, WatchesNothingOnceThePageIsThere)
{
    browser.setPatience(20);
    page.answers = false;
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    QTest::qWait(100);
    EXPECT_THAT(page.taken(), IsEmpty());
}

TEST_F(WebBrowserTest, SaysThatThePageHasEndedAndLoadsItAgain)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    page.listener->pageEnded();
    EXPECT_EQ(strip(), QStringLiteral("The page has ended: the process that showed it is gone."));
    EXPECT_FALSE(page.widget->isVisible());
    QString text = QStringLiteral("untouched");
    browser.pageText([&text](const QString &taken) { text = taken; });
    EXPECT_EQ(text, QString());
    browser.Refresh();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/a.htm")));
    page.finish();
    EXPECT_TRUE(page.widget->isVisible());
    EXPECT_EQ(strip(), QString());
}

TEST_F(WebBrowserTest, GoesOnToWhatWaitsWhenAPageEnds)
{
    browser.Navigate(file("a.htm"));
    browser.Navigate(file("b.htm"));
    page.taken();
    page.listener->pageEnded();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/b.htm")));
    EXPECT_EQ(strip(), QString());
}

TEST_F(WebBrowserTest, OnlyNotesTheTargetAsLongAsNothingWasLoaded)
{
    browser.NavigateIfRunning(file("a.htm"));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file:///site/a.htm"));
    EXPECT_EQ(views.asked, 0);
    EXPECT_FALSE(browser.isLoading());
    browser.Refresh();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/a.htm")));
    page.finish();
    browser.NavigateIfRunning(file("b.htm"));
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/b.htm")));
}

TEST_F(WebBrowserTest, SaysWhatIsMissingAndTriesAgain)
{
    views.isThere = false;
    browser.Navigate(file("a.htm"));
    EXPECT_EQ(strip(), QStringLiteral("It is not there."));
    EXPECT_FALSE(again()->isVisible());
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("file:///site/a.htm"));
    EXPECT_FALSE(browser.isLoading());
    views.isThere = true;
    browser.Navigate(file("b.htm"));
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load file:///site/b.htm")));
    EXPECT_EQ(strip(), QString());
}

TEST_F(WebBrowserTest, HandsItsCommandsToTheView)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    browser.GoBack();
    browser.GoForward();
    browser.Refresh();
    browser.Stop();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("back"), QStringLiteral("forward"), QStringLiteral("reload"),
                                          QStringLiteral("stop")));
}

TEST_F(WebBrowserTest, GoesToAnEmptyPageWhenThePageWantsToBeClosed)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    page.listener->closeAsked();
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("load about:blank")));
    EXPECT_EQ(browser.LocationURL(), QStringLiteral("about:blank"));
}

TEST_F(WebBrowserTest, ShowsWhatThePageSaysInOneShortPlainLine)
{
    browser.Navigate(file("a.htm"));
    page.listener->messageGiven(QStringLiteral("<b>one</b>\n  two"));
    EXPECT_EQ(strip(), QStringLiteral("The page says: <b>one</b> two"));
    page.listener->messageGiven(QString(1000, u'x'));
    EXPECT_EQ(strip(), QStringLiteral("The page says: ") + QString(200, u'x') + QChar(0x2026));
    page.listener->downloadRefused(QUrl(QStringLiteral("file:///site/a.zip")));
    EXPECT_EQ(strip(), QStringLiteral("This is no page, and is not downloaded: file:///site/a.zip"));
    page.finish();
    browser.Navigate(file("b.htm"));
    EXPECT_EQ(strip(), QString());
}

const QUrl Elsewhere(QStringLiteral("http://example.org/take"));

TEST_F(WebBrowserTest, SendsNoFormUnlessItIsLet)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    page.listener->formHeldBack(Elsewhere);
    EXPECT_TRUE(browser.isLoading()) << "until the question was answered";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.isLoading(); }));
    EXPECT_THAT(page.taken(), IsEmpty());
    QStringList asked;
    browser.setMaySend([&asked](const QUrl &url) {
        asked << url.host();
        return true;
    });
    browser.Refresh();
    page.finish();
    page.taken();
    page.listener->formHeldBack(Elsewhere);
    EXPECT_THAT(asked, IsEmpty()) << "the engine waits for an end of the call";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !page.calls.isEmpty(); }));
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("send")));
    EXPECT_THAT(asked, ElementsAre(QStringLiteral("example.org")));
    EXPECT_EQ(strip(), QString());
}

TEST_F(WebBrowserTest, AsksOnceUntilTheUserLoadsThePageAnew)
{
    int asked = 0;
    browser.setMaySend([&asked](const QUrl &) {
        ++asked;
        return false;
    });
    const auto sends = [&] {
        page.listener->formHeldBack(Elsewhere);
        page.listener->formHeldBack(Elsewhere);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.isLoading(); }));
        page.listener->formHeldBack(Elsewhere);
        EXPECT_EQ(strip(), QStringLiteral("Nothing was sent to \"example.org\". Load the page again to be asked."));
        return asked;
    };
    browser.Navigate(file("a.htm"));
    page.finish();
    EXPECT_EQ(sends(), 1);
    page.finish(); // the page itself goes on
    EXPECT_EQ(sends(), 1);
    browser.Follow(file("a.htm")); // the text has changed
    page.finish();
    EXPECT_EQ(sends(), 1);
    browser.Refresh();
    page.finish();
    EXPECT_EQ(sends(), 2);
    browser.Navigate(file("a.htm"));
    page.finish();
    EXPECT_EQ(sends(), 3);
    browser.GoBack();
    page.finish();
    EXPECT_EQ(sends(), 4);
    EXPECT_THAT(page.taken(), testing::Not(testing::Contains(QStringLiteral("send"))));
}

TEST_F(WebBrowserTest, SaysThatAFormWasNotSentAfterAll)
{
    page.hasForm = false;
    browser.setMaySend([](const QUrl &) { return true; });
    browser.Navigate(file("a.htm"));
    page.finish();
    page.listener->formHeldBack(Elsewhere);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.isLoading(); }));
    EXPECT_EQ(strip(), QStringLiteral("Nothing was sent to \"example.org\": the page has that form no more."));
}

TEST_F(WebBrowserTest, CanGoWhileTheUserIsAsked)
{
    auto *gone = new WebBrowser(views);
    gone->setMaySend([&gone](const QUrl &) {
        delete std::exchange(gone, nullptr);
        return true;
    });
    gone->Navigate(file("a.htm"));
    page.taken();
    page.listener->formHeldBack(Elsewhere);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !gone; }));
    EXPECT_THAT(page.taken(), IsEmpty());
}

TEST_F(WebBrowserTest, StopsAPageThatLoadsItselfTheTenthTimeWithinASecond)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    for (int i = 0; i < 9; ++i)
        page.listener->navigates(false);
    EXPECT_THAT(page.taken(), IsEmpty());
    page.listener->navigates(false);
    page.listener->navigates(false);
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("end")));
    page.listener->pageEnded();
    EXPECT_EQ(strip(), QStringLiteral("This page loaded itself again and again, so it was stopped."));
    EXPECT_TRUE(again()->isVisible());
    again()->click();
    page.finish();
    page.taken();
    for (int i = 0; i < 9; ++i)
        page.listener->navigates(false);
    EXPECT_THAT(page.taken(), IsEmpty()) << "the user's own loading begins a new count";
}

TEST_F(WebBrowserTest, StopsAPageThatLoadsFramesWithoutEnd)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    for (int i = 0; i < 299; ++i)
        page.listener->navigates(true);
    EXPECT_THAT(page.taken(), IsEmpty());
    page.listener->navigates(true);
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("end")));
    page.listener->pageEnded();
    EXPECT_EQ(strip(), QStringLiteral("This page loaded frames without end, so it was stopped."));
}

TEST_F(WebBrowserTest, StopsAPageThatReportsErrorsWithoutEnd)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.taken();
    for (int i = 0; i < 999; ++i)
        page.listener->consoleWritten(499);
    EXPECT_THAT(page.taken(), IsEmpty());
    page.listener->consoleWritten(499);
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("end")));
    page.listener->pageEnded();
    EXPECT_EQ(strip(), QStringLiteral("This page reported errors without end, so it was stopped."));
    browser.Refresh();
    page.finish();
    page.taken();
    page.listener->consoleWritten(499'499); // 999 lines' worth
    EXPECT_THAT(page.taken(), IsEmpty());
    page.listener->consoleWritten(1);
    EXPECT_THAT(page.taken(), ElementsAre(QStringLiteral("end")));
}

TEST_F(WebBrowserTest, SaysWhatAPageWasRefused)
{
    browser.Navigate(file("a.htm"));
    page.finish();
    page.listener->linkRefused(QUrl(QStringLiteral("http://example.org/x")));
    EXPECT_EQ(strip(), QStringLiteral("The preview does not go there: http://example.org/x"));
    page.listener->fileRefused(QUrl(QStringLiteral("file:///site/up.css")));
    EXPECT_EQ(strip(), QStringLiteral("The preview shows files of the page's own folder and below, so this one is "
                                      "missing: /site/up.css"));
    const QSignalSpy named(&browser, &WebBrowser::otherHostsNamed);
    page.listener->otherHostRefused(Elsewhere);
    page.listener->otherHostShown(Elsewhere);
    ASSERT_EQ(named.count(), 2);
    EXPECT_FALSE(named[0][0].toBool());
    EXPECT_TRUE(named[1][0].toBool());
    page.listener->pageEnded();
    page.listener->linkRefused(QUrl(QStringLiteral("http://example.org/x")));
    EXPECT_EQ(strip(), QStringLiteral("The page has ended: the process that showed it is gone."));
}
TEST_F(WebBrowserTest, SaysThatNoPageCanBeShownAnyMore)
{
    browser.Navigate(file("a.htm"));
    browser.Navigate(file("b.htm"));
    page.taken();
    page.listener->engineEnded();
    EXPECT_EQ(strip(), QStringLiteral(
                           "The preview has come to an end, and shows pages again when Tagwrighter is started anew."));
    EXPECT_FALSE(browser.isLoading());
    EXPECT_THAT(page.taken(), IsEmpty()) << "what waits would end in the same way";
}
} // namespace
