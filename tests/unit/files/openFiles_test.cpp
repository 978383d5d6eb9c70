#include "common/mainWindow.h"
#include "unit/support/fakes.h"

#include <QDir>
#include <QFile>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{
const QString page = QStringLiteral("page.html");

class OpenFiles : public FilesTest
{
};

TEST_F(OpenFiles, TakeTheirTextAndTheirName)
{
    FakeDocument &document = openedDocument(page, "<p>\nText</p>\n");
    EXPECT_EQ(document.surface.Text(), QStringLiteral("<p>\r\nText</p>\r\n"));
    EXPECT_EQ(document.DocSavePath, path(page));
    EXPECT_EQ(document.caption, path(page));
    EXPECT_EQ(document.selectorPath, path(page));
    EXPECT_FALSE(document.NewDoc);
    EXPECT_FALSE(document.boolDirty);
    EXPECT_FALSE(document.IsInUnicode);
    EXPECT_EQ(mainWindow.status, QStringLiteral("Ready"));
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-8, LF"));
    EXPECT_TRUE(mainWindow.enabled);
    EXPECT_EQ(storedSetting("RecentFiles", QStringLiteral("File1")), path(page));
}

TEST_F(OpenFiles, AreRefusedIfOpenAlready)
{
    openedDocument(page, "x");
    files.OpenDocumentFile(path(page), false);
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("File Already Open"));
    EXPECT_EQ(box.text, QStringLiteral("The file, ") + path(page) + QStringLiteral(", is already open."));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(mainWindow.documents.size(), 1);
}

TEST_F(OpenFiles, ThatDifferInCaseAreTwo)
{
    openedDocument(page, "x");
    openedDocument(QStringLiteral("PAGE.html"), "y");
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(mainWindow.documents.size(), 2);
}

TEST_F(OpenFiles, AreRefusedByAnotherWayToo)
{
    openedDocument(page, "x");
    ASSERT_TRUE(QFile::link(path(page), path(QStringLiteral("link.html"))));
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("sub"))));
    for (const char *way : {"link.html", "sub/../page.html", "/page.html", "./page.html"}) {
        files.OpenDocumentFile(path(QLatin1String(way)), false);
        EXPECT_EQ(takeBox().title, QStringLiteral("File Already Open")) << way;
    }
    EXPECT_EQ(mainWindow.documents.size(), 1);
}

TEST_F(OpenFiles, OfferTheFolderOfThePageInFront)
{
    openedDocument(page, "x");
    files.ShowOpenDialog();
    ASSERT_EQ(dialogs.requests.size(), 1);
    EXPECT_EQ(dialogs.requests.first().InitDir, path({}).chopped(1));
    EXPECT_EQ(dialogs.requests.first().NearDir, path({}));
}

TEST_F(OpenFiles, MakeTheFolderThatTheDialogStartsIn)
{
    setting("AppPaths", QStringLiteral("WorkingDir"), path(QStringLiteral("new/pages")));
    files.ShowOpenDialog();
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("new/pages"))).isDir());
}

TEST_F(OpenFiles, ThatAreMissingLeaveNoWindow)
{
    files.OpenDocumentFile(path(page), false);
    EXPECT_EQ(takeBox().title, QStringLiteral("File Not Found"));
    files.OpenDocumentFile(path(QStringLiteral("none/page.html")), false);
    EXPECT_EQ(takeBox().title, QStringLiteral("Path Not Found"));
    EXPECT_TRUE(mainWindow.documents.isEmpty());
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(OpenFiles, ThatFailInTheReadingLeaveAnEmptyOne)
{
    disk.readFailure = FileError{DiskError, 0, {}};
    writeFile(page, "x");
    files.OpenDocumentFile(path(page), false);
    EXPECT_EQ(takeBox().title, QStringLiteral("Internal Disk Error!"));
    ASSERT_EQ(mainWindow.documents.size(), 1);
    EXPECT_EQ(mainWindow.active->DocSavePath, QString());
    EXPECT_TRUE(mainWindow.active->NewDoc);
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(OpenFiles, AreNoFolders)
{
    files.OpenDocumentFile(path({}), false);
    EXPECT_EQ(takeBox().title, QStringLiteral("Path/File Access Error"));
    EXPECT_TRUE(mainWindow.documents.isEmpty());
}

TEST_F(OpenFiles, AreNoSockets)
{
    const QByteArray name = path(QStringLiteral("socket")).toUtf8();
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(static_cast<std::size_t>(name.size()), sizeof(address.sun_path));
    std::copy(name.begin(), name.end(), static_cast<char *>(address.sun_path));
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);
    files.OpenDocumentFile(path(QStringLiteral("socket")), false);
    ::close(socket);
    EXPECT_EQ(takeBox().title, QStringLiteral("Invalid Path!"));
    EXPECT_TRUE(mainWindow.documents.isEmpty());
}

TEST_F(OpenFiles, HaveNamesThatTheSystemTakes)
{
    files.OpenDocumentFile(path(QString(300, u'n')), false);
    EXPECT_EQ(takeBox().title, QStringLiteral("Illegal File Name"));
}

TEST_F(OpenFiles, ByAUnicodeRowAreUtf16)
{
    writeFile(page, QByteArray("\xFF\xFE"
                               "a\0\r\0\n\0",
                               8));
    files.OpenDocumentFile(path(page), true);
    EXPECT_EQ(mainWindow.active->txtEdit().Text(), QStringLiteral("a\r\n"));
    EXPECT_TRUE(mainWindow.active->IsInUnicode);
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-16 LE, CR LF"));
}

TEST_F(OpenFiles, OfMixedLineEndsSaySo)
{
    openedDocument(page, "a\nb\nc\r\n");
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-8, mixed line ends (saved as LF)"));
}

TEST_F(OpenFiles, AsTemplatesStayNewAndNameless)
{
    writeFile(QStringLiteral("a.tpl"), "<p>\n");
    files.OpenTemplateFile(path(QStringLiteral("a.tpl")), true);
    ASSERT_EQ(mainWindow.documents.size(), 1);
    const Document &document = *mainWindow.active;
    EXPECT_EQ(document.txtEdit().Text(), QStringLiteral("<p>\r\n"));
    EXPECT_TRUE(document.NewDoc);
    EXPECT_FALSE(document.boolDirty);
    EXPECT_EQ(document.DocSavePath, QString());
    EXPECT_EQ(document.documentCaption(), QStringLiteral("Untitled1"));
    EXPECT_EQ(storedSetting("RecentFiles", QStringLiteral("File1")), QString());
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-8, CR LF"));
}

TEST_F(OpenFiles, OfTemplatesToBeEditedAreFiles)
{
    writeFile(QStringLiteral("a.tpl"), "<p>");
    files.OpenTemplateFile(path(QStringLiteral("a.tpl")), false);
    EXPECT_EQ(mainWindow.active->DocSavePath, path(QStringLiteral("a.tpl")));
    EXPECT_FALSE(mainWindow.active->NewDoc);
}

TEST_F(OpenFiles, ComeFromTheDialog)
{
    writeFile(page, "x");
    dialogs.choices.append({path(page), 1});
    files.ShowOpenDialog();
    const FileDialogRequest &request = dialogs.requests.first();
    EXPECT_EQ(request.FilterIndex, 2);
    EXPECT_EQ(request.DialogTitle, QString());
    EXPECT_EQ(request.FileName, QString());
    EXPECT_EQ(path({}), request.InitDir + u'/');
    EXPECT_EQ(mainWindow.documents.size(), 1);
    files.ShowOpenDialog(); // left without a choice
    EXPECT_EQ(mainWindow.documents.size(), 1);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(OpenFiles, ByTheTemplateRowBeginsANewPageWhateverTheExtension)
{
    writeFile(page, "x");
    dialogs.choices.append({path(page), 5});
    files.ShowOpenDialog();
    ASSERT_EQ(mainWindow.documents.size(), 1);
    EXPECT_TRUE(mainWindow.active->NewDoc);
    EXPECT_EQ(mainWindow.active->DocSavePath, QString());
}

TEST_F(OpenFiles, OfTheRowForProjectsAreHandedOver)
{
    context.project = &project;
    dialogs.choices.append({path(page), 11});
    files.ShowOpenDialog();
    EXPECT_EQ(project.opened, QStringList(path(page)));
    EXPECT_TRUE(mainWindow.documents.isEmpty());
}

TEST_F(OpenFiles, ComeFromTheRecentOnes)
{
    writeFile(page, "x");
    setting("RecentFiles", QStringLiteral("File3"), path(page));
    files.OpenRecentFile(1); // an empty slot
    EXPECT_TRUE(mainWindow.documents.isEmpty());
    files.OpenRecentFile(3);
    EXPECT_EQ(mainWindow.active->DocSavePath, path(page));
    EXPECT_EQ(storedSetting("RecentFiles", QStringLiteral("File1")), path(page));
}
} // namespace
