#include "widgets/pathCompletion.h"

#include "storage/localFileSystem.h"
#include "widgets/controls.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(NamesBeginning, MatchInAnyCaseAndMarkFolders)
{
    const QList<FolderEntry> entries{
        {str(".hidden"), false}, {str("Img"), true}, {str("images.txt"), false}, {str("page.htm"), false}};
    EXPECT_THAT(namesBeginning(entries, {}), ElementsAre(str("Img/"), str("images.txt"), str("page.htm")));
    EXPECT_THAT(namesBeginning(entries, str("im")), ElementsAre(str("Img/"), str("images.txt")));
    EXPECT_THAT(namesBeginning(entries, str(".")), ElementsAre(str(".hidden")));
    EXPECT_THAT(namesBeginning(entries, str("page.htm")), IsEmpty()) << "nothing to add";
    EXPECT_THAT(namesBeginning(entries, str("Img")), ElementsAre(str("Img/"))) << "a folder leads on";
    EXPECT_THAT(namesBeginning(entries, str("x")), IsEmpty());
}

/// Counts how often a folder is read.
class CountedFiles final : public FileSystem
{
public:
    FileContents readAll(const QString &path) override { return m_files.readAll(path); }
    std::optional<FileError> checkReadable(const QString &path) override { return m_files.checkReadable(path); }
    std::optional<FileError> writeWhole(const QString &path, const QByteArray &bytes) override
    {
        return m_files.writeWhole(path, bytes);
    }
    bool exists(const QString &path) override { return m_files.exists(path); }
    bool isFolder(const QString &path) override { return m_files.isFolder(path); }
    std::optional<qint64> size(const QString &path) override { return m_files.size(path); }
    std::optional<FileStamp> stamp(const QString &path) override { return m_files.stamp(path); }
    std::optional<FileDetails> details(const QString &path) override { return m_files.details(path); }
    FolderListing list(const QString &folder) override
    {
        ++listings;
        return m_files.list(folder);
    }
    std::optional<FileError> makeFolder(const QString &folder) override { return m_files.makeFolder(folder); }
    std::optional<FileError> removeFile(const QString &path) override { return m_files.removeFile(path); }
    std::optional<QString> setAside(const QString &path) override { return m_files.setAside(path); }
    std::optional<FileError> copyFile(const QString &from, const QString &to) override
    {
        return m_files.copyFile(from, to);
    }

    int listings = 0;

private:
    LocalFileSystem m_files;
};

/// A dialog with a path box, an editable combo, and another field to go to.
class PathCompletionTest : public testing::Test
{
protected:
    PathCompletionTest()
    {
        QDir(folder.path()).mkpath(str("img"));
        for (const char *name : {"index.htm", "intro.htm", "img/logo.gif"})
            EXPECT_TRUE(QFile(folder.filePath(str(name))).open(QIODevice::WriteOnly));
        auto *layout = new QVBoxLayout(&dialog);
        for (QWidget *control : {static_cast<QWidget *>(box), static_cast<QWidget *>(other)})
            layout->addWidget(control);
        dialog.show();
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        box->setFocus();
    }

    void type(const QString &text) { QTest::keyClicks(box, text); }
    void press(Qt::Key key) { QTest::keyClick(box, key); }
    QString start() const { return folder.path() + u'/'; }

    QTemporaryDir folder;
    CountedFiles files;
    QDialog dialog;
    QComboBox *box = ui::combo(str("cboSrc"), {str("row")});
    QLineEdit *other = ui::text(str("txtOther"));
    PathCompletion *completion = new PathCompletion(box, files, [this] { return start(); });
};

TEST_F(PathCompletionTest, ReadsNoFolderBeforeSomethingIsTypedAndThenOnce)
{
    EXPECT_EQ(files.listings, 0);
    type(str("in"));
    EXPECT_EQ(files.listings, 1);
    other->setFocus();
    EXPECT_THAT(completion->offered(), IsEmpty()) << "the list goes with the focus";
    box->setFocus();
    type(str("i"));
    EXPECT_EQ(files.listings, 2) << "the folder may have changed";
}

TEST_F(PathCompletionTest, OffersWhatGoesOnFromARelativeOrAWholePath)
{
    type(str("i"));
    EXPECT_THAT(completion->offered(), ElementsAre(str("img/"), str("index.htm"), str("intro.htm")));
    type(str("n"));
    EXPECT_THAT(completion->offered(), ElementsAre(str("index.htm"), str("intro.htm")));
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    type(start() + str("img/"));
    EXPECT_THAT(completion->offered(), ElementsAre(str("logo.gif")));
    type(str("logo.gif"));
    EXPECT_THAT(completion->offered(), IsEmpty());
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    type(str("http://example.org/"));
    EXPECT_THAT(completion->offered(), IsEmpty());
}

TEST_F(PathCompletionTest, OffersNothingForARelativePathThatStartsNowhere)
{
    completion->deleteLater();
    auto *homeless = new PathCompletion(box, files, [] { return QString(); });
    type(str("i"));
    EXPECT_THAT(homeless->offered(), IsEmpty());
    EXPECT_EQ(files.listings, 1) << "only the one that has a folder reads it";
}

TEST_F(PathCompletionTest, LeavesEnterAndEscapeToTheDialogUntilItIsEntered)
{
    auto *cmdOK = new QPushButton(&dialog);
    cmdOK->setDefault(true);
    QSignalSpy confirmed(cmdOK, &QPushButton::clicked);
    QSignalSpy cancelled(&dialog, &QDialog::rejected);
    cmdOK->show();
    type(str("in"));
    press(Qt::Key_Return);
    EXPECT_EQ(confirmed.size(), 1);
    EXPECT_EQ(box->currentText(), str("in")) << "what was typed stays";
    press(Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 1);
}

TEST_F(PathCompletionTest, TakesTheRowThatTheArrowsLeadTo)
{
    QSignalSpy changes(box, &QComboBox::editTextChanged);
    type(str("i"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), str("img/"));
    EXPECT_GT(changes.size(), 1);
    EXPECT_THAT(completion->offered(), ElementsAre(str("logo.gif"))) << "a folder leads on";
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), str("img/logo.gif"));
    EXPECT_THAT(completion->offered(), IsEmpty());
}

TEST_F(PathCompletionTest, EscapeInTheListLeavesOnlyTheList)
{
    QSignalSpy cancelled(&dialog, &QDialog::rejected);
    type(str("i"));
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_THAT(completion->offered(), IsEmpty());
    EXPECT_EQ(cancelled.size(), 0);
    EXPECT_EQ(box->currentText(), str("i"));
}

TEST_F(PathCompletionTest, UpFromTheFirstRowLeadsOutOfTheListAgain)
{
    QSignalSpy cancelled(&dialog, &QDialog::rejected);
    type(str("i"));
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 1);
}

TEST_F(PathCompletionTest, TakesTheRowThatIsClicked)
{
    type(str("in"));
    auto *list = dialog.findChild<QListWidget *>();
    ASSERT_TRUE(list);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(box->currentText(), str("intro.htm"));
    EXPECT_TRUE(box->hasFocus()) << "the list never has it";
}

TEST_F(PathCompletionTest, GoesWithTheDialog)
{
    type(str("in"));
    dialog.hide();
    EXPECT_THAT(completion->offered(), IsEmpty());
}
} // namespace
