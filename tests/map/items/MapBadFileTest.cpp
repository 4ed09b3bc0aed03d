#include "map/MapTest.h"
#include "map/items/MapFile.h"

#include <QElapsedTimer>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A map file that somebody or something has spoilt.
class MapBadFileTest : public MapTest
{
protected:
    MapBadFileTest() { GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})); }

    void GivenMapFile(const QByteArray& bytes) { Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", bytes); }

    void ExpectWarning(QStringView text)
    {
        Prompts.Expect(u"Box Config File record corrupt", text, Buttons::Information);
    }

    // Reads and draws the map as opening a branch does; nothing on disk may change, and the user isn't kept waiting.
    void OpenWhatIsLeft()
    {
        constexpr qint64 patience = 100'000; // milliseconds, for a build with sanitizers on a busy machine
        QElapsedTimer time;
        time.start();
        Refusals.push_back(RefusalOf([&] { ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts); }));
        Refusals.push_back(RefusalOf([&] { ParseBoxes(P); }));
        Refusals.push_back(RefusalOf([&] { ParseLines(P); }));
        Refusals.push_back(RefusalOf([&] { ParseTexts(P); }));
        EXPECT_LT(time.elapsed(), patience);
    }

    std::vector<int> Refusals;
};

constexpr qsizetype tenMegabytes = 10'000'000;
constexpr qsizetype hundredMegabytes = 100'000'000;

TEST_F(MapBadFileTest, EmptyFile_WarnsOfTheBoxes)
{
    GivenMapFile({});
    ExpectWarning(u"Config Box Record empty");
    const Tree before = Home.Snapshot();

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapBadFileTest, BinaryFile_WarnsOfTheBoxes)
{
    QByteArray bytes;
    for (int byte = 0; byte < 256 * 64; ++byte)
        bytes += static_cast<char>(byte * 31 % 256);
    GivenMapFile(bytes);
    ExpectWarning(u"Config Box Record empty");
    const Tree before = Home.Snapshot();

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(MapBadFileTest, BinaryListsBetweenGoodNames_AreValuesLikeAnyOther)
{
    QByteArray noise;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '[')
            noise += static_cast<char>(byte);
    GivenMapFile("[Boxes]" + noise + "[Lines]" + noise + "[Text]" + noise);

    OpenWhatIsLeft();

    // One comma, so no box is complete; the first value of a line has to be a number.
    EXPECT_EQ(Refusals, std::vector<int>({0, 0, ErrorNumber::TypeMismatch, 0}));
    EXPECT_EQ(P.Map.SBoxes, -1);
    EXPECT_EQ(P.Map.STexts, -1);
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapBadFileTest, FileCutOffAnywhere_EndsAsTheReaderMeetsIt)
{
    const QByteArray whole = MapFileBytes(u"LfgDat_A", u"1200,600,255,A001,John,", u"1507,817,2307,817,0,",
                                          u"300,150,The Smiths,Arial,8,0,");
    const auto behind = [&](const char* part) { return whole.indexOf(part) + qstrlen(part); };
    const qsizetype boxesBegin = behind("[Boxes]");
    const qsizetype boxesEnd = behind("John,\r\n[");
    const qsizetype linesBegin = behind("[Lines]");
    const qsizetype linesEnd = behind("817,0,\r\n[");
    const qsizetype textsBegin = behind("[Text]\r\n3");

    for (qsizetype length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        GivenMapFile(whole.first(length));
        const Tree before = Home.Snapshot();
        ForgetMap(P.Map, P.Mouse, P.Tools);
        const bool endsInList =
            (length >= boxesBegin && length < boxesEnd) || (length >= linesBegin && length < linesEnd);
        if (length < boxesBegin)
            ExpectWarning(u"Config Box Record empty");
        else if (!endsInList && length < linesBegin)
            ExpectWarning(u"Config Line Record empty");
        else if (!endsInList && length < textsBegin)
            ExpectWarning(u"Config Text Record empty");

        EXPECT_EQ(RefusalOf([&] { ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts); }),
                  endsInList ? ErrorNumber::InputPastEnd : 0);

        Prompts.Verify();
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    }
}

TEST_F(MapBadFileTest, FileCutOffAnywhere_WhatIsLeftIsDrawn)
{
    const QByteArray boxes = "1200,600,255,A001,John,";
    for (qsizetype length = 9; length < boxes.size(); ++length) {
        SCOPED_TRACE(length);
        GivenMapFile("[Boxes]" + boxes.first(length));
        ForgetMap(P.Map, P.Mouse, P.Tools);
        Picture.Cls();

        EXPECT_EQ(RefusalOf([&] { ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts); }), ErrorNumber::InputPastEnd);
        ParseBoxes(P);

        // The outline needs all values up to the record's number.
        EXPECT_EQ(!IsBlank(Picture), length >= boxes.indexOf("John"));
    }
}

TEST_F(MapBadFileTest, TenMegabytesWithoutAName_WarnsOfTheBoxes)
{
    GivenMapFile(QByteArray(tenMegabytes, '['));
    ExpectWarning(u"Config Box Record empty");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
}

TEST_F(MapBadFileTest, HundredMegabytesOfBoxes_FillTheArray)
{
    GivenMapFile("[Boxes]" + QByteArray("9,9,0,0,,").repeated(hundredMegabytes / 9) + "[Lines]0,0,0,[Text]0,0,0,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(P.Map.SBoxes, LastMapRow);
}

TEST_F(MapBadFileTest, HundredMegabytesOfCommas_AreEmptyTexts)
{
    GivenMapFile("[Boxes]0,0,0,[Lines]0,0,0,[Text]" + QByteArray(hundredMegabytes, ','));

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(P.Map.STexts, LastMapRow);
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapBadFileTest, TenMegabytesOfLines_EndAtTheLastRow)
{
    GivenMapFile("[Boxes]0,0,0,[Lines]" + QByteArray("1,").repeated(tenMegabytes / 2) + "[Text]0,0,0,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, ErrorNumber::Subscript, 0}));
}

TEST_F(MapBadFileTest, HundredMegabytesInOneBox_AreShownAsFarAsTheyGo)
{
    GivenMapFile("[Boxes]1200,600,255,A" + QByteArray(hundredMegabytes, '1') + ",,[Lines]0,0,0,[Text]0,0,0,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(ColourAt(Picture, {1200, 700}), 255u);
}

TEST_F(MapBadFileTest, TenMegabytesInOneText_AreShownAsFarAsTheyGo)
{
    GivenMapFile("[Boxes]0,0,0,[Lines]0,0,0,[Text]300,150," + QByteArray(tenMegabytes, 'W') + ",Arial,8,255,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_GT(CountPixels(Picture, 255, {300, 150, 400, 300}), 0);
}

TEST_F(MapBadFileTest, TenMegabytesInOneFontName_AreShownInSomeFont)
{
    GivenMapFile("[Boxes]0,0,0,[Lines]0,0,0,[Text]300,150,John," + QByteArray(tenMegabytes, 'W') + ",8,255,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_GT(CountPixels(Picture, 255, {300, 150, 400, 300}), 0);
    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(MapBadFileTest, FontOfImpossibleSize_IsPassedOver)
{
    GivenMapFile("[Boxes]0,0,0,[Lines]0,0,0,[Text]300,150,A,Arial,1e300,255,300,150,B,Arial,100000,255,"
                 "300,150,C,Arial,-8,255,300,150,D,Arial,0,255,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_EQ(P.Map.STexts, 3);
    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(MapBadFileTest, PlacesFarOutsideThePicture_AreDrawnNowhere)
{
    GivenMapFile("[Boxes]2147483647,2147483647,255,0,,-2147483648,-2147483648,255,0,,"
                 "[Lines]2147483647,5,2147483647,-2147483648,255,-2147483648,-2147483648,-9,-9,255,"
                 "[Text]2147483647,2147483647,A,Arial,8,255,-2147483648,-2147483648,B,Arial,8,255,");

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapBadFileTest, PlacesFarOutsideThePaper_AreNoFailure)
{
    GivenMapFile("[Boxes]2147483647,2147483647,255,0,,-2147483648,-2147483648,255,0,,"
                 "[Lines]2147483647,5,2147483647,-2147483648,255,-2147483648,-2147483648,-9,-9,255,"
                 "[Text]2147483647,2147483647,A,Arial,8,255,-2147483648,-2147483648,B,Arial,8,255,");
    GivenPrinting();

    OpenWhatIsLeft();

    EXPECT_EQ(Refusals, std::vector<int>({0, 0, 0, 0}));
}

} // namespace
} // namespace lineforge
