#include "common/paths.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace
{
struct TextRow {
    const char *given;
    const char *result;
};

void expectRows(const std::function<QString(const QString &)> &helper, std::initializer_list<TextRow> rows)
{
    for (const TextRow &row : rows)
        EXPECT_EQ(helper(QString::fromUtf8(row.given)).toStdString(), row.result) << row.given;
}

TEST(SeparatorOf, IsASlashForAPathThatStartsWithASingleOne)
{
    EXPECT_EQ(separatorOf(u"/home/a"), u'/');
    EXPECT_EQ(separatorOf(u"/"), u'/');
    EXPECT_EQ(separatorOf(u"//server/share"), u'\\');
    EXPECT_EQ(separatorOf(u"C:\\a"), u'\\');
    EXPECT_EQ(separatorOf(u"img/a.gif"), u'\\');
    EXPECT_EQ(separatorOf(u""), u'\\');
}

TEST(PrependBackslash, AddsOneOnlyWhereNoneStands)
{
    expectRows(PrependBackslash,
               {{"a", "\\a"}, {"\\a", "\\a"}, {"\\\\a", "\\\\a"}, {"", "\\"}, {"/a", "\\/a"}, {"a\\", "\\a\\"}});
}

TEST(FileNameOnly, TakesWhatStandsBehindTheLastSeparator)
{
    expectRows(FileNameOnly, {{"C:\\a\\b.htm", "b.htm"},
                              {"b.htm", "b.htm"},
                              {"C:\\a\\", ""},
                              {"", ""},
                              {"/home/u/b.htm", "b.htm"},
                              {"/home/u/", ""},
                              {"/b\\c.htm", "b\\c.htm"},
                              {"img/b.htm", "img/b.htm"},
                              {"http://h/x/b.htm", "http://h/x/b.htm"},
                              {"//s/b.htm", "//s/b.htm"}});
}

TEST(FolderOfPath, EndsBeforeTheFirstPlaceOfTheFileName)
{
    expectRows(FolderOfPath, {{"C:\\Site\\a.htm", "C:\\Site\\"},
                              {"a.htm", ""},
                              {"c:\\a\\a", "c:\\"},          // meant: the name is found in the folder first
                              {"/srv/x.htm/x.htm", "/srv/"}, // and so in a native path
                              {"/home/u/page.htm", "/home/u/"},
                              {"/a", "/"},
                              {"C:\\A\\a", "C:\\A\\"}, // letters are compared by their codes
                              {"C:\\Site\\", ""},      // meant: an empty name is found at the very start
                              {"/home/u/", ""},
                              {"", ""}});
}

TEST(UrlNameOnly, SplitsAtSlashesAlone)
{
    expectRows(UrlNameOnly, {{"http://h/x/b.htm", "b.htm"}, {"http://h/", ""}, {"b.htm", "b.htm"}, {"a\\b", "a\\b"}});
}

TEST(UrlFolderOfPath, EndsBeforeTheFirstPlaceOfTheName)
{
    expectRows(UrlFolderOfPath, {{"http://h/x/b.htm", "http://h/x/"},
                                 {"http://a.org/a", "http://"}, // meant, as for paths
                                 {"http://h/x/", ""},
                                 {"b.htm", ""}});
}

TEST(GetFileExtension, TakesWhatStandsBehindTheLastDotOfTheName)
{
    expectRows(GetFileExtension, {{"C:\\a\\b.htm", "htm"},
                                  {"C:\\a\\b.tar.GZ", "GZ"},
                                  {"C:\\a.b\\file", ""},
                                  {"file", ""},
                                  {"file.", ""},
                                  {".htm", "htm"},
                                  {"", ""},
                                  {"/srv/a.b/file", ""},
                                  {"/srv/a.b/file.tsp", "tsp"},
                                  {"/srv/a.b\\c", "b\\c"}, // a "\" is a letter of a native name
                                  {"C:\\a.b/c", "b/c"}});
}

TEST(GetFileSizeKB, NeverReportsNoneForAFileThatHoldsSomething)
{
    const std::pair<qint64, qint64> rows[] = {{0, 0},    {1, 1},    {1023, 1},   {1024, 1},
                                              {2047, 1}, {2048, 2}, {10240, 10}, {5'000'000'000, 4'882'812}};
    for (const auto &[bytes, kilobytes] : rows)
        EXPECT_EQ(GetFileSizeKB(bytes), kilobytes) << bytes;
}

TEST(NetPathName, TurnsEveryBackslashAndNothingElse)
{
    expectRows(NetPathName,
               {{"C:\\My Site\\a.gif", "C:/My Site/a.gif"}, {"\\\\s\\x", "//s/x"}, {"a/b", "a/b"}, {"", ""}});
}

TEST(FolderOf, GoesByTheLastSeparator)
{
    expectRows(folderOf, {{"c:\\a\\a", "c:\\a\\"}, {"/srv/x.htm/x.htm", "/srv/x.htm/"}, {"a.htm", ""}, {"/a/", "/a/"}});
}

TEST(JoinPath, TakesTheSeparatorOfTheFolder)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"/srv/site", "a.htm", "/srv/site/a.htm"},
        {"/srv/site/", "a.htm", "/srv/site/a.htm"},
        {"/", "a", "/a"},
        {"C:\\site", "a.htm", "C:\\site\\a.htm"},
        {"C:\\", "a", "C:\\a"},
        {"", "a", "a"},
        {"C:\\site", "", "C:\\site\\"},
    };
    for (const auto &[folder, name, path] : rows)
        EXPECT_EQ(joinPath(QString::fromUtf8(folder), QString::fromUtf8(name)).toStdString(), path);
}

TEST(WithoutFinalSeparator, KeepsARoot)
{
    expectRows(withoutFinalSeparator, {{"/srv/", "/srv"},
                                       {"/srv///", "/srv"},
                                       {"/", "/"},
                                       {"/srv", "/srv"},
                                       {"C:\\a\\", "C:\\a"},
                                       {"C:\\", "C:\\"},
                                       {"", ""}});
}
} // namespace
