#include "gedcom/GedcomTest.h"

namespace lineforge
{
namespace
{

class GedcomFormTest : public GedcomTest
{
protected:
    GedcomFormTest() { GivenPeople({{u"A001"_s}}); }

    QStringList Texts()
    {
        QStringList texts;
        for (const TextBox* box : P.Form12->Texts())
            texts << box->Text.value();
        return texts;
    }
};

TEST_F(GedcomFormTest, Menu_ShowsTheWindow_WithAnEmptyPanel)
{
    P.Form12->Picture1.Print(u"old");

    Click(P.Form1->mnuExpGedcom.Click);

    EXPECT_TRUE(P.Form12->Visible);
    EXPECT_EQ(Panel(), QStringList());
    EXPECT_EQ(P.Form12->Caption.value(), u"Create GEDCOM file");
}

TEST_F(GedcomFormTest, Menu_AsksForNoBranch)
{
    Click(P.Form1->mnuCloseDB.Click);

    Click(P.Form1->mnuExpGedcom.Click);

    EXPECT_TRUE(P.Form12->Visible);
}

TEST_F(GedcomFormTest, CreateFileWithoutABranch_IsTold)
{
    Click(P.Form1->mnuCloseDB.Click);
    const Tree before = Home.Snapshot();
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    CreateFile();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(GedcomFormTest, Window_IsAsWideAsTheScreen_AndSomewhatLessHigh)
{
    EXPECT_EQ(P.Form12->Width.value(), 12000);
    EXPECT_EQ(P.Form12->Height.value(), 9000 - 700);
    EXPECT_EQ(P.Form12->Left.value(), (12000 - P.Form3->Width) / 2);
    EXPECT_EQ(P.Form12->Top.value(), (9000 - P.Form3->Height) / 2 - 350);
}

TEST_F(GedcomFormTest, Boxes_BeginWithTheirOwnNames)
{
    EXPECT_EQ(Texts(),
              QStringList({u"Text1"_s, u"Text2"_s, u"Text3"_s, u"Text4"_s, u"Text5"_s, u"Text6"_s, u"X010"_s}));
    EXPECT_FALSE(P.Form12->Option1.Value);
    EXPECT_TRUE(P.Form12->Option2.Value);
}

TEST_F(GedcomFormTest, Reset_EmptiesAllSeven)
{
    Click(P.Form12->Command3.Click);
    EXPECT_EQ(Texts().join(u""_s), QString());
}

TEST_F(GedcomFormTest, Cancel_HidesTheWindow_WhichKeepsItsTexts)
{
    Click(P.Form1->mnuExpGedcom.Click);
    P.Form12->Text1.Text = u"Ann"_s;

    Click(P.Form12->Command2.Click);

    EXPECT_TRUE(P.Form12.IsLoaded());
    EXPECT_FALSE(P.Form12->Visible);
    Click(P.Form1->mnuExpGedcom.Click);
    EXPECT_EQ(P.Form12->Text1.Text.value(), u"Ann");
}

TEST_F(GedcomFormTest, Bar_HasTheStepsOfTheDesign)
{
    const ScrollBar& bar = P.Form12->VScroll1;
    EXPECT_EQ(bar.Max.value(), 8000);
    EXPECT_EQ(bar.SmallChange, 100);
    EXPECT_EQ(bar.LargeChange, 1000);
}

} // namespace
} // namespace lineforge
