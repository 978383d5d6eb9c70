#include "files/modRecentFiles.h"

#include "common/mainWindow.h"
#include "unit/support/fakes.h"

#include <QComboBox>
#include <QElapsedTimer>

#include <unistd.h>

namespace
{
QString longPath(qsizetype length)
{
    return QStringLiteral("/site/") + QString(length - 11, u'p') + QStringLiteral(".html");
}

TEST(RecentFileCaption, ShowsAPathOfFortyCharactersInFull)
{
    EXPECT_EQ(recentFileCaption(longPath(40)), longPath(40));
    EXPECT_EQ(recentFileCaption(QString()), QString());
}

TEST(RecentFileCaption, ShortensALongerOneToItsStartAndTheFilesName)
{
    EXPECT_EQ(recentFileCaption(longPath(41)),
              QStringLiteral("/si ... ") + QString(30, u'p') + QStringLiteral(".html"));
    const QString longName = QString(50, u'n');
    EXPECT_EQ(recentFileCaption(QStringLiteral("/folder/") + longName), QStringLiteral("/fo ... ") + QString(40, u'n'));
}

QStringList list(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

TEST(WithRecentFile, BringsAPathToTheFirstPlace)
{
    EXPECT_EQ(withRecentFile(list("a b c d"), QStringLiteral("a")), list("a b c d"));
    EXPECT_EQ(withRecentFile(list("a b c d"), QStringLiteral("b")), list("b a c d"));
    EXPECT_EQ(withRecentFile(list("a b c d"), QStringLiteral("c")), list("c a b d"));
    EXPECT_EQ(withRecentFile(list("a b c d"), QStringLiteral("d")), list("d a b c"));
    EXPECT_EQ(withRecentFile(list("a b c d"), QStringLiteral("e")), list("e a b c"));
}

class RecentFiles : public FilesTest
{
protected:
    QStringList stored(const QString &name, int count)
    {
        QStringList paths;
        for (int slot = 1; slot <= count; ++slot)
            paths.append(storedSetting("RecentFiles", name + QString::number(slot)));
        return paths;
    }
};

TEST_F(RecentFiles, KeepsFourAndShowsThem)
{
    for (const char *name : {"/1", "/2", "/3", "/4", "/5"})
        AddToRecentFiles(context, QLatin1String(name));
    EXPECT_EQ(stored(QStringLiteral("File"), 4), list("/5 /4 /3 /2"));
    EXPECT_EQ(mainWindow.recent, list("/5 /4 /3 /2"));
    AddToRecentFiles(context, QStringLiteral("/3"));
    EXPECT_EQ(stored(QStringLiteral("File"), 4), list("/3 /5 /4 /2"));
}

TEST_F(RecentFiles, ShowsEmptySlotsAsEmpty)
{
    AddToRecentFiles(context, QStringLiteral("/only"));
    EXPECT_EQ(mainWindow.recent, (QStringList{QStringLiteral("/only"), {}, {}, {}}));
}

TEST_F(RecentFiles, HoldsAPathManyTimesOnTheWelcomeList)
{
    AddToRecentFiles(context, QStringLiteral("/a"));
    AddToRecentFiles(context, QStringLiteral("/a"));
    EXPECT_EQ(stored(QStringLiteral("Welcome"), 3), (QStringList{QStringLiteral("/a"), QStringLiteral("/a"), {}}));
}

TEST_F(RecentFiles, LetsTheOldestOfTwentyFallOffTheWelcomeList)
{
    for (int i = 1; i <= 21; ++i)
        AddToWelcomeList(settings, QString::number(i));
    const QStringList welcome = stored(QStringLiteral("Welcome"), 21);
    EXPECT_EQ(welcome.first(), QStringLiteral("21"));
    EXPECT_EQ(welcome[19], QStringLiteral("2"));
    EXPECT_EQ(welcome[20], QString());
}

class AddressHistory : public FilesTest
{
protected:
    AddressHistory() { combo.setEditable(true); }
    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i)
            texts.append(combo.itemText(i));
        return texts;
    }
    void visit(const QString &address)
    {
        combo.setEditText(address);
        RecordAddress(context, combo);
    }
    const QString file = QStringLiteral("AddrBar.dat");
    QComboBox combo;
};

TEST_F(AddressHistory, IsEmptyWithoutItsFile)
{
    LoadAddressHistory(context, combo);
    EXPECT_EQ(combo.count(), 0);
}

TEST_F(AddressHistory, ReadsOneAddressALine)
{
    writeFile(file, "www.a.org\r\nwww.b.org\r\n");
    LoadAddressHistory(context, combo);
    EXPECT_EQ(rows(), list("www.a.org www.b.org"));
    EXPECT_EQ(combo.currentText(), QString());
}

TEST_F(AddressHistory, AppendsWhatIsNewInTheOrderOfFirstUse)
{
    visit(QStringLiteral("www.b.org"));
    visit(QStringLiteral("www.a.org"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("www.a.org"));
    visit(QStringLiteral("WWW.B.org"));
    EXPECT_EQ(bytesOf(file), QByteArray("www.b.org\r\nwww.a.org\r\n"));
    EXPECT_EQ(rows(), list("www.b.org www.a.org"));
}

TEST_F(AddressHistory, IsWindows1252WhereThatHoldsTheAddresses)
{
    visit(QStringLiteral("www.caf\u00E9.org"));
    EXPECT_EQ(bytesOf(file), QByteArray("www.caf\xE9.org\r\n"));
}

TEST_F(AddressHistory, KeepsAnAddressThatWindows1252CannotHold)
{
    visit(QStringLiteral("www.\u4F8B.org"));
    QComboBox again;
    LoadAddressHistory(context, again);
    EXPECT_EQ(again.itemText(0), QStringLiteral("www.\u4F8B.org"));
}

TEST_F(AddressHistory, IsLeftAloneIfTheUserWantsNone)
{
    writeFile(file, "www.a.org\r\n");
    setting("Settings", QStringLiteral("AddrBarRec"), QStringLiteral("0"));
    LoadAddressHistory(context, combo);
    visit(QStringLiteral("www.b.org"));
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(bytesOf(file), QByteArray("www.a.org\r\n"));
}

TEST_F(AddressHistory, IsSetAsideWhereItIsFarTooLarge)
{
    const QByteArray large("www.a.org\r\n" + QByteArray((1 << 20) + 1 - 11, 'x'));
    writeFile(file, large);
    LoadAddressHistory(context, combo);
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(bytesOf(file + QStringLiteral(".aside")), large);
    EXPECT_EQ(state.setAside, QStringList(path(file) + QStringLiteral(".aside")));
    visit(QStringLiteral("www.b.org"));
    EXPECT_EQ(bytesOf(file), QByteArray("www.b.org\r\n"));
}

TEST_F(AddressHistory, HoldsNoStartUpHoweverLargeItIs)
{
    const QByteArray name = path(file).toUtf8();
    for (const QByteArray &start : {QByteArray(), QByteArray("www.a.org\r\n")}) {
        writeFile(file, start);
        ASSERT_EQ(::truncate(name.constData(), 50 << 20), 0); // NULs, 50 MB of them
        QElapsedTimer taken;
        taken.start();
        LoadAddressHistory(context, combo);
        EXPECT_LT(taken.elapsed(), 100) << "milliseconds";
        EXPECT_EQ(combo.count(), 0);
    }
    EXPECT_EQ(state.setAside,
              QStringList({path(file) + QStringLiteral(".aside"), path(file) + QStringLiteral(".aside2")}));
}

TEST_F(AddressHistory, LeavesTheListAsItIsIfTheFileCannotBeWritten)
{
    disk.writeFailure = FileError{70, 0, {}};
    visit(QStringLiteral("www.b.org"));
    EXPECT_EQ(combo.count(), 0);
    EXPECT_TRUE(boxes.shown.isEmpty());
}
} // namespace
