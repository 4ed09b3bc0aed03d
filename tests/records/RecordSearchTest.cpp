#include "records/RecordSearch.h"

#include "records/RecordSearchTest.h"
#include "support/Pixels.h"

#include <QFile>

namespace lineforge
{
namespace
{

using forms::Form3;
using testing::Values;
using testing::WithParamInterface;

// What tells the four searches apart.
struct Search {
    const char* Name;
    MenuItem Form3::*Entry;
    QStringView Prompt;
    QStringView NoMatch;
    const char* Field;
};

void PrintTo(const Search& search, std::ostream* out)
{
    *out << search.Name;
}

const Search dataRefSearch{"DataRef", &Form3::mnuSearchDataRef, u"Enter the Data Reference number",
                           u"No Match Found for Data Ref: ", "File"};
const Search surnameSearch{"Surname", &Form3::mnuSearchSurName, u"Enter the Surname or partial Surname",
                           u"No Match Found for Surname: ", "Surname"};
const Search birthPlaceSearch{"BirthPlace", &Form3::mnuSearchBirthPlace, u"Enter the BirthPlace",
                              u"No Match Found for BirthPlace: ", "BirthPlace"};
const Search wordSearch{"Word", &Form3::mnuSearchWord, u"Enter the search Word or partial Word ",
                        u"No Match Found for search Word: ", "Notes"};

class AnySearchTest : public RecordSearchTest, public WithParamInterface<Search>
{
protected:
    void Answering(QStringView answer) { ExpectAnswer(GetParam().Prompt, answer); }
    void Run() { ((*P.Form3).*GetParam().Entry).Click(); }
    void ExpectNoMatchFor(QStringView answer, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        ExpectNoMatch(GetParam().NoMatch.toString() + answer, std::move(whileOpen));
    }
    void ExpectHitUnlessDataRef(Answer answer)
    {
        if (GetParam().Name != dataRefSearch.Name)
            ExpectHit(answer);
    }
    void GivenOnlyHit(const char* file) { Store(file, GetParam().Field, u"Zx9"); }
};

TEST_P(AnySearchTest, EmptyAnswer_ChangesNothing)
{
    Records(P.Form3).MoveNext();
    P.Record.sCurFile = u"before"_s;
    const Tree before = Home.Snapshot();

    Answering(u"");
    Run();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Picture(), u"red"_s);
    EXPECT_EQ(P.Record.sCurFile, u"before"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(AnySearchTest, NoMatch_IsToldWithTheAnswer_OverAnEmptyPicture_BehindTheLastRecord)
{
    Answering(u"Nobody here");
    ExpectNoMatchFor(u"Nobody here", [&] { EXPECT_EQ(Picture(), u"none"_s); });

    Run();

    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(Picture(), u"none"_s);
}

TEST_P(AnySearchTest, Hit_StaysCurrent_WithItsPicture)
{
    GivenOnlyHit("A003");
    Answering(u"Zx9");
    ExpectHitUnlessDataRef(Answer::No);

    Run();

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Peter"_s);
    const QString number = P.Form3->Label25.Caption;
    EXPECT_EQ(P.Record.sCurFile, number);
    EXPECT_EQ(P.Record.sPicFile, QString(number + u"Sub.jpg"));
}

TEST_P(AnySearchTest, CaseIsIgnored)
{
    GivenOnlyHit("A003");
    Answering(u"zX9");
    ExpectHitUnlessDataRef(Answer::No);

    Run();

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Peter"_s);
}

TEST_P(AnySearchTest, StartedOnALaterRecord_BeginsAtTheFirst)
{
    GivenOnlyHit("A001");
    Records(P.Form3).MoveLast();
    Answering(u"Zx9");
    ExpectHitUnlessDataRef(Answer::No);

    Run();

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"John"_s);
}

TEST_P(AnySearchTest, StartedBehindTheLastRecord_BeginsAtTheFirst)
{
    GivenOnlyHit("A001");
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();
    Answering(u"Zx9");
    ExpectHitUnlessDataRef(Answer::No);

    Run();

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"John"_s);
}

TEST_P(AnySearchTest, EmptyTable_HasNoMatch)
{
    GivenEmptyBranch();
    Answering(u"*");
    ExpectNoMatchFor(u"*");

    Run();

    EXPECT_TRUE(Records(P.Form3).IsEmpty());
}

TEST_P(AnySearchTest, MapShowsThePreviousSubject_UntilTree)
{
    GivenOnlyHit("A003");
    Answering(u"Zx9");
    ExpectHitUnlessDataRef(Answer::No);
    const int marker = MarkerLeft();
    const QImage map = ShownBy(P.Form1->Picture1).copy();
    Run();
    EXPECT_EQ(ShownRef(), u"Ref  A001"_s);
    EXPECT_EQ(MarkerLeft(), marker);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"red"_s);
    EXPECT_TRUE(ShownBy(P.Form1->Picture1) == map);

    if (GetParam().Name == dataRefSearch.Name)
        ExpectMissingPicture(u"Zx9Sub.Jpg");
    P.Form3->Command2.Click();

    EXPECT_EQ(ShownRef(), QString(u"Ref  " + Current()));
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Peter"_s);
}

TEST_P(AnySearchTest, WritesNothing)
{
    GivenOnlyHit("A002");
    const Tree before = Home.Snapshot();
    Answering(u"Zx9");
    ExpectHitUnlessDataRef(Answer::No);

    Run();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(AnySearchTest, TextsPending_AreWrittenIntoTheirOwnRecord)
{
    P.Form3->Text11.Text = u"typed"_s;
    Answering(u"Nobody here");
    ExpectNoMatchFor(u"Nobody here");

    Run();

    EXPECT_EQ(Stored("Notes"), u"typed"_s);
    EXPECT_EQ(Stored("Notes", "A002"), std::nullopt);
}

TEST_P(AnySearchTest, RubbishInTheDatabase_EndsTheProgram)
{
    QFile file(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(file.size(), 'x'));
    file.close();
    ExpectAnswer(GetParam().Prompt, u"Smith");
    ExpectFatalBox(u"Run-time error '3343':\n\nUnrecognized database format.",
                   u"This can't be read as a database of records:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb"));

    Click(((*P.Form3).*GetParam().Entry).Click);

    EXPECT_EQ(ExitCode(), 1);
}

INSTANTIATE_TEST_SUITE_P(Searches, AnySearchTest, Values(dataRefSearch, surnameSearch, birthPlaceSearch, wordSearch),
                         [](const auto& search) { return search.param.Name; });

using DataRefSearchTest = RecordSearchTest;

TEST_F(DataRefSearchTest, LowerCase_FindsTheUpperCaseNumber_AndAsksNothing)
{
    SearchDataRef(u"a002");

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Picture(), u"green"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A002"_s);
    EXPECT_EQ(P.Record.sPicFile, u"A002Sub.jpg"_s);
}

TEST_F(DataRefSearchTest, NumberTwice_TheFirstIsFound)
{
    Store("A003", "File", u"A002");

    SearchDataRef(u"A002");

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Mary"_s);
}

TEST_F(DataRefSearchTest, WholeValueCounts_WildcardsAndPartsFindNothing)
{
    for (const QStringView answer : {u"A00", u"A00?", u"*", u"A002 ", u" A002", u"[A]002", u"A0#2", u"no number"}) {
        ExpectAnswer(u"Enter the Data Reference number", answer);
        ExpectNoMatch(u"No Match Found for Data Ref: "_s + answer);
        P.Form3->mnuSearchDataRef.Click();
        EXPECT_TRUE(Records(P.Form3).Eof());
        EXPECT_EQ(P.Record.sCurFile, answer.toString());
    }
}

TEST_F(DataRefSearchTest, NullNumber_IsPassedOver)
{
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("UPDATE Tree99 SET File = NULL WHERE File = 'A001'");

    SearchDataRef(u"A002");

    EXPECT_EQ(Current(), u"A002"_s);
}

class PatternSearchTest : public AnySearchTest
{
protected:
    void GivenEveryoneMatches()
    {
        for (const char* file : {"A001", "A002", "A003"})
            Store(file, GetParam().Field, u"Zx9 and more");
    }
};

TEST_P(PatternSearchTest, Yes_GoesOnToTheNextHit)
{
    GivenEveryoneMatches();
    QStringList hits;
    const auto note = [&] { hits += Current(); };
    Answering(u"zx9");
    ExpectHit(Answer::Yes, note);
    ExpectHit(Answer::No, note);

    Run();

    EXPECT_EQ(hits, QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Picture(), u"green"_s);
}

TEST_P(PatternSearchTest, YesToTheLastHit_IsToldThatNothingMatched_AndEndsBehindTheLastRecord)
{
    GivenEveryoneMatches();
    Answering(u"zx9");
    for (int hit = 0; hit < 3; ++hit)
        ExpectHit(Answer::Yes);
    ExpectNoMatchFor(u"zx9", [&] { EXPECT_EQ(Picture(), u"none"_s); });

    Run();

    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(P.Record.sCurFile, u"*zx9*"_s);
}

TEST_P(PatternSearchTest, No_LeavesTheHitDisplayed)
{
    GivenEveryoneMatches();
    Answering(u"more");
    ExpectHit(Answer::No);

    Run();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A001"_s);
}

TEST_P(PatternSearchTest, HitWithoutPicture_ShowsNone_AndGoesOn)
{
    GivenOnlyHit("A002");
    RemovePicture(u"A002");
    Answering(u"Zx9");
    ExpectHit(Answer::No);

    Run();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Picture(), u"none"_s);
}

TEST_P(PatternSearchTest, HitWhosePictureIsNone_ShowsNone)
{
    GivenOnlyHit("A002");
    Home.WriteFile(u"LfgDat_A/A002Sub.jpg", "no picture");
    Answering(u"Zx9");
    ExpectHit(Answer::No);

    Run();

    EXPECT_EQ(Picture(), u"none"_s);
}

TEST_P(PatternSearchTest, PictureComesBeforeTheQuestion_ButAfterItForTheBirthPlace)
{
    GivenOnlyHit("A002");
    const bool isAfter = GetParam().Name == birthPlaceSearch.Name;
    Answering(u"Zx9");
    ExpectHit(Answer::No, [&] { EXPECT_EQ(Picture(), isAfter ? u"red"_s : u"green"_s); });

    Run();

    EXPECT_EQ(Picture(), u"green"_s);
}

TEST_P(PatternSearchTest, NoMatch_LeavesThePatternAsTheWorkString)
{
    Answering(u"Nobody");
    ExpectNoMatchFor(u"Nobody");

    Run();

    EXPECT_EQ(P.Record.sCurFile, u"*Nobody*"_s);
}

INSTANTIATE_TEST_SUITE_P(Searches, PatternSearchTest, Values(surnameSearch, birthPlaceSearch, wordSearch),
                         [](const auto& search) { return search.param.Name; });

// The picture of a hit is looked for where the last writer of the directory has left it.
TEST_F(RecordSearchTest, AfterATransportClick_TheHitHasNoPicture)
{
    P.Form3->Picture2.Click();
    P.Form3->Picture3.Click();

    SearchDataRef(u"A002");

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Picture(), u"none"_s);
}

TEST_F(RecordSearchTest, DirectoryLeftByOthers_TheHitHasNoPicture)
{
    for (const QString& directory : {P.Branch.HomeDir, P.Branch.HomeDir.chopped(1), P.Branch.WorkDir, u"LfgDat_D"_s}) {
        P.Scratch.sNewDir = directory;
        SearchDataRef(u"A002");
        EXPECT_EQ(Picture(), u"none"_s) << qUtf8Printable(directory);
    }
}

TEST_F(RecordSearchTest, NoDirectoryYet_ThePictureComesFromTheCurrentOne)
{
    ASSERT_EQ(P.Scratch.sNewDir, QString());
    ASSERT_EQ(P.Files.CurDir(), P.Branch.WorkDir);
    P.Files.ChDir(P.Branch.HomeDir);
    SearchDataRef(u"A002");
    EXPECT_EQ(Picture(), u"none"_s);

    P.Files.ChDir(P.Branch.WorkDir);
    SearchDataRef(u"A003");
    EXPECT_EQ(Picture(), u"blue"_s);
}

TEST_F(RecordSearchTest, ShowFirstRecord_GoesThere_WithItsPicture_AndTheBarOn)
{
    Records(P.Form3).MoveLast();
    P.Form3->Image1.Picture = QImage();
    P.Form3->Data1.Enabled = false;

    ShowFirstRecord(P, P.Scratch);

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(Picture(), u"red"_s);
    EXPECT_TRUE(P.Form3->Data1.Enabled);
}

} // namespace
} // namespace lineforge
