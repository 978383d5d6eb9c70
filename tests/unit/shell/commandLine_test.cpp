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

TEST(CommandLine, RelativePathStartsAtTheCurrentFolder)
{
    EXPECT_EQ(commandLineText({QStringLiteral("sub/../a.htm")}), QDir::currentPath() + QStringLiteral("/a.htm"));
}
} // namespace
