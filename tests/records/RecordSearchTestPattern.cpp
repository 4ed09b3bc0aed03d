#include "records/RecordSearchTest.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

// An answer, and whether it finds a surname.
struct Answered {
    QStringView Answer;
    std::optional<QStringView> Surname;
    bool Matches;
};

void PrintTo(const Answered& row, std::ostream* out)
{
    *out << qUtf8Printable(row.Answer.toString());
}

class WildcardTest : public RecordSearchTest, public WithParamInterface<Answered>
{
};

TEST_P(WildcardTest, AnswerFindsTheSurname_OrDoesNot)
{
    const Answered& row = GetParam();
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("UPDATE Tree99 SET Surname = NULL");
    Reopen();
    if (row.Surname)
        Store("A002", "Surname", *row.Surname);
    ExpectAnswer(u"Enter the Surname or partial Surname", row.Answer);
    if (row.Matches)
        ExpectHit(Answer::No);
    else
        ExpectNoMatch(u"No Match Found for Surname: "_s + row.Answer);

    P.Form3->mnuSearchSurName.Click();

    EXPECT_EQ(Records(P).Eof(), !row.Matches);
    EXPECT_TRUE(!row.Matches || Current() == u"A002");
}

INSTANTIATE_TEST_SUITE_P(Answers, WildcardTest,
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
                                Answered{u"O'Hara \"x\"", u"O'Hara \"x\"", true}));

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
