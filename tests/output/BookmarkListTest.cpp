#include "output/OutputTest.h"

#include <QFile>

namespace lineforge
{
namespace
{

constexpr int wholeList = 101;

class BookmarkListTest : public OutputTest
{
protected:
    QStringList Entries() const
    {
        QStringList entries;
        for (int entry = 0; entry < wholeList; ++entry)
            if (!P.Bookmarks.BookmarkList[entry].isEmpty())
                entries.push_back(P.Bookmarks.BookmarkList[entry]);
        return entries;
    }

    void AddCurrent(QStringView file)
    {
        GoTo(file);
        P.Form1->mnuAddBkMark.Click();
    }

    void Print() { P.Form1->mnuPrinList.Click(); }
};

using Pages = std::vector<QStringList>;

TEST_F(BookmarkListTest, Add_KeepsTheNumberOfTheCurrentRecord_FromBothWindows_WithoutAWord)
{
    GivenPeople(3);
    GoTo(u"A003");
    P.Form1->mnuAddBkMark.Click();
    GoTo(u"A001");
    P.Form3->mnuAddPMark.Click();

    EXPECT_EQ(Entries(), QStringList({u"A003"_s, u"A001"_s}));
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 2);
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(BookmarkListTest, AddOfASiblingsRecord_KeepsItsNumber)
{
    GivenPeople(1);
    GivenRecordOfSibling();

    P.Form1->mnuAddBkMark.Click();

    EXPECT_EQ(Entries(), QStringList{u"B002"_s});
}

TEST_F(BookmarkListTest, SameRecordAddedTwice_ComesOutTwice)
{
    GivenPeople(2);
    AddCurrent(u"A002");
    AddCurrent(u"A002");

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A002"_s, u"A002"_s}}));
}

TEST_F(BookmarkListTest, Entry101_Fits_Entry102_IsASubscriptError_ThatNobodyMeets)
{
    GivenPeople(1);
    for (int entry = 0; entry < wholeList; ++entry)
        Click(P.Form1->mnuAddBkMark.Click);
    EXPECT_EQ(P.Bookmarks.BookmarkCount, wholeList);
    ExpectFatalBox(u"Run-time error '9':\n\nSubscript out of range",
                   u"The list or table that is needed has no place of this number:\n101"_s);

    Click(P.Form1->mnuAddBkMark.Click);

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(BookmarkListTest, FullListOf101_IsPutOutWithoutAnError)
{
    GivenPeople(1);
    for (int entry = 0; entry < wholeList; ++entry)
        P.Form1->mnuAddBkMark.Click();

    Click(P.Form1->mnuPrinList.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Jobs().size(), 51);
    EXPECT_EQ(RecordsOn(Jobs().value(49)).size(), 2);
    EXPECT_EQ(RecordsOn(Jobs().value(50)).size(), 1);
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
}

TEST_F(BookmarkListTest, Clear_EmptiesTheList_FromBothWindows_AndAddingBeginsAnew)
{
    for (MenuItem* menu : {&P.Form1->mnuClrList, &P.Form3->mnuClrList}) {
        GivenBookmarks({u"A001"_s, u"A002"_s});

        menu->Click();

        EXPECT_EQ(Entries(), QStringList());
        EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
    }
    GivenPeople(1);
    P.Form1->mnuAddBkMark.Click();
    EXPECT_EQ(P.Bookmarks.BookmarkList[0], u"A001"_s);
}

TEST_F(BookmarkListTest, EmptyList_PrintsNothing)
{
    GivenPeople(2);
    GoTo(u"A002");

    Print();

    EXPECT_EQ(Machine.Printer.Asked, 0);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(BookmarkListTest, TwoRecords_AreOneJobOfOnePage)
{
    GivenPeople(2);
    GivenBookmarks({u"A001"_s, u"A002"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s, u"A002"_s}}));
    EXPECT_EQ(PagesOf(Jobs().value(0)), 1);
}

TEST_F(BookmarkListTest, ThreeRecords_AreTwoJobs_APairAndOneAtTheEnd_InTheOrderOfTheList)
{
    GivenPeople(4);
    GivenBookmarks({u"A004"_s, u"A001"_s, u"A003"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A004"_s, u"A001"_s}, {u"A003"_s}}));
}

TEST_F(BookmarkListTest, RecordFormsMenu_PrintsTheListToo)
{
    GivenPeople(2);
    GivenBookmarks({u"A002"_s});

    P.Form3->mnuPrList.Click();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A002"_s}}));
}

TEST_F(BookmarkListTest, EntriesAreComparedWithoutRegardToCase)
{
    GivenPeople(2);
    GivenBookmarks({u"a002"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A002"_s}}));
}

TEST_F(BookmarkListTest, Output_EmptiesTheList_SoThatASecondPrintGivesNothing)
{
    GivenPeople(1);
    GivenBookmarks({u"A001"_s});
    Print();
    EXPECT_EQ(Entries(), QStringList());
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);

    Print();

    EXPECT_EQ(Jobs().size(), 1);
}

TEST_F(BookmarkListTest, Print_ComesBackToTheCurrentRecord)
{
    GivenPeople(3);
    GivenBookmarks({u"A003"_s});
    GoTo(u"A002");

    Print();

    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(BookmarkListTest, DeletedEntry_GivesNothing_AndNothingIsReported)
{
    GivenPeople(3);
    GivenBookmarks({u"A001"_s, u"A002"_s, u"A003"_s});
    GoTo(u"A002");
    Records(P.Form3).Delete();
    Records(P.Form3).MoveFirst();

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s, u"A003"_s}}));
}

TEST_F(BookmarkListTest, DeletedEntriesAlone_GiveNoJob)
{
    GivenPeople(1);
    GivenBookmarks({u"A007"_s, u"A008"_s});

    Print();

    EXPECT_EQ(Machine.Printer.Asked, 0);
    EXPECT_EQ(Entries(), QStringList());
}

TEST_F(BookmarkListTest, EntriesOfSeveralBranches_ComeOutInTheOrderOfTheList)
{
    GivenPeople(2);
    GivenBookmarks({u"B002"_s, u"A001"_s, u"B001"_s, u"A002"_s});
    GoTo(u"A002");
    const QString directory = P.Branch.WorkDir;

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"B002"_s, u"A001"_s}, {u"B001"_s, u"A002"_s}}));
    EXPECT_EQ(P.Branch.WorkDir, directory);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(BookmarkListTest, EntryThatItsOwnBranchLacks_IsPassedOver)
{
    GivenPeople(1);
    GivenBookmarks({u"B009"_s, u"A001"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s}}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(BookmarkListTest, EntryOfABranchThatIsGone_IsPassedOver)
{
    GivenPeople(2);
    GivenBookmarks({u"Q001"_s, u"A001"_s});
    const QString directory = P.Branch.WorkDir;

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s}}));
    EXPECT_EQ(P.Branch.WorkDir, directory);
    EXPECT_EQ(Current(), u"A001"_s);
}

// The map of the branch before shows somebody of a sibling, so that its directory has been kept for the way back.
TEST_F(BookmarkListTest, EntryOfABranchThatIsGone_DoesntLeadBackToTheBranchThatWasOpenBefore)
{
    GivenPeople(2);
    Choose(u"Jones");
    GivenBookmarks({u"Q001"_s, u"B001"_s});
    GoTo(u"B002");
    const QString kept = P.Branch.WorkDirSaved;

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"B001"_s}}));
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirSaved, kept);
    EXPECT_EQ(Current(), u"B002"_s);
}

TEST_F(BookmarkListTest, EntryOfASpoiltBranch_IsPassedOver)
{
    GivenPeople(1);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray(5000, 'x'));
    GivenBookmarks({u"B001"_s, u"A001"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s}}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(BookmarkListTest, EntryOfABranchInUse_GivesTheOutputUp_WhereTheUserDoesntWait_AndTheListStays)
{
    GivenPeople(2);
    const QStringList entries{u"A001"_s, u"B001"_s, u"A002"_s};
    GivenBookmarks(entries);
    GoTo(u"A002");
    const auto other = LockDatabase(u'B');
    for (MenuItem* command : {&P.Form1->mnuPrinList, &P.Form1->mnuTxtFileList}) {
        if (command == &P.Form1->mnuTxtFileList)
            Prompts.Expect(u"Make a Text File.",
                           QString(u"The Bookmark list will be copied Text File located at\n"_s +
                                   Home.Path(u"LfgDat_A/LfgDat_A.txt")),
                           Buttons::Information);
        ExpectDatabaseInUse(Answer::Cancel);

        Click(command->Click);

        EXPECT_EQ(Entries(), entries);
        EXPECT_EQ(P.Branch.UsingAlternate, 0);
        EXPECT_EQ(Current(), u"A002"_s);
        EXPECT_FALSE(QFile::exists(Home.Path(u"LfgDat_A/LfgDat_A.txt")));
    }
}

TEST_F(BookmarkListTest, OwnBranchInUse_WhenTheWayLeadsBackToIt_GivesTheOutputUp_AndTheListStays)
{
    GivenPeople(2);
    const QStringList entries{u"B001"_s, u"A001"_s};
    GivenBookmarks(entries);
    GoTo(u"A002");
    const auto other = LockDatabase(u'B');
    std::unique_ptr<SqliteFile> own;
    ExpectDatabaseInUse(Answer::Retry, [&] {
        other->Execute("COMMIT");
        own = LockDatabase(u'A');
    });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->mnuPrinList.Click);

    EXPECT_EQ(Entries(), entries);
}

TEST_F(BookmarkListTest, ForeignNumberInTheOwnBranch_IsPrintedFromThere)
{
    GivenRecords({{{u"File", u"A001"}}, {{u"File", u"B001"}, {u"Surname", u"Guest"}}});
    GivenBookmarks({u"B001"_s});

    Print();

    ASSERT_EQ(RecordsOnJobs(), Pages({{u"B001"_s}}));
    EXPECT_TRUE(LinesOn(Jobs().first()).contains(u"Surname: Guest"_s));
}

TEST_F(BookmarkListTest, BegunOnASiblingsRecord_PutsOutFromTheOwnBranch_AndKeepsItsFirstRow)
{
    GivenPeople(3);
    const QString directory = P.Branch.WorkDir;
    GivenRecordOfSibling();
    GivenBookmarks({u"A002"_s, u"B002"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A002"_s, u"B002"_s}}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, directory);
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(BookmarkListTest, List_SurvivesTheClosingAndOpeningOfBranches)
{
    GivenPeople(1);
    AddCurrent(u"A001");
    P.Form1->mnuCloseDB.Click();
    Choose(u"Jones");
    AddCurrent(u"B002");

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s, u"B002"_s}}));
    EXPECT_EQ(Current(), u"B002"_s);
}

TEST_F(BookmarkListTest, EmptyBranch_AddsNothing_AndPrintsTheEntriesOfOthers)
{
    GivenRecords({});
    P.Form1->mnuAddBkMark.Click();
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
    GivenBookmarks({u"B001"_s});

    Print();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"B001"_s}}));
    EXPECT_TRUE(Records(P.Form3).IsEmpty());
}

TEST_F(BookmarkListTest, NoBranch_AddAndPrintAreTold_AndTheListStays)
{
    GivenBookmarks({u"A001"_s});
    ExpectNoBranchBox();
    P.Form1->mnuAddBkMark.Click();
    ExpectNoBranchBox();
    Print();

    EXPECT_EQ(Entries(), QStringList{u"A001"_s});
    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(BookmarkListTest, NoPrinter_IsReportedOnce_AndTheUserStaysWhereHeWas)
{
    GivenPeople(5);
    GivenBookmarks({u"A001"_s, u"A003"_s, u"A005"_s});
    GoTo(u"A002");
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();

    Print();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
}

TEST_F(BookmarkListTest, NoPrinter_ForASiblingsRecord_LeadsBackToTheOwnBranch)
{
    GivenPeople(2);
    GivenBookmarks({u"B001"_s});
    GoTo(u"A002");
    const QString directory = P.Branch.WorkDir;
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();

    Print();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, directory);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(BookmarkListTest, AfterNoPrinter_TheNextPrintWorks)
{
    GivenPeople(1);
    GivenBookmarks({u"A001"_s});
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();
    Print();

    Machine.Printer.IsThere = true;
    P.Form1->mnuPrintRecord.Click();

    EXPECT_EQ(RecordsOnJobs(), Pages({{u"A001"_s}}));
}

} // namespace
} // namespace lineforge
