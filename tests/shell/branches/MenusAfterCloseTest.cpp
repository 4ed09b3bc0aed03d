#include "shell/ShellTest.h"

#include <functional>
#include <ostream>
#include <set>

namespace lineforge
{
namespace
{
using forms::Form1;

// An entry of a menu, or a menu that opens, and all that the user sees of it once the branch has been closed.
struct Item {
    MenuItem Form1::*Chosen;
    void (*Expect)(ScriptedPrompts& user, const QString& home);
    void (*Check)(Program& p) = nullptr;
    QStringView NewFile = {};
};

void NoDatabase(ScriptedPrompts& user, const QString& = {})
{
    user.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
}

void NothingToMap(ScriptedPrompts& user, const QString&)
{
    user.Expect(u"Data not available", u"Cannot Map until database file is Opened", Buttons::Information);
}

void Nothing(ScriptedPrompts&, const QString&) {}

constexpr Item items[] = {
    {&Form1::mnuFile, Nothing},
    {&Form1::New,
     [](ScriptedPrompts& user, const QString&) {
         user.ExpectInput(u"New Tree Branch name", u"Enter the name for this new Tree Branch Map", u"");
     }},
    {&Form1::Open, Nothing, [](Program& p) { EXPECT_TRUE(p.Form8->Visible); }},
    {&Form1::mnuAddBkMark, NoDatabase},
    {&Form1::mnuClrList, Nothing},
    {&Form1::mnuTreePrint, Nothing},
    {&Form1::mnuPrinterSetUp, [](ScriptedPrompts& user, const QString&) { user.ExpectPrinterSetup(); }},
    {&Form1::mnuPrint, NoDatabase},
    {&Form1::mnuPrintPage, Nothing},
    {&Form1::mnuPrintRecord, NoDatabase},
    {&Form1::mnuPrinList, NoDatabase},
    {&Form1::mnuMainCopy, Nothing},
    {&Form1::mnuBackup, NoDatabase},
    {&Form1::mnuTxtFileList, NoDatabase},
    {&Form1::mnuTxtDBase, NoDatabase},
    {&Form1::mnuExport, Nothing},
    {&Form1::mnuExpSub,
     [](ScriptedPrompts& user, const QString&) {
         user.ExpectOpenFile(u"Select Export Database source File", u"DataBase *.mdb|*.mdb|All Files|*.*|");
     }},
    {&Form1::mnuExpGedcom, Nothing, [](Program& p) { EXPECT_TRUE(p.Form12->Visible); }},
    {&Form1::mnuImport, Nothing},
    {&Form1::mnuImpSub,
     [](ScriptedPrompts& user, const QString&) {
         user.ExpectOpenFile(u"Select Import Database File", u"DataBase *.mdb|*.mdb|All Files|*.*|");
     }},
    {&Form1::mnuImpGedcom,
     [](ScriptedPrompts& user, const QString&) {
         user.ExpectOpenFile(u"Select Import GedCom File", u"GedCom *.ged|*.ged|All Files|*.*|");
     }},
    {&Form1::mnuCloseDB, Nothing, nullptr, u".cfg"},
    {&Form1::mnuExit, Nothing, nullptr, u".cfg"},

    {&Form1::mnuEdit, Nothing},
    {&Form1::mnuCopy, Nothing},
    {&Form1::mnuPaste, Nothing},
    {&Form1::mnuDataBase, NoDatabase},
    {&Form1::mnuViewRecs, NoDatabase},
    {&Form1::mnuComp, NoDatabase},
    {&Form1::mnuDel, Nothing},
    {&Form1::mnuDelSub, NoDatabase},

    {&Form1::mnuTreeGraphics, Nothing},
    {&Form1::mnuTreeTools,
     [](ScriptedPrompts& user, const QString&) {
         user.Expect(u"DataBase not Opened",
                     u"Cannot Change Tree Map until database\nfile is Opened or begins from New", Buttons::Information);
     }},
    {&Form1::mnuMapSubject, NothingToMap},
    {&Form1::mnuRemap, NothingToMap},

    {&Form1::mnuHelp, Nothing},
    {&Form1::mnuConts,
     [](ScriptedPrompts& user, const QString& home) { user.ExpectHelp(QString(home + u"LfgHelp.hlp")); }},
    {&Form1::MnuAbout,
     [](ScriptedPrompts& user, const QString&) {
         user.Expect(u"About Lineforge",
                     u"Ancestral mapping and Database program.\n"
                     u"Created January 2001, Version 1.0\n"
                     u"\u00A9 Tarnwick Technology\n"
                     u"Contact: the supplier of this copy.\n"
                     u"This program may be passed on, complete and unchanged.",
                     Buttons::Information);
     }},
};

const Form1& Pattern()
{
    static const Form1 form;
    return form;
}

void PrintTo(const Item& item, std::ostream* out)
{
    *out << (Pattern().*item.Chosen).Name.toStdString();
}

void ForEach(const std::vector<MenuItem*>& level, const std::function<void(const MenuItem&)>& visit)
{
    for (const MenuItem* item : level) {
        visit(*item);
        ForEach(item->Items, visit);
    }
}

class MenusAfterCloseTest : public ShellTest
{
protected:
    MenusAfterCloseTest()
    {
        GivenSmithsAndJones();
        Choose(u"Smiths");
        P.Form1->mnuCloseDB.Click();
    }
};

TEST_F(MenusAfterCloseTest, AllAreEnabled)
{
    ForEach(P.Form1->Menus, [](const MenuItem& item) { EXPECT_TRUE(item.Enabled) << item.Name.toStdString(); });
}

TEST_F(MenusAfterCloseTest, NoneIsMissingFromTheTable)
{
    std::set<QString> listed;
    for (const Item& item : items)
        listed.insert((Pattern().*item.Chosen).Name);
    ForEach(P.Form1->Menus, [&](const MenuItem& item) {
        EXPECT_TRUE(item.Caption == u"-" || listed.contains(item.Name)) << item.Name.toStdString();
    });
}

class ItemAfterCloseTest : public MenusAfterCloseTest, public testing::WithParamInterface<Item>
{
};

INSTANTIATE_TEST_SUITE_P(Items, ItemAfterCloseTest, testing::ValuesIn(items),
                         [](const auto& turn) { return testing::PrintToString(turn.param); });

TEST_P(ItemAfterCloseTest, Tells_AndChangesNothing)
{
    const Tree before = Home.Snapshot();
    GetParam().Expect(Prompts, P.Branch.HomeDir);

    Click(((*P.Form1).*GetParam().Chosen).Click);

    if (GetParam().Check)
        GetParam().Check(P);
    EXPECT_TRUE(Prompts.IsUsedUp());
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.sDbaseName, QString());
    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
    const QStringList made =
        GetParam().NewFile.isEmpty() ? QStringList() : QStringList{QString(u"new: " + GetParam().NewFile)};
    EXPECT_EQ(Differences(before, Home.Snapshot()), made);
}

// Beside the menus.
using ButtonsAfterCloseTest = MenusAfterCloseTest;

TEST_F(ButtonsAfterCloseTest, EachTellsThatThereIsNoDatabase)
{
    for (const Button Form1::*button : {&Form1::Command1, &Form1::Command2, &Form1::Command3, &Form1::Command4}) {
        NoDatabase(Prompts);
        Click(((*P.Form1).*button).Click);
        EXPECT_TRUE(Prompts.IsUsedUp()) << ((*P.Form1).*button).Name.toStdString();
    }
    NoDatabase(Prompts);
    Click(P.Form1->Picture1.DblClick);
}

TEST_F(ButtonsAfterCloseTest, CreateFile_TellsIt)
{
    P.Form1->mnuExpGedcom.Click();
    NoDatabase(Prompts);
    Click(P.Form12->Command1.Click);
}

} // namespace
} // namespace lineforge
