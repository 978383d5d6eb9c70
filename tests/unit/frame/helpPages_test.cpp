// The pages of the help: that there is one for every topic and command, and that none leads nowhere.
#include "desktop/desktopHelpViewer.h"
#include "frame/frmMdiTables.h"
#include "help/helpBrowser.h"
#include "help/helpContents.h"
#include "help/helpTopics.h"
#include "help/helpWindow.h"
#include "services/launcher.h"
#include "storage/localFileSystem.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

namespace
{
const QString help = QStringLiteral(TEST_SOURCE_DIR "/data/help/");
const QString reference = QStringLiteral("topics/reference/");

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

QString textOf(const QString &path)
{
    QFile file(help + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList allPages()
{
    QStringList pages;
    QDirIterator walk(help + q("topics"), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        pages += QDir(help).relativeFilePath(walk.next());
    pages.sort();
    return pages;
}

/// Those that are kept by hand; the pages of the language reference are made from the program's data.
QStringList keptPages()
{
    QStringList pages = allPages();
    pages.removeIf([](const QString &page) { return page.startsWith(reference); });
    return pages;
}

/// Whether there is such a page, or will be where the reference has not been made yet.
bool isThere(const QString &page)
{
    const bool unmade = page.startsWith(reference) && !QFile::exists(help + q("index-reference.txt"));
    return unmade || QFile::exists(help + page);
}

const char *const topics[] = {
    "::/topics/Index.htm",
    "::/topics/reference/ReferenceIndex.htm",
    "::/topics/reference/Information_KeywordNotFound.htm",
    "::/topics/tutorial/TutorialIndex.htm",
    "::/topics/using/Function_File_New.htm",
    "::/topics/using/Function_Global_UnsavedDocs.htm",
    "::/topics/using/Function_Insert_Date_Time.htm",
    "::/topics/using/Function_Insert_Hyperlink.htm",
    "::/topics/using/Function_Insert_Image.htm",
    "::/topics/using/Function_Insert_Video.htm",
    "::/topics/using/Function_Insert_HorizontalRule.htm",
    "::/topics/using/Function_Insert_BgSound.htm",
    "::/topics/using/Function_Insert_SpecialChar.htm",
    "::/topics/using/Function_Insert_Table.htm",
    "::/topics/using/Function_Insert_List.htm",
    "::/topics/using/Function_Insert_JavaApplet.htm",
    "::/topics/using/Function_Insert_Form_TextBox.htm",
    "::/topics/using/Function_Insert_Form_TextArea.htm",
    "::/topics/using/Function_Insert_Form_ListSelection.htm",
    "::/topics/using/Function_Insert_Form_Check.htm",
    "::/topics/using/Function_Insert_Form_Radio.htm",
    "::/topics/using/Function_Insert_Form_Button.htm",
    "::/topics/using/Function_Insert_Form_Field.htm",
    "::/topics/using/Function_Insert_Form_Hidden.htm",
    "::/topics/using/Function_Format_Font.htm",
    "::/topics/using/About_Wizards.htm",
    "::/topics/using/Function_SiteProject_Creating.htm",
    "::/topics/using/Function_Insert_ImageMap.htm",
    "::/topics/using/Function_File_OpenFromInternet.htm",
    "::/topics/using/Message_UnsavedDocument_BrowserPreview.htm",
    "::/topics/using/Function_Insert_CodeComment.htm",
    "::/topics/using/Function_Global_ChangeRootDirectory.htm",
    "::/topics/using/Function_Global_SyntaxCheck.htm",
    "::/topics/using/Function_Global_AddInManager.htm",
    "::/topics/using/Function_Insert_Object.htm",
    "::/topics/using/Function_Global_CodeLibrary.htm",
    "::/topics/using/Function_File_SavetoInternet.htm",
    "::/topics/using/Function_Insert_DHTMLMenu.htm",
    "::/topics/customers.html",
};

TEST(HelpPages, StandForEveryTopic)
{
    for (const char *topic : topics)
        EXPECT_TRUE(isThere(helpPageOfTopic(q(topic)).value_or(QString()))) << topic;
}

/// The page of a menu entry: entries of an array have one each, "mnuBrwNavigate0.htm", but for the recent files.
QString pageOfEntry(const QString &name)
{
    const bool recent = name.startsWith(q("mnuRecentFile"));
    QString base = recent ? q("mnuRecentFile") : name;
    base.remove(u'(').remove(u')');
    return q("topics/commands/") + base + q(".htm");
}

QString pageOfButton(const ToolCommand &button)
{
    return q("topics/commands/%1_%2.htm").arg(q(button.bar), q(button.key));
}

QString plainCaption(const char *caption)
{
    return q(caption).remove(u'&').remove(q("..."));
}

QString shownShortcut(const char *shortcut)
{
    return q(shortcut).replace(q("Return"), q("Enter"));
}

QString shortcutOn(const QString &page)
{
    return QRegularExpression(q("<b>Shortcut:</b> ([^<]+)")).match(page).captured(1);
}

TEST(HelpPages, StandForEveryEntryOfTheMenus)
{
    for (const MenuCommand &entry : menuCommands()) {
        if (entry.action.kind == CommandAction::Kind::Separator)
            continue;
        const QString page = textOf(pageOfEntry(q(entry.name)));
        EXPECT_FALSE(page.isEmpty()) << entry.name;
        if (entry.action.kind == CommandAction::Kind::Head || q(entry.name).startsWith(q("mnuRecentFile")))
            continue;
        EXPECT_TRUE(page.contains(plainCaption(entry.caption))) << entry.name;
        EXPECT_EQ(shortcutOn(page), shownShortcut(entry.shortcut)) << entry.name;
    }
}

TEST(HelpPages, StandForEveryButtonOfTheToolbars)
{
    QList<ToolCommand> buttons(toolCommands().begin(), toolCommands().end());
    buttons.append(QList<ToolCommand>(dropCommands().begin(), dropCommands().end()));
    for (const ToolCommand &button : buttons) {
        if (button.action.kind == CommandAction::Kind::Separator)
            continue;
        EXPECT_TRUE(textOf(pageOfButton(button)).contains(q(button.toolTip))) << button.bar << ' ' << button.key;
        EXPECT_TRUE(QFile::exists(help + q("topics/commands/%1.htm").arg(q(button.bar)))) << button.bar;
    }
}

TEST(HelpPages, ListTheShortcuts)
{
    const QString page = textOf(q("topics/using/KeyboardShortcuts.htm"));
    qsizetype shortcuts = 0;
    for (const MenuCommand &entry : menuCommands()) {
        if (!*entry.shortcut)
            continue;
        ++shortcuts;
        const QString row = q("<tr><td>%1</td><td><a href=\"../commands/%2\">%3</a></td>")
                                .arg(shownShortcut(entry.shortcut), pageOfEntry(q(entry.name)).section(u'/', -1),
                                     plainCaption(entry.caption));
        EXPECT_TRUE(page.contains(row)) << qPrintable(row);
    }
    EXPECT_GT(shortcuts, 20);
    EXPECT_TRUE(page.contains(q("<tr><td>Ctrl+N</td>")));
}

qsizetype countOf(const QString &text, const char *pattern)
{
    return text.count(QRegularExpression(q(pattern), QRegularExpression::CaseInsensitiveOption));
}

TEST(HelpPages, HaveATitleAndAHeading)
{
    const QStringList pages = allPages();
    ASSERT_GT(pages.size(), 250);
    for (const QString &page : pages) {
        const QString text = textOf(page);
        EXPECT_EQ(countOf(text, "<title>[^<]+</title>"), 1) << qPrintable(page);
        EXPECT_EQ(countOf(text, "<h1>[^<]+.*?</h1>"), 1) << qPrintable(page);
        EXPECT_FALSE(text.contains(QChar::ReplacementCharacter)) << qPrintable(page) << " is not UTF-8";
    }
}

TEST(HelpPages, LeaveLooksToTheTheme)
{
    for (const QString &page : keptPages())
        EXPECT_EQ(countOf(textOf(page).remove(QRegularExpression(q("(?s)<(pre|code)>.*?</\\1>"))),
                          R"(<script|<style|<font|\b(style|color|bgcolor|background)=)"),
                  0)
            << qPrintable(page);
}

/// The first end tag that does not fit, or the start tag that is left open; empty if all is well.
QString misfitOf(const QString &html)
{
    const QSet<QString> single{q("meta"), q("br"), q("hr"), q("img"), q("link"), q("input")};
    const QRegularExpression tags(q("<(/?)([a-z][a-z0-9]*)[^>]*>"));
    QStringList open;
    for (auto i = tags.globalMatch(html); i.hasNext();) {
        const QRegularExpressionMatch tag = i.next();
        const QString name = tag.captured(2);
        if (tag.captured(1).isEmpty() && !single.contains(name))
            open.append(name);
        else if (!tag.captured(1).isEmpty() && (open.isEmpty() || open.takeLast() != name))
            return tag.captured();
    }
    return open.value(0);
}

TEST(HelpPages, AreWellFormed)
{
    EXPECT_EQ(misfitOf(q("<p>a<b>c</b><br></p>")), QString());
    EXPECT_EQ(misfitOf(q("<p><b>c</p></b>")), q("</p>"));
    EXPECT_EQ(misfitOf(q("<ul><li>")), q("ul"));
    for (const QString &page : keptPages())
        EXPECT_EQ(misfitOf(textOf(page)), QString()) << qPrintable(page);
}

/// The links of a page that lead to no page of the help, and the marks that are on no page.
QStringList deadLinks(const QString &page)
{
    const QRegularExpression links(q("<a\\s+href=\"([^\"]*)\""));
    QStringList dead;
    for (auto i = links.globalMatch(textOf(page)); i.hasNext();) {
        const QUrl target = helpUrl(page).resolved(QUrl(i.next().captured(1)));
        const QString there = helpPageOfUrl(target).value_or(QString());
        const bool marked = !target.hasFragment() || textOf(there).contains(q("id=\"%1\"").arg(target.fragment())) ||
                            textOf(there).contains(q("name=\"%1\"").arg(target.fragment()));
        const bool outside = target.scheme() == q("https") || target.scheme() == q("http");
        if (!outside && (!isThere(there) || !marked))
            dead += target.toString();
    }
    return dead;
}

TEST(HelpPages, LeadToOneAnother)
{
    for (const QString &page : allPages())
        EXPECT_EQ(deadLinks(page).join(u'\n'), QString()) << qPrintable(page);
}

QStringList pagesOf(const QList<HelpEntry> &entries)
{
    QStringList pages;
    for (const HelpEntry &entry : entries) {
        if (!entry.page.isEmpty())
            pages += entry.page;
        pages += pagesOf(entry.children);
    }
    return pages;
}

class NoLauncher final : public Launcher
{
public:
    bool openUrl(const QString &) override { return false; }
    bool start(const QString &) override { return false; }
};

TEST(HelpPages, ComeUpInTheWindow)
{
    LocalFileSystem files;
    NoLauncher launcher;
    DesktopHelpViewer viewer({help}, files, launcher);
    for (const char *topic : topics) {
        const QString page = helpPageOfTopic(q(topic)).value_or(QString());
        viewer.show(q(topic));
        const auto *browser = viewer.window()->findChild<HelpBrowser *>();
        EXPECT_EQ(browser->page(), QFile::exists(help + page) ? page : HelpFolder::notFoundPage()) << topic;
        EXPECT_FALSE(browser->documentTitle().isEmpty()) << topic;
    }
}

TEST(HelpPages, StandInTheContents)
{
    const QStringList listed = pagesOf(parseHelpContents(textOf(q("contents.txt"))));
    for (const QString &page : listed)
        EXPECT_TRUE(isThere(page)) << qPrintable(page);
    EXPECT_EQ(QSet<QString>(listed.begin(), listed.end()).size(), listed.size());
    for (const QString &page : keptPages())
        EXPECT_TRUE(listed.contains(page)) << qPrintable(page);
    for (const QString &page : pagesOf(parseHelpReference(textOf(q("index-reference.txt")))))
        EXPECT_TRUE(QFile::exists(help + page)) << qPrintable(page);
}
} // namespace
