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

/// A small house of our own, so that the rules are tested and not the tree.
const FolderOrder order = folderOrder(QStringLiteral("# from the ground up\n1 common\n2 services\n3 forms\n3 widgets\n"
                                                     "4 document files shell\n4 files project\n4 project document\n"
                                                     "4 shell document files\n5 frame\n6 desktop\n"));

QStringList faultsOf(const SourceTree &tree)
{
    return includeFaults(tree, order);
}

const QString textH = QStringLiteral("common/text.h");
const QString formH = QStringLiteral("forms/form.h");
const QString writeH = QStringLiteral("document/frmWrite.h");
const QString saveH = QStringLiteral("files/save.h");
const QString optionsH = QStringLiteral("shell/frmOptions.h");
const QString mdiH = QStringLiteral("frame/frmMdi.h");
const QString splashH = QStringLiteral("frame/frmSplash.h");
const QString applicationH = QStringLiteral("frame/application.h");
const QString mainCpp = QStringLiteral("main.cpp");

TEST(IncludeRules, LetIncludesRunDownhill)
{
    EXPECT_THAT(faultsOf(treeOf({
                    {textH, {}},
                    {formH, {textH}},
                    {saveH, {formH, textH}},
                    {writeH, {formH, saveH}},
                    {optionsH, {formH}},
                    {mdiH, {writeH, optionsH, formH}},
                    {QStringLiteral("frame/frmMdi.cpp"), {mdiH, QStringLiteral("frame/frmMdiMenus.h")}},
                    {QStringLiteral("frame/frmMdiMenus.h"), {mdiH}},
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
        EXPECT_THAT(faultsOf(treeOf({{from, {to}}, {to, {}}})),
                    ElementsAre(QStringLiteral("%1 includes %2 uphill").arg(from, to)));
}

TEST(IncludeRules, LetAFolderUseOnlyThoseBesideItThatItsLineNames)
{
    const QString controlsH = QStringLiteral("widgets/controls.h");
    EXPECT_THAT(faultsOf(treeOf({{formH, {controlsH}}, {controlsH, {}}})),
                ElementsAre(QStringLiteral("forms/form.h includes widgets/controls.h, which stands beside it")));
    EXPECT_THAT(faultsOf(treeOf({{saveH, {writeH}}, {writeH, {}}})),
                ElementsAre(QStringLiteral("files/save.h includes document/frmWrite.h, which stands beside it")));
    EXPECT_THAT(faultsOf(treeOf({{writeH, {saveH}}, {saveH, {}}})), IsEmpty());
}

TEST(IncludeRules, KeepTheMainWindowsToTheApplication)
{
    EXPECT_THAT(
        faultsOf(treeOf({{splashH, {mdiH}}, {mdiH, {}}})),
        ElementsAre(QStringLiteral("frame/frmSplash.h includes frame/frmMdi.h, which only the application may")));
    EXPECT_THAT(
        faultsOf(treeOf({{mdiH, {splashH}}, {splashH, {}}})),
        ElementsAre(QStringLiteral("frame/frmMdi.h includes frame/frmSplash.h, which only the application may")));
}

TEST(IncludeRules, FindACircleOfFiles)
{
    const QString a = QStringLiteral("files/a.h");
    const QString b = QStringLiteral("files/b.h");
    const QString c = QStringLiteral("files/c.h");
    EXPECT_THAT(faultsOf(treeOf({{a, {b}}, {b, {c}}, {c, {b}}})),
                ElementsAre(QStringLiteral("a circle: files/b.h > files/c.h > files/b.h")));
    EXPECT_THAT(faultsOf(treeOf({{a, {a}}})), ElementsAre(QStringLiteral("a circle: files/a.h > files/a.h")));
    EXPECT_THAT(faultsOf(treeOf({{a, {b, c}}, {b, {c}}, {c, {}}})), IsEmpty());
}

TEST(IncludeRules, FindACircleOfFoldersThatNoFileCloses)
{
    EXPECT_THAT(faultsOf(treeOf({
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
    EXPECT_THAT(faultsOf(treeOf({
                    {QStringLiteral("shell/tips.h"), {}},
                    {writeH, {QStringLiteral("shell/tips.h")}},
                    {optionsH, {writeH}},
                })),
                ElementsAre(QStringLiteral("a circle: document > shell > document")));
}

TEST(IncludeRules, WantEveryFolderToHaveAPlace)
{
    EXPECT_THAT(faultsOf(treeOf({{QStringLiteral("misc/a.h"), {}}})),
                ElementsAre(QStringLiteral("misc/a.h has no place in the order of the folders")));
    EXPECT_THAT(faultsOf(treeOf({{QStringLiteral("other.cpp"), {}}})),
                ElementsAre(QStringLiteral("other.cpp has no place in the order of the folders")));
}

TEST(IncludeRules, WantPathsFromTheTopOfTheSources)
{
    EXPECT_THAT(faultsOf(treeOf({{textH, {}}, {QStringLiteral("common/text.cpp"), {QStringLiteral("text.h")}}})),
                ElementsAre(QStringLiteral("common/text.cpp includes \"text.h\", which is no path from src/")));
    EXPECT_THAT(faultsOf(treeOf({{textH, {QStringLiteral("../forms/form.h")}}, {formH, {}}})),
                ElementsAre(QStringLiteral("common/text.h includes \"../forms/form.h\", which is no path from src/")));
    EXPECT_THAT(faultsOf(treeOf({{QStringLiteral("forms/form.cpp"), {QStringLiteral("form.moc")}}})), IsEmpty());
}

TEST(IncludeRules, SeeThroughTheWaysOfWritingAnInclude)
{
    const QStringList uphill{
        QStringLiteral("#include <forms/form.h>"),
        QStringLiteral("int i;\r\n  #  include\t\"forms/form.h\" // needed\r\n"),
        QStringLiteral("#ifdef X\n#include\"forms/form.h\"\n#endif"),
    };
    for (const QString &source : uphill)
        EXPECT_THAT(faultsOf({{textH, source}, {formH, QString()}}),
                    ElementsAre(QStringLiteral("common/text.h includes forms/form.h uphill")));
    const SourceTree harmless{{textH, QStringLiteral("// #include \"forms/form.h\"\n#include <QString>\n")},
                              {formH, QString()}};
    EXPECT_THAT(faultsOf(harmless), IsEmpty());
}

TEST(Sources, IncludeDownhillAndNeverInACircle)
{
    const QString sources = QStringLiteral(TEST_SOURCE_DIR "/src");
    SourceTree tree;
    for (const QString &path : filesUnder(sources, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}))
        tree.insert(path, textOf(sources + u'/' + path));
    ASSERT_TRUE(tree.contains(mainCpp));
    ASSERT_TRUE(tree.contains(textH));
    const FolderOrder house = folderOrder(textOf(sources + QStringLiteral("/folders.txt")));
    ASSERT_GT(house.size(), 20);
    EXPECT_EQ(includeFaults(tree, house).join(u'\n'), QString());
}
} // namespace
