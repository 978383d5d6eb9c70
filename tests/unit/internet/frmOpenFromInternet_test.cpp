// Pages from a server that the test plays.
#include "internet/frmOpenFromInternet.h"
#include "unit/support/fakes.h"

#include <QComboBox>
#include <QPushButton>
#include <QTimer>

namespace
{
QString q(const char *text)
{
    return QString::fromUtf8(text);
}

class OpenTest : public FilesTest
{
protected:
    OpenTest()
    {
        form.Show();
        form.window()->findChild<QComboBox *>(q("cboAddress"))->setEditText(q("sftp://u:p@h/a.htm"));
    }
    /// What the server does as soon as it is waited for.
    void meanwhile(const std::function<void()> &act) { QTimer::singleShot(0, &form, act); }
    void open() { form.window()->findChild<QPushButton *>(q("cmdOpen"))->click(); }

    frmOpenFromInternet &form = addForm<frmOpenFromInternet>();
    const UnknownHost host{q("h"), q("SHA256:abc"), q("h ssh-ed25519 KEY")};
};

TEST_F(OpenTest, AsksForAnUnknownHostAndGetsThePageThen)
{
    boxes.answers = {MessageAnswer::Yes};
    meanwhile([this] {
        meanwhile([this] { transfers.current->finished({.body = "<p>a"}); });
        transfers.current->finished({.failure = q("unknown"), .unknownHost = host});
    });
    open();
    EXPECT_EQ(takeBox().title, q("Unknown Server"));
    EXPECT_EQ(transfers.trusted, QStringList{q("h ssh-ed25519 KEY")});
    ASSERT_EQ(mainWindow.documents.size(), 1);
    EXPECT_EQ(mainWindow.documents[0]->txtEdit().Text(), q("<p>a"));
    EXPECT_EQ(mainWindow.documents[0]->InternetOriginURL, q("sftp://u@h/*|*a.htm"));
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(OpenTest, LeavesAHostThatIsNotTrusted)
{
    boxes.answers = {MessageAnswer::No};
    meanwhile([this] { transfers.current->finished({.failure = q("Not trusted."), .unknownHost = host}); });
    open();
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown[1].text,
              q("The following error occurred while trying to open sftp://u@h/a.htm\r\n\r\nNot trusted."));
    EXPECT_TRUE(form.isLoaded());
    EXPECT_EQ(transfers.requests.size(), 1);
}

TEST_F(OpenTest, TellsWhereTheHostsKeyCannotBeKept)
{
    boxes.answers = {MessageAnswer::Yes};
    transfers.trustFailure = q("The disk is full.");
    meanwhile([this] { transfers.current->finished({.failure = q("unknown"), .unknownHost = host}); });
    open();
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_TRUE(boxes.shown[1].text.endsWith(q("The disk is full.")));
    EXPECT_EQ(transfers.requests.size(), 1);
}

TEST_F(OpenTest, TellsHowMuchHasCome)
{
    QString status;
    meanwhile([&] {
        transfers.current->progressed(300 * 1024, 0);
        status = mainWindow.status;
        transfers.current->finished({.body = "x"});
    });
    open();
    EXPECT_TRUE(status.startsWith(q("Opening \"sftp://u@h/a.htm\"... (300"))) << status.toStdString();
    EXPECT_EQ(mainWindow.status, q("Ready"));
}
} // namespace
