#include "compare/CompareTest.h"

// Files that another program compacts while they are compared: whatever is written goes into the pair on show.
namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

class CompactedCompareTest : public CompareTest
{
protected:
    CompactedCompareTest()
    {
        GivenComparison({PersonOf(u"A001", u"one"), PersonOf(u"A002", u"our"), PersonOf(u"A003", u"third")},
                        {PersonOf(u"B001", u"first"), PersonOf(u"B002", u"their"), PersonOf(u"B003", u"third")});
        NextCurrent();
        NextCompare();
    }

    void Compact()
    {
        ChangeOutside(u'A', "DELETE FROM Tree99 WHERE File = 'A001'; VACUUM");
        ChangeOutside(u'B', "DELETE FROM Tree99 WHERE File = 'B001'; VACUUM");
    }
    void ToCurrent()
    {
        P.Form6->Option1.Value = false;
        P.Form6->Option2.Value = true;
    }
    QString Surnames(QChar branch)
    {
        QStringList names;
        for (const SqliteFile::Row& row : Rows(branch, "File || ' ' || Surname"))
            names << row.front().value_or(u"Null"_s);
        return names.join(u", ");
    }
};

TEST_F(CompactedCompareTest, FieldIsCopied_ToTheOtherOfThePair)
{
    Search();
    Compact();
    Click(P.Form6->Command3.Click);

    EXPECT_EQ(Surnames(u'B'), u"B002 our Surname, B003 third Surname"_s);
    EXPECT_EQ(Surnames(u'A'), u"A002 our Surname, A003 third Surname"_s);
}

TEST_F(CompactedCompareTest, AllFieldsAreCopied_ToTheCurrentOfThePair)
{
    Compact();
    ToCurrent();
    Click(P.Form6->Command7.Click);

    EXPECT_EQ(Surnames(u'A'), u"A002 their Surname, A003 third Surname"_s);
    EXPECT_EQ(Surnames(u'B'), u"B002 their Surname, B003 third Surname"_s);
}

TEST_F(CompactedCompareTest, AppendedRecord_IsTheOneOnShow)
{
    Prompts.Expect(u"Append Record to Database.",
                   u"This Record will be Appended to the Compare\nDatabase as Z001 but will not be mapped into\n"
                   u"the Ancestral Tree Display.",
                   Buttons::Information, Answer::Ok, [this] { Compact(); });
    Click(P.Form6->Command8.Click);

    EXPECT_EQ(Surnames(u'B'), u"B002 their Surname, B003 third Surname, Z001 our Surname"_s);
}

TEST_F(CompactedCompareTest, Cut_EmptiesTheFieldOfTheRecordOnShow)
{
    Click(P.Form6->Text3.Click);
    Compact();
    Click(P.Form6->mnuCut.Click);

    EXPECT_EQ(Surnames(u'B'), u"B002 , B003 third Surname"_s);
}

TEST_F(CompactedCompareTest, SearchWithinWhichTheFilesAreCompacted_FindsTheSamePair)
{
    ChangeOutside(u'A', "UPDATE Tree99 SET Surname = 'same' WHERE File = 'A003'");
    ChangeOutside(u'B', "UPDATE Tree99 SET Surname = 'same' WHERE File = 'B002'");
    Reset();
    P.Form6->Check2.Value = true;
    Compact();
    Search();

    EXPECT_EQ(Pair(), u"A003 B002"_s);
}

TEST_F(CompactedCompareTest, RecordChangedSinceItWasShown_IsNotWritten_AndTold)
{
    ChangeOutside(u'B', "UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'B002'");
    Tell(u"Record changed", u"Record B002 has been changed by another program.\n"
                            u"Nothing was stored. The Record is shown as it is now.");
    Click(P.Form6->Command7.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Surnames(u'B'), u"B001 first Surname, B002 their Surname, B003 third Surname"_s);
    EXPECT_EQ(Stored(u'B', "Notes", "B002"), u"elsewhere"_s);
}

TEST_F(CompactedCompareTest, CurrentRecordChangedSinceItWasShown_IsNotWritten_AndTold)
{
    P.Form3->Data1.Settle();
    ToCurrent();
    ChangeOutside(u'A', "UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'A002'");
    Tell(u"Record changed", u"Record A002 has been changed by another program.\n"
                            u"Nothing was stored. The Record is shown as it is now.");
    Click(P.Form6->Command7.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Stored(u'A', "Surname", "A002"), u"our Surname"_s);
    EXPECT_EQ(Stored(u'A', "Notes", "A002"), u"elsewhere"_s);
    Click(P.Form6->Command7.Click);
    EXPECT_EQ(Stored(u'A', "Surname", "A002"), u"their Surname"_s);
}

TEST_F(CompactedCompareTest, FieldNotCopiedForThatReason_GetsNoSecondBox)
{
    Search();
    ChangeOutside(u'B', "UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'B002'");
    Tell(u"Record changed", u"Record B002 has been changed by another program.\n"
                            u"Nothing was stored. The Record is shown as it is now.");
    Click(P.Form6->Command3.Click);

    EXPECT_EQ(Stored(u'B', "Surname", "B002"), u"their Surname"_s);
    Click(P.Form6->Command3.Click);
    EXPECT_EQ(Stored(u'B', "Surname", "B002"), u"our Surname"_s);
}

TEST_F(CompactedCompareTest, RecordChangedSinceItWasShown_IsShownAsItIsNow)
{
    Search();
    ASSERT_EQ(Captions(), u"Field: Surname|Field: Surname"_s);
    Machine.Clipboard.Text = u"pasted"_s;
    Click(P.Form6->Text4.Click);
    const std::pair<const Event*, QByteArray> commands[] = {
        {&P.Form6->Command3.Click, "once"}, {&P.Form6->Command7.Click, "twice"}, {&P.Form6->mnuPaste.Click, "thrice"}};
    for (const auto& [command, change] : commands) {
        ChangeOutside(u'B', "UPDATE Tree99 SET Surname = '" + change + "', Forename = '" + change +
                                " more' WHERE File = 'B002'");
        Tell(u"Record changed", u"Record B002 has been changed by another program.\n"
                                u"Nothing was stored. The Record is shown as it is now.");
        Click(*command);

        EXPECT_EQ(Texts(), u"our Surname|"_s + QString::fromLatin1(change));
        EXPECT_EQ(P.Form6->Text3.Text.value(), QString::fromLatin1(change));
        EXPECT_EQ(P.Form6->Text6.Text.value(), QString::fromLatin1(change + " more"));
        EXPECT_EQ(Captions(), u"Field: Surname|Field: Surname"_s);
        EXPECT_EQ(ShownPair(), u"A002 B002"_s);
    }
    Click(P.Form6->Command7.Click);
    EXPECT_EQ(Stored(u'B', "Surname", "B002"), u"our Surname"_s);
}

// The same files, held by another program that isn't waited for.
class LockedCompareTest : public CompactedCompareTest
{
protected:
    void GiveUp(const Event& command)
    {
        CompareRecords(P.Form6).Rest();
        const auto other = LockDatabase(u'B');
        ExpectDatabaseInUse(Answer::Cancel);
        Click(command);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
    void ExpectUnchanged()
    {
        EXPECT_EQ(Surnames(u'A'), u"A001 one Surname, A002 our Surname, A003 third Surname"_s);
        EXPECT_EQ(Surnames(u'B'), u"B001 first Surname, B002 their Surname, B003 third Surname"_s);
        EXPECT_EQ(Pair(), u"A002 B002"_s);
    }
};

TEST_F(LockedCompareTest, FieldThatIsNotCopied_GetsNoSecondBox_AndIsShownAsItIs)
{
    Click(P.Form6->Text3.Click);
    Search();

    GiveUp(P.Form6->Command3.Click);

    ExpectUnchanged();
    EXPECT_EQ(P.Form6->Text4.Text.value(), u"their Surname");
    Click(P.Form6->Command3.Click);
    EXPECT_EQ(Stored(u'B', "Surname", "B002"), u"our Surname"_s);
}

TEST_F(LockedCompareTest, FieldsThatAreNotCopied_AreCopiedTheNextTime)
{
    GiveUp(P.Form6->Command7.Click);

    ExpectUnchanged();
    Click(P.Form6->Command7.Click);
    EXPECT_EQ(Stored(u'B', "Surname", "B002"), u"our Surname"_s);
}

TEST_F(LockedCompareTest, BoxThatIsNotCutOrPastedInto_GetsItsStoredTextBack)
{
    SearchTimes(2);
    ASSERT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    Machine.Clipboard.Text = u"pasted"_s;
    for (const TextBox* box : {&P.Form6->Text3, &P.Form6->Text4})
        for (const Event* command : {&P.Form6->mnuPaste.Click, &P.Form6->mnuCut.Click}) {
            Click(box->Click);
            GiveUp(*command);
            ExpectUnchanged();
            EXPECT_EQ(CompareTest::Surnames(), u"our Surname|their Surname"_s);
            EXPECT_EQ(Texts(), u"our Forename|their Forename"_s);
            EXPECT_EQ(P.Form6->Text4.Marked.value(), TextRange(0, 4));
            Machine.Clipboard.Text = u"pasted"_s;
        }
}

TEST_F(LockedCompareTest, RecordThatIsNotAppended_IsNotShownAsIfItWere)
{
    std::unique_ptr<SqliteFile> other;
    Prompts.Expect(u"Append Record to Database.",
                   u"This Record will be Appended to the Compare\nDatabase as Z001 but will not be mapped into\n"
                   u"the Ancestral Tree Display.",
                   Buttons::Information, Answer::Ok, [&] { other = LockDatabase(u'B'); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form6->Command8.Click);

    other.reset();
    EXPECT_EQ(Surnames(u'B'), u"B001 first Surname, B002 their Surname, B003 third Surname"_s);
    EXPECT_FALSE(ShownPair().contains(u"Z001"_s));
}

TEST_F(LockedCompareTest, StepAndSearchThatAreGivenUp_LeaveTheLightOfReadiness)
{
    for (const Event* command : {&P.Form6->Command5.Click, &P.Form6->Command1.Click, &P.Form6->Command2.Click}) {
        GiveUp(*command);
        EXPECT_EQ(Light(), Ready);
    }
}

} // namespace
} // namespace lineforge
