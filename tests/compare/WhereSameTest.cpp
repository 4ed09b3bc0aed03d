#include "compare/WhereSame.h"

#include "compare/CompareTest.h"
#include "compare/KeyIndex.h"
#include "platform/base/Text.h"

#include <random>

namespace lineforge
{
namespace
{

class WhereSameTest : public CompareTest
{
protected:
    static Fields Person(QStringView file, QStringView surname, QStringView born = u"")
    {
        return {{u"File", file}, {u"Surname", surname}, {u"Forename", file}, {u"BirthDate", born}};
    }
    void Tick(bool number, bool surname, bool birth)
    {
        P.Form6->Check1.Value = number;
        P.Form6->Check2.Value = surname;
        P.Form6->Check3.Value = birth;
    }
};

TEST_F(WhereSameTest, Boxes_MakeTheMask)
{
    GivenComparison({Person(u"A001", u"Smith", u"1901")}, {Person(u"A001", u"Smith", u"1901")});
    for (int mask = 0; mask <= 14; mask += 2) {
        Tick(mask & 2, mask & 4, mask & 8);
        Reset();
        if (mask == 0)
            ExpectEndOfRecords();
        Search();
        EXPECT_EQ(P.Compare.SearchMask, mask);
        EXPECT_EQ(State(), mask == 0 ? 0 : 1) << mask;
    }
}

struct Keys {
    const char* Name;
    bool Number;
    bool Surname;
    bool Birth;
    QStringView Found; // the compare record that agrees with A001 Smith 1901
};
class MaskTest : public WhereSameTest, public testing::WithParamInterface<Keys>
{
};

TEST_P(MaskTest, PairAgreesOnAllThatIsTicked)
{
    GivenComparison({Person(u"A001", u"Smith", u"1901")},
                    {Person(u"B001", u"Brown", u"1900"), Person(u"B002", u"Brown", u"1901"),
                     Person(u"B003", u"SMITH", u"1900"), Person(u"B004", u"smith", u"1901"),
                     Person(u"a001", u"Brown", u"1902"), Person(u"A001", u"Brown", u"1901"),
                     Person(u"A001", u"Smith", u"1903"), Person(u"A001", u"Smith", u"1901")});
    Tick(GetParam().Number, GetParam().Surname, GetParam().Birth);
    Search();
    EXPECT_EQ(State(), ComparePair::InHand);
    EXPECT_EQ(CompareRecords(P.Form6).Text(u"File") + u' ' + CompareRecords(P.Form6).Text(u"Surname") + u' ' +
                  CompareRecords(P.Form6).Text(u"BirthDate"),
              GetParam().Found.toString());
}

std::string NameOf(const testing::TestParamInfo<Keys>& keys)
{
    return keys.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Masks, MaskTest,
                         testing::Values(Keys{"Number", true, false, false, u"a001 Brown 1902"},
                                         Keys{"Surname", false, true, false, u"B003 SMITH 1900"},
                                         Keys{"NumberAndSurname", true, true, false, u"A001 Smith 1903"},
                                         Keys{"BirthDate", false, false, true, u"B002 Brown 1901"},
                                         Keys{"NumberAndBirthDate", true, false, true, u"A001 Brown 1901"},
                                         Keys{"SurnameAndBirthDate", false, true, true, u"B004 smith 1901"}),
                         NameOf);

// The pair is alike in all fields, so that they are walked in the same press.
TEST_F(WhereSameTest, AllTicked_FindTheOneThatAgreesInAll)
{
    GivenComparison({Person(u"A001", u"Smith", u"1901")},
                    {Person(u"A001", u"Smith", u"1902"), Person(u"A001", u"Smith", u"1901")});
    Tick(true, true, true);
    Search();
    EXPECT_EQ(CompareRecords(P.Form6).Text(u"BirthDate"), u"1901"_s);
    EXPECT_EQ(State(), ComparePair::Walked);
}

TEST_F(WhereSameTest, Match_ShowsThePair_AndItsFirstDifference)
{
    GivenComparison({Person(u"A001", u"Smith"), Person(u"A002", u"Jones")},
                    {Person(u"B001", u"Brown"), Person(u"B002", u"Jones")});
    Tick(false, true, false);
    Search();
    EXPECT_EQ(ShownPair(), u"A002 B002"_s);
    EXPECT_EQ(Pictures(), u"A002 B002"_s);
    EXPECT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    EXPECT_EQ(State(), ComparePair::InHand);
    EXPECT_EQ(Light(), Found);
}

TEST_F(WhereSameTest, EmptySurnames_NeverPair)
{
    GivenComparison({Person(u"A001", u""), {{u"File", u"A002"}, {u"Forename", u"x"}}},
                    {Person(u"B001", u""), {{u"File", u"B002"}, {u"Forename", u"x"}}});
    Tick(false, true, false);
    ExpectEndOfRecords();
    Search();
    EXPECT_EQ(State(), ComparePair::Ended);
    EXPECT_EQ(Captions(), u"End of Records search |End of Records search"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(Light(), Busy);
    EXPECT_EQ(Pair(), u"end B001"_s);
}

TEST_F(WhereSameTest, AfterTheEnd_APressOnlySetsTheButton_UntilReset)
{
    GivenComparison({Person(u"A001", u"Smith")}, {Person(u"B001", u"Jones")});
    Tick(false, true, false);
    ExpectEndOfRecords();
    Search();
    Search();
    EXPECT_EQ(State(), ComparePair::Ended);
    EXPECT_EQ(Light(), Busy);
    EXPECT_EQ(Captions(), u"End of Records search |End of Records search"_s);
    Reset();
    EXPECT_EQ(State(), ComparePair::None);
    EXPECT_EQ(Pair(), u"A001 B001"_s);
}

TEST_F(WhereSameTest, EndOfFields_EndsThePress_AndTheNextMovesOn)
{
    GivenComparison({Person(u"A001", u"Smith")}, {Person(u"B001", u"Smith"), Person(u"B002", u"Smith")});
    Tick(false, true, false);
    Search();
    EXPECT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    Search();
    EXPECT_EQ(Captions(), u"End of Fields this Record|End of Fields this Record"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(State(), ComparePair::Walked);
    EXPECT_EQ(Light(), Found);
    EXPECT_EQ(Pair(), u"A001 B001"_s);
    Search();
    EXPECT_EQ(Pair(), u"A001 B002"_s);
    EXPECT_EQ(State(), ComparePair::InHand);
}

TEST_F(WhereSameTest, WalkedLastPair_EndsAtTheCurrentRecords)
{
    GivenComparison({Person(u"A001", u"Smith")}, {Person(u"B001", u"Smith")});
    Tick(false, true, false);
    SearchTimes(2);
    ExpectEndOfCurrent();
    Search();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
    EXPECT_EQ(Light(), Busy);
    EXPECT_EQ(Texts(), u"|"_s);
    Search();
    EXPECT_EQ(Light(), Busy);
}

TEST_F(WhereSameTest, WalkedPairWhoseCurrentBranchHasRunOut_EndsAtTheCurrentRecords)
{
    GivenComparison({Person(u"A001", u"Smith")}, {Person(u"B001", u"Smith"), Person(u"B002", u"Smith")});
    Tick(false, true, false);
    SearchTimes(2);
    ASSERT_EQ(State(), ComparePair::Walked);
    Records(P.Form3).MoveNext();
    ExpectEndOfCurrent();
    Search();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

TEST_F(WhereSameTest, ComparedRecordsThatHaveGone_EndAtTheCompareRecords)
{
    GivenComparison({Person(u"A001", u"Smith"), Person(u"A002", u"Smith")}, {Person(u"B001", u"Smith")});
    Tick(false, true, false);
    SearchTimes(2);
    ChangeOutside(u'B', "DELETE FROM Tree99");
    ExpectEndOfCompare();
    Search();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

// The pairs of the double loop, in its order, by the plain loop itself.
std::vector<std::pair<int, int>> PairsByLoop(const std::vector<QStringList>& current,
                                             const std::vector<QStringList>& compare)
{
    std::vector<std::pair<int, int>> pairs;
    for (std::size_t c = 0; c < current.size(); ++c)
        for (std::size_t k = 0; k < compare.size(); ++k) {
            bool agrees = true;
            for (qsizetype key = 0; key < current[c].size(); ++key)
                agrees = agrees && !current[c][key].isEmpty() && SameText(current[c][key], compare[k][key]);
            if (agrees)
                pairs.emplace_back(static_cast<int>(c), static_cast<int>(k));
        }
    return pairs;
}

class PairsTest : public WhereSameTest, public testing::WithParamInterface<unsigned>
{
};

TEST_P(PairsTest, AreThoseOfTheDoubleLoop_InItsOrder)
{
    std::mt19937 random(GetParam());
    const QStringList names{u"Smith"_s, u"SMITH"_s, u"Jones"_s, u""_s, u"Straße"_s, u"STRASSE"_s, u"Éva"_s, u"éva"_s};
    const auto people = [&](QChar letter) {
        std::vector<Fields> records;
        std::vector<QStringList> keys;
        const int count = 1 + static_cast<int>(random() % 9);
        for (int number = 1; number <= count; ++number) {
            const QString surname = names.at(static_cast<qsizetype>(random() % 8));
            const QString born = random() % 3 == 0 ? QString() : QString::number(1900 + random() % 2);
            records.push_back(Person(QString(letter + u"%1"_s.arg(number, 3, 10, QChar(u'0'))), surname, born));
            keys.push_back({surname, born});
        }
        return std::pair(records, keys);
    };
    const auto [current, currentKeys] = people(u'A');
    const auto [compare, compareKeys] = people(u'B');
    GivenComparison(current, compare);
    Tick(false, true, true);

    const auto pairs = PairsByLoop(currentKeys, compareKeys);
    for (const auto& [c, k] : pairs) {
        Search();
        EXPECT_EQ(Pair(), QString(u"A%1 B%2"_s.arg(c + 1, 3, 10, QChar(u'0')).arg(k + 1, 3, 10, QChar(u'0'))));
        // The forenames differ, since they are the numbers.
        EXPECT_EQ(State(), ComparePair::InHand);
        while (State() == 2)
            Search();
    }
    const std::pair last(static_cast<int>(current.size()) - 1, static_cast<int>(compare.size()) - 1);
    if (!pairs.empty() && pairs.back() == last)
        ExpectEndOfCurrent();
    else
        ExpectEndOfRecords();
    Search();
    EXPECT_TRUE(Records(P.Form3).Eof());
}

INSTANTIATE_TEST_SUITE_P(Seeds, PairsTest, testing::Range(0U, 40U));

} // namespace
} // namespace lineforge
