#include "records/DeleteRecordTest.h"

namespace lineforge
{
namespace
{

// A record of branch B stands in the third box of branch A.
class DeletedLinkTest : public DeleteRecordTest
{
protected:
    DeletedLinkTest()
    {
        GivenRecordOfSibling();
        GivenRecordForm();
    }

    void Unlink(Answer answer)
    {
        Prompts.Expect(u"Deletion of Subject Records",
                       u"This Record is from another Tree Branch. You must \n"
                       u"open that Tree Branch to delete the full record. This\n"
                       u"delete will remove access to it from this Tree Branch.\n"
                       u"\n"
                       u"             Is this what you want ? ",
                       Buttons::QuestionYesNo, answer);
        Click(P.Form3->mnuDelete.Click);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
};

TEST_F(DeletedLinkTest, No_LeavesEverything)
{
    const Tree before = Home.Snapshot();

    Unlink(Answer::No);

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(P.Map.BoxArr[2][BoxColumn::File].Text(), u"B002"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DeletedLinkTest, Yes_OnlyTheBoxGoes_AndOnlyTheMapFileChanges)
{
    const Tree before = Home.Snapshot();

    Unlink(Answer::Yes);

    EXPECT_EQ(P.Map.BoxArr[2][BoxColumn::File].Text(), u"0"_s);
    EXPECT_TRUE(MapOf(u'A').contains("1200,600,255,A001,John,3000,600,255,A002,Mary,5000,600,255,0,,"));
    QStringList changes = Differences(before, Home.Snapshot());
    changes.removeIf([](const QString& line) { return line.endsWith(u"LfgDat_A.~cf"); });
    EXPECT_EQ(changes, QStringList({u"changed: LfgDat_A/LfgDat_A.cfg"_s}));
}

TEST_F(DeletedLinkTest, Yes_TheOwnBranchIsBack_OnItsFirstRecord)
{
    Unlink(Answer::Yes);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.HomeDir, P.ExecutableDirectory);
    EXPECT_EQ(P.Record.sAltName, u"Mary"_s);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(DeletedLinkTest, Yes_ThenTheOwnRecordsCanBeDeleted)
{
    Unlink(Answer::Yes);

    Delete();

    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
}

// The record bar can go on from the record that was chosen on the map.
TEST_F(DeletedLinkTest, AnotherRecordOfTheSibling_ItsOwnBoxGoes)
{
    P.Map.BoxArr[1][BoxColumn::File] = u"b001"_s;
    Records(P.Form3).MoveFirst();

    Unlink(Answer::Yes);

    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"0"_s);
    EXPECT_EQ(P.Map.BoxArr[2][BoxColumn::File].Text(), u"B002"_s);
}

TEST_F(DeletedLinkTest, AnotherRecordOfTheSibling_WithoutABox_NoneGoes)
{
    Records(P.Form3).MoveFirst();

    Unlink(Answer::Yes);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_TRUE(MapOf(u'A').contains("1200,600,255,A001,John,3000,600,255,A002,Mary,5000,600,255,B002,"));
}

} // namespace
} // namespace lineforge
