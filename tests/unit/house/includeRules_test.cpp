#include "includeRules.h"

#include "houseFiles.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// A made-up tree in which every file includes what stands behind its name, quoted.
SourceTree treeOf(const QMap<QString, QStringList> &includes)
{
    SourceTree tree;
    for (auto i = includes.begin(); i != includes.end(); ++i) {
        QString &text = tree[i.key()];
        for (const QString &path : i.value())
            text += QStringLiteral("#include \"%1\"\n").arg(path);
    }
    return tree;
}

const QString textH = QStringLiteral("common/text.h");
const QString formH = QStringLiteral("platform/form.h");
const QString writeH = QStringLiteral("document/frmWrite.h");
const QString saveH = QStringLiteral("files/save.h");
const QString optionsH = QStringLiteral("shell/frmOptions.h");
const QString mdiH = QStringLiteral("shell/frmMdi.h");
const QString splashH = QStringLiteral("shell/frmSplash.h");
const QString applicationH = QStringLiteral("shell/application.h");
const QString mainCpp = QStringLiteral("main.cpp");

TEST(IncludeRules, LetIncludesRunDownhill)
{
    EXPECT_THAT(includeFaults(treeOf({
                    {textH, {}},
                    {formH, {textH}},
                    {saveH, {formH, textH}},
                    {writeH, {formH, saveH}},
                    {optionsH, {formH}},
                    {mdiH, {writeH, optionsH, formH}},
                    {QStringLiteral("shell/frmMdi.cpp"), {mdiH, QStringLiteral("shell/frmMdiMenus.h")}},
                    {QStringLiteral("shell/frmMdiMenus.h"), {mdiH}},
                    {splashH, {formH}},
                    {applicationH, {mdiH, splashH}},
                    {mainCpp, {applicationH, textH}},
                })),
                IsEmpty());
}

TEST(IncludeRules, FindAnIncludeThatRunsUphill)
{
    const QList<QPair<QString, QString>> rows{
        {textH, formH},   {textH, writeH},  {formH, writeH},        {formH, optionsH},       {writeH, mdiH},
        {optionsH, mdiH}, {saveH, splashH}, {writeH, applicationH}, {applicationH, mainCpp}, {textH, mainCpp},
    };
    for (const auto &[from, to] : rows)
        EXPECT_THAT(includeFaults(treeOf({{from, {to}}, {to, {}}})),
                    ElementsAre(QStringLiteral("%1 includes %2 uphill").arg(from, to)));
}

TEST(IncludeRules, KeepTheMainWindowsToTheApplication)
{
    EXPECT_THAT(
        includeFaults(treeOf({{splashH, {mdiH}}, {mdiH, {}}})),
        ElementsAre(QStringLiteral("shell/frmSplash.h includes shell/frmMdi.h, which only the application may")));
    EXPECT_THAT(
        includeFaults(treeOf({{mdiH, {splashH}}, {splashH, {}}})),
        ElementsAre(QStringLiteral("shell/frmMdi.h includes shell/frmSplash.h, which only the application may")));
}

TEST(IncludeRules, FindACircleOfFiles)
{
    const QString a = QStringLiteral("files/a.h");
    const QString b = QStringLiteral("files/b.h");
    const QString c = QStringLiteral("files/c.h");
    EXPECT_THAT(includeFaults(treeOf({{a, {b}}, {b, {c}}, {c, {b}}})),
                ElementsAre(QStringLiteral("a circle: files/b.h > files/c.h > files/b.h")));
    EXPECT_THAT(includeFaults(treeOf({{a, {a}}})), ElementsAre(QStringLiteral("a circle: files/a.h > files/a.h")));
    EXPECT_THAT(includeFaults(treeOf({{a, {b, c}}, {b, {c}}, {c, {}}})), IsEmpty());
}

TEST(IncludeRules, FindACircleOfFoldersThatNoFileCloses)
{
    EXPECT_THAT(includeFaults(treeOf({
                    {QStringLiteral("document/a.h"), {QStringLiteral("files/b.h")}},
                    {QStringLiteral("files/b.h"), {}},
                    {QStringLiteral("files/c.h"), {QStringLiteral("project/d.h")}},
                    {QStringLiteral("project/d.h"), {}},
                    {QStringLiteral("project/e.cpp"), {QStringLiteral("document/f.h")}},
                    {QStringLiteral("document/f.h"), {}},
                })),
                ElementsAre(QStringLiteral("a circle: document > files > project > document")));
}

TEST(IncludeRules, FindASubsystemThatTheShellIncludesAndThatIncludesTheShell)
{
    EXPECT_THAT(includeFaults(treeOf({
                    {QStringLiteral("shell/settings.h"), {}},
                    {writeH, {QStringLiteral("shell/settings.h")}},
                    {optionsH, {writeH}},
                })),
                ElementsAre(QStringLiteral("a circle: document > shell > document")));
}

TEST(IncludeRules, WantEveryFolderToHaveAPlace)
{
    EXPECT_THAT(includeFaults(treeOf({{QStringLiteral("misc/a.h"), {}}})),
                ElementsAre(QStringLiteral("misc/a.h has no place in the order of the folders")));
    EXPECT_THAT(includeFaults(treeOf({{QStringLiteral("other.cpp"), {}}})),
                ElementsAre(QStringLiteral("other.cpp has no place in the order of the folders")));
}

TEST(IncludeRules, WantPathsFromTheTopOfTheSources)
{
    EXPECT_THAT(includeFaults(treeOf({{textH, {}}, {QStringLiteral("common/text.cpp"), {QStringLiteral("text.h")}}})),
                ElementsAre(QStringLiteral("common/text.cpp includes \"text.h\", which is no path from src/")));
    EXPECT_THAT(
        includeFaults(treeOf({{textH, {QStringLiteral("../platform/form.h")}}, {formH, {}}})),
        ElementsAre(QStringLiteral("common/text.h includes \"../platform/form.h\", which is no path from src/")));
    EXPECT_THAT(includeFaults(treeOf({{QStringLiteral("platform/form.cpp"), {QStringLiteral("form.moc")}}})),
                IsEmpty());
}

TEST(IncludeRules, SeeThroughTheWaysOfWritingAnInclude)
{
    const QStringList uphill{
        QStringLiteral("#include <platform/form.h>"),
        QStringLiteral("int i;\r\n  #  include\t\"platform/form.h\" // needed\r\n"),
        QStringLiteral("#ifdef X\n#include\"platform/form.h\"\n#endif"),
    };
    for (const QString &source : uphill)
        EXPECT_THAT(includeFaults({{textH, source}, {formH, QString()}}),
                    ElementsAre(QStringLiteral("common/text.h includes platform/form.h uphill")));
    const SourceTree harmless{{textH, QStringLiteral("// #include \"platform/form.h\"\n#include <QString>\n")},
                              {formH, QString()}};
    EXPECT_THAT(includeFaults(harmless), IsEmpty());
}

TEST(Sources, IncludeDownhillAndNeverInACircle)
{
    const QString sources = QStringLiteral(TEST_SOURCE_DIR "/src");
    SourceTree tree;
    for (const QString &path : filesUnder(sources, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}))
        tree.insert(path, textOf(sources + u'/' + path));
    ASSERT_TRUE(tree.contains(mainCpp));
    ASSERT_TRUE(tree.contains(textH));
    EXPECT_EQ(includeFaults(tree).join(u'\n'), QString());
}
} // namespace
