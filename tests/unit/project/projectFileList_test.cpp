#include "project/modProjectFileCtrl.h"

#include "common/siteProject.h"
#include "unit/support/testDesktop.h"
#include "widgets/controls.h"

#include <QComboBox>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A project of some files of every kind; the text that a list shows may be another one than its path.
class SomeProject final : public SiteProject
{
public:
    bool isOpen() const override { return true; }
    QList<ProjectItem> editorFiles() const override
    {
        return {{str("index.HTM"), str("/site/index.HTM")},
                {str("style.css"), str("/site/style.css")},
                {str("a.html"), str("/site/sub/a.html")},
                {str("page.asp"), str("/site/page.asp")},
                {str("htm"), str("/site/htm.htm")}};
    }
    QList<ProjectItem> otherFiles() const override
    {
        return {{str("z.gif"), str("/site/z.gif")},      {str("a.JPG"), str("/site/a.JPG")},
                {str("b.jpeg"), str("/site/b.jpeg")},    {str("c.bmp"), str("/site/c.bmp")},
                {str("d.dib"), str("/site/d.dib")},      {str("e.ico"), str("/site/e.ico")},
                {str("f.cur"), str("/site/f.cur")},      {str("g.png"), str("/site/g.png")},
                {str("film.avi"), str("/site/film.avi")}};
    }
    void AddFileToProject(const QString &, bool) override {}
};

class ProjectFileList : public testing::Test
{
protected:
    QStringList filled(ProjectFiles kind)
    {
        FillProjectFileList(desktop.context(), kind, *combo);
        QStringList rows;
        for (int row = 0; row < combo->count(); ++row)
            rows.append(combo->itemText(row));
        return rows;
    }

    TestDesktop desktop;
    SomeProject project;
    std::unique_ptr<QComboBox> combo{ui::combo(str("cboUrl"))};
};

TEST_F(ProjectFileList, OfPagesHoldsTheEditorFilesByTheirPaths)
{
    desktop.context().project = &project;
    EXPECT_THAT(filled(ProjectFiles::Pages), ElementsAre(str("/site/index.HTM"), str("/site/sub/a.html")));
}

TEST_F(ProjectFileList, OfImagesHoldsTheKnownKindsInTheProjectsOrder)
{
    desktop.context().project = &project;
    EXPECT_THAT(filled(ProjectFiles::Images),
                ElementsAre(str("/site/z.gif"), str("/site/a.JPG"), str("/site/b.jpeg"), str("/site/c.bmp"),
                            str("/site/d.dib"), str("/site/e.ico"), str("/site/f.cur")));
}

TEST_F(ProjectFileList, LeavesTheTextOfTheComboAsItIs)
{
    desktop.context().project = &project;
    const QSignalSpy changes(combo.get(), &QComboBox::editTextChanged);
    filled(ProjectFiles::Pages);
    EXPECT_EQ(combo->currentText(), QString());
    EXPECT_EQ(combo->currentIndex(), -1);
    EXPECT_TRUE(changes.isEmpty());
}

TEST_F(ProjectFileList, IsEmptyWithoutAProject)
{
    EXPECT_TRUE(filled(ProjectFiles::Pages).isEmpty());
    EXPECT_TRUE(filled(ProjectFiles::Images).isEmpty());
}
} // namespace
