#include "map/subjects/SubjectMappingTest.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form7;
using testing::Values;
using testing::ValuesIn;
using testing::WithParamInterface;

TEST_F(SubjectMappingTest, NewRecord_IsAdded_AndTheBoxHoldsIt)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"A002"_s);
    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_EQ(GendersOf(BranchA), QStringList({u"Female"_s, u"Male"_s}));
    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,A002,,2000,500,0,A001,,3000,500,0,0,,"));
    EXPECT_EQ(P.Mapping.NewFile, u"A002"_s);
    EXPECT_EQ(P.Mapping.sBranchLetter, u"A"_s);
}

TEST_F(SubjectMappingTest, NewRecord_IsShownInTheRecordForm_AndTheMappingStaysPending)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();

    DoubleClickBox(0);

    const forms::Form3& form = *P.Form3;
    EXPECT_TRUE(form.Visible);
    EXPECT_EQ(form.Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(form.Text23.Text.value(), u"Male"_s);
    EXPECT_EQ(form.Text3.Text.value(), QString());
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_TRUE(P.Form1->Image1.Visible);
    EXPECT_TRUE(Marker.Visible);
}

TEST_F(SubjectMappingTest, TheReturnFromTheRecordForm_EndsTheMapping)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();
    DoubleClickBox(0);

    P.Form3->Command2.Click();

    ExpectNothingPending();
    EXPECT_EQ(FileOf(0), u"A002"_s);
    EXPECT_TRUE(IsMarkerOnBox(0));
}

TEST_F(SubjectMappingTest, NoGenderEverChosen_TheNewRecordHasNone)
{
    GivenRecords({u"A001"_s});
    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();

    DoubleClickBox(0);

    EXPECT_EQ(GendersOf(BranchA), QStringList({u"Female"_s, u""_s}));
}

TEST_F(SubjectMappingTest, TwoMappings_GiveTwoNumbers)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();
    DoubleClickBox(0);
    ChooseNewRecord();

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(0), u"A002"_s);
    EXPECT_EQ(FileOf(2), u"A003"_s);
    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
}

TEST_F(SubjectMappingTest, BoxWhoseRecordIsGone_GetsTheNewRecord)
{
    GivenRecords({u"A001"_s});
    GivenBox(2, {3000, 500}, u"A009");
    ChooseNewRecord();

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(2), u"A002"_s);
    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,A001,,3000,500,0,A002,,"));
}

TEST_F(SubjectMappingTest, BoxThatKnewAnotherForename_ForgetsItWithTheNumber)
{
    GivenRecords({u"A001"_s});
    GivenBox(2, {3000, 500}, u"A009");
    P.Map.BoxArr[2][BoxColumn::Forename] = u"Gone"_s;
    ChooseNewRecord();

    DoubleClickBox(2);

    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,A001,,3000,500,0,A002,,"));
}

TEST_F(SubjectMappingTest, BesideAllBoxes_NothingHappens_AndTheMappingStaysPending)
{
    GivenRecords({u"A001"_s});
    const Tree before = Home.Snapshot();
    ChooseNewRecord();

    DoubleClick(Nowhere);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_FALSE(P.Form3->Visible);
    ExpectStillPending();
}

TEST_F(SubjectMappingTest, DoubleClickOnAnEmptyBox_NoMappingPending_DoesNothing)
{
    GivenRecords({u"A001"_s});
    const Tree before = Home.Snapshot();

    DoubleClickBox(0);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(0), u"0"_s);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_F(SubjectMappingTest, BoxBeyondRow99_IsWrittenToTheArray_ButNotToTheFile)
{
    GivenRecords({u"A001"_s});
    GivenBox(100, {5000, 5000});
    P.Map.SBoxes = 100;
    ChooseNewRecord();

    DoubleClickBox(100);

    EXPECT_EQ(FileOf(100), u"A002"_s);
    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_EQ(MapBytes(), MapWith(UntouchedBoxes));
}

TEST_F(SubjectMappingTest, BoxInRow99_IsWrittenToTheFile)
{
    GivenRecords({u"A001"_s});
    GivenBox(99, {5000, 5000});
    P.Map.SBoxes = 99;
    ChooseNewRecord();

    DoubleClickBox(99);

    EXPECT_EQ(MapBytes(), MapWith(QString(UntouchedBoxes + u"5000,5000,0,A002,,")));
}

class FirstRecordTest : public SubjectMappingTest
{
protected:
    FirstRecordTest()
    {
        GivenRecords({});
        GivenBox(1, {2000, 500});
    }
};

TEST_F(FirstRecordTest, EmptyBranch_GivesA001)
{
    ChooseNewRecord();

    DoubleClickBox(1);

    EXPECT_EQ(FileOf(1), u"A001"_s);
    EXPECT_EQ(FilesOf(BranchA), QStringList{u"A001"_s});
    EXPECT_EQ(GendersOf(BranchA), QStringList{u"Male"_s});
    EXPECT_EQ(MapBytes(), MapWith(UntouchedBoxes));
    EXPECT_EQ(PictureOf(u"A001"), Portrait);
    EXPECT_EQ(P.Mapping.NewFile, u"A001"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
}

TEST_F(FirstRecordTest, EmptyBranch_GivesA001_EvenWithOption2Chosen)
{
    Choose(&Form7::Option2, u"A555");

    DoubleClickBox(1);

    EXPECT_EQ(FileOf(1), u"A001"_s);
    EXPECT_EQ(FilesOf(BranchA), QStringList{u"A001"_s});
    EXPECT_EQ(GendersOf(BranchA), QStringList{u"Male"_s});
}

TEST_F(FirstRecordTest, EmptyBranch_GivesA001_EvenWithOption3Chosen)
{
    Choose(&Form7::Option3, u"B002");

    DoubleClickBox(1);

    EXPECT_EQ(FileOf(1), u"A001"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Mapping.MapOption, 0);
}

TEST_F(FirstRecordTest, BesideAllBoxes_TheRecordIsMade_AndNoBoxOfTheFileHoldsIt)
{
    ChooseNewRecord();

    DoubleClick(Nowhere);

    EXPECT_EQ(FilesOf(BranchA), QStringList{u"A001"_s});
    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,0,,"));
}

TEST_F(FirstRecordTest, OtherBranch_GivesItsOwnLetter)
{
    GivenOpen(BranchBuilder(Home, u'C').InDirectory(u"LfgDat_C"));
    ChooseNewRecord();

    DoubleClickBox(1);

    EXPECT_EQ(FileOf(1), u"C001"_s);
}

TEST_F(FirstRecordTest, SecondMapping_GivesA002)
{
    ChooseNewRecord();
    DoubleClickBox(1);
    ChooseNewRecord();

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"A002"_s);
}

// The records in their stored order, and the number that the next new one is given.
struct Numbering {
    QStringList Stored;
    QString Next;
};

void PrintTo(const Numbering& numbering, std::ostream* out)
{
    *out << numbering.Stored.first().toStdString() << " to " << numbering.Stored.last().toStdString() << " give "
         << numbering.Next.toStdString();
}

QStringList NumbersUpTo(int last)
{
    QStringList files;
    for (int number = 1; number <= last; ++number)
        files.push_back(u'A' + QString::number(number).rightJustified(3, u'0'));
    return files;
}

const Numbering numberings[] = {
    {{u"A001"_s}, u"A002"_s},
    {{u"A002"_s}, u"A001"_s},
    {{u"A001"_s, u"A002"_s, u"A004"_s}, u"A003"_s},
    // Numbers that don't rise are given twice.
    {{u"A002"_s, u"A001"_s}, u"A002"_s},
    {{u"A003"_s, u"A001"_s, u"A002"_s}, u"A003"_s},
    {{u"A001"_s, u"A003"_s, u"A002"_s}, u"A003"_s},
    // What is no number of this branch stands in no number's way.
    {{u"B001"_s, u"A001"_s}, u"A002"_s},
    {{u""_s, u"A001"_s}, u"A002"_s},
    {{u"A1"_s}, u"A001"_s},
    // Zeros on the left up to 99, and a fifth character from 1000.
    {NumbersUpTo(8), u"A009"_s},
    {NumbersUpTo(9), u"A010"_s},
    {NumbersUpTo(98), u"A099"_s},
    {NumbersUpTo(99), u"A100"_s},
    {NumbersUpTo(999), u"A1000"_s},
    {NumbersUpTo(1000), u"A1001"_s},
};

class NumberingTest : public SubjectMappingTest, public WithParamInterface<Numbering>
{
};

TEST_P(NumberingTest, FirstGapInStoredOrder)
{
    GivenRecords(GetParam().Stored);
    ChooseNewRecord();

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), GetParam().Next);
    EXPECT_EQ(FilesOf(BranchA), GetParam().Stored + QStringList{GetParam().Next});
    EXPECT_EQ(P.Mapping.NewFile, GetParam().Next);
    EXPECT_EQ(Current(), GetParam().Next);
    EXPECT_EQ(PictureOf(GetParam().Next), Portrait);
}

INSTANTIATE_TEST_SUITE_P(Stored, NumberingTest, ValuesIn(numberings));

class UnmappedRecordTest : public SubjectMappingTest
{
protected:
    UnmappedRecordTest() { GivenRecords({u"A001"_s, u"A002"_s, u"A003"_s}); }
};

TEST_F(UnmappedRecordTest, BoxHoldsIt_WithItsForename)
{
    Choose(&Form7::Option2, u"A002");

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"A002"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Forename].Text(), u"NA002"_s);
    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,A002,NA002,2000,500,0,A001,,3000,500,0,0,,"));
}

TEST_F(UnmappedRecordTest, NoRecordIsAddedOrChanged)
{
    Choose(&Form7::Option2, u"A002");

    DoubleClickBox(0);

    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
    EXPECT_EQ(GendersOf(BranchA), QStringList({u"Female"_s, u"Female"_s, u"Female"_s}));
}

TEST_F(UnmappedRecordTest, IsShownInTheRecordForm_AndTheMappingStaysPending)
{
    Choose(&Form7::Option2, u"A002");

    DoubleClickBox(0);

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(P.Form3->Text23.Text.value(), u"Female"_s);
    EXPECT_EQ(P.Mapping.NewFile, u"A002"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(UnmappedRecordTest, NumberInSmallLetters_IsFound)
{
    Choose(&Form7::Option2, u"a003");

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"a003"_s);
    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(UnmappedRecordTest, RecordThatHasABox_IsMappedASecondTime)
{
    Choose(&Form7::Option2, u"A001");

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(FileOf(1), u"A001"_s);
}

TEST_F(UnmappedRecordTest, AfterAMappingWithOption2_TheNextOkTakesItAgain)
{
    Choose(&Form7::Option2, u"A002");
    DoubleClickBox(0);
    ASSERT_EQ(P.Mapping.MapOption, 0);

    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();

    EXPECT_EQ(P.Mapping.MapOption, 1);
}

TEST_F(UnmappedRecordTest, WithoutAnotherOk_TheNextMappingIsANewRecord)
{
    Choose(&Form7::Option2, u"A002");
    DoubleClickBox(0);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(2), u"A004"_s);
}

TEST_F(UnmappedRecordTest, UnknownNumber_IsTold_AndTheMappingEnds)
{
    Choose(&Form7::Option2, u"A009");
    ExpectNotPresent(u"Record not Found: A009");

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"0"_s);
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(FilesOf(BranchA).size(), 3);
    EXPECT_FALSE(HasPicture(u"A009"));
    EXPECT_EQ(P.Mapping.NewFile, QString());
    EXPECT_TRUE(P.Form3->Visible);
    ExpectNothingPending();
}

struct WrongNumber {
    OptionButton Form7::*Option;
    QStringView Text;
};

void PrintTo(const WrongNumber& number, std::ostream* out)
{
    *out << (number.Option == &Form7::Option2 ? "unmapped '" : "of another branch '")
         << number.Text.toString().toStdString() << "'";
}

class WrongNumberTest : public SubjectMappingTest, public WithParamInterface<WrongNumber>
{
};

TEST_P(WrongNumberTest, ANumberOfOtherThanFourCharacters_OrThatABoxCannotHold_IsRefused)
{
    GivenRecords({u"A001"_s, u"A002"_s});
    const Tree before = Home.Snapshot();
    P.Form3->Image1.Picture = QImage(3, 3, QImage::Format_RGB32);
    Choose(GetParam().Option, GetParam().Text);
    ExpectNotPresent(QString(u"Incorrect Record Number " + GetParam().Text));

    DoubleClickBox(0);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(0), u"0"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_TRUE(P.Form3->Image1.Picture.value().isNull());
    ExpectNothingPending();
}

INSTANTIATE_TEST_SUITE_P(Texts, WrongNumberTest,
                         Values(WrongNumber{&Form7::Option2, u""}, WrongNumber{&Form7::Option2, u"A02"},
                                WrongNumber{&Form7::Option2, u"A0022"}, WrongNumber{&Form7::Option3, u""},
                                WrongNumber{&Form7::Option3, u"B02"}, WrongNumber{&Form7::Option3, u"B0022"},
                                // Each of these would break the map file.
                                WrongNumber{&Form7::Option2, u"A,02"}, WrongNumber{&Form7::Option2, u"A[02"},
                                WrongNumber{&Form7::Option3, u"B,01"}, WrongNumber{&Form7::Option3, u"B[01"},
                                WrongNumber{&Form7::Option3, u"B\r01"}, WrongNumber{&Form7::Option3, u"B\n01"},
                                WrongNumber{&Form7::Option3, u",B01"}, WrongNumber{&Form7::Option3, u"B01["}));

} // namespace
} // namespace lineforge
