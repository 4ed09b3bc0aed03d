#include "shell/run/Help.h"

#include "shell/ShellTest.h"

namespace lineforge
{
namespace
{

class HelpTest : public ShellTest
{
protected:
    HelpTest()
    {
        GivenRegistry();
        StartProgram(P);
    }
};

TEST_F(HelpTest, Contents_OpenTheHelpFileOfTheHomeDirectory)
{
    Prompts.ExpectHelp(Home.Path(u"LfgHelp.hlp"));

    P.Form1->mnuConts.Click();
}

TEST_F(HelpTest, Contents_FollowAChangeOfTheHomeDirectory)
{
    P.Branch.HomeDir = u"/elsewhere/"_s;
    Prompts.ExpectHelp(u"/elsewhere/LfgHelp.hlp");

    P.Form1->mnuConts.Click();
}

TEST_F(HelpTest, About_TellsWhatTheProgramIs_WhoseItIs_AndHowItMayBePassedOn)
{
    Prompts.Expect(u"About Lineforge",
                   u"Ancestral mapping and Database program.\n"
                   u"Created January 2001, Version 1.0\n"
                   u"\u00A9 Tarnwick Technology\n"
                   u"Contact: the supplier of this copy.\n"
                   u"This program may be passed on, complete and unchanged.",
                   Buttons::Information);

    P.Form1->MnuAbout.Click();
}

} // namespace
} // namespace lineforge
