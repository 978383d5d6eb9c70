#include "houseFiles.h"
#include "process.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;

const QString tests = QStringLiteral(TEST_SOURCE_DIR "/tests");

/// The name under which CTest is to know a script of the scripted user: by its folder and its own name.
QString testNameOf(const QString &path)
{
    const QString name = path.section(u'/', -1).chopped(6);
    const QString folder = path.section(u'/', -2, -2);
    return path.startsWith(QLatin1String("drive/")) ? QStringLiteral("selftest.") + name
                                                    : QStringLiteral("scenario.%1.%2").arg(folder, name);
}

TEST(Scripts, AreEachATestOfTheirOwn)
{
    const QString registered = textOf(QStringLiteral(TEST_BINARY_DIR "/CTestTestfile.cmake"));
    ASSERT_FALSE(registered.isEmpty());
    for (const QString &path : filesUnder(tests, {QStringLiteral("*.drive")}))
        EXPECT_TRUE(registered.contains(QStringLiteral("add_test([=[%1]=]").arg(testNameOf(path))))
            << qPrintable(path) << " is run by no test";
}

TEST(Scripts, OfTheShellAreWellFormed)
{
    const QString top = QStringLiteral(TEST_SOURCE_DIR "/");
    QStringList scripts{top + QStringLiteral("dev"), top + QStringLiteral(".ci/run")};
    for (const QString &path : filesUnder(tests, {QStringLiteral("*.sh")}))
        scripts << tests + u'/' + path;
    for (const QString &script : scripts) {
        const Outcome outcome = runProgram(QStringLiteral("/bin/bash"), {QStringLiteral("-n"), script}, {});
        EXPECT_EQ(outcome.status, 0) << qPrintable(script) << qPrintable(outcome.errors);
    }
}

struct SelftestRow {
    const char *script;
    const char *driver; ///< the body of a program that stands in for the driver
    int status;
    const char *says;
};

Outcome selftest(const QString &script, const QString &driver)
{
    const QTemporaryDir folder;
    writeScript(folder.filePath(QStringLiteral("driver")), driver);
    writeScript(folder.filePath(QStringLiteral("a.drive")), script);
    return runProgram(tests + QStringLiteral("/drive/selftest.sh"),
                      {folder.filePath(QStringLiteral("driver")), folder.filePath(QStringLiteral("a.drive"))},
                      {{QStringLiteral("PATH"), qEnvironmentVariable("PATH")}});
}

TEST(Selftest, HoldsOnlyIfTheDriverEndsAsTheScriptSays)
{
    const SelftestRow rows[] = {
        {"# exit 1\n# says :3: expected 2, got [0-9]+$\nstart", "echo \"$1:3: expected 2, got 17\" >&2; exit 1", 0, ""},
        {"# exit 1\n# says one\n# says two", "echo two; echo one; exit 1", 0, ""},
        {"# exit 2\n# says one", "echo one; exit 1", 1, "was to exit with 2, but exited with 1"},
        {"# exit 1\n# says one", "echo one", 1, "was to exit with 1, but exited with 0"},
        {"# exit 1\n# says one", "echo one; kill -SEGV $$", 1, "but exited with 139"},
        {"# exit 1\n# says ^one$", "echo one two; exit 1", 1, "no line of the output matches: ^one$"},
        {"# exit 1\n# says one\n# says two", "echo one; exit 1", 1, "no line of the output matches: two"},
        {"# exit 1\nstart", "exit 1", 2, "it has to have one line"},
        {"# says one\nstart", "echo one", 2, "it has to have one line"},
        {"# exit 1\n# exit 0\n# says one", "echo one", 2, "it has to have one line"},
    };
    for (const SelftestRow &row : rows) {
        const Outcome outcome = selftest(QString::fromUtf8(row.script), QString::fromUtf8(row.driver));
        EXPECT_EQ(outcome.status, row.status) << row.script << qPrintable(outcome.output + outcome.errors);
        EXPECT_THAT((outcome.output + outcome.errors).toStdString(), HasSubstr(row.says)) << row.script;
    }
}
} // namespace
