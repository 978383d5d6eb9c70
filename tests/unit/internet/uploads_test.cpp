// Uploads against a server that the test plays.
#include "internet/inet.h"
#include "unit/support/fakes.h"

#include <QCoreApplication>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class UploadTest : public FilesTest
{
protected:
    void begin()
    {
        ASSERT_EQ(
            uploads.start({.kind = TransferRequest::Kind::Upload, .url = q("ftp://h/a.htm")}, q("ftp://h/"), q("a.htm"))
                .failure,
            QString());
    }
    void reach(TransferState stage) { transfers.current->StateChanged(stage); }
    void end(const TransferEnd &end)
    {
        transfers.current->finished(end);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(UploadTest, TellsEachStage)
{
    begin();
    const struct {
        TransferState state;
        const char *text;
    } rows[] = {{TransferState::ResolvingHost, "Save to Internet: Resolving host..."},
                {TransferState::HostResolved, "Save to Internet: Host resolved."},
                {TransferState::Connecting, "Save to Internet: Connecting..."},
                {TransferState::Connected, "Save to Internet: Connecting..."}, // has no text of its own
                {TransferState::Requesting, "Save to Internet: Requesting..."},
                {TransferState::RequestSent, "Save to Internet: Request sent."},
                {TransferState::ReceivingResponse, "Save to Internet: Receiving data..."},
                {TransferState::ResponseReceived, "Save to Internet: Response received."},
                {TransferState::Disconnecting, "Save to Internet: Disconnecting..."},
                {TransferState::Disconnected, "Ready"}};
    for (const auto &row : rows) {
        reach(row.state);
        EXPECT_EQ(mainWindow.status, q(row.text));
    }
    mainWindow.status = q("something else");
    reach(TransferState::ResponseCompleted);
    EXPECT_EQ(mainWindow.status, q("Ready"));
    end({});
    EXPECT_TRUE(boxes.shown.isEmpty());
    EXPECT_TRUE(uploads.mayBeCut());
}

TEST_F(UploadTest, TellsHowMuchHasGone)
{
    begin();
    reach(TransferState::Requesting);
    transfers.current->progressed(512 * 1024, 1024 * 1024);
    EXPECT_TRUE(mainWindow.status.startsWith(q("Save to Internet: Requesting... (512")));
    transfers.current->progressed(1000, 1024 * 1024);
    reach(TransferState::RequestSent);
    EXPECT_EQ(mainWindow.status, q("Save to Internet: Request sent."));
}

TEST_F(UploadTest, TellsAFailure)
{
    begin();
    reach(TransferState::Error);
    end({.failure = q("It broke."), .ResponseCode = 426, .ResponseInfo = q("Connection closed.")});
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, q("Error"));
    EXPECT_EQ(box.text, q("Error: 426\r\n\r\nConnection closed.\r\n\r\nThe connection will now end."));
    EXPECT_EQ(mainWindow.status, q("Error. The connection was terminated. (It broke.)"));
    EXPECT_TRUE(uploads.mayBeCut());
}

const UnknownHost host{q("h"), q("SHA256:abc"), q("h ssh-ed25519 KEY")};

TEST_F(UploadTest, AsksForAnUnknownHostOnce)
{
    begin();
    boxes.answers = {MessageAnswer::Yes};
    end({.failure = q("unknown"), .unknownHost = host});
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, q("Unknown Server"));
    EXPECT_TRUE(box.text.contains(q("\"h\"")) && box.text.contains(q("SHA256:abc")));
    EXPECT_EQ(transfers.trusted, QStringList{q("h ssh-ed25519 KEY")});
    EXPECT_EQ(transfers.requests.size(), 2);
    end({});
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(UploadTest, EndsWhereTheHostIsNotTrusted)
{
    begin();
    boxes.answers = {MessageAnswer::No};
    end({.failure = q("Not trusted."), .ResponseCode = 60, .ResponseInfo = q("Not trusted."), .unknownHost = host});
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown[1].text, q("Error: 60\r\n\r\nNot trusted.\r\n\r\nThe connection will now end."));
    EXPECT_TRUE(transfers.trusted.isEmpty());
    EXPECT_EQ(transfers.requests.size(), 1);
}

TEST_F(UploadTest, TellsWhereTheHostsKeyCannotBeKept)
{
    begin();
    boxes.answers = {MessageAnswer::Yes};
    transfers.trustFailure = q("The disk is full.");
    end({.failure = q("unknown"), .unknownHost = host});
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown[1].title, q("Save to Internet Error"));
    EXPECT_EQ(boxes.shown[1].text, q("The following error occurred: The disk is full."));
    EXPECT_EQ(mainWindow.status, q("Ready"));
    EXPECT_EQ(transfers.requests.size(), 1);
}

TEST_F(UploadTest, IsAskedAboutBeforeItIsCut)
{
    begin();
    boxes.answers = {MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_FALSE(uploads.mayBeCut());
    EXPECT_TRUE(uploads.mayBeCut());
    uploads.breakOff();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(transfers.ended, 1);
}

TEST_F(UploadTest, OutlivesTheControlThatBeganIt)
{
    writeFile(q("tmp_upload.htm"), "<p>");
    auto window = std::make_unique<QObject>();
    auto *netSave = new Inet(context, q("netSave"), window.get());
    netSave->URL = q("ftp://u:p@h/x/");
    netSave->UserName = q("anna");
    netSave->Password = q("secret");
    netSave->RemotePort = 2121;
    netSave->AccessType = 2;
    netSave->Proxy = q("ftp=p:1");
    netSave->RequestTimeout = 7;
    EXPECT_EQ(netSave->Execute(q("GET x")), q("The operation is not known."));
    EXPECT_EQ(netSave->Execute(q("PUT \"%1\" my page.htm").arg(path(q("tmp_upload.htm")))), std::nullopt);
    EXPECT_TRUE(netSave->StillExecuting());
    window.reset();
    const TransferRequest &request = transfers.requests.last();
    EXPECT_EQ(request.url, q("ftp://u:p@h/x/my%20page.htm"));
    EXPECT_EQ(request.body, QByteArray("<p>"));
    EXPECT_EQ(request.userName, q("anna"));
    EXPECT_EQ(request.password, q("secret"));
    EXPECT_EQ(request.port, 2121);
    EXPECT_EQ(request.access, TransferRequest::Access::Named);
    EXPECT_EQ(request.proxy, q("ftp=p:1"));
    EXPECT_EQ(request.patience, 7);
    EXPECT_EQ(request.protocol, q("ftp"));
    reach(TransferState::Connecting);
    EXPECT_EQ(mainWindow.status, q("Save to Internet: Connecting..."));
    end({});
    EXPECT_EQ(transfers.ended, 1);
}

TEST_F(UploadTest, NeedsItsFile)
{
    Inet netSave(context, q("netSave"), nullptr);
    EXPECT_NE(netSave.Execute(q("PUT \"/none\" a.htm")), std::nullopt);
    EXPECT_FALSE(netSave.StillExecuting());
    EXPECT_TRUE(transfers.requests.isEmpty());
}

TEST_F(UploadTest, TellsNothingToAProgramThatHasEnded)
{
    begin();
    state.ProgramEnded = true;
    mainWindow.status = q("gone");
    reach(TransferState::Connecting);
    reach(TransferState::ResponseCompleted);
    EXPECT_EQ(mainWindow.status, q("gone"));
    end({});
}
} // namespace
