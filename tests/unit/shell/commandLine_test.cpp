#include "shell/commandLine.h"

#include <QDir>
#include <gtest/gtest.h>

namespace
{
struct Row {
    const char *text;
    const char *path;
    CommandLineAction action;
};

TEST(CommandLine, NamesOneFileQuotedOrNot)
{
    using A = CommandLineAction;
    const Row rows[] = {
        {R"("C:\My Pages\a b.htm")", R"(C:\My Pages\a b.htm)", A::Document},
        {R"(C:\My Pages\a b.htm)", R"(C:\My Pages\a b.htm)", A::Document},
        {R"("/home/a b.htm)", "/home/a b.htm", A::Document},
        {R"(/home/a b.htm")", R"(/home/a b.htm")", A::Document}, // a quote at the end alone is part of the name
        {R"(")", "", A::Document},
        {R"("/a.tpl" "/b.tsp")", R"(/a.tpl" "/b.tsp)", A::Project}, // one path, never two
        {"/a/page.tpl", "/a/page.tpl", A::Template},
        {"/a/SITE.TSP", "/a/SITE.TSP", A::Project},
        {"/a/b.Ctp", "/a/b.Ctp", A::CombinedTemplate},
        {"/a.tsp/readme", "/a.tsp/readme", A::Document}, // the dot belongs to the folder
        {R"(C:\a.tsp\readme)", R"(C:\a.tsp\readme)", A::Document},
        {"/a/style.css", "/a/style.css", A::Document},
    };
    for (const Row &row : rows)
        EXPECT_EQ(commandLineFile(QString::fromLatin1(row.text)),
                  (CommandLineFile{QString::fromLatin1(row.path), row.action}))
            << row.text;
}

TEST(CommandLine, AsksAboutTheProgramByOneOptionAlone)
{
    const QString version = QStringLiteral("1.2.3");
    const auto answer = [&](const QStringList &arguments) { return answerToCommandLine(arguments, version); };
    EXPECT_EQ(answer({QStringLiteral("--version")}), QStringLiteral("Tagwrighter 1.2.3\n"));
    ASSERT_TRUE(answer({QStringLiteral("--help")}));
    EXPECT_TRUE(answer({QStringLiteral("--help")})->startsWith(QStringLiteral("Usage: tagwrighter [FILE]\n")));
    EXPECT_EQ(answer({QStringLiteral("-h")}), answer({QStringLiteral("--help")}));
    EXPECT_EQ(answer({}), std::nullopt);
    EXPECT_EQ(answer({QStringLiteral("--help"), QStringLiteral("a.htm")}), std::nullopt); // a file of that name
    EXPECT_EQ(answer({QStringLiteral("/a/--version")}), std::nullopt);
}

TEST(CommandLine, TextIsTheArgumentsAsOneLine)
{
    EXPECT_EQ(commandLineText({}), QString());
    EXPECT_EQ(commandLineText({QStringLiteral("/a"), QStringLiteral("b.htm")}), QStringLiteral("/a b.htm"));
    EXPECT_EQ(commandLineText({QStringLiteral("\"a b.htm\"")}), QStringLiteral("\"a b.htm\""));
}

struct FilesRow {
    const char *text;
    QList<CommandLineFile> files;
};

TEST(CommandLine, NamesSeveralFilesAndTheirLines)
{
    const QStringList there{QStringLiteral("/a.htm"), QStringLiteral("/b.tsp"), QStringLiteral("/my pages/c d.htm"),
                            QStringLiteral("/e:7")};
    const auto exists = [&there](const QString &path) { return there.contains(path); };
    const auto file = [](const char *path, int line = 0, CommandLineAction action = CommandLineAction::Document) {
        return CommandLineFile{QString::fromLatin1(path), action, line};
    };
    const CommandLineFile project = file("/b.tsp", 0, CommandLineAction::Project);
    const FilesRow rows[] = {
        {"", {}},
        {"/a.htm", {file("/a.htm")}},
        {"/a.htm /b.tsp", {file("/a.htm"), project}},
        {"/my pages/c d.htm", {file("/my pages/c d.htm")}},
        {"\"/my pages/c d.htm\" /a.htm", {file("/my pages/c d.htm"), file("/a.htm")}},
        {"/a.htm /my pages/c d.htm:3 /b.tsp", {file("/a.htm"), file("/my pages/c d.htm", 3), project}},
        {"\"/my pages/c d.htm:3\"", {file("/my pages/c d.htm", 3)}},
        {"\"/my pages/c d.htm\":3 /a.htm", {file("/my pages/c d.htm", 3), file("/a.htm")}},
        {"/a.htm:12", {file("/a.htm", 12)}},
        {"/a.htm:12:5", {file("/a.htm", 12)}},
        {"+4 /a.htm /b.tsp", {file("/a.htm", 4), project}},
        {"/b.tsp +4 /a.htm", {project, file("/a.htm", 4)}},
        {"/e:7", {file("/e:7")}}, // its name
        {"/e:7:8", {file("/e:7", 8)}},
        {"/no.htm:3", {file("/no.htm:3")}}, // told as it was given
        {"/a.htm /no such.htm", {file("/a.htm"), file("/no"), file("such.htm")}},
        {"+4", {file("+4")}},
    };
    for (const FilesRow &row : rows)
        EXPECT_EQ(commandLineFiles(QString::fromLatin1(row.text), exists), row.files) << row.text;
}

TEST(CommandLine, OfFilesQuotesWhatHasBlanks)
{
    EXPECT_EQ(commandLineOfFiles({}), QString());
    EXPECT_EQ(commandLineOfFiles({QStringLiteral("+12"), QStringLiteral("/a b.htm"), QStringLiteral("c.htm:3")}),
              QStringLiteral("+12 \"/a b.htm\" ") + QDir::currentPath() + QStringLiteral("/c.htm:3"));
}

TEST(CommandLine, RelativePathStartsAtTheCurrentFolder)
{
    EXPECT_EQ(commandLineText({QStringLiteral("sub/../a.htm")}), QDir::currentPath() + QStringLiteral("/a.htm"));
}
} // namespace
