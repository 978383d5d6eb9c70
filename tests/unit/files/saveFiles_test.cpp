#include "unit/support/fakes.h"

#include "common/mainWindow.h"
#include "files/frmMsgAddSavedFileToProject.h"

#include <QComboBox>
#include <QFile>
#include <QPushButton>

namespace
{
const QString page = QStringLiteral("page.html");
const QString other = QStringLiteral("other.html");

class SaveFiles : public FilesTest
{
protected:
    FakeDocument &typed(const QString &text)
    {
        FakeDocument &document = newDocument();
        document.surface.setText(text);
        return document;
    }
    void choose(const QString &name, int row = 2) { dialogs.choices.append({path(name), row}); }
};

TEST_F(SaveFiles, AddOneLineBreakEachTime)
{
    FakeDocument &document = openedDocument(page, "one\r\n");
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("one\r\n\r\n"));
    EXPECT_FALSE(document.boolDirty);
    EXPECT_EQ(mainWindow.status, QStringLiteral("Ready"));
}

TEST_F(SaveFiles, MakeOneLineBreakOfAnEmptyDocument)
{
    typed({});
    choose(page);
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("\r\n"));
}

struct RoundTrip {
    const char *name;
    QByteArray bytes;
    QByteArray lineBreak; ///< as the file has it
    bool unicode = false;
};

class UneditedFile : public SaveFiles, public testing::WithParamInterface<RoundTrip>
{
};

TEST_P(UneditedFile, DiffersByTheOneLineBreakAlone)
{
    const RoundTrip &tested = GetParam();
    writeFile(page, tested.bytes);
    files.OpenDocumentFile(path(page), tested.unicode);
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), tested.bytes + tested.lineBreak);
    EXPECT_EQ(mainWindow.status, QStringLiteral("Ready"));
}

QByteArray everyWindows1252Byte()
{
    QByteArray bytes("\xE9\r\n"); // no UTF-8
    for (int value = 0; value < 256; ++value)
        if (value != '\r' && value != '\n')
            bytes += static_cast<char>(value);
    return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Formats, UneditedFile,
    testing::Values(RoundTrip{"Utf8", "caf\xC3\xA9\r\nb", "\r\n"}, RoundTrip{"Utf8Mark", "\xEF\xBB\xBFx\r\ny", "\r\n"},
                    RoundTrip{"Windows1252", everyWindows1252Byte(), "\r\n"}, RoundTrip{"Lf", "a\nb\n", "\n"},
                    RoundTrip{"CrLf", "a\r\nb\r\n", "\r\n"}, RoundTrip{"NoFinalBreak", "a\nb", "\n"},
                    RoundTrip{"Utf16LittleEndian", QByteArray("\xFF\xFE\xE9\0\n\0", 6), QByteArray("\n\0", 2), true},
                    RoundTrip{"Utf16BigEndian", QByteArray("\xFE\xFF\0\xE9\0\n", 6), QByteArray("\0\n", 2), true},
                    RoundTrip{"Nuls", QByteArray("a\0b\r\n", 5), "\r\n"}, RoundTrip{"Empty", "", "\r\n"}),
    [](const auto &tested) { return tested.param.name; });

TEST_F(SaveFiles, TakeTheMoreFrequentOfMixedLineEnds)
{
    openedDocument(page, "a\nb\nc\r\n");
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("a\nb\nc\n\n"));
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-8, LF"));
}

TEST_F(SaveFiles, GoToUtf8WhereACharacterDoesNotFitAndSaySo)
{
    FakeDocument &document = openedDocument(page, "caf\xE9");
    EXPECT_EQ(mainWindow.format, QStringLiteral("Windows-1252, CR LF"));
    document.surface.setText(QStringLiteral("caf\u00E9 \u4F8B"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("caf\xC3\xA9 \xE4\xBE\x8B\r\n"));
    EXPECT_EQ(mainWindow.status,
              QStringLiteral("Saved as UTF-8: in Windows-1252 this text would not read back the same."));
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-8, CR LF"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(mainWindow.status, QStringLiteral("Ready"));
}

TEST_F(SaveFiles, TellOfAPageThatNamesAnotherEncoding)
{
    openedDocument(page, "<meta charset=\"iso-8859-1\">\xC3\xA9");
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(mainWindow.status, QStringLiteral("The page names the encoding \"iso-8859-1\" but is saved as UTF-8."));
}

TEST_F(SaveFiles, OfANewDocumentAskForItsName)
{
    FakeDocument &document = typed(QStringLiteral("<title>Home</title>"));
    choose(page);
    EXPECT_TRUE(files.SaveDocument(false));
    const FileDialogRequest &request = dialogs.requests.first();
    EXPECT_EQ(request.DialogTitle, QStringLiteral("Save Untitled1 As"));
    EXPECT_EQ(request.FileName, QStringLiteral("Home.html"));
    EXPECT_EQ(request.FilterIndex, 2);
    EXPECT_EQ(document.DocSavePath, path(page));
    EXPECT_EQ(document.caption, path(page));
    EXPECT_EQ(document.selectorPath, path(page));
    EXPECT_FALSE(document.NewDoc);
    EXPECT_FALSE(document.boolDirty);
    EXPECT_EQ(storedSetting("RecentFiles", QStringLiteral("File1")), path(page));
}

TEST_F(SaveFiles, AsOverTheOwnNameAskNothing)
{
    openedDocument(page, "x");
    choose(page);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(dialogs.requests.first().FileName, path(page));
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(bytesOf(page), QByteArray("x\r\n"));
}

TEST_F(SaveFiles, AsTheNameOfAnOpenDocumentAreRefused)
{
    openedDocument(other, "other");
    typed(QStringLiteral("mine"));
    choose(QStringLiteral("OTHER.html"));
    EXPECT_FALSE(files.SaveDocument(false));
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("Document Open"));
    EXPECT_EQ(box.text, QStringLiteral("Tagwrighter can not give a document the same name as an open document.\r\n(") +
                            path(QStringLiteral("OTHER.html")) + QStringLiteral(")"));
    EXPECT_EQ(box.icon, MessageIcon::Information);
    EXPECT_EQ(bytesOf(other), QByteArray("other"));
    EXPECT_TRUE(mainWindow.active->boolDirty);
}

TEST_F(SaveFiles, AskBeforeAnotherFileIsReplaced)
{
    writeFile(other, "old");
    typed(QStringLiteral("new"));
    choose(other);
    boxes.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(files.SaveDocument(false));
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("File Already Exists"));
    EXPECT_EQ(box.text, QStringLiteral("The file \"") + path(other) +
                            QStringLiteral("\" already exists.\r\nDo you want to replace it?"));
    EXPECT_EQ(box.buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(answerByEnter(box), MessageAnswer::No);
    EXPECT_EQ(bytesOf(other), QByteArray("old"));
    choose(other);
    boxes.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(other), QByteArray("new\r\n"));
}

TEST_F(SaveFiles, ShowTheDialogAgainWithoutATitleOnNo)
{
    writeFile(other, "old");
    typed(QStringLiteral("new"));
    choose(other);
    choose(page);
    boxes.answers = {MessageAnswer::No};
    EXPECT_TRUE(files.SaveDocument(false));
    ASSERT_EQ(dialogs.requests.size(), 2);
    EXPECT_EQ(dialogs.requests[1].DialogTitle, QString());
    EXPECT_EQ(bytesOf(other), QByteArray("old"));
    EXPECT_EQ(bytesOf(page), QByteArray("new\r\n"));
}

TEST_F(SaveFiles, ByAUnicodeRowWriteUtf16AndLeaveTheNextPlainSavePlain)
{
    FakeDocument &document = openedDocument(page, "\xE9");
    choose(other, 3);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(bytesOf(other), QByteArray("\xFF\xFE\xE9\0\r\0\n\0", 8));
    EXPECT_FALSE(document.IsInUnicode);
    EXPECT_EQ(mainWindow.format, QStringLiteral("UTF-16 LE, CR LF"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(other), QByteArray("\xE9\r\n"));
    EXPECT_EQ(mainWindow.status, QStringLiteral("Saved as Windows-1252; the file was UTF-16 LE before."));
}

TEST_F(SaveFiles, ByAPlainRowMakeUtf8OfADocumentOpenedAsUnicode)
{
    writeFile(page, QByteArray("\xFE\xFF\0\xE9", 4));
    files.OpenDocumentFile(path(page), true);
    choose(other, 2);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(bytesOf(other), QByteArray("\xC3\xA9\r\n"));
    EXPECT_TRUE(mainWindow.active->IsInUnicode);
    EXPECT_TRUE(files.SaveDocument(false)); // which keeps to what the document was opened as
    EXPECT_EQ(bytesOf(other), QByteArray("\xFF\xFE\xE9\0\r\0\n\0", 8));
}

TEST_F(SaveFiles, WithoutTagsIsNoneUnlessItIsAgreedTo)
{
    FakeDocument &document = typed(QStringLiteral("<p>x</p>"));
    choose(page, 9);
    boxes.answers = {MessageAnswer::No};
    EXPECT_FALSE(files.SaveDocumentAs(true, {}));
    EXPECT_EQ(takeBox().title, QStringLiteral("Strip HTML Tags"));
    EXPECT_TRUE(document.UnsuccessfulClose);
    EXPECT_EQ(bytesOf(page), QByteArray("(no file)"));
    EXPECT_TRUE(document.boolDirty);
    EXPECT_EQ(document.surface.Text(), QStringLiteral("<p>x</p>"));
}

TEST_F(SaveFiles, WithoutTagsLeavesTheDocumentWhereTheWriteFails)
{
    FakeDocument &document = typed(QStringLiteral("<p>x</p>"));
    choose(page, 9);
    boxes.answers = {MessageAnswer::Yes, MessageAnswer::OK};
    disk.writeFailure = FileError{.code = DiskFullError, .systemError = 0, .description = {}};
    EXPECT_FALSE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(document.surface.Text(), QStringLiteral("<p>x</p>"));
    EXPECT_TRUE(document.NewDoc);
    EXPECT_EQ(document.DocSavePath, QString());
}

TEST_F(SaveFiles, ThatFailLeaveTheFileAndTheDocument)
{
    FakeDocument &document = openedDocument(page, "old");
    document.surface.setText(QStringLiteral("new"));
    disk.writeFailure = FileError{DiskFullError, 0, {}};
    EXPECT_FALSE(files.SaveDocument(false));
    EXPECT_EQ(takeBox().title, QStringLiteral("Disk Is Full!"));
    EXPECT_TRUE(document.boolDirty);
    EXPECT_TRUE(mainWindow.enabled);
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
}

TEST_F(SaveFiles, ThatFailUnderANewNameLeaveTheOldOne)
{
    FakeDocument &document = typed(QStringLiteral("x"));
    choose(QStringLiteral("none/page.html"));
    EXPECT_FALSE(files.SaveDocument(false));
    EXPECT_EQ(takeBox().title, QStringLiteral("Path Not Found"));
    EXPECT_EQ(document.DocSavePath, QString());
    EXPECT_TRUE(document.NewDoc);
    EXPECT_EQ(document.caption, QStringLiteral("Untitled1"));
}

class ChangedFile : public SaveFiles
{
protected:
    ChangedFile() : document(openedDocument(page, "old"))
    {
        document.surface.setText(QStringLiteral("mine"));
        writeFile(page, "theirs, longer");
    }
    FakeDocument &document;
};

TEST_F(ChangedFile, IsAskedAbout)
{
    boxes.answers = {MessageAnswer::No};
    EXPECT_FALSE(files.SaveDocument(false));
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("File Changed"));
    EXPECT_EQ(box.buttons, MessageButtons::YesNo);
    EXPECT_EQ(answerByEnter(box), MessageAnswer::No);
    EXPECT_EQ(bytesOf(page), QByteArray("theirs, longer"));
    EXPECT_TRUE(document.boolDirty);
    boxes.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(bytesOf(page), QByteArray("mine\r\n"));
    boxes.shown.clear();
    EXPECT_TRUE(files.SaveDocument(false)); // by now it is known
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(ChangedFile, IsAskedAboutInSaveAsToo)
{
    choose(page);
    boxes.answers = {MessageAnswer::No};
    EXPECT_FALSE(files.SaveDocumentAs(true, {}));
    EXPECT_EQ(takeBox().title, QStringLiteral("File Changed"));
    EXPECT_TRUE(document.UnsuccessfulClose);
}

TEST_F(SaveFiles, AsTheOwnFileByAnotherWayAskNothing)
{
    FakeDocument &document = openedDocument(page, "x");
    ASSERT_TRUE(QFile::link(path(page), path(other)));
    document.surface.setText(QStringLiteral("y"));
    choose(other);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(bytesOf(page), QByteArray("y\r\n"));
    EXPECT_EQ(document.DocSavePath, path(other));
}

TEST_F(SaveFiles, LeaveAutomaticSavingAsItWas)
{
    context.project = &project;
    addForm<frmMsgAddSavedFileToProject>();
    for (const bool wasOn : {false, true}) {
        FakeDocument &document = typed(QStringLiteral("x"));
        document.autoSave = wasOn;
        choose(wasOn ? page : other);
        EXPECT_TRUE(files.SaveDocument(false));
        EXPECT_EQ(document.autoSave, wasOn);
    }
}

TEST_F(ChangedFile, ThatHasGoneIsWrittenAnew)
{
    ASSERT_TRUE(QFile::remove(path(page)));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(bytesOf(page), QByteArray("mine\r\n"));
}

TEST_F(ChangedFile, HoldsTheAutomaticSaveBackWhileItIsAskedAbout)
{
    boxes.answers = {MessageAnswer::No};
    bool heldBack = false;
    boxes.during = [&] { heldBack = !document.autoSave; };
    files.SaveDocument(false);
    EXPECT_TRUE(heldBack);
    EXPECT_TRUE(document.autoSave);
}

TEST_F(SaveFiles, SaveAllTakesTheDirtyOnesAlone)
{
    FakeDocument &first = openedDocument(page, "1");
    openedDocument(other, "2");
    FakeDocument &third = typed(QStringLiteral("3"));
    first.surface.setText(QStringLiteral("one"));
    choose(QStringLiteral("third.html"));
    files.SaveAll();
    EXPECT_EQ(bytesOf(page), QByteArray("one\r\n"));
    EXPECT_EQ(bytesOf(other), QByteArray("2"));
    EXPECT_EQ(bytesOf(QStringLiteral("third.html")), QByteArray("3\r\n"));
    EXPECT_EQ(dialogs.requests.size(), 1);
    EXPECT_EQ(mainWindow.active, &third);
}

class SavedToProject : public SaveFiles
{
protected:
    SavedToProject()
    {
        context.project = &project;
        addForm<frmMsgAddSavedFileToProject>();
        typed(QStringLiteral("x"));
        choose(page);
    }
    void press(const char *button, const QString &row = QStringLiteral("Always"))
    {
        modal.answer = [button, row, this](Form &form) {
            autoSaveMeanwhile = mainWindow.active->autoSaveEnabled();
            qobject_cast<QComboBox *>(form.control(QStringLiteral("cboQuestionAsk")))->setCurrentText(row);
            qobject_cast<QPushButton *>(form.control(QLatin1String(button)))->click();
        };
    }
    bool autoSaveMeanwhile = true;
};

TEST_F(SavedToProject, AsksAndAddsOnYes)
{
    press("cmdYes");
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(project.added, QStringList{path(page)});
    EXPECT_EQ(storedSetting("Settings", QStringLiteral("ShowAddFileToProjectAnswer")), QStringLiteral("True"));
    EXPECT_FALSE(autoSaveMeanwhile);
    EXPECT_TRUE(mainWindow.active->autoSaveEnabled());
    EXPECT_FALSE(mainWindow.AskedForThisSession);
}

TEST_F(SavedToProject, AsksAndAddsNothingOnNo)
{
    press("cmdNo");
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_TRUE(project.added.isEmpty());
    EXPECT_EQ(storedSetting("Settings", QStringLiteral("ShowAddFileToProjectAnswer")), QStringLiteral("False"));
}

TEST_F(SavedToProject, AsksNoMoreInThisSessionAndActsAsAnsweredBefore)
{
    press("cmdYes", QStringLiteral("Not again for this session"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_TRUE(mainWindow.AskedForThisSession);
    choose(other);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(modal.shown.size(), 1);
    EXPECT_EQ(project.added, (QStringList{path(page), path(other)}));
}

// The row reads "Never!" and what is looked for is "Never", so the question comes again.
TEST_F(SavedToProject, StoresNothingForNever)
{
    press("cmdNo", QStringLiteral("Never!"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_EQ(storedSetting("Settings", QStringLiteral("ShowAddFileToProjectQuestion")), QString());
    EXPECT_FALSE(mainWindow.AskedForThisSession);
}

TEST_F(SavedToProject, ActsBySettingsWithoutAsking)
{
    setting("Settings", QStringLiteral("ShowAddFileToProjectQuestion"), QStringLiteral("False"));
    setting("Settings", QStringLiteral("ShowAddFileToProjectAnswer"), QStringLiteral("False"));
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_TRUE(project.added.isEmpty());
    setting("Settings", QStringLiteral("ShowAddFileToProjectAnswer"), QStringLiteral("TRUE"));
    choose(other);
    EXPECT_TRUE(files.SaveDocumentAs(false, {}));
    EXPECT_EQ(project.added, QStringList{path(other)});
    EXPECT_TRUE(modal.shown.isEmpty());
}

TEST_F(SavedToProject, DoesNothingWithoutAnOpenProject)
{
    project.open = false;
    EXPECT_TRUE(files.SaveDocument(false));
    EXPECT_TRUE(project.added.isEmpty());
    EXPECT_TRUE(modal.shown.isEmpty());
}
} // namespace
