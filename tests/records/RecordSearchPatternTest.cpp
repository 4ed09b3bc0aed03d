#include "records/RecordSearch.h"
#include "records/RecordSearchTest.h"

namespace lineforge
{
namespace
{

using testing::Combine;
using testing::Values;
using testing::WithParamInterface;

struct PatternSearch {
    const char* Name;
    MenuItem forms::Form3::*Entry;
    QStringView Prompt;
    QStringView NoMatch;
    const char* Field; // one that it looks at
};

void PrintTo(const PatternSearch& search, std::ostream* out)
{
    *out << search.Name;
}

// An answer, and whether it finds a field of that text.
struct Answered {
    QStringView Answer;
    std::optional<QStringView> Text;
    bool Matches;
};

void PrintTo(const Answered& row, std::ostream* out)
{
    *out << qUtf8Printable(row.Answer.toString());
}

class WildcardTest : public RecordSearchTest, public WithParamInterface<std::tuple<PatternSearch, Answered>>
{
protected:
    // So that nothing else is found by the search through all fields.
    void GivenNothingIn(const std::array<QStringView, 22>& fields)
    {
        for (const QStringView field : fields)
            SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("UPDATE Tree99 SET " + field.toUtf8() + " = NULL");
        Reopen();
    }
};

TEST_P(WildcardTest, AnswerFindsTheField_OrDoesNot)
{
    const auto& [search, row] = GetParam();
    GivenNothingIn(WordFields);
    if (row.Text)
        Store("A002", search.Field, *row.Text);
    ExpectAnswer(search.Prompt, row.Answer);
    if (row.Matches)
        ExpectHit(Answer::No);
    else
        ExpectNoMatch(search.NoMatch.toString() + row.Answer);

    ((*P.Form3).*search.Entry).Click();

    EXPECT_EQ(Records(P.Form3).Eof(), !row.Matches);
    EXPECT_TRUE(!row.Matches || Current() == u"A002");
}

INSTANTIATE_TEST_SUITE_P(
    Answers, WildcardTest,
    Combine(Values(PatternSearch{"Surname", &forms::Form3::mnuSearchSurName, u"Enter the Surname or partial Surname",
                                 u"No Match Found for Surname: ", "Surname"},
                   PatternSearch{"BirthPlace", &forms::Form3::mnuSearchBirthPlace, u"Enter the BirthPlace",
                                 u"No Match Found for BirthPlace: ", "BirthPlace"},
                   PatternSearch{"Word", &forms::Form3::mnuSearchWord, u"Enter the search Word or partial Word ",
                                 u"No Match Found for search Word: ", "Notes"}),
            Values(Answered{u"mit", u"Smith", true},         // a part
                   Answered{u"S*h", u"Smith", true},         // any run
                   Answered{u"S*h", u"Smart", false},        //
                   Answered{u"Sm?th", u"Smyth", true},       // any one
                   Answered{u"Sm?th", u"Smth", false},       //
                   Answered{u"?", u"", false},               //
                   Answered{u"#", u"Smith 3rd", true},       // a digit
                   Answered{u"#", u"Smith III", false},      //
                   Answered{u"Sm[iy]th", u"Smyth", true},    // a class
                   Answered{u"Sm[a-h]th", u"Smith", false},  //
                   Answered{u"Sm[!i]th", u"Smith", false},   //
                   Answered{u"[*]", u"Smith", false},        //
                   Answered{u"[*]", u"Smith*", true},        //
                   Answered{u"[", u"Smith [twin", true},     // unclosed: itself
                   Answered{u"[", u"Smith", false},          //
                   Answered{u"h [tw", u"Smith [twin", true}, //
                   Answered{u"åland", u"ÅLANDER", true},     // beyond the plain letters
                   Answered{u"Ω", u"ω", true},               //
                   Answered{u"*", u"", true},                // empty text is text
                   Answered{u"*", std::nullopt, false},      // Null is none
                   Answered{u" ", u"Smith", false},          // blanks count
                   Answered{u"O'Hara \"x\"", u"O'Hara \"x\"", true})));

TEST(WordFieldsTest, AreTestedInThisOrder)
{
    EXPECT_THAT(WordFields,
                testing::ElementsAre(u"FatherRec", u"MotherRec", u"Surname", u"Forename", u"Nationality", u"BirthDate",
                                     u"BirthPlace", u"Spouse", u"Children", u"Education", u"Profession", u"Deceased",
                                     u"BirthCertificate", u"MarriageCertificate", u"DeathCertificate", u"Notes",
                                     u"Medical", u"Maiden", u"PrevChildren", u"Partner", u"Wedding", u"WedDate"));
}

class WordFieldTest : public RecordSearchTest, public WithParamInterface<const char*>
{
protected:
    void GivenWordIn(const char* field) { Store("A002", field, u"well, only here!"); }
    void ExpectWord(QStringView word) { ExpectAnswer(u"Enter the search Word or partial Word ", word); }
};

TEST_P(WordFieldTest, IsSearched)
{
    GivenWordIn(GetParam());
    ExpectWord(u"only here");
    ExpectHit(Answer::No);

    P.Form3->mnuSearchWord.Click();

    EXPECT_EQ(Current(), u"A002"_s);
}

INSTANTIATE_TEST_SUITE_P(Fields, WordFieldTest,
                         Values("FatherRec", "MotherRec", "Surname", "Forename", "Nationality", "BirthDate",
                                "BirthPlace", "Spouse", "Children", "Education", "Profession", "Deceased",
                                "BirthCertificate", "MarriageCertificate", "DeathCertificate", "Notes", "Medical",
                                "Maiden", "PrevChildren", "Partner", "Wedding", "WedDate"),
                         [](const auto& field) { return std::string(field.param); });

class UnsearchedFieldTest : public WordFieldTest
{
};

TEST_P(UnsearchedFieldTest, IsNotSearched)
{
    GivenWordIn(GetParam());
    ExpectWord(u"only here");
    ExpectNoMatch(u"No Match Found for search Word: only here"_s);

    P.Form3->mnuSearchWord.Click();
}

INSTANTIATE_TEST_SUITE_P(Fields, UnsearchedFieldTest, Values("File", "Gender", "SpouseRec"),
                         [](const auto& field) { return std::string(field.param); });

// The parents' numbers come before the names, the first record that has the word anywhere before the next.
TEST_F(RecordSearchTest, WordA_FindsEveryRecordThatHasTheLetter_InTheOrderOfTheTable)
{
    Store("A001", "Surname", u"Smith");
    Store("A001", "Wedding", u"Paris");
    Store("A002", "Forename", u"Lily");
    Store("A002", "Surname", u"Jones");
    Store("A003", "MotherRec", u"A009");
    ExpectAnswer(u"Enter the search Word or partial Word ", u"a");
    QStringList hits;
    const auto note = [&] { hits += Current(); };
    ExpectHit(Answer::Yes, note);
    ExpectHit(Answer::Yes, note);
    ExpectNoMatch(u"No Match Found for search Word: a"_s);

    P.Form3->mnuSearchWord.Click();

    EXPECT_EQ(hits, QStringList({u"A001"_s, u"A003"_s}));
}

TEST_F(RecordSearchTest, WordA_FindsTheLetterOfAFathersNumber)
{
    Store("A002", "Forename", u"Lily");
    Store("A003", "FatherRec", u"A009");
    ExpectAnswer(u"Enter the search Word or partial Word ", u"a");
    ExpectHit(Answer::No);

    P.Form3->mnuSearchWord.Click();

    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(RecordSearchTest, WordInTwoFieldsOfARecord_IsOneHit)
{
    Store("A002", "Notes", u"Zx9");
    Store("A002", "Medical", u"Zx9");
    ExpectAnswer(u"Enter the search Word or partial Word ", u"Zx9");
    ExpectHit(Answer::Yes);
    ExpectNoMatch(u"No Match Found for search Word: Zx9"_s);

    P.Form3->mnuSearchWord.Click();
}

} // namespace
} // namespace lineforge
