#include "check/CheckTest.h"

#include <QFile>

#include <algorithm>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

constexpr QStringView allBoxes = u"1200,600,255,A001,John,2200,600,255,A002,Mary,1700,1600,255,A003,Ann,";
constexpr QStringView none = u"0,0,0,";

class MapCheckTest : public CheckTest
{
protected:
    static Finding OfMap(QStringView text) { return Of(Kind::MapFile, map, u"", text); }
    static Finding OfItem(QStringView text) { return Of(Kind::MapItem, map, u"", text); }
};

TEST_F(MapCheckTest, MapThatIsNotThere_IsTold)
{
    ASSERT_TRUE(QFile::remove(home.Path(map)));
    EXPECT_EQ(Findings(), (Found{OfMap(u"the map isn't there"),
                                 Of(Kind::WithoutBox, map, u"", u"records without a box: A001 A002 A003")}));
}

TEST_F(MapCheckTest, EmptyLists_AreLegal)
{
    WriteMap(allBoxes, u"", u"");
    EXPECT_EQ(Findings(), Found());
}

TEST_F(MapCheckTest, RecordsWithoutABox_AreNoted)
{
    WriteMap(u"1200,600,255,a001,John,", none, none);
    EXPECT_EQ(Findings(), Found{Of(Kind::WithoutBox, map, u"", u"records without a box: A002 A003")});
}

TEST_F(MapCheckTest, RecordWithABoxOnTheMapOfASibling_HasOne)
{
    WriteMap(u"1200,600,255,A001,John,2200,600,255,A002,Mary,", none, none);
    WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
    BranchBuilder(home, u'B').Boxes(u"1200,600,255,A003,Ann,").Gallery().Build();
    EXPECT_EQ(Findings(), Found());
}

TEST_F(MapCheckTest, BoxesOfRecordsThatAreGone_AreTold)
{
    WriteMap(QString(allBoxes + u"1,1,1,A009,,1,1,1,,,1,1,1,0,,1,1,1,C001,,"_s), none, none);
    EXPECT_EQ(Findings(),
              (Found{Of(Kind::Box, map, u"A009", u"box 4 stands for this record, which isn't there"),
                     Of(Kind::Box, map, u"C001", u"box 7 stands for this record, and there is no branch LfgDat_C")}));
}

struct Row {
    QString Boxes;
    QString Lines;
    QString Texts;
    QString Told;
};

class MapItemTest : public MapCheckTest, public testing::WithParamInterface<Row>
{
};

TEST_P(MapItemTest, IsTold)
{
    WriteMap(QString(allBoxes + GetParam().Boxes), GetParam().Lines, GetParam().Texts);
    EXPECT_EQ(Findings(), Found{OfItem(GetParam().Told)});
}

INSTANTIATE_TEST_SUITE_P(
    Items, MapItemTest,
    testing::Values(
        Row{u"x,600,255,0,,"_s, {}, {}, u"box 4: the map can do nothing with the X 'x'"_s},
        Row{u"1200,,255,0,,"_s, {}, {}, u"box 4: the map can do nothing with the Y ''"_s},
        Row{u"40000,600,255,0,,"_s, {}, {}, u"box 4: the map can do nothing with the X '40000'"_s},
        Row{u"1200,600,red,0,,"_s, {}, {}, u"box 4: the map can do nothing with the colour 'red'"_s},
        Row{u"0,600,255,0,,"_s,
            {},
            {},
            u"box 4 stands at X = 0, so that it isn't shown and is gone at the next saving"_s},
        Row{u"1200,600,255,"_s, {}, {}, u"the last box isn't whole"_s},
        Row{u"1200,600,255,0,John"_s, {}, {}, u"the last box isn't whole"_s},
        Row{{}, u"1507,817,2307,817,0,1,1,1,x,1,"_s, {}, u"line 2: the map can do nothing with the end Y 'x'"_s},
        Row{{}, u"1507,817,99999999999,817,0,"_s, {}, u"line 1: the map can do nothing with the end X '99999999999'"_s},
        Row{{}, u"1507,817,2307,"_s, {}, u"the last line isn't whole"_s},
        Row{{}, {}, u"300,150,The Smiths,Arial,big,0,"_s, u"text 1: the map can do nothing with the size 'big'"_s},
        Row{{},
            {},
            u"0,150,The Smiths,Arial,8,0,"_s,
            u"text 1 stands at X = 0, so that it isn't shown and is gone at the next saving"_s},
        // A comma in a text shifts all that follow.
        Row{{}, {}, u"300,150,Smiths,Jones,Arial,8,"_s, u"text 1: the map can do nothing with the size 'Arial'"_s},
        Row{{},
            {},
            u"300,150,a,b,8,"_s + QString(50, u'y') + u',',
            u"text 1: the map can do nothing with the colour '"_s + QString(40, u'y') + u"...'"}));

TEST_F(MapCheckTest, ItemsThatNoFileHolds_AreTold)
{
    WriteMap(QString(allBoxes + u"1,1,1,0,,"_s.repeated(98)), u"1,1,2,2,0,"_s.repeated(201),
             u"1,1,a,b,8,0,"_s.repeated(202));
    EXPECT_EQ(
        Findings(),
        (Found{OfItem(u"there are 101 items of the kind box; those behind number 100 are gone at the next saving"),
               OfItem(u"there are 201 items of the kind line; those behind number 200 are gone at the next saving"),
               OfItem(u"there are 202 items of the kind text; those behind number 201 are gone at the next saving")}));
}

TEST_F(MapCheckTest, AsManyItemsAsAFileHolds_AreLegal)
{
    WriteMap(QString(allBoxes + u"1,1,1,0,,"_s.repeated(97)), u"1,1,2,2,0,"_s.repeated(200),
             u"1,1,a,b,8,0,"_s.repeated(201));
    EXPECT_EQ(Findings(), Found());
}

struct File {
    QByteArray Bytes;
    QStringView Told;
};

class MapFormTest : public MapCheckTest, public testing::WithParamInterface<File>
{
};

TEST_P(MapFormTest, IsTold)
{
    home.WriteFile(map, GetParam().Bytes);
    Found found = Findings();
    std::erase_if(found, [](const Finding& each) { return IsNote(each.Kind); });
    EXPECT_EQ(std::ranges::count(found, OfMap(GetParam().Told)), 1) << testing::PrintToString(found);
}

INSTANTIATE_TEST_SUITE_P(Files, MapFormTest,
                         testing::Values(File{"", u"the boxes, lines and texts don't stand in it one behind the other"},
                                         File{"1\r\n2\r\n[Boxes]\r\n1,1,1,A001,", u"the file is cut off"},
                                         File{"1\r\n2\r\n[Boxes]\r\n0,0,0,\r\n[Lines]\r\n1,1,", u"the file is cut off"},
                                         File{"1\r\n2\r\n[Boxes]\r\n0,0,0,\r\n[Texts]\r\n\r\n[Lines]\r\n\r\n",
                                              u"the boxes, lines and texts don't stand in it one behind the other"},
                                         File{"1\r\n[Boxes]\r\n0,0,0,\r\n[Lines]\r\n\r\n[Text]\r\n\r\n",
                                              u"the file has 7 lines instead of 8"},
                                         File{"1\r\n2\r\n[Boxes]\r\n0,0,0,\r\n[Lines]\r\n\r\n[Text]\r\n0,0,\r\n0,\r\n",
                                              u"the file has 9 lines instead of 8"}));

TEST_F(MapCheckTest, LinesWithoutCarriageReturn_AreLegal)
{
    home.WriteFile(map, home.ReadFile(map).replace("\r", ""));
    EXPECT_EQ(Findings(), Found());
}

} // namespace
} // namespace lineforge::check
