#include "desktop/wizardOutput.h"
#include "desktop/wizardPrograms.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(WizardOutput, IsHeadersAndWhatFollowsTheEmptyLine)
{
    const struct {
        QByteArray bytes;
        const char *data;
        bool toNewDoc;
    } rows[] = {
        {"", "", false}, // no word at all: the user has left the wizard
        {"\n", "", false},
        {"WizardDataToNewDoc: True\n", "", false}, // nothing behind: left, too
        {"WizardDataToNewDoc: True\n\n", "", true},
        {"WizardDataToNewDoc: True\n\n<p>", "<p>", true},
        {"WizardDataToNewDoc: False\n\n<p>", "<p>", false},
        {"wizarddatatonewdoc:true\n\n<p>", "<p>", true},
        {"\n<p>", "<p>", false}, // the header may be missing
        {"Author: me\nWizardDataToNewDoc: True\nX-Later: y: z\n\na", "a", true},
        {"\r\n<p>\r\n<b>\r\n", "<p>\r\n<b>", false},
        {"\n<p>\n<b>\n\n", "<p>\r\n<b>\r\n", false}, // one line end at the very end, and no other
        {"\n\na", "\r\na", false},
        {"\n\xC3\xA9", "é", false},
        {"\xEF\xBB\xBF\n\xC3\xA9", "é", false},
        {"\n\xE9", "é", false},
    };
    for (const auto &row : rows) {
        const auto output = readWizardOutput(row.bytes);
        ASSERT_TRUE(output) << row.bytes.toStdString();
        EXPECT_EQ(output->data, q(row.data)) << row.bytes.toStdString();
        if (!output->data.isEmpty()) {
            EXPECT_EQ(output->toNewDoc, row.toNewDoc) << row.bytes.toStdString();
        }
    }
}

TEST(WizardOutput, IsRefusedInAnotherForm)
{
    for (const QByteArray &bytes :
         {QByteArray("<p>no header</p>\n\nx"), QByteArray("WizardDataToNewDoc: Yes\n\nx"),
          QByteArray("WizardDataToNewDoc:\n\nx"), QByteArray(" WizardDataToNewDoc: True\n\nx"), QByteArray("\nx\0y", 4),
          QByteArray("no colon")})
        EXPECT_FALSE(readWizardOutput(bytes)) << bytes.toStdString();
    const QByteArray most = "\n" + QByteArray(LargestWizardOutput - 1, 'x');
    EXPECT_TRUE(readWizardOutput(most));
    EXPECT_FALSE(readWizardOutput(most + 'x'));
}

class WizardProgramsTest : public testing::Test
{
protected:
    void script(const char *body, const QString &folder = {})
    {
        const QString place = folder.isEmpty() ? home.path() : folder;
        QDir().mkpath(place);
        QFile file(place + q("/NewPageWizard"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + body);
        file.close();
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
    std::unique_ptr<NewPageWizard> wizard()
    {
        return WizardPrograms({home.path(), home.filePath(q("second"))}, [this] { return work; }).create();
    }

    QTemporaryDir home;
    QString work;
};

TEST_F(WizardProgramsTest, AreFoundInTheirFoldersAlone)
{
    EXPECT_EQ(wizard(), nullptr);
    script("printf 'second;'", home.filePath(q("second")));
    ASSERT_TRUE(wizard());
    EXPECT_EQ(wizard()->AvailableWizards(), q("second;"));
    script("printf 'first;'");
    EXPECT_EQ(wizard()->AvailableWizards(), q("first;"));
    QFile::setPermissions(home.filePath(q("NewPageWizard")), QFileDevice::ReadOwner); // no program
    EXPECT_EQ(wizard()->AvailableWizards(), q("second;"));
    QFile::remove(home.filePath(q("NewPageWizard")));
    QDir().mkpath(home.filePath(q("NewPageWizard")));
    EXPECT_EQ(wizard()->AvailableWizards(), q("second;"));
}

TEST_F(WizardProgramsTest, AreStartedAsToldWithNothingToRead)
{
    work = home.filePath(q("my pages"));
    QDir().mkpath(work);
    script("echo; printf '%s|%s|%s|%s|' \"$#\" \"$1\" \"$2\" \"$PWD\"; wc -c");
    const auto made = wizard();
    ASSERT_TRUE(made->StartWizard(7));
    EXPECT_EQ(made->WizardExportData(), q("2|StartWizard|7|%1|0").arg(work));
    EXPECT_FALSE(made->WizardDataToNewDoc());
    script("[ $# = 1 ] && echo \"$1;\"");
    EXPECT_EQ(made->AvailableWizards(), q("AvailableWizards;"));
}

TEST_F(WizardProgramsTest, RunInTheHomeWhereTheirFolderIsGone)
{
    work = home.filePath(q("gone"));
    script("echo; printf \"$PWD\"");
    const auto made = wizard();
    ASSERT_TRUE(made->StartWizard(1));
    EXPECT_EQ(made->WizardExportData(), QDir::homePath());
}

TEST_F(WizardProgramsTest, FailByTheirStatusASignalOrTheirOutput)
{
    for (const char *body : {"echo 'a;'; exit 3", "echo 'a;'; kill -9 $$", "head -c 17000000 /dev/zero | tr '\\0' x",
                             "printf 'a;\\000b;'"}) {
        script(body);
        EXPECT_FALSE(wizard()->AvailableWizards()) << body;
    }
    for (const char *body : {"echo; echo x; exit 1", "echo; echo x; kill -9 $$", "echo '<p>'",
                             "echo; yes x | head -c 17000000", "echo; printf 'x\\000'"}) {
        script(body);
        const auto made = wizard();
        EXPECT_FALSE(made->StartWizard(1)) << body;
        EXPECT_EQ(made->WizardExportData(), QString()) << body;
    }
    script("exit 0");
    const auto made = wizard();
    QFile::remove(home.filePath(q("NewPageWizard")));
    EXPECT_FALSE(made->StartWizard(1));
    EXPECT_FALSE(made->AvailableWizards());
}

TEST_F(WizardProgramsTest, NotifyByTheLinesOfTheirStandardError)
{
    script("echo one >&2; printf 'two\\n\\nthree\\nfour' >&2; echo; echo data");
    const auto made = wizard();
    QStringList lines;
    made->NewPageWizard_NotifyClients = [&](const QString &line) { lines.append(line); };
    ASSERT_TRUE(made->StartWizard(1));
    EXPECT_EQ(lines, (QStringList{q("one"), q("two"), q("three")}));
    EXPECT_EQ(made->WizardExportData(), q("data"));
}

TEST_F(WizardProgramsTest, AreEndedByRequestWithoutAResult)
{
    script("echo; echo half; sleep 20");
    const auto made = wizard();
    QTimer::singleShot(100, [&] { made->end(); });
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(made->StartWizard(1));
    EXPECT_LT(time.elapsed(), 2500);
    EXPECT_EQ(made->WizardExportData(), QString());
}

TEST_F(WizardProgramsTest, AreKilledWhereTheyTurnADeafEar)
{
    script("trap '' TERM; echo; echo half; while :; do sleep 0.1; done");
    const auto made = wizard();
    QTimer::singleShot(300, [&] { made->end(); });
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(made->StartWizard(1));
    EXPECT_GT(time.elapsed(), 3000);
    EXPECT_LT(time.elapsed(), 8000);
    EXPECT_EQ(made->WizardExportData(), QString());
}

TEST_F(WizardProgramsTest, HaveFiveSecondsForTheirNames)
{
    script("echo 'a;'; exec sleep 20");
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(wizard()->AvailableWizards());
    EXPECT_GE(time.elapsed(), 4700); // a timer may come a twentieth early
    EXPECT_LT(time.elapsed(), 8000);
}

// The examples of the guide do what it says.

TEST_F(WizardProgramsTest, TheShortExampleWritesTheDate)
{
    const auto made = WizardPrograms({q(TEST_SOURCE_DIR "/docs/wizards/shell")}, {}).create();
    ASSERT_TRUE(made);
    EXPECT_EQ(made->AvailableWizards(), q("Date of today;"));
    ASSERT_TRUE(made->StartWizard(1));
    EXPECT_TRUE(QRegularExpression(q("^<p>\\d{4}-\\d\\d-\\d\\d</p>$")).match(made->WizardExportData()).hasMatch());
    EXPECT_FALSE(made->WizardDataToNewDoc());
}

class PythonWizard : public WizardProgramsTest
{
protected:
    /// Stands in for the program that asks.
    void answerBy(const char *body)
    {
        QFile file(home.filePath(q("zenity")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + body);
        file.close();
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("PATH", (home.path() + u':').toUtf8() + path);
    }
    ~PythonWizard() override { qputenv("PATH", path); }

    const QByteArray path = qgetenv("PATH");
    std::unique_ptr<NewPageWizard> made = WizardPrograms({q(TEST_SOURCE_DIR "/docs/wizards/python")}, {}).create();
};

TEST_F(PythonWizard, AsksThreeQuestionsAndWritesAPage)
{
    ASSERT_TRUE(made);
    EXPECT_EQ(made->AvailableWizards(), q("Page with sections;"));
    answerBy("case $3 in *title*) echo 'A & B' ;; *writes*) echo me ;; *) echo 'One, , Two' ;; esac");
    QStringList told;
    made->NewPageWizard_NotifyClients = [&](const QString &line) { told.append(line); };
    ASSERT_TRUE(made->StartWizard(1));
    EXPECT_EQ(made->WizardExportData(),
              q("<!DOCTYPE html>\r\n<html>\r\n<head>\r\n<meta charset=\"utf-8\">\r\n<title>A &amp; B</title>\r\n"
                "<meta name=\"author\" content=\"me\">\r\n</head>\r\n<body>\r\n<h1>A &amp; B</h1>\r\n\r\n"
                "<h2>One</h2>\r\n<p></p>\r\n\r\n<h2>Two</h2>\r\n<p></p>\r\n</body>\r\n</html>"));
    EXPECT_TRUE(made->WizardDataToNewDoc());
    EXPECT_EQ(told, (QStringList{q("Question 1 of 3"), q("Question 2 of 3"), q("Question 3 of 3")}));
}

TEST_F(PythonWizard, WritesNothingIfItIsLeft)
{
    ASSERT_TRUE(made);
    answerBy("case $3 in *writes*) exit 1 ;; *) echo x ;; esac");
    ASSERT_TRUE(made->StartWizard(1));
    EXPECT_EQ(made->WizardExportData(), QString());
    EXPECT_FALSE(made->StartWizard(2)); // it has one alone
}
} // namespace
