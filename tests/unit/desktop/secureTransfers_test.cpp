// Transfers with servers that prove what they are.
#include "unit/desktop/transfersTest.h"

#include <QProcess>
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
class TlsTest : public TransfersTest
{
protected:
    TlsTest()
    {
        make("own", "127.0.0.1");
        make("other", "127.0.0.1");
        make("elsewhere", "127.0.0.9");
    }
    ~TlsTest() override { qunsetenv("SSL_CERT_FILE"); }

    QString file(const char *name) const { return home.filePath(q(name)); }
    void make(const char *name, const char *address)
    {
        QProcess tool;
        tool.start(q("openssl"), {q("req"), q("-x509"), q("-newkey"), q("rsa:2048"), q("-nodes"), q("-days"), q("1"),
                                  q("-subj"), q("/CN=test"), q("-addext"), q("subjectAltName=IP:") + q(address),
                                  q("-keyout"), file(name) + q(".key"), q("-out"), file(name) + q(".crt")});
        ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0) << tool.readAllStandardError().toStdString();
    }
    void trust(const char *name) { qputenv("SSL_CERT_FILE", (file(name) + q(".crt")).toUtf8()); }
    QStringList certificate(const char *name) const
    {
        return {q("--tls"), file(name) + q(".crt"), file(name) + q(".key")};
    }
    QString secure(const char *path) const { return q("https://127.0.0.1:%1").arg(web->port()) + q(path); }
};

TEST_F(TlsTest, AServerThatIsVouchedForIsGoneTo)
{
    serveWeb(certificate("own"));
    write("a.htm", "safe");
    trust("own");
    EXPECT_EQ(get(secure("/a.htm")).end.body, QByteArray("safe"));
    EXPECT_EQ(run(put(secure("/b.htm"), "put")).end.failure, QString());
    EXPECT_EQ(read("b.htm"), QByteArray("put"));
}

TEST_F(TlsTest, AServerThatNobodyVouchesForIsRefused)
{
    serveWeb(certificate("other"));
    write("a.htm", "unsafe");
    trust("own");
    const Watcher &got = get(secure("/a.htm"));
    EXPECT_TRUE(got.end.failure.startsWith(q("The server could not prove what it is")))
        << got.end.failure.toStdString();
    EXPECT_TRUE(got.end.body.isEmpty());
}

TEST_F(TlsTest, ACertificateOfAnotherServerIsRefused)
{
    serveWeb(certificate("elsewhere"));
    trust("elsewhere");
    EXPECT_TRUE(get(secure("/")).end.failure.startsWith(q("The server could not prove what it is")));
}

TEST_F(TlsTest, AnFtpServerThatIsVouchedForIsGoneTo)
{
    serveFtp(certificate("own"));
    write("a.htm", "safe");
    trust("own");
    const QString root = q("ftps://127.0.0.1:%1/").arg(ftp->port());
    TransferRequest request{.url = root + q("a.htm"), .userName = q("anna"), .password = q("secret")};
    EXPECT_EQ(run(request).end.body, QByteArray("safe")) << watcher->end.failure.toStdString();
    EXPECT_EQ(run(put(root + q("b.htm"), "put")).end.failure, QString());
    EXPECT_EQ(read("b.htm"), QByteArray("put"));
    EXPECT_EQ(names(), (QStringList{q("a.htm"), q("b.htm")}));
}

TEST_F(TlsTest, AnFtpServerThatNobodyVouchesForIsRefused)
{
    serveFtp(certificate("other"));
    write("a.htm", "unsafe");
    trust("own");
    const QString root = q("ftps://127.0.0.1:%1/").arg(ftp->port());
    for (const TransferRequest &request :
         {TransferRequest{.url = root + q("a.htm"), .userName = q("anna"), .password = q("secret")},
          put(root + q("a.htm"), "put")}) {
        const Watcher &got = run(request);
        EXPECT_TRUE(got.end.failure.startsWith(q("The server could not prove what it is")))
            << got.end.failure.toStdString();
        EXPECT_TRUE(got.end.body.isEmpty());
    }
    EXPECT_EQ(read("a.htm"), QByteArray("unsafe"));
}

TEST_F(TlsTest, AnEncryptedAddressLeadsToNoPlainOne)
{
    serveWeb(certificate("own"));
    trust("own");
    write("r.htm.answer", "302 Found\r\nLocation: http://127.0.0.1:1/\r\n\r\n");
    EXPECT_EQ(get(secure("/r.htm")).end.failure,
              q("The server leads to an address of another kind, which is not gone to."));
}
} // namespace

// --- A server with keys

namespace
{
class SftpTest : public TransfersTest
{
protected:
    void SetUp() override
    {
        const QString program = q("/usr/sbin/sshd");
        if (!QFile::exists(program))
            GTEST_SKIP() << "there is no OpenSSH server on this machine, so SFTP goes untested";
        QDir().mkpath(q("/run/sshd")); // where the server locks itself in, run as root
        makeKey("host");
        makeKey("user");
        port = freePort();
        writeConfiguration();
        server.start(program, {q("-D"), q("-e"), q("-f"), home.filePath(q("config"))});
        if (!server.waitForStarted() || !QTest::qWaitFor([this] { return answers(); }, 10'000))
            GTEST_SKIP() << "the OpenSSH server does not run here, so SFTP goes untested: "
                         << server.readAllStandardError().toStdString();
    }
    void TearDown() override
    {
        server.terminate();
        server.waitForFinished();
        qputenv("HOME", oldHome);
    }

    void makeKey(const char *name)
    {
        QProcess tool;
        tool.start(q("ssh-keygen"),
                   {q("-q"), q("-t"), q("ed25519"), q("-N"), QString(), q("-f"), home.filePath(q(name))});
        ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0);
    }
    void writeConfiguration()
    {
        // The library takes the user's key from the home.
        QDir().mkpath(home.filePath(q("me/.ssh")));
        QFile::copy(home.filePath(q("user")), home.filePath(q("me/.ssh/id_rsa")));
        QFile::copy(home.filePath(q("user.pub")), home.filePath(q("me/.ssh/id_rsa.pub")));
        qputenv("HOME", home.filePath(q("me")).toUtf8());
        QFile file(home.filePath(q("config")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(q("ListenAddress 127.0.0.1\nPort %1\nHostKey %2/host\nAuthorizedKeysFile %2/user.pub\n"
                     "PidFile none\nStrictModes no\nUsePAM no\nPasswordAuthentication no\n"
                     "PermitRootLogin prohibit-password\nSubsystem sftp internal-sftp\n")
                       .arg(port)
                       .arg(home.path())
                       .toUtf8());
    }
    static int freePort()
    {
        const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        EXPECT_EQ(::bind(socket, reinterpret_cast<sockaddr *>(&address), length), 0);
        ::getsockname(socket, reinterpret_cast<sockaddr *>(&address), &length);
        ::close(socket);
        return ntohs(address.sin_port);
    }
    bool answers() const
    {
        const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<quint16>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const bool there = ::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
        ::close(socket);
        return there;
    }
    TransferRequest putFile(const QByteArray &body) const
    {
        TransferRequest request = put(q("sftp://127.0.0.1:%1%2/my page.htm").arg(port).arg(folder()), body);
        request.userName = qEnvironmentVariable("USER", q("root"));
        return request;
    }
    QString fingerprint() const
    {
        QProcess tool;
        tool.start(q("ssh-keygen"), {q("-l"), q("-f"), home.filePath(q("host.pub"))});
        tool.waitForFinished();
        return QString::fromUtf8(tool.readAllStandardOutput()).section(u' ', 1, 1);
    }

    QByteArray oldHome = qgetenv("HOME");
    QProcess server;
    int port = 0;
};

TEST_F(SftpTest, AHostIsTrustedOnceByItsFingerprint)
{
    const Watcher &unknown = run(putFile("<p>new"));
    ASSERT_TRUE(unknown.end.unknownHost) << unknown.end.failure.toStdString();
    EXPECT_EQ(unknown.end.unknownHost->name, q("[127.0.0.1]:%1").arg(port));
    EXPECT_EQ(unknown.end.unknownHost->fingerprint, fingerprint());
    EXPECT_FALSE(unknown.end.failure.isEmpty());
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(transfers.trust(*unknown.end.unknownHost), std::nullopt);

    const Watcher &done = run(putFile("<p>new"));
    EXPECT_EQ(done.end.failure, QString());
    EXPECT_FALSE(done.end.unknownHost);
    EXPECT_EQ(names(), QStringList{q("my page.htm")});
    EXPECT_EQ(read("my page.htm"), QByteArray("<p>new"));

    // One that is there already gives way to the new one, and nothing stays beside it.
    EXPECT_EQ(run(putFile("<p>newer")).end.failure, QString());
    EXPECT_EQ(read("my page.htm"), QByteArray("<p>newer"));
    EXPECT_EQ(names(), QStringList{q("my page.htm")});
    EXPECT_EQ(get(q("sftp://%1@127.0.0.1:%2%3/my page.htm")
                      .arg(qEnvironmentVariable("USER", q("root")))
                      .arg(port)
                      .arg(folder()))
                  .end.body,
              QByteArray("<p>newer"));
}

TEST_F(SftpTest, AHostWithAnotherKeyIsRefused)
{
    const Watcher &unknown = run(putFile("x"));
    ASSERT_TRUE(unknown.end.unknownHost) << unknown.end.failure.toStdString();
    UnknownHost other = *unknown.end.unknownHost;
    QByteArray key = QByteArray::fromBase64(other.entry.section(u' ', 2).toLatin1());
    key[key.size() - 1] = static_cast<char>(key[key.size() - 1] ^ 1);
    other.entry = other.entry.section(u' ', 0, 1) + u' ' + QString::fromLatin1(key.toBase64());
    EXPECT_EQ(transfers.trust(other), std::nullopt);
    const Watcher &refused = run(putFile("x"));
    EXPECT_TRUE(refused.end.failure.startsWith(q("The server shows another key"))) << refused.end.failure.toStdString();
    EXPECT_FALSE(refused.end.unknownHost);
    EXPECT_EQ(names(), QStringList());
}
} // namespace
