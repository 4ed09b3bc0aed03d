#include "map/MapTest.h"
#include "map/items/MapFile.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

const QString corrupt = u"Box Config File record corrupt"_s;

class MapFileReadTest : public MapTest
{
protected:
    MapFileReadTest() { GivenOpen(BranchA); }

    void GivenMapFile(const QByteArray& bytes) { Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", bytes); }

    void ExpectWarning(QStringView text) { Prompts.Expect(corrupt, text, Buttons::Information); }

    void ExpectLists(QStringView boxes, QStringView lines, QStringView texts)
    {
        EXPECT_EQ(P.Map.sBoxesText, boxes);
        EXPECT_EQ(P.Map.sLinesText, lines);
        EXPECT_EQ(P.Map.sTextsText, texts);
    }
};

TEST_F(MapFileReadTest, EightLines_FillThreeLists)
{
    GivenMapFile("This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
                 "[LfgDat_A]\r\n[Boxes]\r\n1200,600,255,A001,John,\r\n[Lines]\r\n1,2,3,4,5,\r\n[Text]\r\n"
                 "300,150,The Smiths,Arial,8,0,\r\n");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1200,600,255,A001,John,", u"1,2,3,4,5,", u"300,150,The Smiths,Arial,8,0,");
}

TEST_F(MapFileReadTest, SectionNames_AreFoundInAnyCase)
{
    GivenMapFile("[bOXES]\r\n1,\r\n[LINES]\r\n2,\r\n[text]\r\n3,\r\n");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"3,");
}

TEST_F(MapFileReadTest, AnythingBeforeTheBoxes_IsPassedOver)
{
    GivenMapFile("[Lines]9,[Text]9,[Box][Boxe s]\r\n\r\nBoxes]9,[Boxes]1,[Lines]2,[Text]3,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"3,");
}

TEST_F(MapFileReadTest, MismatchInTheName_RestartsAtTheNextCharacter)
{
    // The second bracket breaks the match that the first began, and isn't looked at again.
    GivenMapFile("[[Boxes]9,[Lines]9,[Text]9,");
    ExpectWarning(u"Config Box Record empty");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"", u"", u"");
}

TEST_F(MapFileReadTest, LineEndsWithinLists_AreLeftOut)
{
    GivenMapFile("[Boxes]\r\n1,\r2,\n3,\r\n[Lines]\n4,\r\n\r\n5,[Text]6\r\n7,\n");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,2,3,", u"4,5,", u"67,");
}

TEST_F(MapFileReadTest, BracketInAText_IsPartOfIt)
{
    GivenMapFile("[Boxes]1,[Lines]2,[Text]3,4,[sic] [Boxes] [Lines],");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"3,4,[sic] [Boxes] [Lines],");
}

TEST_F(MapFileReadTest, BracketInAForename_EndsTheBoxes)
{
    GivenMapFile("[Boxes]1,2,3,A001,Jo[hn,[Lines]2,[Text]3,");
    ExpectWarning(u"Config Line Record empty");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,2,3,A001,Jo", u"", u"");
}

TEST_F(MapFileReadTest, WrongNameAfterTheBoxes_LeavesTheLinesUnread)
{
    GivenMapFile("[Boxes]1,[Linen]2,[Text]3,");
    ExpectWarning(u"Config Line Record empty");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"", u"");
}

TEST_F(MapFileReadTest, WrongNameAfterTheBoxes_BoxesThatFollowAreReadInstead)
{
    GivenMapFile("[Boxes]1,[Linen]2,[Boxes]11,[Lines]12,[Text]13,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"11,", u"12,", u"13,");
}

TEST_F(MapFileReadTest, WrongNameAfterTheLines_LeavesTheTextsUnread)
{
    GivenMapFile("[Boxes]1,[Lines]2,[Texts]3,");
    ExpectWarning(u"Config Text Record empty");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"");
}

TEST_F(MapFileReadTest, WrongNameAfterTheLines_WholeMapThatFollowsIsReadInstead)
{
    GivenMapFile("[Boxes]1,[Lines]2,[Tex][Boxes]11,[Lines]12,[Text]13,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"11,", u"12,", u"13,");
}

TEST_F(MapFileReadTest, SectionThatIsNotReached_KeepsItsList)
{
    P.Map.sLinesText = u"lines"_s;
    P.Map.sTextsText = u"texts"_s;
    GivenMapFile("[Boxes]1,[Linen]2,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"lines", u"texts");
}

TEST_F(MapFileReadTest, MissingFile_Tells_AndLeavesTheListsAsTheyWere)
{
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    P.Map.sBoxesText = u"boxes"_s;
    P.Map.sLinesText = u"lines"_s;
    P.Map.sTextsText = u"texts"_s;
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"boxes", u"lines", u"texts");
}

TEST_F(MapFileReadTest, DirectoryOfThatName_IsNoMap)
{
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    Home.MakeDirectory(u"LfgDat_A/LfgDat_A.cfg");
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"", u"", u"");
}

TEST_F(MapFileReadTest, NameSpeltInAnotherCase_IsFound)
{
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    Home.WriteFile(u"LfgDat_A/LFGDAT_a.CFG", "[Boxes]1,[Lines]2,[Text]3,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"3,");
}

TEST_F(MapFileReadTest, MapThatWasRead_BelongsToTheBranch)
{
    P.Map.Owner.clear();

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    EXPECT_EQ(P.Map.Owner, P.Branch.WorkDir);
}

TEST_F(MapFileReadTest, MapOfAnOlderInstallation_KeepsItsAccents)
{
    GivenMapFile("[Boxes]1,2,3,A001,Andr\xE9,[Lines]2,[Text]3,");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    EXPECT_EQ(P.Map.sBoxesText, u"1,2,3,A001,André,"_s);
}

struct EmptyLists {
    QString Boxes;
    QString Lines;
    QString Texts;
    QString Warning;
};

void PrintTo(const EmptyLists& lists, std::ostream* out)
{
    *out << qUtf8Printable(u"[Boxes]"_s + lists.Boxes + u"[Lines]"_s + lists.Lines + u"[Text]"_s + lists.Texts);
}

class EmptyListTest : public MapFileReadTest, public WithParamInterface<EmptyLists>
{
};

TEST_P(EmptyListTest, FirstEmptyListAlone_IsToldOf)
{
    GivenMapFile(MapFileBytes(u"LfgDat_A", GetParam().Boxes, GetParam().Lines, GetParam().Texts));
    if (!GetParam().Warning.isEmpty())
        ExpectWarning(GetParam().Warning);

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(GetParam().Boxes, GetParam().Lines, GetParam().Texts);
}

INSTANTIATE_TEST_SUITE_P(Maps, EmptyListTest,
                         Values(EmptyLists{u"1,"_s, u"2,"_s, u"3,"_s, {}},
                                EmptyLists{{}, u"2,"_s, u"3,"_s, u"Config Box Record empty"_s},
                                EmptyLists{u"1,"_s, {}, u"3,"_s, u"Config Line Record empty"_s},
                                EmptyLists{u"1,"_s, u"2,"_s, {}, u"Config Text Record empty"_s},
                                EmptyLists{{}, {}, u"3,"_s, u"Config Box Record empty"_s},
                                EmptyLists{u"1,"_s, {}, {}, u"Config Line Record empty"_s},
                                EmptyLists{{}, {}, {}, u"Config Box Record empty"_s}));

TEST_F(MapFileReadTest, CutOffInTheBoxes_IsInputPastEnd_WithWhatWasThere)
{
    GivenMapFile("[Boxes]\r\n1200,600,");

    EXPECT_EQ(RefusalOf([&] { ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts); }), ErrorNumber::InputPastEnd);

    ExpectLists(u"1200,600,", u"", u"");
}

TEST_F(MapFileReadTest, CutOffInTheLines_IsInputPastEnd_WithWhatWasThere)
{
    GivenMapFile("[Boxes]\r\n1200,600,\r\n[Lines]\r\n1,2,");

    EXPECT_EQ(RefusalOf([&] { ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts); }), ErrorNumber::InputPastEnd);

    ExpectLists(u"1200,600,", u"1,2,", u"");
}

TEST_F(MapFileReadTest, CutOffInTheTexts_IsNoFailure)
{
    GivenMapFile("[Boxes]1,[Lines]2,[Text]300,15");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    ExpectLists(u"1,", u"2,", u"300,15");
}

} // namespace
} // namespace lineforge
