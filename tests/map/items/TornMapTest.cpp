#include "map/MapTest.h"
#include "map/subjects/EnterBranch.h"

// A map of which only a part is left. It is told when it is read, and whatever is saved of it, the generation before it
// stays.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;

class MapGenerationTest : public MapTest
{
protected:
    MapGenerationTest()
    {
        GivenOpen(BranchA);
        Home.WriteFile(beforeIt, "the map before");
    }

    static QByteArray MapWithText(QStringView text)
    {
        return MapFileBytes(u"LfgDat_A", u"1200,600,255,A001,John,", u"1507,817,2307,817,0,",
                            QString(u"300,150," + text + u",Arial,8,0,"));
    }

    void GivenMapFile(const QByteArray& bytes) { Home.WriteFile(file, bytes); }
    // It will be missed at the opening.
    void GivenNoMapFile()
    {
        P.Files.Kill(Home.Path(file));
        Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                       Buttons::Information);
    }

    void ExpectWarning(QStringView text)
    {
        Prompts.Expect(u"Box Config File record corrupt", text, Buttons::Information);
    }

    // As when the branch is opened.
    void Open()
    {
        ForgetMap(P.Map, P.Mouse, P.Tools);
        DrawBranchMap(P);
    }

    QByteArray Before() const { return Home.ReadFile(beforeIt); }

    static constexpr QStringView file = u"LfgDat_A/LfgDat_A.cfg";
    const QByteArray whole = MapWithText(u"The Smiths");
    static constexpr QStringView beforeIt = u"LfgDat_A/LfgDat_A.~cf";
};

TEST_F(MapGenerationTest, WholeMap_BecomesTheGenerationBefore)
{
    GivenMapFile(whole);
    Open();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), whole);
}

TEST_F(MapGenerationTest, MapOfTemplates_BecomesTheGenerationBefore)
{
    const QByteArray fresh = MapFileBytes(u"LfgDat_A", u"0,0,0,", u"0,0,0,", u"0,0,0,");
    GivenMapFile(fresh);
    Open();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), fresh);
}

struct Torn {
    const char* What;
    QByteArray Left;
    QStringView Warning;
};

void PrintTo(const Torn& torn, std::ostream* out)
{
    *out << torn.What;
}

class TornMapTest : public MapGenerationTest, public testing::WithParamInterface<Torn>
{
};

TEST_P(TornMapTest, IsTold_AndTheGenerationBeforeStays_HoweverOftenItIsSaved)
{
    GivenMapFile(GetParam().Left);
    if (!GetParam().Warning.isEmpty())
        ExpectWarning(GetParam().Warning);

    Open();
    SaveBoxes(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    Prompts.Verify();
    EXPECT_EQ(Before(), "the map before");
}

TEST_P(TornMapTest, AfterAWholeOneHasBeenRead_GenerationsGoOn)
{
    GivenMapFile(GetParam().Left);
    if (!GetParam().Warning.isEmpty())
        ExpectWarning(GetParam().Warning);
    Open();
    GivenMapFile(whole);
    Open();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), whole);
}

INSTANTIATE_TEST_SUITE_P(
    Maps, TornMapTest,
    Values(Torn{"nothing", "", u"Config Box Record empty"},
           Torn{"cut off before the boxes", "This File Contains\r\n[LfgDat_A]\r\n[Bo", u"Config Box Record empty"},
           Torn{"cut off at the first box", "[Boxes]\r\n", u"Config Box Record empty"},
           Torn{"cut off in the boxes", "[Boxes]\r\n1200,600,255,A001,Jo", u"Config Line Record empty"},
           Torn{"cut off between the lists", "[Boxes]\r\n1200,600,255,A001,John,\r\n[Lin", u"Config Line Record empty"},
           Torn{"cut off in the lines", "[Boxes]\r\n1200,600,255,A001,John,\r\n[Lines]\r\n1507,817,",
                u"Config Text Record empty"},
           Torn{"cut off in a text",
                "[Boxes]1200,600,255,A001,John,[Lines]1507,817,2307,817,0,[Text]\r\n300,150,The Sm",
                {}}),
    [](const auto& tested) { return QByteArray(tested.param.What).replace(' ', '_').toStdString(); });

TEST_F(MapGenerationTest, MapThatIsNotThere_TheGenerationBeforeStays)
{
    GivenNoMapFile();

    Open();
    SaveBoxes(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), "the map before");
}

// A disk that comes late, or a program that puts files in place anew.
TEST_F(MapGenerationTest, MapThatIsBackWhenItIsSaved_BecomesTheGenerationBefore_AndStaysIt)
{
    GivenNoMapFile();
    Open();
    GivenMapFile("the map that was away");

    SaveBoxes(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), "the map that was away");
}

TEST_F(MapGenerationTest, MapThatIsNotThere_WithoutAGenerationBefore_HasThoseThatFollow)
{
    GivenNoMapFile();
    P.Files.Kill(Home.Path(beforeIt));
    Open();
    SaveBoxes(P.Map, P.Branch, P.Files);
    const QByteArray first = Home.ReadFile(file);

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), first);
}

// Which the text tool takes, and by which a list has more values than its items.
TEST_F(MapGenerationTest, MapWithACommaInAText_BecomesTheGenerationBefore)
{
    const QByteArray map = MapWithText(u"York, 1901");
    GivenMapFile(map);

    Open();
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), map);
}

// What can't be read for a moment may be whole: it is kept before anything is written in its place.
TEST_F(MapGenerationTest, MapThatCouldNotBeRead_BecomesTheGenerationBefore_AndStaysIt)
{
    GivenMapFile("whatever there is");
    P.Map.Source = MapSource::Unread;

    SaveBoxes(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Before(), "whatever there is");
}

TEST_F(MapGenerationTest, ImportedBranchWhoseMapIsTorn_KeepsWhatItHadWrittenItself)
{
    GivenOpen(BranchB.InDirectory(u"Import_B"));
    Home.WriteFile(u"Import_B/LfgDat_B.cfg", "[Boxes]\r\n1200,600,");
    Home.WriteFile(u"Import_B/Import_B.cfg", "its own");
    ExpectWarning(u"Config Line Record empty");

    Open();
    SaveBoxes(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"Import_B/Import_B.~cf"), "its own");
}

} // namespace
} // namespace lineforge
