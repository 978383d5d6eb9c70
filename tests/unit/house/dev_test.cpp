#include "houseFiles.h"
#include "process.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

/// A copy of the house's script in a tree of its own, on a made-up machine: programs that only write down that they
/// were called stand in for those that would install, configure and build.
class Dev : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        for (const char *name : {"tree", "bin", "tree/tools"})
            QDir(m_folder.path()).mkdir(QLatin1String{name});
        for (const char *name : {"dev", "CMakePresets.json", "tools/mainWindow.drive"})
            QFile::copy(QStringLiteral(TEST_SOURCE_DIR "/") + QLatin1String{name}, tree(name));
        write(tree("packages.txt"), "# needed\ng++\n\ncmake\nlint: clang-tidy\n");
        for (const char *name : {"apt-get", "sudo", "cmake", "ninja", "ctest"})
            pretend(name, ":");
        pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake installed'");
        pretend("id", "echo 0");
        // What every machine has; the rest of the real one is out of reach.
        for (const char *name : {"bash", "cat", "cmp", "cp", "dirname", "env", "mkdir", "mktemp", "rm"})
            ASSERT_TRUE(QFile::link(QStringLiteral("/usr/bin/") + QLatin1String{name}, bin(name)));
    }

    QString tree(const char *name) const { return m_folder.filePath(QStringLiteral("tree/") + QLatin1String{name}); }
    QString bin(const char *name) const { return m_folder.filePath(QStringLiteral("bin/") + QLatin1String{name}); }

    static void write(const QString &path, const char *text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    /// A program that writes down its call and then does `body`.
    void pretend(const char *name, const char *body)
    {
        writeScript(
            bin(name),
            QStringLiteral("echo \"%1${*:+ $*}\" >>\"$CALLS\"\n%2").arg(QLatin1String{name}, QLatin1String{body}));
    }

    Outcome dev(const QStringList &arguments, QMap<QString, QString> environment = {})
    {
        environment.insert(QStringLiteral("PATH"), m_folder.filePath(QStringLiteral("bin")));
        environment.insert(QStringLiteral("CALLS"), m_folder.filePath(QStringLiteral("calls")));
        environment.insert(QStringLiteral("TMPDIR"), m_folder.path());
        return runProgram(tree("dev"), arguments, environment);
    }

    /// What the made-up programs wrote down; the questions to dpkg and id are no deeds.
    QStringList deeds() const
    {
        QStringList calls = textOf(m_folder.filePath(QStringLiteral("calls"))).split(u'\n', Qt::SkipEmptyParts);
        calls.removeIf([](const QString &call) {
            return call.startsWith(QLatin1String("dpkg-query")) || call.startsWith(QLatin1String("id "));
        });
        return calls;
    }

    /// Makes a configured build folder with a program in it that writes down its call.
    void pretendBuilt(const char *preset, const QString &program, const char *body)
    {
        const QString folder = tree("build/") + QLatin1String{preset};
        QDir().mkpath(folder + u'/' + program.section(u'/', 0, -2));
        write(folder + QStringLiteral("/build.ninja"), "");
        QFile::copy(tree("CMakePresets.json"), folder + QStringLiteral("/presets.used"));
        writeScript(folder + u'/' + program,
                    QStringLiteral("echo \"${0##*/}${*:+ $*}\" >>\"$CALLS\"\n%1").arg(QLatin1String{body}));
    }

    const QMap<QString, QString> ci{{QStringLiteral("CI"), QStringLiteral("true")}};
    QTemporaryDir m_folder;
};

TEST_F(Dev, RunWithoutADisplaySaysInOneSentenceWhatToDoAndDoesNothing)
{
    const Outcome outcome = dev({QStringLiteral("run")});
    EXPECT_GT(outcome.status, 0);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_THAT(outcome.errors.toStdString(), testing::MatchesRegex("[A-Z][^\n.]* \"./dev shot OUT.png\"\\.\n"));
    EXPECT_THAT(deeds(), IsEmpty());
}

TEST_F(Dev, RunWithADisplayBuildsTheFastProgramAndStartsIt)
{
    pretendBuilt("release", QStringLiteral("src/tagwrighter"), "exit 7");
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY"}) {
        QFile::remove(m_folder.filePath(QStringLiteral("calls")));
        const Outcome outcome =
            dev({QStringLiteral("run"), QStringLiteral("/a b.htm")}, {{QLatin1String{display}, QStringLiteral("x")}});
        EXPECT_EQ(outcome.status, 7) << qPrintable(outcome.errors);
        EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --build build/release --target tagwrighter"),
                                         QStringLiteral("tagwrighter /a b.htm")));
    }
}

TEST_F(Dev, TestConfiguresOnceAndRunsWhatIsNamed)
{
    pretend("cmake", "mkdir -p build/debug && : >build/debug/build.ninja");
    const Outcome first = dev({QStringLiteral("test"), QStringLiteral("^common")});
    EXPECT_EQ(first.status, 0) << qPrintable(first.errors);
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --preset debug"),
                                     QStringLiteral("cmake --build build/debug --target all"),
                                     QStringLiteral("ctest --preset debug --no-tests=error -R ^common")));
    dev({QStringLiteral("test")});
    EXPECT_THAT(deeds().mid(3), ElementsAre(QStringLiteral("cmake --build build/debug --target all"),
                                            QStringLiteral("ctest --preset debug --no-tests=error")));
    write(tree("CMakePresets.json"), "{}");
    dev({QStringLiteral("test")});
    EXPECT_EQ(deeds().value(5), QStringLiteral("cmake --preset debug"));
}

TEST_F(Dev, TestTakesThePresetThatIsAskedFor)
{
    pretend("cmake", "mkdir -p build/ci build/sanitize");
    dev({QStringLiteral("test")}, {{QStringLiteral("CI"), QStringLiteral("true")}});
    EXPECT_EQ(deeds().constLast(), QStringLiteral("ctest --preset ci --no-tests=error"));
    dev({QStringLiteral("test"), QStringLiteral("--sanitize"), QStringLiteral("a")});
    EXPECT_EQ(deeds().constLast(), QStringLiteral("ctest --preset sanitize --no-tests=error -R a"));
}

TEST_F(Dev, TestBuildsTheFuzzersForMachinesThatOnlyTestWhereThereIsClang)
{
    pretend("cmake", "mkdir -p build/ci build/fuzz build/debug");
    dev({QStringLiteral("test")}, {{QStringLiteral("CI"), QStringLiteral("true")}});
    const QString build = QStringLiteral("cmake --build build/fuzz --target fuzzers");
    EXPECT_FALSE(deeds().contains(build));
    pretend("clang++", ":");
    dev({QStringLiteral("test")});
    EXPECT_FALSE(deeds().contains(build));
    dev({QStringLiteral("test")}, {{QStringLiteral("CI"), QStringLiteral("true")}});
    EXPECT_EQ(deeds().at(deeds().size() - 2), build);
}

TEST_F(Dev, FuzzesWhatIsNamedAndEndsWithTheWorstStatus)
{
    for (const char *name : {"tree/tests/fuzz/seeds/a", "tree/tests/fuzz/seeds/b", "tree/build"})
        QDir(m_folder.path()).mkpath(QLatin1String{name});
    writeScript(tree("tests/fuzz/fuzz.sh"), QStringLiteral("echo \"fuzz $2 $3\" >>\"$CALLS\"\n[[ $2 == b ]]"));
    pretend("cmake", "mkdir -p build/fuzz");
    EXPECT_EQ(dev({QStringLiteral("fuzz")}).status, 1);
    EXPECT_THAT(deeds().mid(1), ElementsAre(QStringLiteral("cmake --build build/fuzz --target fuzzers"),
                                            QStringLiteral("fuzz a 60"), QStringLiteral("fuzz b 60")));
    EXPECT_EQ(dev({QStringLiteral("fuzz"), QStringLiteral("b"), QStringLiteral("5")}).status, 0);
    EXPECT_EQ(deeds().constLast(), QStringLiteral("fuzz b 5"));
    EXPECT_EQ(dev({QStringLiteral("fuzz"), QStringLiteral("c")}).errors,
              QStringLiteral("There is no target c. There are: a b.\n"));
}

TEST_F(Dev, LetsTheMonkeyLooseUnderTheSanitizers)
{
    pretend("cmake", "mkdir -p build/sanitize");
    pretend("python3", "exit 5");
    EXPECT_EQ(dev({QStringLiteral("monkey"), QStringLiteral("7"), QStringLiteral("20")}).status, 5);
    EXPECT_THAT(deeds().mid(1), ElementsAre(QStringLiteral("cmake --build build/sanitize --target tagwrighter-drive"),
                                            QStringLiteral("python3 tests/drive/monkey.py "
                                                           "build/sanitize/tests/drive/tagwrighter-drive 7 20 "
                                                           "--found build/sanitize/found")));
    EXPECT_EQ(dev({QStringLiteral("monkey"), QStringLiteral("x"), QStringLiteral("20")}).status, 2);
}

TEST_F(Dev, StopsAtAFailure)
{
    pretend("cmake", "exit 3");
    EXPECT_EQ(dev({QStringLiteral("test")}).status, 3);
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --preset debug")));
    pretend("cmake", "mkdir -p build/debug; [[ $1 == --preset ]]");
    EXPECT_GT(dev({QStringLiteral("test")}).status, 0);
    EXPECT_THAT(deeds().mid(1), ElementsAre(QStringLiteral("cmake --preset debug"),
                                            QStringLiteral("cmake --build build/debug --target all")));
    pretend("cmake", ":");
    pretend("ctest", "exit 8");
    EXPECT_EQ(dev({QStringLiteral("test")}).status, 8);
}

TEST_F(Dev, InstallsWhatIsMissingAndOnlyThat)
{
    pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake config-files'; exit 1");
    pretend("cmake", "exit 3");
    dev({QStringLiteral("test")});
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("apt-get update"),
                                     QStringLiteral("apt-get -o DPkg::Lock::Timeout=300 install -y "
                                                    "--no-install-recommends cmake"),
                                     QStringLiteral("cmake --preset debug")));
}

TEST_F(Dev, ConfiguresAgainAfterAnInstallation)
{
    pretendBuilt("debug", QStringLiteral("x"), "");
    pretend("dpkg-query", ":");
    dev({QStringLiteral("test")});
    EXPECT_EQ(deeds().value(2), QStringLiteral("cmake --preset debug"));
}

TEST_F(Dev, InstallsForLintWhatOnlyLintNeeds)
{
    pretend("apt-get", "[[ $1 == update ]]");
    const Outcome outcome = dev({QStringLiteral("lint")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, QStringLiteral("These packages could not be installed: clang-tidy.\n"));
    EXPECT_THAT(deeds().constLast().toStdString(), testing::EndsWith(" clang-tidy"));
}

TEST_F(Dev, InstallsMoreOnMachinesThatOnlyTest)
{
    write(tree("packages.txt"), "g++\nci: openssh-server\n");
    pretend("apt-get", "[[ $1 == update ]]");
    pretend("cmake", "exit 3");
    dev({QStringLiteral("test")});
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --preset debug"))); // nothing to install
    const Outcome outcome = dev({QStringLiteral("test")}, {{QStringLiteral("CI"), QStringLiteral("true")}});
    EXPECT_EQ(outcome.errors, QStringLiteral("These packages could not be installed: openssh-server.\n"));
}

TEST_F(Dev, LintsWhatDiffersFromMainAlone)
{
    for (const char *name : {"find", "grep", "head", "sort"})
        ASSERT_TRUE(QFile::link(QStringLiteral("/usr/bin/") + QLatin1String{name}, bin(name)));
    pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake installed' 'clang-tidy installed'");
    pretend(
        "git",
        "case $1 in merge-base) echo base ;; diff) printf '%s\\n' src/a.h dev src/b.cpp ;; *) echo tests/c.h ;; esac");
    for (const char *name : {"clang-format", "shellcheck"})
        pretend(name, ":");
    for (const char *name : {"tree/src", "tree/tests", "tree/bench"})
        QDir(m_folder.path()).mkdir(QLatin1String{name});
    write(tree("src/a.h"), "");
    write(tree("src/a.cpp"), "");
    write(tree("tests/d.cpp"), "#include \"unit/c.h\"\n");
    pretend("cmake", "mkdir -p build/lint && : >build/lint/build.ninja");
    EXPECT_EQ(dev({QStringLiteral("lint"), QStringLiteral("--changed")}).status, 0);
    QStringList calls = deeds();
    calls.removeIf([](const QString &call) { return call.startsWith(QLatin1String("git ")); });
    calls.removeIf([](const QString &call) { return call.startsWith(QLatin1String("shellcheck ")); });
    const QString root = QFileInfo(tree("src")).canonicalPath();
    EXPECT_THAT(
        calls,
        ElementsAre(
            QStringLiteral("clang-format --dry-run -Werror src/a.h src/b.cpp tests/c.h"),
            QStringLiteral("cmake --preset lint"),
            QStringLiteral("cmake --build build/lint -- -k 0 %1/src/a.cpp^ %1/src/b.cpp^ %1/tests/d.cpp^").arg(root)));
}

TEST_F(Dev, LintsInCiWhatTheLastCommitsChangedTheNewestFirst)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("/usr/bin/grep"), bin("grep")));
    pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake installed' 'clang-tidy installed'");
    pretend("git",
            "case $1 in rev-list) echo commit ;; *) printf '%s\\n' src/b.cpp dev src/a.cpp src/gone.cpp src/b.cpp ;; "
            "esac");
    for (const char *name : {"clang-format", "find"})
        pretend(name, ":");
    QDir(m_folder.path()).mkdir(QStringLiteral("tree/src"));
    write(tree("src/a.cpp"), "");
    write(tree("src/b.cpp"), "");
    pretend("cmake", "mkdir -p build/lint && : >build/lint/build.ninja");
    writeScript(tree("tools/tidyTogether.py"), QStringLiteral("echo \"tidy $*\" >>\"$CALLS\"; exit 1"));
    const Outcome outcome = dev({QStringLiteral("lint"), QStringLiteral("--changed")}, ci);
    EXPECT_EQ(outcome.errors, QStringLiteral("To be fixed: clang-tidy.\n"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(deeds().constLast(), QStringLiteral("tidy build/lint --seconds 90 src/b.cpp src/a.cpp"));
}

TEST_F(Dev, SaysAloudWhereCiCannotLint)
{
    pretend("git", ":"); // no commit that has one in front of it
    pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake installed' 'clang-tidy installed'");
    const Outcome shallow = dev({QStringLiteral("lint"), QStringLiteral("--changed")}, ci);
    EXPECT_EQ(shallow.status, 0);
    EXPECT_EQ(shallow.errors,
              QStringLiteral("The lint is LEFT OUT: this clone has no history that would tell what has changed.\n"));
    pretend("dpkg-query", "printf '%s\\n' 'g++ installed' 'cmake installed'");
    pretend("apt-get", "[[ $1 == update ]]");
    const Outcome bare = dev({QStringLiteral("lint"), QStringLiteral("--changed")}, ci);
    EXPECT_EQ(bare.status, 0);
    EXPECT_THAT(bare.errors.toStdString(),
                testing::EndsWith("The lint is LEFT OUT: what it needs is not to be had here.\n"));
    EXPECT_FALSE(deeds().contains(QStringLiteral("cmake --preset lint")));
}

TEST_F(Dev, InstallsThroughSudoWhereTheUserIsNotRoot)
{
    pretend("id", "echo 1000");
    pretend("dpkg-query", ":");
    pretend("sudo", "exit 1");
    dev({QStringLiteral("test")});
    EXPECT_THAT(deeds(),
                ElementsAre(QStringLiteral("sudo apt-get update"),
                            QStringLiteral("sudo env DEBIAN_FRONTEND=noninteractive apt-get -o "
                                           "DPkg::Lock::Timeout=300 install -y --no-install-recommends g++ cmake")));
}

TEST_F(Dev, NamesThePackagesToAUserWhoCannotInstallThem)
{
    pretend("id", "echo 1000");
    pretend("dpkg-query", ":");
    QFile::remove(bin("sudo"));
    const Outcome outcome = dev({QStringLiteral("test")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, QStringLiteral("Please have these packages installed first: g++ cmake.\n"));
    EXPECT_THAT(deeds(), IsEmpty());
}

TEST_F(Dev, DrivesEveryScriptAndEndsWithTheWorstStatus)
{
    const QStringList words{QStringLiteral("drive"), QStringLiteral("/0"), QStringLiteral("/2"), QStringLiteral("/1"),
                            QStringLiteral("--keep")};
    pretendBuilt("debug", QStringLiteral("tests/drive/tagwrighter-drive"), "exit \"${2#/}\"");
    EXPECT_EQ(dev(words).status, 2);
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --build build/debug --target tagwrighter-drive"),
                                     QStringLiteral("tagwrighter-drive --keep /0"),
                                     QStringLiteral("tagwrighter-drive --keep /2"),
                                     QStringLiteral("tagwrighter-drive --keep /1")));
}

TEST_F(Dev, ShotPlaysTheScriptAndTakesThePicture)
{
    write(tree("my.drive"), "start");
    pretendBuilt("debug", QStringLiteral("tests/drive/tagwrighter-drive"),
                 "cat \"$1\"; echo \"looks=${TAGWRIGHTER_DRIVE_LOOKS:-} scale=${QT_SCALE_FACTOR:-}\"; exit 1");
    const Outcome outcome = dev({QStringLiteral("shot"), QStringLiteral("/out \"1\".png"), tree("my.drive"),
                                 QStringLiteral("--dark"), QStringLiteral("--scale"), QStringLiteral("2")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, QStringLiteral("start\nshot \"/out \\\"1\\\".png\"\nlooks=dark scale=2\n"));
    EXPECT_THAT(QDir(m_folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                ElementsAre(QStringLiteral("bin"), QStringLiteral("tree")))
        << "nothing stays behind";
    const Outcome plain = dev({QStringLiteral("shot"), QStringLiteral("/a.png")});
    EXPECT_TRUE(plain.output.startsWith(textOf(tree("tools/mainWindow.drive"))));
    EXPECT_TRUE(plain.output.endsWith(QStringLiteral("\nshot \"/a.png\"\nlooks= scale=\n")));
}

TEST_F(Dev, BenchMeasuresTheFastProgramFiveTimes)
{
    pretendBuilt("release", QStringLiteral("bench/tagwrighter-bench"), "echo \"$QT_QPA_PLATFORM\"");
    EXPECT_EQ(dev({QStringLiteral("bench"), QStringLiteral("Text")}).output, QStringLiteral("offscreen\n"));
    EXPECT_THAT(deeds(), ElementsAre(QStringLiteral("cmake --build build/release --target tagwrighter-bench"),
                                     QStringLiteral("tagwrighter-bench Text")));
}

TEST_F(Dev, LeavesPagesShutInUnlessItTestsAsRoot)
{
    pretendBuilt("release", QStringLiteral("bench/tagwrighter-bench"),
                 "echo \"${QTWEBENGINE_DISABLE_SANDBOX:-shut in} $QTWEBENGINE_CHROMIUM_FLAGS\"");
    pretendBuilt("release", QStringLiteral("src/tagwrighter"), "echo \"${QTWEBENGINE_DISABLE_SANDBOX:-shut in}\"");
    const QMap<QString, QString> display{{QStringLiteral("DISPLAY"), QStringLiteral(":0")}};
    EXPECT_EQ(dev({QStringLiteral("bench")}).output, QStringLiteral("1 --disable-gpu\n"));
    EXPECT_EQ(dev({QStringLiteral("run")}, display).output, QStringLiteral("shut in\n"));
    pretend("id", "echo 1000");
    EXPECT_EQ(dev({QStringLiteral("bench")}).output, QStringLiteral("shut in --disable-gpu\n"));
}

TEST_F(Dev, TellsItsUseWhereItIsMisused)
{
    const QList<QStringList> rows{
        {},
        {QStringLiteral("unknown")},
        {QStringLiteral("drive")},
        {QStringLiteral("drive"), QStringLiteral("--unknown"), QStringLiteral("a")},
        {QStringLiteral("test"), QStringLiteral("--unknown")},
        {QStringLiteral("lint"), QStringLiteral("--unknown")},
        {QStringLiteral("shot")},
        {QStringLiteral("shot"), QStringLiteral("a.png"), QStringLiteral("--scale")},
        {QStringLiteral("shot"), QStringLiteral("a.png"), QStringLiteral("--scale"), QStringLiteral("b")},
    };
    for (const QStringList &row : rows) {
        const Outcome outcome = dev(row);
        EXPECT_EQ(outcome.status, 2) << qPrintable(row.join(u' '));
        EXPECT_THAT(outcome.errors.toStdString(), testing::StartsWith("./dev run [FILE] "));
    }
    EXPECT_THAT(deeds(), IsEmpty());
    EXPECT_EQ(dev({QStringLiteral("--help")}).status, 0);
}
} // namespace
