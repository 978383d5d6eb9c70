#include "frame/documentStatus.h"

#include "common/document.h"
#include "common/fileCommands.h"
#include "common/mainWindow.h"
#include "forms/form.h"
#include "frame/application.h"
#include "unit/support/wholeProgram.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace
{
/// The program with a page of one line, saved as UTF-8 with CR LF.
class DocumentStatusTest : public WholeProgram
{
protected:
    DocumentStatusTest()
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<p>\r\nna\xC3\xAFve\r\n");
        file.close();
        application->context().files->OpenDocumentFile(path(), false);
        settle();
    }

    QString path() const { return home.filePath(QStringLiteral("page.html")); }
    MainWindow &mainWindow() { return *application->context().mainWindow; }
    Document &document() { return *mainWindow().activeDocument(); }
    QWidget &frame() { return *application->form(QStringLiteral("frmMdi"))->window(); }
    QToolButton &format() { return *frame().findChild<QToolButton *>(QStringLiteral("lblFileFormat")); }
    QMenu &formats() { return *format().findChild<QMenu *>(QStringLiteral("mnuFileFormat")); }
    QString place()
    {
        frame().findChild<DocumentStatus *>()->update();
        return frame().findChild<QLabel *>(QStringLiteral("lblCaretPlace"))->text();
    }

    /// What a click and a choice in the menu do.
    void choose(const char *entry)
    {
        QMenu &menu = formats();
        Q_EMIT menu.aboutToShow();
        for (QAction *action : menu.actions())
            if (action->text() == QLatin1String(entry))
                return action->trigger();
        FAIL() << "no entry " << entry;
    }
    QStringList chosen()
    {
        QMenu &menu = formats();
        Q_EMIT menu.aboutToShow();
        QStringList entries;
        for (const QAction *action : menu.actions())
            if (action->isChecked())
                entries.append(action->text());
        return entries;
    }
    QByteArray saved()
    {
        EXPECT_TRUE(application->context().files->SaveDocument(false));
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};
} // namespace

TEST_F(DocumentStatusTest, TellsTheCaretsLineAndColumnFromOne)
{
    struct Row {
        qsizetype position;
        const char *place;
    };
    // "<p>" CR LF "naïve" CR LF: the second line begins at 5, the third at 12.
    const Row rows[] = {{0, "Line 1, column 1"},
                        {3, "Line 1, column 4"},
                        {5, "Line 2, column 1"},
                        {10, "Line 2, column 6"},
                        {12, "Line 3, column 1"}};
    for (const Row &row : rows) {
        document().txtEdit().setSelStart(row.position);
        EXPECT_EQ(place(), QLatin1String(row.place)) << row.position;
    }
    document().txtEdit().setSelStart(0);
    document().txtEdit().setSelLength(6); // the caret stands at the selection's end
    EXPECT_EQ(place(), QStringLiteral("Line 2, column 2"));
}

TEST_F(DocumentStatusTest, MarksWhatTheFileIsWrittenAs)
{
    EXPECT_EQ(format().text(), QStringLiteral("UTF-8, CR LF"));
    EXPECT_EQ(chosen(), QStringList({QStringLiteral("UTF-8"), QStringLiteral("CR LF")}));
}

TEST_F(DocumentStatusTest, WritesTheChosenEncodingAndLineEndAtTheNextSave)
{
    choose("Windows-1252");
    EXPECT_EQ(format().text(), QStringLiteral("Windows-1252, CR LF"));
    EXPECT_EQ(mainWindow().statusText(), QStringLiteral("The next save writes this page as Windows-1252 with CR LF."));
    EXPECT_TRUE(document().boolDirty);
    choose("LF");
    EXPECT_EQ(chosen(), QStringList({QStringLiteral("Windows-1252"), QStringLiteral("LF")}));
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("<p>\r\nna\xC3\xAFve\r\n")); // nothing before the save
    EXPECT_EQ(saved(), QByteArray("<p>\nna\xEFve\n\n"));              // which adds its break
    EXPECT_FALSE(document().boolDirty);
}

TEST_F(DocumentStatusTest, WritesUtf16OfTheChosenOrder)
{
    document().txtEdit().setText(QStringLiteral("a"));
    choose("UTF-16 BE");
    EXPECT_EQ(saved(), QByteArray("\xFE\xFF\0a\0\r\0\n", 8));
    choose("UTF-8");
    EXPECT_EQ(saved(), QByteArray("a\r\n"));
}

TEST_F(DocumentStatusTest, LeavesAnEncodingThatTheTextDoesNotFit)
{
    document().txtEdit().setText(QStringLiteral("\u0416"));
    document().boolDirty = false;
    choose("Windows-1252");
    EXPECT_EQ(format().text(), QStringLiteral("UTF-8, CR LF"));
    EXPECT_FALSE(document().boolDirty);
    EXPECT_EQ(mainWindow().statusText(), QStringLiteral("Windows-1252 has no place for all characters of this page, "
                                                        "so its encoding stays as it is."));
}
