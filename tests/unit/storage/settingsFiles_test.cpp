#include "storage/settingsFiles.h"

#include "storage/settingsText.h"
#include "unit/support/sandbox.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <csignal>
#include <random>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

const QString app = QStringLiteral("QWRK77XE");
const QString section = QStringLiteral("Settings");

class Settings : public Sandbox
{
protected:
    QString folder() const { return path("config/tagwrighter"); }
    QString read(const QString &key) const
    {
        return SettingsFiles(folder()).GetSetting(app, section, key, q("(default)"));
    }
    void write(const QString &key, const QString &value) const
    {
        SettingsFiles(folder()).SaveSetting(app, section, key, value);
    }

    static constexpr const char *file = "config/tagwrighter/QWRK77XE.settings";
};

TEST_F(Settings, ReadAsTheDefaultUntilTheyAreWritten)
{
    SettingsFiles files(folder());
    SettingsStore &store = files;
    EXPECT_EQ(store.GetSetting(app, section, q("WordWrap"), q("true")), q("true"));
    EXPECT_EQ(store.GetSetting(app, section, q("WordWrap")), QString());
    EXPECT_FALSE(QFileInfo::exists(folder())); // reading makes nothing
    store.SaveSetting(app, section, q("WordWrap"), q("False"));
    EXPECT_EQ(store.GetSetting(app, section, q("WordWrap"), q("true")), q("False"));
    EXPECT_EQ(read(q("WordWrap")), q("False"));
    store.SaveSetting(app, section, q("WordWrap"), QString());
    EXPECT_EQ(store.GetSetting(app, section, q("WordWrap"), q("true")), QString()); // written, though empty
    EXPECT_EQ(read(q("WordWrap")), QString());
}

TEST_F(Settings, AreKeptApartByApplicationSectionAndKey)
{
    const char *const words[] = {"a", "A", "a/b", "b", "", "a=b", "../a", "a.b", "%"};
    SettingsFiles store(folder());
    for (const char *one : words) {
        for (const char *two : words) {
            for (const char *three : words)
                store.SaveSetting(q(one), q(two), q(three), q(one) + q("|") + q(two) + q("|") + q(three));
        }
    }
    SettingsFiles other(folder());
    for (const char *one : words) {
        for (const char *two : words) {
            for (const char *three : words)
                EXPECT_EQ(other.GetSetting(q(one), q(two), q(three), {}), q(one) + q("|") + q(two) + q("|") + q(three));
        }
    }
    EXPECT_EQ(names("config"), QStringList(q("tagwrighter"))); // no name leads out of the folder
}

TEST_F(Settings, AreDeletedOneByOne)
{
    SettingsFiles store(folder());
    store.SaveSetting(app, section, q("a"), q("1"));
    store.SaveSetting(app, section, q("b"), q("2"));
    store.DeleteSetting(app, section, q("a"));
    store.DeleteSetting(app, section, q("never"));
    EXPECT_EQ(store.GetSetting(app, section, q("a"), q("(default)")), q("(default)"));
    EXPECT_EQ(read(q("a")), q("(default)"));
    EXPECT_EQ(read(q("b")), q("2"));
}

TEST_F(Settings, HoldAnyText)
{
    const QString texts[] = {q("a\r\nb\nc\rd"),      q("="),
                             q("[Settings]"),        q("  blanks  "),
                             q("\\n\\u0041\\"),      q("\t"),
                             QString(QChar(0)),      QString(QChar(0xD83D)),
                             q("\xF0\x9F\x98\x80"),  QString(QChar(0x2028)),
                             QString(QChar(0xFEFF)), q("#"),
                             QString(100000, u'x')};
    for (const QString &text : texts) {
        write(text, text);
        SettingsFiles(folder()).SaveSetting(app, text, q("key"), text);
        EXPECT_EQ(read(text), text);
        EXPECT_EQ(SettingsFiles(folder()).GetSetting(app, text, q("key"), {}), text);
    }
}

TEST_F(Settings, AreSeenAtOnceByAnotherProgram)
{
    SettingsFiles one(folder());
    SettingsFiles two(folder());
    for (int i = 0; i < 200; ++i) {
        const QString value = QString::number(i % 10); // the same size each time
        one.SaveSetting(app, section, q("key"), value);
        ASSERT_EQ(two.GetSetting(app, section, q("key"), {}), value) << i;
        two.SaveSetting(app, section, q("key"), QString::number((i + 5) % 10));
        ASSERT_EQ(one.GetSetting(app, section, q("key"), {}), QString::number((i + 5) % 10)) << i;
    }
    ASSERT_EQ(::unlink(QFile::encodeName(path(file)).constData()), 0);
    EXPECT_EQ(one.GetSetting(app, section, q("key"), q("gone")), q("gone"));
}

TEST_F(Settings, LoseNoKeyOfAnotherProgram)
{
    SettingsFiles one(folder());
    SettingsFiles two(folder());
    one.SaveSetting(app, section, q("a"), q("1"));
    EXPECT_EQ(two.GetSetting(app, section, q("b"), q("none")), q("none"));
    one.SaveSetting(app, section, q("c"), q("3"));
    two.SaveSetting(app, section, q("b"), q("2"));
    two.SaveSetting(app, section, q("a"), q("4"));
    EXPECT_EQ(read(q("a")), q("4"));
    EXPECT_EQ(read(q("b")), q("2"));
    EXPECT_EQ(read(q("c")), q("3"));
}

TEST_F(Settings, LoseNoKeyWhenTwoProgramsWriteAllTheTime)
{
    constexpr int keys = 300;
    const auto hammer = [&](const char *who) {
        SettingsFiles store(folder());
        for (int i = 0; i < keys; ++i) {
            store.SaveSetting(app, section, q(who) + QString::number(i), QString::number(i));
            store.SaveSetting(app, section, q("shared"), q(who));
        }
    };
    pid_t children[2] = {};
    for (int i = 0; i < 2; ++i) {
        children[i] = ::fork();
        if (children[i] == 0) {
            hammer(i == 0 ? "one" : "two");
            ::_exit(0);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    SettingsFiles store(folder());
    for (int i = 0; i < keys; ++i) {
        ASSERT_EQ(store.GetSetting(app, section, q("one") + QString::number(i), {}), QString::number(i));
        ASSERT_EQ(store.GetSetting(app, section, q("two") + QString::number(i), {}), QString::number(i));
    }
    const QString last = store.GetSetting(app, section, q("shared"), {});
    EXPECT_TRUE(last == q("one") || last == q("two"));
}

TEST_F(Settings, AreNotWrittenAgainWhereTheyStand)
{
    SettingsFiles store(folder());
    store.SaveSetting(app, section, q("key"), q("value"));
    struct stat before = {};
    ASSERT_EQ(::stat(QFile::encodeName(path(file)).constData(), &before), 0);
    store.SaveSetting(app, section, q("key"), q("value"));
    store.DeleteSetting(app, section, q("other"));
    struct stat after = {};
    ASSERT_EQ(::stat(QFile::encodeName(path(file)).constData(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_size, before.st_size);
    EXPECT_EQ(after.st_mode & 07777U, 0600U); // nobody else's business
}

TEST_F(Settings, HoldForTheRunWhereTheyCannotBeWritten)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "only root can become a user without rights";
    EXPECT_EQ(inChild([&] {
                  if (!becomeNobody())
                      return 125;
                  SettingsFiles store(folder());
                  store.SaveSetting(app, section, q("key"), q("value"));
                  store.SaveSetting(app, section, q("gone"), q("value"));
                  store.DeleteSetting(app, section, q("gone"));
                  const bool holds = store.GetSetting(app, section, q("key"), {}) == q("value") &&
                                     store.GetSetting(app, section, q("gone"), q("none")) == q("none");
                  return holds ? 0 : 1;
              }),
              0);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(Settings, AreWrittenOnceThatCanBeDone)
{
    put("config/tagwrighter", "a file where the folder is to be");
    SettingsFiles store(folder());
    store.SaveSetting(app, section, q("early"), q("1"));
    EXPECT_EQ(store.GetSetting(app, section, q("early"), {}), q("1"));
    ASSERT_EQ(::unlink(QFile::encodeName(folder()).constData()), 0);
    store.SaveSetting(app, section, q("late"), q("2"));
    EXPECT_EQ(read(q("early")), q("1"));
    EXPECT_EQ(read(q("late")), q("2"));
}

TEST_F(Settings, DoNotWaitForAProgramThatHoldsTheLockForEver)
{
    write(q("a"), q("1"));
    const int lock = ::open(QFile::encodeName(path("config/tagwrighter/QWRK77XE.lock")).constData(), O_RDWR);
    ASSERT_GE(lock, 0);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    write(q("b"), q("2"));
    EXPECT_EQ(read(q("b")), q("2"));
    ::close(lock);
}

TEST_F(Settings, KeepWhatIsReadableInADamagedFile)
{
    static constexpr char damaged[] =
        "Settings/a=1\n\0\0\0\0\nSettings/\xFF=2\nnonsense\nSettings/b=x\\\nSettings/c=\\u12\n=\n"
        "Settings/d=4\r\nSettings/a=5\nSettings/e=";
    put(file, QByteArray(damaged, sizeof damaged - 1));
    EXPECT_EQ(read(q("a")), q("5"));
    EXPECT_EQ(read(q("b")), q("(default)"));
    EXPECT_EQ(read(q("c")), q("(default)"));
    EXPECT_EQ(read(q("d")), q("4"));
    EXPECT_EQ(read(q("e")), QString());
    write(q("f"), q("6"));
    EXPECT_EQ(get(file), QByteArray(damaged, sizeof damaged - 1) + "\nSettings/f=6\n");
    EXPECT_EQ(read(q("e")), QString());
    EXPECT_EQ(read(q("f")), q("6"));
}

TEST_F(Settings, StandInAFileThatMayBeALink)
{
    put("dotfiles/settings", "Settings/a=1\n");
    ASSERT_TRUE(QDir().mkpath(folder()));
    ASSERT_EQ(
        ::symlink(QFile::encodeName(path("dotfiles/settings")).constData(), QFile::encodeName(path(file)).constData()),
        0);
    EXPECT_EQ(read(q("a")), q("1"));
    write(q("a"), q("2"));
    EXPECT_EQ(get("dotfiles/settings"), "Settings/a=1\nSettings/a=2\n");
}

TEST_F(Settings, StandInAFileThatStaysSmall)
{
    SettingsFiles store(folder());
    store.SaveSetting(app, section, q("other"), q("kept"));
    for (int i = 0; i < 1000; ++i)
        store.SaveSetting(app, section, q("key"), QString::number(i));
    EXPECT_LT(get(file).count('\n'), 300);
    EXPECT_EQ(store.GetSetting(app, section, q("key"), {}), q("999"));
    EXPECT_EQ(read(q("key")), q("999"));
    EXPECT_EQ(read(q("other")), q("kept"));
    EXPECT_EQ(names("config/tagwrighter"), QStringList({q("QWRK77XE.lock"), q("QWRK77XE.settings")}));
}

TEST_F(Settings, StayAsTheyWereWhenTheDiskIsFull)
{
    write(q("a"), q("1"));
    EXPECT_EQ(inChild([&] {
                  const rlimit limit = {100, 100};
                  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0 || std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR)
                      return 125;
                  SettingsFiles store(folder());
                  store.SaveSetting(app, section, q("b"), QString(200, u'x'));
                  return store.GetSetting(app, section, q("b"), {}) == QString(200, u'x') ? 0 : 1;
              }),
              0);
    EXPECT_EQ(get(file), "Settings/a=1\n");
}

TEST(SettingsText, IsOneLineForEachSetting)
{
    SettingsMap settings;
    settings.insert({q("Toolbar"), q("Bar1Width")}, q("3.5"));
    settings.insert({q("Settings"), q("Filter")}, q("All|*.exe"));
    settings.insert({q("a/b=c"), q("d/e=f")}, q("g/h=i\r\n"));
    EXPECT_EQ(settingsText(settings),
              "Settings/Filter=All|*.exe\nToolbar/Bar1Width=3.5\na\\/b\\=c/d/e\\=f=g/h=i\\r\\n\n");
}

TEST(SettingsText, TakesKeysAwayByALineOfTheirOwn)
{
    EXPECT_EQ(settingLine({q("a/b"), q("c")}, std::nullopt), "-a\\/b/c\n");
    EXPECT_EQ(settingLine({q("-a"), q("-c")}, q("-d")), "\\-a/-c=-d\n");
    SettingsMap left;
    left.insert({q("-a"), q("c")}, q("3"));
    EXPECT_EQ(parseSettings("a/c=1\n\\-a/c=3\n-a/c\n"), left);
    EXPECT_TRUE(parseSettings("\\-a/c=3\n-\\-a/c\n").isEmpty());
}

TEST(SettingsText, IsReadBackWhateverItHolds)
{
    std::mt19937 random(9U);
    const auto text = [&] {
        static constexpr char16_t picked[] = {u'\\', u'/', u'-',   u'=',   u'\n',  u'\r', u'u',
                                              u'n',  0,    0xD83D, 0xDE00, 0xFEFF, u' ',  u'['};
        QString made;
        for (auto length = random() % 8U; length > 0; --length)
            made += random() % 3U == 0 ? QChar(static_cast<char16_t>(random()))
                                       : QChar(picked[random() % std::size(picked)]);
        return made;
    };
    for (int round = 0; round < 5000; ++round) {
        SettingsMap settings;
        for (int i = 0; i < 4; ++i)
            settings.insert({text(), text()}, text());
        ASSERT_EQ(parseSettings(settingsText(settings)), settings) << round;
    }
}
TEST_F(Settings, SetAsideAFileThatCannotBeTheirs)
{
    write(q("WordWrap"), q("False"));
    const QByteArray name = path(file).toUtf8();
    ASSERT_EQ(::truncate(name.constData(), 50 << 20), 0); // NULs, 50 MB of them
    SettingsFiles files(folder());
    QElapsedTimer taken;
    taken.start();
    EXPECT_EQ(files.GetSetting(app, section, q("WordWrap"), q("(default)")), q("(default)"));
    EXPECT_LT(taken.elapsed(), 100) << "milliseconds";
    const QString aside = path(file) + QStringLiteral(".aside");
    EXPECT_EQ(QFileInfo(aside).size(), 50 << 20);
    EXPECT_EQ(files.takeSetAside(), QStringList(aside));
    EXPECT_EQ(files.takeSetAside(), QStringList());
    files.SaveSetting(app, section, q("WordWrap"), q("True"));
    EXPECT_EQ(read(q("WordWrap")), q("True"));
}

TEST_F(Settings, SetAsideUnderANameThatIsFree)
{
    write(q("WordWrap"), q("False"));
    const QByteArray name = path(file).toUtf8();
    for (const char *aside : {".aside", ".aside2", ".aside3"}) {
        ASSERT_EQ(::truncate(name.constData(), (4 << 20) + 1), 0);
        EXPECT_EQ(read(q("WordWrap")), q("(default)"));
        EXPECT_TRUE(QFileInfo::exists(path(file) + QLatin1String(aside))) << aside;
        write(q("WordWrap"), q("False"));
    }
}
} // namespace
