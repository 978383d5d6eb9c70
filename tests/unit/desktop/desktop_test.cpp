#include "desktop/desktopClipboard.h"
#include "desktop/desktopCommonDialogs.h"
#include "desktop/desktopLauncher.h"
#include "desktop/desktopMessageBoxes.h"
#include "desktop/desktopPrinting.h"
#include "services/random.h"
#include "storage/localFileSystem.h"
#include "unit/support/sandbox.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QImage>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <gmock/gmock.h>

#include <sys/stat.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

// Does the steps with the modal window of that kind as soon as it is on show.
template <class Window>
void whenShown(const std::function<void(Window &)> &steps)
{
    QTimer::singleShot(0, [steps] {
        auto *const window = qobject_cast<Window *>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        steps(*window);
    });
}

struct ButtonsRow {
    MessageButtons buttons;
    QMessageBox::StandardButton pressed;
    MessageAnswer answer;
    MessageAnswer escape;
};

TEST(DesktopMessageBoxes, GiveTheButtonThatWasPressed)
{
    const ButtonsRow rows[] = {
        {MessageButtons::OK, QMessageBox::Ok, MessageAnswer::OK, MessageAnswer::OK},
        {MessageButtons::OKCancel, QMessageBox::Ok, MessageAnswer::OK, MessageAnswer::Cancel},
        {MessageButtons::YesNo, QMessageBox::Yes, MessageAnswer::Yes, MessageAnswer::No},
        {MessageButtons::YesNoCancel, QMessageBox::No, MessageAnswer::No, MessageAnswer::Cancel},
        {MessageButtons::RetryCancel, QMessageBox::Retry, MessageAnswer::Retry, MessageAnswer::Cancel},
    };
    DesktopMessageBoxes boxes;
    for (const ButtonsRow &row : rows) {
        whenShown<QMessageBox>([&](QMessageBox &box) { box.button(row.pressed)->click(); });
        EXPECT_EQ(boxes.show({q("T"), q("x"), MessageIcon::None, row.buttons}), row.answer);
        whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(boxes.show({q("T"), q("x"), MessageIcon::None, row.buttons}), row.escape);
    }
}

TEST(DesktopMessageBoxes, ShowTheTextAsItStands)
{
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), q("File Not Found"));
        EXPECT_EQ(box.text(), q("<b>one</b>\ntwo"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
        box.button(QMessageBox::No)->click();
    });
    DesktopMessageBoxes boxes;
    EXPECT_EQ(
        boxes.show({q("File Not Found"), q("<b>one</b>\r\ntwo"), MessageIcon::Exclamation, MessageButtons::YesNo}),
        MessageAnswer::No);
}

TEST(DesktopMessageBoxes, AnswerEnterAsTheBoxSays)
{
    DesktopMessageBoxes boxes;
    whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
    MessageBox question{q("T"), q("x"), MessageIcon::None, MessageButtons::YesNo};
    EXPECT_EQ(boxes.show(question), MessageAnswer::Yes);
    question.byEnter = MessageAnswer::No;
    whenShown<QMessageBox>([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(boxes.show(question), MessageAnswer::No);
}

class Dialogs : public Sandbox
{
protected:
    FileDialogRequest request() const
    {
        FileDialogRequest made;
        made.Filter =
            q("All Files (*.*)|*.*|Text Files (*.txt)|*.txt|Unicode Text Files (*.txt)|*.txt|Same|*.a|Same|*.a");
        made.InitDir = path("");
        return made;
    }

    static QComboBox &filterList(const QFileDialog &dialog)
    {
        return *dialog.findChild<QComboBox *>(q("fileTypeCombo"));
    }

    DesktopPrinting printing{partFolders()};
    DesktopCommonDialogs dialogs{printing};
};

TEST_F(Dialogs, ShowTheDescriptionsAsTheyAreWritten)
{
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(filterList(dialog).itemText(0), q("All Files (*.*)"));
        EXPECT_EQ(filterList(dialog).itemText(2), q("Unicode Text Files (*.txt)"));
        EXPECT_TRUE(dialog.nameFilters().at(0).endsWith(q(" (*)"))); // names without a dot too
        dialog.reject();
    });
    EXPECT_FALSE(dialogs.showOpen(request()));
}

TEST_F(Dialogs, TellTheChosenFilterEvenAmongEqualPatterns)
{
    put("page.txt", "x");
    for (int index = 1; index <= 5; ++index) {
        whenShown<QFileDialog>([&](QFileDialog &dialog) {
            filterList(dialog).setCurrentIndex(index - 1);
            Q_EMIT filterList(dialog).activated(index - 1);
            dialog.selectFile(path("page.txt"));
            static_cast<QDialog &>(dialog).accept();
        });
        const std::optional<FileDialogResult> result = dialogs.showOpen(request());
        ASSERT_TRUE(result) << index;
        EXPECT_EQ(result->fileName, path("page.txt"));
        EXPECT_EQ(result->filterIndex, index);
    }
}

TEST_F(Dialogs, AreShownAsTheyWereAskedFor)
{
    FileDialogRequest asked = request();
    asked.DialogTitle = q("Save Untitled1 As");
    asked.FilterIndex = 3;
    asked.FileName = q("Title.html");
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), q("Save Untitled1 As"));
        EXPECT_EQ(dialog.directory().path(), path(""));
        EXPECT_EQ(filterList(dialog).currentIndex(), 2);
        EXPECT_EQ(dialog.selectedFiles(), QStringList(path("Title.html")));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    EXPECT_FALSE(dialogs.showSave(asked));
}

TEST_F(Dialogs, StartInTheFolderOfTheFileName)
{
    put("sub/page.htm", "x");
    FileDialogRequest asked = request();
    asked.FileName = path("sub/page.htm");
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.directory().path(), path("sub"));
        EXPECT_EQ(dialog.selectedFiles(), QStringList(path("sub/page.htm")));
        static_cast<QDialog &>(dialog).accept(); // no question though the file is there
    });
    const std::optional<FileDialogResult> result = dialogs.showSave(asked);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->fileName, path("sub/page.htm"));
    EXPECT_EQ(result->filterIndex, 1);
}

TEST_F(Dialogs, TakeFilterNumbersOutOfRange)
{
    for (const int index : {-1, 0, 99}) {
        FileDialogRequest asked = request();
        asked.FilterIndex = index;
        whenShown<QFileDialog>([&](QFileDialog &dialog) {
            EXPECT_EQ(filterList(dialog).currentIndex(), index > 5 ? 4 : 0);
            dialog.reject();
        });
        EXPECT_FALSE(dialogs.showOpen(asked));
    }
}

TEST_F(Dialogs, ChooseAFolder)
{
    QDir().mkpath(path("sub"));
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), q("Where"));
        EXPECT_EQ(dialog.directory().path(), path(""));
        dialog.selectFile(path("sub"));
        static_cast<QDialog &>(dialog).accept();
    });
    EXPECT_EQ(dialogs.showFolder(q("Where"), path("")), path("sub"));
}

TEST_F(Dialogs, ChooseAColour)
{
    whenShown<QColorDialog>([](QColorDialog &dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(0x10, 0x20, 0x30));
        dialog.setCurrentColor(QColor(0xFF, 0x80, 0x01));
        dialog.accept();
    });
    EXPECT_EQ(dialogs.showColour(0x302010), ColourValue(0x0180FF));
    whenShown<QColorDialog>([](QColorDialog &dialog) { dialog.reject(); });
    EXPECT_FALSE(dialogs.showColour(WindowTextColour));
}

TEST_F(Dialogs, ChooseAFont)
{
    whenShown<QFontDialog>([](QFontDialog &dialog) {
        EXPECT_EQ(dialog.currentFont().pointSize(), 14);
        dialog.accept();
    });
    const std::optional<FontChoice> chosen = dialogs.showFont({QApplication::font().family(), 14});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->points, 14);
}

TEST(DesktopClipboard, GivesAndTakesPlainText)
{
    DesktopClipboard clipboard;
    clipboard.setText(q("a\r\nb"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), q("a\nb"));
    EXPECT_EQ(clipboard.text(), q("a\r\nb"));
    auto *const rich = new QMimeData;
    rich->setHtml(q("<b>x</b>"));
    rich->setText(q("x\ny"));
    QGuiApplication::clipboard()->setMimeData(rich);
    EXPECT_EQ(clipboard.text(), q("x\r\ny"));
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(clipboard.text(), QString());
}

TEST(DesktopClipboard, GivesNoTextForFilesAndPictures)
{
    DesktopClipboard clipboard;
    auto *const files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(q("/srv/a.htm"))});
    QGuiApplication::clipboard()->setMimeData(files);
    EXPECT_TRUE(clipboard.hasFileList());
    EXPECT_EQ(clipboard.text(), QString());
    QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_TRUE(clipboard.hasImage());
    EXPECT_FALSE(clipboard.hasFileList());
    EXPECT_EQ(clipboard.text(), QString());
    auto *const link = new QMimeData;
    link->setUrls({QUrl(q("http://example.org/"))});
    link->setText(q("http://example.org/"));
    QGuiApplication::clipboard()->setMimeData(link);
    EXPECT_FALSE(clipboard.hasFileList());
    EXPECT_EQ(clipboard.text(), q("http://example.org/"));
    auto *const cells = new QMimeData;
    cells->setText(q("1"));
    cells->setImageData(QImage(2, 2, QImage::Format_RGB32));
    QGuiApplication::clipboard()->setMimeData(cells);
    EXPECT_FALSE(clipboard.hasImage());
    EXPECT_EQ(clipboard.text(), q("1"));
}

TEST(DesktopClipboard, TellsFilesAndPicturesFromText)
{
    DesktopClipboard clipboard;
    const QImage image(3, 2, QImage::Format_RGB32);
    auto *const files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(q("/srv/a b.png"))});
    files->setImageData(image);
    QGuiApplication::clipboard()->setMimeData(files);
    EXPECT_EQ(clipboard.files(), QStringList{q("/srv/a b.png")});
    EXPECT_FALSE(clipboard.offersPicture()) << "a file that is there already need not be made";
    QGuiApplication::clipboard()->setImage(image);
    EXPECT_EQ(clipboard.files(), QStringList());
    EXPECT_TRUE(clipboard.offersPicture());
    EXPECT_EQ(clipboard.picture().kind, q("png"));
    EXPECT_EQ(QImage::fromData(clipboard.picture().bytes).size(), QSize(3, 2));
    auto *const cells = new QMimeData;
    cells->setText(q("1"));
    cells->setImageData(image);
    QGuiApplication::clipboard()->setMimeData(cells);
    EXPECT_FALSE(clipboard.offersPicture());
    EXPECT_FALSE(clipboard.picture().bytes.isEmpty());
    QGuiApplication::clipboard()->setText(q("text"));
    EXPECT_FALSE(clipboard.offersPicture());
    EXPECT_EQ(clipboard.picture().bytes, QByteArray());
}

TEST(DesktopClipboard, GivesTheBytesOfAPictureAsTheyCome)
{
    DesktopClipboard clipboard;
    auto *const drawing = new QMimeData;
    drawing->setData(q("image/png"), "painted");
    drawing->setData(q("image/svg+xml"), "drawn");
    QGuiApplication::clipboard()->setMimeData(drawing);
    EXPECT_TRUE(clipboard.offersPicture());
    EXPECT_EQ(clipboard.picture().kind, q("svg"));
    EXPECT_EQ(clipboard.picture().bytes, QByteArray("drawn"));
    auto *const photo = new QMimeData;
    photo->setData(q("image/jpeg"), "seen");
    QGuiApplication::clipboard()->setMimeData(photo);
    EXPECT_EQ(clipboard.picture().kind, q("jpg"));
    EXPECT_EQ(clipboard.picture().bytes, QByteArray("seen"));
}

TEST(DesktopClipboard, KnowsAPicturesAddressByItsMarkup)
{
    const QString address = q("http://example.org/a.png");
    EXPECT_TRUE(isPicturesAddress(address, q("<img src='http://example.org/a.png'>")));
    EXPECT_TRUE(isPicturesAddress(
        address, q("<html><head><title>t</title></head><body>\n<!--x--><a href='b'><IMG src='a'></a></body></html>")));
    EXPECT_FALSE(isPicturesAddress(address, q("<a href='a'>link</a>"))) << "no picture";
    EXPECT_FALSE(isPicturesAddress(address, q("<img src='a'> and words"))) << "part of a page";
    EXPECT_FALSE(isPicturesAddress(address, q("<img src='a'><img src='b'>"))) << "two of them";
    EXPECT_FALSE(isPicturesAddress(q("two words"), q("<img src='a'>")));
    EXPECT_FALSE(isPicturesAddress(address, QString())) << "a text by itself";
}

class Launching : public Sandbox
{
protected:
    Launching() : searchPath(qgetenv("PATH"))
    {
        // Each program that is started notes its arguments, one a line.
        putProgram("bin/xdg-open");
        putProgram("my tools/tool");
        qputenv("PATH", QFile::encodeName(path("bin")) + ':' + searchPath);
    }
    ~Launching() override { qputenv("PATH", searchPath); }

    void putProgram(const char *name) const
    {
        const QByteArray note = QFile::encodeName(path("note"));
        put(name, "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + note + ".new' && mv '" + note + ".new' '" + note + "'\n");
        EXPECT_EQ(::chmod(QFile::encodeName(path(name)).constData(), 0755), 0);
    }

    QByteArray noted() const
    {
        (void)QTest::qWaitFor([&] { return get("note") != "(missing)"; }, 5000);
        QByteArray note = get("note");
        QFile::remove(path("note"));
        return note;
    }

    QByteArray searchPath;
    DesktopLauncher launcher;
};

TEST_F(Launching, OpensAddressesAndFilesByTheDesktop)
{
    EXPECT_TRUE(launcher.openUrl(q("http://example.org/a b?x=1&y=$(touch%20z)")));
    EXPECT_EQ(noted(), "http://example.org/a%20b?x=1&y=$(touch%20z)\n");
    EXPECT_TRUE(launcher.openUrl(q("/srv/my site/a#1.htm")));
    EXPECT_EQ(noted(), "file:///srv/my%20site/a%231.htm\n");
    EXPECT_TRUE(launcher.openUrl(q("www.example.org")));
    EXPECT_EQ(noted(), "http://www.example.org\n");
    EXPECT_FALSE(launcher.openUrl(QString()));
}

TEST_F(Launching, TakesTheWholeTextForTheProgramsPath)
{
    const QString tool = path("my tools/tool");
    EXPECT_TRUE(launcher.start(tool));
    EXPECT_EQ(noted(), "\n"); // no arguments
    EXPECT_FALSE(launcher.start(QLatin1Char('"') + tool + QLatin1Char('"')));
    EXPECT_FALSE(launcher.start(tool + q(" one")));
    EXPECT_FALSE(launcher.start(QString()));
    EXPECT_FALSE(launcher.start(q("   ")));
    EXPECT_EQ(get("note"), "(missing)");
}

TEST_F(Launching, KnowsAtOnceWhatCannotBeStarted)
{
    EXPECT_FALSE(launcher.start(path("none")));
    EXPECT_FALSE(launcher.start(path("my tools"))); // a folder
    put("text", "no program");
    EXPECT_FALSE(launcher.start(path("text")));
    put("script", "#!/no/such/interpreter\n");
    EXPECT_EQ(::chmod(QFile::encodeName(path("script")).constData(), 0755), 0);
    EXPECT_FALSE(launcher.start(path("script")));
}

TEST_F(Launching, GivesProgramsNothingToRead)
{
    put("reader", "#!/bin/sh\nwc -c > '" + QFile::encodeName(path("note.new")) + "' && mv '" +
                      QFile::encodeName(path("note.new")) + "' '" + QFile::encodeName(path("note")) + "'\n");
    EXPECT_EQ(::chmod(QFile::encodeName(path("reader")).constData(), 0755), 0);
    EXPECT_TRUE(launcher.start(path("reader")));
    EXPECT_EQ(noted(), "0\n");
}

TEST(Random, GivesTheSameNumbersForTheSameSeed)
{
    Random one(5);
    Random two(6);
    two.seed(5);
    bool seen[10] = {};
    for (int i = 0; i < 200; ++i) {
        const int number = one.below(10);
        EXPECT_EQ(two.below(10), number);
        ASSERT_GE(number, 0);
        ASSERT_LT(number, 10);
        seen[number] = true;
    }
    EXPECT_EQ(std::count(std::begin(seen), std::end(seen), true), 10);
    EXPECT_EQ(one.below(1), 0);
    EXPECT_EQ(one.below(0), 0);
    EXPECT_EQ(one.below(-3), 0);
    // The generator's first number for the seed 5489 is 3499211612, by its definition; of 2^32 that is 0.8147.
    Random standard(5489);
    EXPECT_EQ(standard.below(10000), 8147);
}
} // namespace
