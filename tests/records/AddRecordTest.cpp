#include "records/AddRecord.h"

#include "gedcom/writer/Lineage.h"
#include "records/RecordTest.h"
#include "support/Pixels.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

const QStringView databaseFile = u"LfgDat_A/LfgDat_A.mdb";

class AddRecordTest : public RecordTest
{
protected:
    AddRecordTest()
    {
        Home.WriteFile(u"Tree99.jpg", Portrait);
        GivenRecordForm();
    }

    void Execute(const QByteArray& sql) { SqliteFile(Home.Path(databaseFile)).Execute(sql); }
    std::vector<SqliteFile::Row> AllRows(const QByteArray& where = "1")
    {
        return SqliteFile(Home.Path(databaseFile)).Query("SELECT * FROM Tree99 WHERE " + where + " ORDER BY rowid");
    }

    void ExpectQuestion(Answer answer, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"New Database Record",
                       u"Adding a new Record here will not \n"
                       u"be mapped into the Tree system.",
                       Buttons::InformationOkCancel, answer, std::move(whileOpen));
    }
    void ExpectCreated(QStringView file, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString text = u"New Record "_s + file + u" created.";
        Prompts.Expect(u"New Blank Record Created", text, Buttons::Information, Answer::Ok, std::move(whileOpen));
    }
    // The user agrees, and is told of this record.
    void Add(QStringView file)
    {
        ExpectQuestion(Answer::Ok);
        ExpectCreated(file);
        P.Form3->mnuAdd.Click();
    }
    // The user agrees, and the program ends.
    void AddFatally(QStringView box, const QString& words)
    {
        ExpectQuestion(Answer::Ok);
        ExpectFatalBox(box, words);
        Click(P.Form3->mnuAdd.Click);
        EXPECT_EQ(ExitCode(), 1);
    }

    QByteArray PictureOf(QStringView file) { return Home.ReadFile(QString(u"LfgDat_A/" + file + u"Sub.jpg")); }

    const QByteArray Portrait = PictureBytes(Qt::blue);
};

TEST_F(AddRecordTest, NewRecord_IsNumberedOn_HasNothingElse_AndIsCurrent)
{
    const auto before = AllRows();

    Add(u"A004");

    EXPECT_EQ(Current(), u"A004"_s);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A004"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), QString());
    EXPECT_EQ(AllRows("File <> 'A004'"), before);
    for (const QString& field : RecordFields())
        EXPECT_EQ(Stored(qUtf8Printable(field), "A004").has_value(), field == u"File") << qUtf8Printable(field);
}

TEST_F(AddRecordTest, RecordThatAnotherProgramHasAddedMeanwhile_KeepsItsNumberToItself)
{
    ExpectQuestion(Answer::Ok, [this] { Execute("INSERT INTO Tree99 (File, Forename) VALUES ('A004', 'Eve')"); });
    ExpectCreated(u"A005");

    P.Form3->mnuAdd.Click();

    EXPECT_EQ(Current(), u"A005"_s);
    EXPECT_EQ(Stored("Forename", "A004"), u"Eve"_s);
    Records(P.Form3).MovePrevious();
    EXPECT_EQ(Current(), u"A004"_s) << "and is seen";
}

TEST_F(AddRecordTest, NewRecord_IsTheLastOfTheTable)
{
    Add(u"A004");

    EXPECT_EQ(AllRows().back().front(), u"A004"_s);
    Records(P.Form3).MoveNext();
    EXPECT_TRUE(Records(P.Form3).Eof());
    Records(P.Form3).MovePrevious();
    EXPECT_EQ(Current(), u"A004"_s);
}

TEST_F(AddRecordTest, NewRecord_HasTheBlankPortrait_BeforeItIsTold)
{
    ExpectQuestion(Answer::Ok);
    ExpectCreated(u"A004", [&] { EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s); });

    P.Form3->mnuAdd.Click();

    EXPECT_EQ(PictureOf(u"A004"), Portrait);
    EXPECT_EQ(Home.ReadFile(u"Tree99.jpg"), Portrait);
}

TEST_F(AddRecordTest, NewRecord_HasNoBox_AndTheMapStaysAsItWas)
{
    const QByteArray map = MapOf(u'A');
    const QImage shown = ShownBy(P.Form1->Picture1).copy();
    const QString ref = ShownRef();

    Add(u"A004");

    EXPECT_EQ(MapOf(u'A'), map);
    EXPECT_TRUE(ShownBy(P.Form1->Picture1) == shown);
    EXPECT_EQ(ShownRef(), ref);
    for (int row = 0; row < 4; ++row)
        EXPECT_NE(P.Map.BoxArr[row][BoxColumn::File].Text(), u"A004"_s);
}

TEST_F(AddRecordTest, RecordWithoutABox_IsReachedBySearch_AndShownOnTheMapWithoutAMarker)
{
    Add(u"A004");
    P.Form3->Text3.Text = u"Unmapped"_s;
    Records(P.Form3).MoveFirst();
    P.Form3->Command2.Click();
    ASSERT_TRUE(P.Form1->Shape1.Visible);
    GivenRecordForm();
    Prompts.ExpectInput(u"Search Database", u"Enter the Data Reference number", u"a004");
    P.Form3->mnuSearchDataRef.Click();
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Unmapped"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);

    P.Form3->Command2.Click();

    EXPECT_EQ(ShownRef(), u"Ref  A004"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Unmapped"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"blue"_s);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(AddRecordTest, RecordWithoutABox_IsReachedByALinkFromAnother)
{
    Add(u"A004");
    P.Form3->Text21.Text = u"A003"_s;
    Records(P.Form3).MoveFirst();
    P.Form3->Text21.Text = u"a004"_s;
    Records(P.Form3).MoveNext();
    P.Form12->Text7.Text = u"A001"_s;

    CollectLineage(P);

    EXPECT_EQ(P.Lineage.LineageArr[0][LineageColumn::Indi], u"A001"_s);
    EXPECT_EQ(P.Lineage.LineageArr[0][LineageColumn::Pa].toUpper(), u"A004"_s);
    EXPECT_EQ(P.Lineage.LineageArr[1][LineageColumn::Indi].toUpper(), u"A004"_s);
    EXPECT_EQ(P.Lineage.LineageArr[1][LineageColumn::Pa], u"A003"_s);
}

TEST_F(AddRecordTest, OnlyTheDatabaseAndThePicture_Change)
{
    const Tree before = Home.Snapshot();

    Add(u"A004");

    EXPECT_EQ(Differences(before, Home.Snapshot()),
              QStringList({u"changed: LfgDat_A/LfgDat_A.mdb"_s, u"new: LfgDat_A/A004Sub.jpg"_s}));
}

TEST_F(AddRecordTest, BookmarkIsKeptOfTheRecordThatWasLast)
{
    Add(u"A004");

    Records(P.Form3).SetBookmark(P.Record.SavedBookmark);
    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(AddRecordTest, Twice_NumbersOn)
{
    Add(u"A004");
    Records(P.Form3).MoveFirst();
    Add(u"A005");

    EXPECT_EQ(AllRows().size(), 5U);
}

TEST_F(AddRecordTest, NewRecord_TakesTexts_AndIsThereAtTheNextOpening)
{
    Add(u"A004");
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form1->mnuCloseDB.Click();
    Choose(u"Smiths");

    Records(P.Form3).MoveLast();

    EXPECT_EQ(Current(), u"A004"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"Forename"), u"Anne"_s);
    EXPECT_EQ(Stored("Forename", "A003"), u"Peter"_s);
}

TEST_F(AddRecordTest, TextsPending_AreWrittenIntoTheirOwnRecord)
{
    P.Form3->Text2.Text = u"Brown"_s;

    Add(u"A004");

    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
    EXPECT_EQ(Stored("Surname", "A004"), std::nullopt);
}

TEST_F(AddRecordTest, PictureOfThatName_IsWrittenOver)
{
    Home.WriteFile(u"LfgDat_A/A004Sub.jpg", PictureBytes(Qt::red));

    Add(u"A004");

    EXPECT_EQ(PictureOf(u"A004"), Portrait);
}

// The last number of the table, and the next.
struct Numbering {
    QStringView Last;
    QStringView Next;
};

void PrintTo(const Numbering& row, std::ostream* out)
{
    *out << qUtf8Printable(row.Last.toString());
}

class NumberingTest : public AddRecordTest, public WithParamInterface<Numbering>
{
};

TEST_P(NumberingTest, FollowsTheLastRecord)
{
    Execute("UPDATE Tree99 SET File = '" + GetParam().Last.toUtf8() + "' WHERE File = 'A003'");

    Add(GetParam().Next);

    EXPECT_EQ(Current(), GetParam().Next.toString());
    EXPECT_EQ(PictureOf(GetParam().Next), Portrait);
}

INSTANTIATE_TEST_SUITE_P(Numbers, NumberingTest,
                         Values(Numbering{u"A000", u"A001"}, Numbering{u"A008", u"A009"}, Numbering{u"A009", u"A010"},
                                Numbering{u"A098", u"A099"}, Numbering{u"A099", u"A100"}, Numbering{u"A998", u"A999"},
                                Numbering{u"A999", u"A1000"}, // five characters
                                Numbering{u"A1004", u"A005"}, // of which the last three count
                                Numbering{u"B007", u"B008"},  // the record's letter, not the branch's
                                Numbering{u"a007", u"a008"}));

TEST_F(AddRecordTest, LastInStorageOrderDecides_NotTheHighestNumber)
{
    Execute("UPDATE Tree99 SET File = 'A050' WHERE File = 'A001'");

    Add(u"A004");
}

TEST_F(AddRecordTest, Cancel_ChangesNothing)
{
    const Tree before = Home.Snapshot();
    ExpectQuestion(Answer::Cancel);

    P.Form3->mnuAdd.Click();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(AddRecordTest, OnARecordOfAnotherBranch_IsRefused_AndChangesNothing)
{
    GivenRecordOfSibling();
    GivenRecordForm();
    const Tree before = Home.Snapshot();
    Prompts.Expect(u"Addition of Subject Records",
                   u"This Record is from another Tree Branch. You must open\n"
                   u" that Tree Branch first to Add a new unmapped record. ",
                   Buttons::Information);

    P.Form3->mnuAdd.Click();

    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(AddRecordTest, EmptyTable_IsTold_AndChangesNothing)
{
    GivenEmptyBranch();
    const Tree before = Home.Snapshot();
    ExpectQuestion(Answer::Ok);
    Prompts.Expect(u"Database Empty", u"The Database has no records to access", Buttons::Information);

    Click(P.Form3->mnuAdd.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(Records(P.Form3).IsEmpty());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(AddRecordTest, NoBlankPortrait_EndsTheProgram_AfterTheRecordHasBeenAdded)
{
    QFile::remove(Home.Path(u"Tree99.jpg"));
    const auto before = AllRows();

    AddFatally(u"Run-time error '53':\n\nFile not found", u"There is no such file:\n"_s + Home.Path(u"Tree99.jpg"));

    EXPECT_EQ(AllRows("File <> 'A004'"), before);
    EXPECT_EQ(Stored("File", "A004"), u"A004"_s);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/A004Sub.jpg"));
}

TEST_F(AddRecordTest, BlankPortraitIsNoPicture_IsCopied_AndEndsTheProgram)
{
    Home.WriteFile(u"Tree99.jpg", "no picture");

    AddFatally(u"Run-time error '481':\n\nInvalid picture",
               u"This file is no picture that can be shown:\n"_s + Home.Path(u"LfgDat_A/A004Sub.jpg"));

    EXPECT_EQ(PictureOf(u"A004"), "no picture");
    EXPECT_EQ(Stored("File", "A004"), u"A004"_s);
}

TEST_F(AddRecordTest, ReadOnlyPictureOfThatName_StaysWhole_AndTheProgramEnds)
{
    Home.WriteFile(u"LfgDat_A/A004Sub.jpg", PictureBytes(Qt::red));
    Home.MakeReadOnly(u"LfgDat_A/A004Sub.jpg");
    const auto before = AllRows();

    AddFatally(u"Run-time error '75':\n\nPath/File access error",
               u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/A004Sub.jpg"));

    EXPECT_EQ(PictureOf(u"A004"), PictureBytes(Qt::red));
    EXPECT_EQ(AllRows("File <> 'A004'"), before);
}

TEST_F(AddRecordTest, AdditionRefusedByTheDatabase_EndsTheProgram_WithRecordsAndFilesWhole)
{
    Execute("CREATE TRIGGER Refusal BEFORE INSERT ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    const Tree before = Home.Snapshot();

    AddFatally(u"Run-time error '57':\n\nDevice I/O error",
               u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb") + u"\nRecord A004");

    EXPECT_EQ(AllRows().size(), 3U);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(AddRecordTest, DatabaseTurnedReadOnly_WhatIsOpenStillTakesTheRecord)
{
    Home.MakeReadOnly(databaseFile);
    const auto before = AllRows();

    Add(u"A004");

    EXPECT_EQ(AllRows("File <> 'A004'"), before);
    EXPECT_EQ(Stored("File", "A004"), u"A004"_s);
}

} // namespace
} // namespace lineforge
