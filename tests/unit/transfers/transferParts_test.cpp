#include "services/loopback.h"
#include "transfers/transferAddress.h"
#include "transfers/transferFailures.h"
#include "transfers/uploadSteps.h"

#include <gtest/gtest.h>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST(LoopbackNames, AreThisMachinesAlone)
{
    for (const char *own : {"127.0.0.1", "127.9.8.7", "::1", "[::1]", "localhost", "LocalHost"})
        EXPECT_TRUE(isLoopbackName(q(own))) << own;
    for (const char *other : {"", "128.0.0.1", "10.0.0.1", "::2", "localhost.example.org", "127.0.0.1.example.org",
                              "example.org", "1270.0.1"})
        EXPECT_FALSE(isLoopbackName(q(other))) << other;
}

TEST(TransferAddresses, AreTakenApart)
{
    const struct {
        const char *text;
        const char *scheme;
        const char *host;
        const char *folder;
        const char *name;
    } rows[] = {
        {"http://h/a/b.htm", "http", "h", "/a/", "b.htm"},         {"h/a", "http", "h", "/", "a"},
        {"ftp.example.org/a", "ftp", "ftp.example.org", "/", "a"}, {"  https://h  ", "https", "h", "/", ""},
        {"ftp://h/a b/c d", "ftp", "h", "/a%20b/", "c%20d"},       {"http://h/\xC3\xA9", "http", "h", "/", "%c3%a9"}};
    for (const auto &row : rows) {
        const auto address = TransferAddress::parse(q(row.text), q("http"));
        ASSERT_TRUE(address) << row.text;
        EXPECT_EQ(address->scheme(), q(row.scheme)) << row.text;
        EXPECT_EQ(address->host(), q(row.host)) << row.text;
        EXPECT_EQ(address->folder(), q(row.folder)) << row.text;
        EXPECT_EQ(address->name().toLower(), q(row.name)) << row.text;
        EXPECT_TRUE(address->isSupported()) << row.text;
    }
    for (const char *none : {"", "http://", "http://h:port/", "   "})
        EXPECT_FALSE(TransferAddress::parse(q(none), q("http"))) << none;
    for (const char *other : {"file:///etc/passwd", "file://localhost/etc/passwd", "gopher://h/", "smb://h/x"}) {
        const auto address = TransferAddress::parse(q(other), q("http"));
        EXPECT_FALSE(address && address->isSupported()) << other;
    }
}

TEST(TransferAddresses, NameTheirHostAsListsOfKnownHostsDo)
{
    const auto name = [](const char *text) { return TransferAddress::parse(q(text), q("sftp"))->hostWithPort(); };
    EXPECT_EQ(name("sftp://h/"), q("h"));
    EXPECT_EQ(name("sftp://h:22/"), q("h"));
    EXPECT_EQ(name("sftp://h:2222/"), q("[h]:2222"));
    EXPECT_EQ(name("sftp://[::1]:2222/"), q("[::1]:2222"));
}

const UploadNames names{q("my page.htm"), q(".t"), q(".o")};

TEST(UploadCommands, RenameByFtp)
{
    const UploadCommands commands = uploadCommands(UploadWay::ByTemporaryName, q("ftp"), q("/a/"), names, false);
    EXPECT_TRUE(commands.before.isEmpty());
    EXPECT_EQ(commands.after, (QList<QByteArray>{"RNFR .t", "RNTO my page.htm"}));
}

TEST(UploadCommands, PutTheOldFileAsideBySftp)
{
    const UploadCommands commands = uploadCommands(UploadWay::ByTemporaryName, q("sftp"), q("/a%20b/"), names, false);
    EXPECT_EQ(commands.after, (QList<QByteArray>{"*rename \"/a b/my page.htm\" \"/a b/.o\"",
                                                 "rename \"/a b/.t\" \"/a b/my page.htm\"", "*rm \"/a b/.o\""}));
    const UploadNames odd{q("a\"b\\c"), q(".t"), q(".o")};
    EXPECT_EQ(uploadCommands(UploadWay::ByTemporaryName, q("sftp"), q("/~/x/"), odd, false).after[1],
              QByteArray("rename \"x/.t\" \"x/a\\\"b\\\\c\""));
}

TEST(UploadCommands, ClearUpBeforeTheStraightWay)
{
    EXPECT_TRUE(uploadCommands(UploadWay::Straight, q("ftp"), q("/"), names, false).before.isEmpty());
    EXPECT_EQ(uploadCommands(UploadWay::Straight, q("ftp"), q("/"), names, true).before,
              (QList<QByteArray>{"*DELE .t"}));
    EXPECT_EQ(uploadCommands(UploadWay::Straight, q("sftp"), q("/"), names, true).before,
              (QList<QByteArray>{"*rename \"/.o\" \"/my page.htm\"", "*rm \"/.t\""}));
}

TEST(UploadNames, DifferFromOneToTheNext)
{
    EXPECT_NE(uploadNames(q("a")).temporary, uploadNames(q("a")).temporary);
    EXPECT_EQ(uploadNames(q("a")).target, q("a"));
}

TEST(Renaming, IsForServersOfFilesAndForPlainNames)
{
    EXPECT_TRUE(canRename(q("ftp"), q("a b.htm")));
    EXPECT_TRUE(canRename(q("ftps"), q("a")));
    EXPECT_TRUE(mayMove(q("https")) && !mayMove(q("ftp")));
    EXPECT_TRUE(allowsMove("GET, PUT,move") && !allowsMove("GET, REMOVE"));
    EXPECT_TRUE(canRename(q("sftp"), q("a")));
    EXPECT_FALSE(canRename(q("http"), q("a")));
    EXPECT_FALSE(canRename(q("ftp"), QString()));
    EXPECT_FALSE(canRename(q("ftp"), q("a\r\nDELE b")));
}

TEST(Refusals, AreThoseOfTheNameOrTheRenaming)
{
    EXPECT_TRUE(refusesTemporaryName(CURLE_QUOTE_ERROR, 550));
    EXPECT_TRUE(refusesTemporaryName(CURLE_UPLOAD_FAILED, 553));
    EXPECT_FALSE(refusesTemporaryName(CURLE_UPLOAD_FAILED, 552));
    EXPECT_FALSE(refusesTemporaryName(CURLE_UPLOAD_FAILED, 452));
    EXPECT_FALSE(refusesTemporaryName(CURLE_REMOTE_DISK_FULL, 552));
    EXPECT_FALSE(refusesTemporaryName(CURLE_COULDNT_CONNECT, 0));
    EXPECT_FALSE(refusesTemporaryName(CURLE_PARTIAL_FILE, 426));
}

TEST(TransferFailures, AreSentences)
{
    for (int code = 1; code < CURL_LAST; ++code) {
        const QString text = transferFailure(static_cast<CURLcode>(code), q("detail"));
        EXPECT_TRUE(text.endsWith(u'.') && text.size() > 5) << code << ' ' << text.toStdString();
    }
    EXPECT_EQ(transferFailure(CURLE_PEER_FAILED_VERIFICATION, q("no issuer")),
              q("The server could not prove what it is: no issuer."));
}
} // namespace
