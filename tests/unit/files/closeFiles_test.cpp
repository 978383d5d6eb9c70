#include "unit/support/fakes.h"

#include "common/mainWindow.h"
#include "files/frmMsgNoFileForAutoSave.h"
#include "files/frmMsgSaveChanges.h"
#include "files/frmUnsavedFiles.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>

namespace
{
const QString page = QStringLiteral("page.html");

void press(const Form &form, const char *button)
{
    auto *control = qobject_cast<QPushButton *>(form.control(QLatin1String(button)));
    ASSERT_NE(control, nullptr) << button;
    control->click();
}

QStringList rowsOf(const Form &form)
{
    const auto *list = qobject_cast<QListWidget *>(form.control(QStringLiteral("lstUnsavedFiles")));
    QStringList rows;
    for (int i = 0; i < list->count(); ++i)
        rows.append(list->item(i)->text());
    return rows;
}

class CloseFiles : public FilesTest
{
protected:
    FakeDocument &typed()
    {
        FakeDocument &document = newDocument();
        document.surface.setText(QStringLiteral("x"));
        return document;
    }
    void choose(const QString &name) { dialogs.choices.append({path(name), 2}); }
};

TEST_F(CloseFiles, ClosesACleanDocumentWithoutAsking)
{
    EXPECT_TRUE(files.mayClose(newDocument()));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(CloseFiles, AsksAboutADirtyOne)
{
    FakeDocument &document = typed();
    boxes.answers = {MessageAnswer::No};
    EXPECT_TRUE(files.mayClose(document));
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("Unsaved Changes"));
    EXPECT_EQ(box.text,
              QStringLiteral("The changes you have made to Untitled1 have not yet been saved. Do you wish to save "
                             "these changes before you close the document?\r\n\r\n"
                             "\u00B7 Choose 'Yes' to save the changes before the document is closed.\r\n\r\n"
                             "\u00B7 Choose 'Cancel' to abort the close and return to the document.\r\n\r\n"
                             "\u00B7 Choose 'No' to close the document without saving your changes."));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(box.buttons, MessageButtons::YesNoCancel);
}

TEST_F(CloseFiles, KeepsItOnCancel)
{
    boxes.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(files.mayClose(typed()));
}

TEST_F(CloseFiles, SavesItOnYes)
{
    FakeDocument &document = typed();
    boxes.answers = {MessageAnswer::Yes};
    choose(page);
    EXPECT_TRUE(files.mayClose(document));
    EXPECT_EQ(bytesOf(page), QByteArray("x\r\n"));
}

TEST_F(CloseFiles, HoldsTheAutomaticSaveBackWhileItAsks)
{
    FakeDocument &document = typed();
    boxes.answers = {MessageAnswer::Cancel};
    bool heldBack = false;
    boxes.during = [&] { heldBack = !document.autoSave; };
    files.mayClose(document);
    EXPECT_TRUE(heldBack);
    EXPECT_TRUE(document.autoSave);
}

TEST_F(CloseFiles, KeepsItWhereTheSaveIsNotFinished)
{
    FakeDocument &document = typed();
    mainWindow.ExitInProgress = true;

    boxes.answers = {MessageAnswer::Yes}; // and the dialog is left without a choice
    EXPECT_FALSE(files.mayClose(document));
    EXPECT_FALSE(document.UnsuccessfulClose);
    EXPECT_FALSE(mainWindow.ExitInProgress);

    writeFile(page, "old"); // Cancel at the question about replacing
    boxes.answers = {MessageAnswer::Yes, MessageAnswer::Cancel};
    choose(page);
    EXPECT_FALSE(files.mayClose(document));
    EXPECT_FALSE(document.UnsuccessfulClose);

    boxes.answers = {MessageAnswer::Yes, MessageAnswer::OK}; // a file error
    choose(QStringLiteral("none/x.html"));
    EXPECT_FALSE(files.mayClose(document));
    EXPECT_FALSE(document.UnsuccessfulClose);
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(CloseFiles, KeepsItWhereItsNameIsTaken)
{
    openedDocument(page, "other");
    FakeDocument &document = typed();
    boxes.answers = {MessageAnswer::Yes, MessageAnswer::OK};
    choose(page);
    EXPECT_FALSE(files.mayClose(document));
    EXPECT_EQ(boxes.shown.last().title, QStringLiteral("Document Open"));
    EXPECT_FALSE(document.UnsuccessfulClose);
}

TEST_F(CloseFiles, SavesTheDocumentThatClosesNotTheActiveOne)
{
    FakeDocument &first = openedDocument(page, "1");
    first.surface.setText(QStringLiteral("one"));
    FakeDocument &second = openedDocument(QStringLiteral("second.html"), "2");
    second.surface.setText(QStringLiteral("two"));
    boxes.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(files.mayClose(first));
    EXPECT_EQ(bytesOf(page), QByteArray("one\r\n"));
    EXPECT_EQ(bytesOf(QStringLiteral("second.html")), QByteArray("2"));
}

class ExitList : public CloseFiles
{
protected:
    ExitList() : list(addForm<frmMsgSaveChanges>()), first(openedDocument(page, "1")), second(typed())
    {
        mainWindow.ExitInProgress = true;
    }
    void expectExitCalledOff()
    {
        EXPECT_FALSE(ended);
        EXPECT_FALSE(list.isLoaded());
        EXPECT_FALSE(mainWindow.ExitInProgress);
        EXPECT_FALSE(mainWindow.SaveListShown);
        EXPECT_FALSE(state.FormUnloadHandled);
        EXPECT_FALSE(first.UnsuccessfulClose);
        EXPECT_FALSE(second.UnsuccessfulClose);
        EXPECT_TRUE(mainWindow.enabled);
    }
    void deselect(int row)
    {
        qobject_cast<QListWidget *>(list.control(QStringLiteral("lstUnsavedFiles")))->item(row)->setSelected(false);
    }
    frmMsgSaveChanges &list;
    FakeDocument &first;
    FakeDocument &second;
};

TEST_F(ExitList, LetsCleanDocumentsGo)
{
    second.boolDirty = false;
    EXPECT_TRUE(files.mayClose(first));
    EXPECT_TRUE(state.NoUnsavedDocuments);
    EXPECT_TRUE(state.FormUnloadHandled);
    EXPECT_FALSE(list.Visible());
    EXPECT_TRUE(files.mayClose(second));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(ExitList, TakesChargeOfTheExit)
{
    EXPECT_FALSE(files.mayClose(first));
    EXPECT_EQ(list.Caption(), QStringLiteral("Unsaved Changes"));
    EXPECT_EQ(rowsOf(list), QStringList{QStringLiteral("Untitled2")});
    EXPECT_TRUE(list.Visible());
    EXPECT_FALSE(mainWindow.enabled);
    EXPECT_TRUE(mainWindow.SaveListShown);
    EXPECT_TRUE(state.FormUnloadHandled);
    EXPECT_FALSE(state.NoUnsavedDocuments);
    EXPECT_TRUE(mainWindow.ExitInProgress);
}

TEST_F(ExitList, SavesWhatIsSelectedOnYesAndEnds)
{
    first.surface.setText(QStringLiteral("one"));
    files.mayClose(first);
    deselect(1);
    press(list, "cmdYes");
    EXPECT_TRUE(ended);
    EXPECT_EQ(bytesOf(page), QByteArray("one\r\n"));
    EXPECT_TRUE(dialogs.requests.isEmpty()); // the other one was not selected
}

TEST_F(ExitList, EndsOnNoWithoutSaving)
{
    first.surface.setText(QStringLiteral("one"));
    files.mayClose(first);
    press(list, "cmdNo");
    EXPECT_TRUE(ended);
    EXPECT_EQ(bytesOf(page), QByteArray("1"));
}

TEST_F(ExitList, CallsTheExitOffOnCancel)
{
    files.mayClose(first);
    press(list, "cmdCancel");
    expectExitCalledOff();
}

TEST_F(ExitList, CallsTheExitOffByItsCloseBoxToo)
{
    files.mayClose(first);
    list.Unload();
    expectExitCalledOff();
}

TEST_F(ExitList, StopsAtASaveThatIsNotFinished)
{
    first.surface.setText(QStringLiteral("one"));
    disk.writeFailure = FileError{DiskFullError, 0, {}};
    files.mayClose(first);
    press(list, "cmdYes");
    EXPECT_EQ(takeBox().title, QStringLiteral("Disk Is Full!"));
    EXPECT_TRUE(dialogs.requests.isEmpty()); // the second row was not reached
    expectExitCalledOff();
}

TEST_F(ExitList, StopsAtACancelledSaveAs)
{
    files.mayClose(first);
    press(list, "cmdYes");
    EXPECT_EQ(dialogs.requests.size(), 1);
    expectExitCalledOff();
}

TEST_F(ExitList, AsksAgainAtTheNextExit)
{
    files.mayClose(first);
    press(list, "cmdCancel");
    mainWindow.ExitInProgress = true;
    EXPECT_FALSE(files.mayClose(first));
    EXPECT_TRUE(list.Visible());
}

class UnsavedFiles : public CloseFiles
{
protected:
    UnsavedFiles() : form(addForm<frmUnsavedFiles>()) {}
    void save(int row)
    {
        auto *list = qobject_cast<QListWidget *>(form.control(QStringLiteral("lstUnsavedFiles")));
        list->setCurrentRow(row);
        press(form, "cmdSave");
    }
    frmUnsavedFiles &form;
};

TEST_F(UnsavedFiles, AreListedAndSavedOneByOne)
{
    FakeDocument &first = openedDocument(page, "1");
    first.surface.setText(QStringLiteral("one"));
    newDocument();
    typed();
    form.Show();
    EXPECT_EQ(form.Caption(), QStringLiteral("Unsaved Documents"));
    EXPECT_EQ(rowsOf(form), (QStringList{path(page), QStringLiteral("Untitled3")}));
    EXPECT_FALSE(mainWindow.enabled);
    save(0);
    EXPECT_EQ(mainWindow.active, &first);
    EXPECT_EQ(bytesOf(page), QByteArray("one\r\n"));
    EXPECT_EQ(rowsOf(form), QStringList{QStringLiteral("Untitled3")});
    save(0); // the dialog is left without a choice
    EXPECT_EQ(dialogs.requests.first().DialogTitle, QStringLiteral("Save Untitled3 As"));
    EXPECT_EQ(rowsOf(form), QStringList{QStringLiteral("Untitled3")});
    EXPECT_FALSE(mainWindow.enabled);
    press(form, "cmdClose");
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(UnsavedFiles, StayAsTheyAreWithoutASelection)
{
    typed();
    form.Show();
    press(form, "cmdSave");
    EXPECT_TRUE(dialogs.requests.isEmpty());
}

class AutoSave : public CloseFiles
{
protected:
    AutoSave() : form(addForm<frmMsgNoFileForAutoSave>())
    {
        setting("Settings", QStringLiteral("AutoSaveUse"), QStringLiteral("True"));
        setting("Settings", QStringLiteral("AutoSaveTime"), QStringLiteral("2"));
    }
    void tick(FakeDocument &document, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            files.autoSaveTick(document);
    }
    void answer(const char *button, bool dontReshow = false)
    {
        modal.answer = [button, dontReshow](Form &shown) {
            qobject_cast<QCheckBox *>(shown.control(QStringLiteral("chkDontReshow")))->setChecked(dontReshow);
            press(shown, button);
        };
    }
    frmMsgNoFileForAutoSave &form;
};

TEST_F(AutoSave, WritesTheDocumentOnceItsTimeHasCome)
{
    FakeDocument &document = openedDocument(page, "old");
    document.surface.setText(QStringLiteral("new"));
    newDocument(); // the active one
    tick(document);
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
    EXPECT_FALSE(mainWindow.resetBarEnabled);
    tick(document);
    EXPECT_EQ(bytesOf(page), QByteArray("new\r\n"));
    EXPECT_FALSE(document.boolDirty);
    EXPECT_EQ(document.autoSaveTicks, 0);
    EXPECT_EQ(mainWindow.status,
              QStringLiteral("The document \"") + path(page) + QStringLiteral("\" has been automatically saved."));
    EXPECT_TRUE(mainWindow.resetBarEnabled);
    EXPECT_NE(mainWindow.active, &document);
}

TEST_F(AutoSave, TakesTheIntegerPartOfItsTime)
{
    setting("Settings", QStringLiteral("AutoSaveTime"), QStringLiteral("1.9"));
    FakeDocument &document = openedDocument(page, "old");
    tick(document);
    EXPECT_EQ(bytesOf(page), QByteArray("old\r\n"));
}

TEST_F(AutoSave, DoesNothingUnlessSwitchedOn)
{
    setting("Settings", QStringLiteral("AutoSaveUse"), QStringLiteral("true"));
    FakeDocument &document = openedDocument(page, "old");
    tick(document, 2);
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
    EXPECT_EQ(document.autoSaveTicks, 2);
}

TEST_F(AutoSave, WaitsForTheCounterToWrapBelowATimeThatWasLowered)
{
    FakeDocument &document = openedDocument(page, "old");
    document.autoSaveTicks = 32766;
    tick(document);
    EXPECT_EQ(document.autoSaveTicks, 32767);
    tick(document);
    EXPECT_EQ(document.autoSaveTicks, -32768);
    EXPECT_EQ(bytesOf(page), QByteArray("old"));
    tick(document, 32768 + 2);
    EXPECT_EQ(bytesOf(page), QByteArray("old\r\n"));
}

TEST_F(AutoSave, LeavesAFileThatAnotherProgramChanged)
{
    FakeDocument &document = openedDocument(page, "old");
    document.surface.setText(QStringLiteral("mine"));
    writeFile(page, "theirs, longer");
    tick(document, 2);
    EXPECT_EQ(bytesOf(page), QByteArray("theirs, longer"));
    EXPECT_TRUE(document.boolDirty);
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_EQ(mainWindow.status,
              QStringLiteral("The document \"") + path(page) +
                  QStringLiteral("\" has not been automatically saved: another program has changed its file."));
}

TEST_F(AutoSave, TellsAFailureAndClaimsNothing)
{
    FakeDocument &document = openedDocument(page, "old");
    disk.writeFailure = FileError{PermissionDeniedError, 0, {}};
    tick(document, 2);
    EXPECT_EQ(takeBox().title, QStringLiteral("Can Not Write to File"));
    EXPECT_EQ(mainWindow.status, QStringLiteral("Ready"));
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(AutoSave, LeavesTheMainWindowToTheDialogThatHasIt)
{
    FakeDocument &document = openedDocument(page, "old");
    mainWindow.enabled = false;
    tick(document, 2);
    EXPECT_FALSE(mainWindow.enabled);
}

TEST_F(AutoSave, OfANewDocumentAsksForAName)
{
    FakeDocument &document = typed();
    answer("cmdOK");
    choose(page);
    tick(document, 2);
    EXPECT_EQ(modal.shown, QStringList{QStringLiteral("frmMsgNoFileForAutoSave")});
    EXPECT_EQ(bytesOf(page), QByteArray("x\r\n"));
    EXPECT_TRUE(mainWindow.status.isEmpty());
}

TEST_F(AutoSave, IsStoppedByCancelAndNotByIgnore)
{
    FakeDocument &document = typed();
    answer("cmdIgnore");
    tick(document, 2);
    EXPECT_TRUE(document.autoSave);
    answer("cmdCancel");
    tick(document, 2);
    EXPECT_FALSE(document.autoSave);
    EXPECT_EQ(modal.shown.size(), 2);
}

TEST_F(AutoSave, AsksNoMoreIfTheUserSaysSo)
{
    FakeDocument &document = typed();
    answer("cmdIgnore", true);
    tick(document, 2);
    EXPECT_EQ(storedSetting("Settings", QStringLiteral("AutoSaveUnsavedNotification")), QStringLiteral("False"));
    tick(document, 2);
    EXPECT_EQ(modal.shown.size(), 1);
    EXPECT_TRUE(mainWindow.status.isEmpty());
}

TEST_F(AutoSave, AsksOnceAtATime)
{
    FakeDocument &document = typed();
    modal.answer = [&](Form &) { tick(document, 2); };
    tick(document, 2);
    EXPECT_EQ(modal.shown.size(), 1);
}
} // namespace
