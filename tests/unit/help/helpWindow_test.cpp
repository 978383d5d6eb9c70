#include "desktop/boxOwner.h"
#include "desktop/desktopHelpViewer.h"
#include "help/helpBrowser.h"
#include "help/helpFindBar.h"
#include "help/helpHitList.h"
#include "help/helpWindow.h"
#include "services/launcher.h"
#include "storage/localFileSystem.h"
#include "unit/support/sandbox.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class NotedLauncher final : public Launcher
{
public:
    bool openUrl(const QString &target) override
    {
        opened += target;
        return true;
    }
    bool start(const QString &) override { return false; }
    QStringList opened;
};

QByteArray pageOf(const char *title, const char *text)
{
    return QByteArray("<html><head><title>") + title + "</title></head><body><h1>" + title + "</h1><p>" + text +
           "</p></body></html>";
}

class Help : public Sandbox
{
protected:
    Help()
    {
        put("secret.htm", "not of the help");
        put("help/contents.txt", "Welcome\ttopics/Index.htm\thome page\n"
                                 "Working\n"
                                 "\tSaving\ttopics/using/save.htm\tdisk\n"
                                 "Reference\ttopics/reference/ReferenceIndex.htm\n");
        put("help/index-reference.txt", "blink\ttopics/reference/Tag_BLINK.htm\n");
        put("help/topics/Index.htm", pageOf("Welcome", "Go to <a href=\"using/save.htm\">saving</a>."));
        put("help/topics/using/save.htm", pageOf("Saving", "Files are kept. Files are safe."));
        put("help/topics/reference/ReferenceIndex.htm", pageOf("Elements", "All of them."));
        put("help/topics/reference/Tag_BLINK.htm", pageOf("blink", "No longer in use; files of old have it."));
        put("help/topics/reference/Information_KeywordNotFound.htm", pageOf("No such element", "Sorry."));
    }

    HelpWindow &window() { return *viewer.window(); }
    /// Shows a topic, and waits until the window has the focus.
    void open(const char *topic)
    {
        viewer.show(q(topic));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    template <class T>
    T &part(const char *name)
    {
        return *window().findChild<T *>(q(name));
    }
    HelpBrowser &browser() { return part<HelpBrowser>("helpBrowser"); }
    void press(const char *action) { part<QAction>(action).trigger(); }
    /// A page of the contents by the titles on its way.
    QTreeWidgetItem *node(std::initializer_list<const char *> titles)
    {
        QTreeWidgetItem *at = part<QTreeWidget>("helpContents").invisibleRootItem();
        for (const char *title : titles) {
            int child = 0;
            while (child < at->childCount() && at->child(child)->text(0) != q(title))
                ++child;
            at = at->child(child);
        }
        return at;
    }

    LocalFileSystem files;
    NotedLauncher launcher;
    DesktopHelpViewer viewer{{path("help")}, files, launcher};
};

TEST_F(Help, IsMadeWhenItIsFirstAskedFor)
{
    EXPECT_FALSE(viewer.window());
    viewer.show(q("::/topics/using/save.htm"));
    ASSERT_TRUE(viewer.window());
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(window().parentWidget());
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
    EXPECT_EQ(window().windowTitle(), q("Saving – Tagwrighter Help"));
}

TEST_F(Help, GoesBackAndForward)
{
    open("::/topics/Index.htm");
    EXPECT_FALSE(part<QAction>("helpBack").isEnabled());
    viewer.show(q("::/topics/using/save.htm"));
    viewer.show(q("::/topics/reference/Tag_BLINK.htm"));
    press("helpBack");
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
    EXPECT_EQ(window().windowTitle(), q("Saving – Tagwrighter Help"));
    press("helpBack");
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
    EXPECT_FALSE(part<QAction>("helpBack").isEnabled());
    press("helpForward");
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
    QTest::keyClick(&browser(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
    QTest::keyClick(&browser(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
}

TEST_F(Help, SaysThatATopicIsMissing)
{
    for (const char *topic : {"::/topics/None.htm", "::/topics/../../etc/passwd", "::/topics/../../secret.htm",
                              "::/topics/using", "::/secret.htm", ""}) {
        viewer.show(q("::/topics/Index.htm"));
        viewer.show(q(topic));
        EXPECT_EQ(browser().page(), q("topics/reference/Information_KeywordNotFound.htm")) << topic;
        EXPECT_EQ(browser().documentTitle(), q("No such element")) << topic;
    }
}

TEST_F(Help, WithoutItsPagesSaysSoItself)
{
    DesktopHelpViewer empty({path("nowhere")}, files, launcher);
    empty.show(q("::/topics/Index.htm"));
    const auto *shown = empty.window()->findChild<HelpBrowser *>();
    EXPECT_EQ(shown->documentTitle(), q("Topic not found"));
    EXPECT_TRUE(shown->toPlainText().contains(q("not installed")));
    empty.contents();
    empty.index();
}

TEST_F(Help, ShowsTheContentsWithTheReferenceInThem)
{
    viewer.contents();
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
    EXPECT_EQ(part<QTabWidget>("helpNavigator").currentIndex(), HelpNavigator::Contents);
    EXPECT_EQ(part<QTreeWidget>("helpContents").currentItem(), node({"Welcome"}));
    viewer.show(q("::/topics/reference/Tag_BLINK.htm"));
    EXPECT_EQ(part<QTreeWidget>("helpContents").currentItem(), node({"Reference", "blink"}));
    viewer.show(q("::/topics/None.htm"));
    EXPECT_FALSE(part<QTreeWidget>("helpContents").currentItem());
}

TEST_F(Help, OpensThePageOfAnEntryOfTheContents)
{
    viewer.contents();
    auto &tree = part<QTreeWidget>("helpContents");
    Q_EMIT tree.itemActivated(node({"Working"}), 0); // a heading has no page
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
    Q_EMIT tree.itemActivated(node({"Working", "Saving"}), 0);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
}

TEST_F(Help, FiltersTheIndex)
{
    viewer.index();
    EXPECT_EQ(part<QTabWidget>("helpNavigator").currentIndex(), HelpNavigator::Index);
    const auto &list = part<QListWidget>("helpIndex");
    EXPECT_EQ(list.count(), 6); // four titles, two keywords
    auto &filter = part<QLineEdit>("helpIndexFilter");
    QTest::keyClicks(&filter, q("DIS"));
    QStringList shown;
    for (int row = 0; row < list.count(); ++row)
        if (!list.item(row)->isHidden())
            shown += list.item(row)->text();
    EXPECT_EQ(shown, QStringList(q("disk")));
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
    filter.setText(q("nothing like it"));
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
}

TEST_F(Help, SearchesAllPages)
{
    open("::/topics/Index.htm");
    auto &field = part<QLineEdit>("helpSearch");
    QTest::keyClicks(&field, q("files"));
    const auto &hits = part<HelpHitList>("helpHits");
    EXPECT_EQ(part<QTabWidget>("helpNavigator").currentIndex(), HelpNavigator::Search);
    ASSERT_EQ(hits.count(), 2);
    EXPECT_EQ(hits.pageAt(0), q("topics/using/save.htm")); // it has the word twice
    EXPECT_EQ(part<QLabel>("helpFound").text(), q("2 pages:"));
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
    field.clear();
    QTest::keyClicks(&field, q("unheard"));
    EXPECT_EQ(hits.count(), 0);
    EXPECT_EQ(part<QLabel>("helpFound").text(), q("No page holds these words."));
}

TEST_F(Help, FindsOnThePage)
{
    open("::/topics/using/save.htm");
    auto &bar = part<HelpFindBar>("helpFindBar");
    EXPECT_FALSE(bar.isVisible());
    QTest::keyClick(&browser(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(bar.isVisible());
    auto &field = part<QLineEdit>("helpFindText");
    QTest::keyClicks(&field, q("files"));
    const int first = browser().textCursor().selectionStart();
    EXPECT_EQ(browser().textCursor().selectedText(), q("Files"));
    QTest::keyClick(&field, Qt::Key_F3);
    EXPECT_GT(browser().textCursor().selectionStart(), first);
    QTest::keyClick(&field, Qt::Key_F3); // round to the first one again
    EXPECT_EQ(browser().textCursor().selectionStart(), first);
    QTest::keyClick(&field, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_GT(browser().textCursor().selectionStart(), first);
    QTest::keyClicks(&field, q("x"));
    EXPECT_EQ(part<QLabel>("helpFindAnswer").text(), q("Not on this page"));
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(Help, ClosesByEscapeAndComesBackAsItWas)
{
    open("::/topics/using/save.htm");
    window().resize(700, 500);
    QTest::keyClick(&browser(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    viewer.index();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().size(), QSize(700, 500));
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
}

TEST_F(Help, HandsLinksOutOfItToTheDesktop)
{
    viewer.show(q("::/topics/Index.htm"));
    for (const char *link : {"http://example.org/a.htm", "https://example.org/", "mailto:a@example.org",
                             "file:///etc/passwd", "javascript:x()", "ftp://example.org/x"})
        Q_EMIT browser().anchorClicked(QUrl(q(link)));
    EXPECT_EQ(launcher.opened,
              QStringList({q("http://example.org/a.htm"), q("https://example.org/"), q("mailto:a@example.org")}));
    EXPECT_EQ(browser().page(), q("topics/Index.htm"));
}

TEST_F(Help, FollowsLinksByKeyboard)
{
    open("::/topics/Index.htm");
    browser().setFocus();
    QTest::keyClick(&browser(), Qt::Key_Tab);
    QTest::keyClick(&browser(), Qt::Key_Return);
    EXPECT_EQ(browser().page(), q("topics/using/save.htm"));
}

TEST_F(Help, KeepsTheTextBetweenTwoSizes)
{
    open("::/topics/Index.htm");
    const int usual = browser().font().pointSize();
    QTest::keyClick(&browser(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(browser().font().pointSize(), usual + 1);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(&browser(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(browser().font().pointSize(), usual + 12);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(&browser(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(browser().font().pointSize(), usual - 4);
    QTest::keyClick(&browser(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(browser().font().pointSize(), usual);
}

TEST_F(Help, MovesThroughItsPartsByF6)
{
    open("::/topics/Index.htm");
    EXPECT_TRUE(browser().hasFocus());
    QTest::keyClick(&browser(), Qt::Key_F6);
    EXPECT_TRUE(part<QLineEdit>("helpSearch").hasFocus());
    QTest::keyClick(&part<QLineEdit>("helpSearch"), Qt::Key_F6);
    EXPECT_TRUE(part<QTreeWidget>("helpContents").hasFocus());
    QTest::keyClick(&part<QTreeWidget>("helpContents"), Qt::Key_F6);
    EXPECT_TRUE(browser().hasFocus());
}

/// What the window makes of a real click, which a modal window may keep from it.
bool takesClicks(HelpWindow &window)
{
    QLineEdit &field = *window.findChild<QLineEdit *>(q("helpSearch"));
    window.findChild<HelpBrowser *>()->setFocus();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, field.mapTo(&window, field.rect().center()));
    return window.focusWidget() == &field; // the click of a test activates no window
}

TEST_F(Help, StaysUsableBesideModalWindows)
{
    open("::/topics/Index.htm");
    EXPECT_TRUE(takesClicks(window()));
    auto outer = std::make_unique<QDialog>();
    outer->setModal(true);
    outer->show();
    EXPECT_TRUE(takesClicks(window()));
    auto inner = std::make_unique<QDialog>(outer.get());
    inner->setModal(true);
    inner->show();
    EXPECT_TRUE(takesClicks(window()));
    inner.reset();
    EXPECT_TRUE(takesClicks(window()));
    outer.reset();
    EXPECT_TRUE(takesClicks(window()));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(Help, FirstOpenedFromAModalWindowIsUsable)
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    viewer.show(q("::/topics/Index.htm"));
    EXPECT_TRUE(takesClicks(window()));
    dialog.close();
    EXPECT_TRUE(takesClicks(window()));
}

TEST_F(Help, OwnsNoBoxes)
{
    QMainWindow program;
    program.show();
    program.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program));
    EXPECT_EQ(boxOwner(), &program);
    viewer.show(q("::/topics/Index.htm"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(boxOwner(), &program);
    program.hide();
    EXPECT_EQ(boxOwner(), nullptr);
}
} // namespace
