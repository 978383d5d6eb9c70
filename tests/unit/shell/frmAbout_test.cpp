#include "shell/frmAbout.h"

#include "forms/formRuntime.h"
#include "shell/frmSysInfo.h"
#include "unit/support/fakes.h"

namespace
{
class AboutTest : public FilesTest
{
protected:
    frmAbout &about = addForm<frmAbout>();
    frmSysInfo &sysInfo = addForm<frmSysInfo>();
};

TEST_F(AboutTest, TellsThatNothingIsKnownOfTheMachine)
{
    systemFacts.facts.clear();
    about.StartSysInfo();
    const MessageBox box = takeBox();
    EXPECT_EQ(box.title, QStringLiteral("Tagwrighter"));
    EXPECT_EQ(box.text, QStringLiteral("System Information Is Unavailable At This Time"));
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_FALSE(sysInfo.isLoaded());
}

TEST_F(AboutTest, KnowsWhatTheMachineTellsByItsName)
{
    systemFacts.facts = {{QStringLiteral("Qt"), QStringLiteral("6.4.2")}};
    EXPECT_EQ(about.GetKeyValue(QStringLiteral("Qt")), QStringLiteral("6.4.2"));
    EXPECT_EQ(about.GetKeyValue(QStringLiteral("Memory")), QString());
}

TEST(FactsText, IsALineForEachFact)
{
    EXPECT_EQ(factsText({{QStringLiteral("Qt"), QStringLiteral("6.4.2")}, {QStringLiteral("Desktop"), QString()}}),
              QStringLiteral("Qt: 6.4.2\r\nDesktop: \r\n"));
}
} // namespace
