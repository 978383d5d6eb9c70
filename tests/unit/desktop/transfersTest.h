#pragma once

#include "browser/modulePageViews.h"
#include "desktop/moduleTransfers.h"
#include "servers/testServer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

inline QString q(const char *text)
{
    return QString::fromUtf8(text);
}

/// Notes what a transfer tells.
class Watcher final : public TransferWatcher
{
public:
    void StateChanged(TransferState state) override { states.append(int(state)); }
    void progressed(qint64 done, qint64) override { furthest = qMax(furthest, done); }
    void finished(const TransferEnd &ended) override
    {
        end = ended;
        over = true;
    }

    QList<int> states;
    qint64 furthest = 0;
    TransferEnd end;
    bool over = false;
};

/// Transfers, and the servers of this machine that they go to.
class TransfersTest : public testing::Test
{
protected:
    TransfersTest() : transfers(partFolders(), {.knownHosts = home.filePath(q("hosts/known")), .loopbackOnly = true})
    {
        QDir().mkpath(folder());
    }

    QString folder() const { return home.filePath(q("served")); }
    void serveWeb(const QStringList &more = {})
    {
        QString reason;
        web = TestServer::start(q("web.py"), QStringList{folder()} + more, reason);
        ASSERT_TRUE(web) << reason.toStdString();
    }
    void serveFtp(const QStringList &more = {})
    {
        QString reason;
        ftp = TestServer::start(q("ftp.py"), QStringList{folder(), q("anna"), q("secret")} + more, reason);
        ASSERT_TRUE(ftp) << reason.toStdString();
    }
    void write(const char *name, const QByteArray &bytes)
    {
        QFile file(folder() + u'/' + q(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read(const char *name) const
    {
        QFile file(folder() + u'/' + q(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList names() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }
    QString webAddress(const char *path) const { return q("http://127.0.0.1:%1").arg(web->port()) + q(path); }
    QString ftpAddress(const char *path) const { return q("ftp://127.0.0.1:%1").arg(ftp->port()) + q(path); }

    TransferRequest put(const QString &url, const QByteArray &body) const
    {
        return {.kind = TransferRequest::Kind::Upload,
                .url = url,
                .protocol = q("ftp"),
                .body = body,
                .userName = q("anna"),
                .password = q("secret")};
    }

    /// Runs a transfer to its end.
    const Watcher &run(const TransferRequest &request)
    {
        watcher = std::make_unique<Watcher>();
        StartedTransfer started = transfers.start(request, *watcher);
        EXPECT_TRUE(started.transfer) << started.failure.toStdString();
        EXPECT_TRUE(QTest::qWaitFor([&] { return watcher->over; }, 30'000));
        return *watcher;
    }
    const Watcher &get(const QString &url) { return run({.url = url}); }

    QTemporaryDir home;
    ModuleTransfers transfers;
    std::unique_ptr<TestServer> web;
    std::unique_ptr<TestServer> ftp;
    std::unique_ptr<Watcher> watcher;
};
