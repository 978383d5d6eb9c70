#include "files/frmProperties.h"

#include "common/mainWindow.h"
#include "unit/support/fakes.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>

namespace
{
class Properties : public FilesTest
{
protected:
    Properties() : form(addForm<frmProperties>()) {}
    QString label(const char *name) const { return qobject_cast<QLabel *>(form.control(QLatin1String(name)))->text(); }
    bool ticked(const char *name) const
    {
        return qobject_cast<QCheckBox *>(form.control(QLatin1String(name)))->isChecked();
    }
    frmProperties &form;
};

TEST_F(Properties, TellOfTheFile)
{
    openedDocument(QStringLiteral("page.html"), "<p>four</p>\n");
    form.Show();
    EXPECT_EQ(form.Caption(), QStringLiteral("page.html Properties"));
    EXPECT_EQ(label("lblFileName"), QStringLiteral("page.html"));
    EXPECT_EQ(label("lblMsDosName"), QStringLiteral("page.html"));
    EXPECT_EQ(label("lblSize"), QStringLiteral("12 bytes"));
    EXPECT_EQ(label("lblLocation") + QStringLiteral("/page.html"), path(QStringLiteral("page.html")));
    EXPECT_FALSE(label("lblLastModified").isEmpty());
    EXPECT_FALSE(label("lblLastAccessed").isEmpty());
    EXPECT_FALSE(label("lblType").isEmpty());
    EXPECT_EQ(label("lblSaved"), QStringLiteral("This file does not need to be saved."));
    for (const char *box : {"chkReadOnly", "chkHidden", "chkArchive", "chkSystem"})
        EXPECT_FALSE(ticked(box)) << box;
    EXPECT_FALSE(mainWindow.enabled);
    form.Unload();
    EXPECT_TRUE(mainWindow.enabled);
}

TEST_F(Properties, KnowAHiddenFileByItsDot)
{
    openedDocument(QStringLiteral(".page.html"), "x");
    form.Show();
    EXPECT_TRUE(ticked("chkHidden"));
}

TEST_F(Properties, OfADocumentWithoutAFileShowItsCaption)
{
    newDocument().boolDirty = true;
    form.Show();
    EXPECT_EQ(form.Caption(), QStringLiteral("Untitled1 Properties"));
    EXPECT_EQ(label("lblFileName"), QStringLiteral("Untitled1"));
    EXPECT_EQ(label("lblSize"), QString());
    EXPECT_EQ(label("lblSaved"), QStringLiteral("Changes to this file have not been saved."));
}

TEST_F(Properties, SumUpWhatThePageSaysOfItself)
{
    FakeDocument &document = newDocument();
    document.surface.setText(QStringLiteral("<META name=\"author\" content=\"Ann Other\">"
                                            "<meta name=\"keywords\" content=\"a, b\">"
                                            "<meta name=\"description\" content=\"About\">"));
    document.boolDirty = false;
    form.Show();
    EXPECT_EQ(qobject_cast<QLineEdit *>(form.control(QStringLiteral("txtAuthor")))->text(),
              QStringLiteral("Ann Other"));
    EXPECT_EQ(qobject_cast<QLineEdit *>(form.control(QStringLiteral("txtKeywords")))->text(), QStringLiteral("a, b"));
    EXPECT_EQ(qobject_cast<QPlainTextEdit *>(form.control(QStringLiteral("txtDescription")))->toPlainText(),
              QStringLiteral("About"));
    EXPECT_FALSE(document.boolDirty);
}

TEST_F(Properties, OfAFileThatHasGoneTellSo)
{
    openedDocument(QStringLiteral("page.html"), "x");
    ASSERT_FALSE(disk.removeFile(path(QStringLiteral("page.html"))));
    form.Show();
    EXPECT_EQ(takeBox().title, QStringLiteral("File Not Found"));
    EXPECT_EQ(label("lblFileName"), QStringLiteral("page.html"));
}
} // namespace
