#include "Architecture.h"

#include <gtest/gtest.h>

namespace lineforge::architecture
{
namespace
{

// The program's own sources.
class ArchitectureTest : public testing::Test
{
protected:
    static void ExpectNone(const QStringList& findings)
    {
        EXPECT_TRUE(findings.isEmpty()) << qUtf8Printable(findings.join(u'\n'));
    }

    const Sources sources = ReadSources(QStringLiteral(LINEFORGE_SOURCES));
};

TEST_F(ArchitectureTest, Sources_AreFound)
{
    // A check of nothing would find nothing wrong.
    EXPECT_TRUE(sources.contains(QStringLiteral("platform/controls/Window.h")));
    EXPECT_TRUE(sources.contains(QStringLiteral("forms/Form1.h")));
    EXPECT_GT(sources.size(), 40);
}

TEST_F(ArchitectureTest, BehaviourNamesNoWidgets)
{
    ExpectNone(WidgetsBelowTheLine(sources));
}

TEST_F(ArchitectureTest, IncludesGoDownTheTower)
{
    ExpectNone(IncludesAgainstTheTower(sources));
}

TEST_F(ArchitectureTest, IncludesLeadSomewhere)
{
    ExpectNone(DanglingIncludes(sources));
}

TEST_F(ArchitectureTest, NoFilesIncludeEachOtherInACircle)
{
    ExpectNone(CirclesOfFiles(sources));
}

TEST_F(ArchitectureTest, NoUnitsIncludeEachOtherInACircle)
{
    ExpectNone(CirclesOfUnits(sources));
}

TEST_F(ArchitectureTest, NoRoomsIncludeEachOtherInACircle)
{
    ExpectNone(CirclesOfRooms(sources));
}

TEST_F(ArchitectureTest, NoWingsIncludeEachOtherInACircle)
{
    ExpectNone(CirclesOfWings(sources));
}

TEST(RoomsTest, EachUsesOnlyWhatStandsBeforeIt)
{
    EXPECT_EQ(RoomsThatUseWhatIsAbove(), QStringList());
}

} // namespace
} // namespace lineforge::architecture
