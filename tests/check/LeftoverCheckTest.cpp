#include "check/CheckTest.h"

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class LeftoverTest : public CheckTest, public testing::WithParamInterface<std::pair<QStringView, QStringView>>
{
};

TEST_P(LeftoverTest, IsTold)
{
    const auto& [path, text] = GetParam();
    home.WriteFile(path, "");
    EXPECT_EQ(Findings(), Found{Of(Kind::Leftover, path, u"", text)});
}

constexpr QStringView copy = u"left by a copy that was cut off";
constexpr QStringView start = u"left by a start that was cut off";
constexpr QStringView conversion = u"left by a conversion that was cut off";
constexpr QStringView writing = u"left by a writing that was cut off";
constexpr QStringView change =
    u"left by a change that was cut off, or that is just being made; the branch's next change sees to it";

INSTANTIATE_TEST_SUITE_P(
    Files, LeftoverTest,
    testing::Values(std::pair(u"LfgDat_A/.lineforge-x8fT2a", copy),
                    std::pair(u"LfgDat_A/LfgGal_A/.lineforge-abcdef", copy), std::pair(u".arriving-123", start),
                    std::pair(u"LfgDat_A/LfgDat_A.mdb.new", conversion),
                    std::pair(u"LfgDat_A/LfgDat_A.mdb.new-journal", conversion),
                    std::pair(u"LfgDat_A/LfgDat_A.jet.new", conversion),
                    std::pair(u"LfgDat_A/LfgDat_A.mdb-journal", change), std::pair(u"AliasList.cfg.aBcDeF", writing),
                    std::pair(u"LfgDat_A/LfgDat_A.~cf.aBcDeF", writing), std::pair(u".cfg.aBcDeF", writing),
                    std::pair(u"LfgDat_A/A001Sub.jpg.aBcDeF", writing),
                    std::pair(u"LfgDat_A/LfgGal_A/A001_05.jpg.aBcDeF", writing)));

TEST_F(LeftoverTest, OtherFilesOfAHome_AreNone)
{
    for (const QStringView path :
         {u"AliasList.bak", u".cfg", u"LfgDat_A/LfgDat_A.~cf", u"LfgDat_A/LfgDat_A.jet", u"LfgDat_A/LfgDat_A.txt",
          u"LfgDat_A/Gedcom.tmp", u"LfgDat_A/LfgDat_A.ldb", u"holiday.jpg.backup", u"a-journal-of-mine",
          u"family-journal", u"LfgDat_A/LfgDat_A.mdb.backup", u"AliasList.cfg.Backup", u"LfgDat_A/LfgDat_A.cfg.LATEST"})
        home.WriteFile(path, "");
    EXPECT_EQ(Findings(), Found());
}

} // namespace
} // namespace lineforge::check
