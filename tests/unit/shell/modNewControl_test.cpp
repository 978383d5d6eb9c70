#include "shell/modNewControl.h"

#include "unit/support/fakes.h"
#include "widgets/fileControls.h"
#include "widgets/listView.h"

namespace
{
/// A program in which there is an active document and no memory for the window of another one.
class NoNewWindow : public FilesTest
{
protected:
    NoNewWindow()
    {
        setting("AppPaths", QStringLiteral("Templates"), path(QStringLiteral("t")));
        QDir().mkpath(path(QStringLiteral("t")));
        writeFile(QStringLiteral("t/plain.tpl"), "<p>from the template</p>");
        active.surface.setText(QStringLiteral("what was there"));
        active.boolDirty = false;
        context.newBlankDocument = []() -> Document * { return nullptr; };
        FillNewDocumentList(settings, dirTemplates, lstNew);
    }

    void expectNothingWritten()
    {
        EXPECT_EQ(active.surface.Text(), QStringLiteral("what was there"));
        EXPECT_FALSE(active.boolDirty);
        EXPECT_EQ(mainWindow.documents.size(), 1);
    }

    FakeDocument &active = newDocument();
    ListView lstNew{{QStringLiteral("Template Name"), QStringLiteral("Type")}};
    FileList dirTemplates{disk};
};

TEST_F(NoNewWindow, LeavesTheActiveDocumentAloneWhereABlankOneIsAskedFor)
{
    OpenSelectedTemplate(context, lstNew);
    expectNothingWritten();
}

TEST_F(NoNewWindow, LeavesTheActiveDocumentAloneWhereATemplateIsOpened)
{
    ASSERT_EQ(lstNew.rowCount(), 2);
    lstNew.selectRow(1);
    OpenSelectedTemplate(context, lstNew);
    expectNothingWritten();
}

TEST_F(NoNewWindow, LeavesTheActiveDocumentAloneWhereAFileIsOpened)
{
    writeFile(QStringLiteral("page.html"), "<p>from the file</p>");
    files.OpenDocumentFile(path(QStringLiteral("page.html")), false);
    expectNothingWritten();
}
} // namespace
