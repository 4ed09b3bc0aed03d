#include "map/subjects/MapClipboard.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{

using namespace Qt::StringLiterals;

class MapClipboardTest : public MapTest
{
protected:
    MapClipboardTest()
    {
        GivenOpen(BranchA.Boxes(u"1200,600,255,0,,3000,600,255,0,,").Texts(u"300,150,The Smiths,Arial,8,0,"));
        OpenMap();
    }

    // A picture with that many dots, and a tenth of a millimetre to the dot unless told otherwise.
    static QImage PictureOf(int width, int height, const QColor& colour)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(colour);
        picture.setDotsPerMeterX(10000);
        picture.setDotsPerMeterY(10000);
        return picture;
    }

    void Copy() { P.Form1->mnuCopy.Click(); }
    void Paste() { P.Form1->mnuPaste.Click(); }
    int Drawn(Colour colour) { return CountPixels(Picture, colour); }

    FakeClipboard& Clipboard = Machine.Clipboard;
};

TEST_F(MapClipboardTest, Copy_PutsTheWholeMapOnTheClipboard)
{
    Copy();

    EXPECT_EQ(Clipboard.Picture.size(), ShownBy(Picture).size());
    EXPECT_TRUE(Clipboard.Picture.convertToFormat(QImage::Format_RGB32) ==
                ShownBy(Picture).convertToFormat(QImage::Format_RGB32));
}

TEST_F(MapClipboardTest, Copy_TakesThePlaceOfAText)
{
    Clipboard.Text = u"before"_s;

    Copy();

    EXPECT_FALSE(Clipboard.HasText());
    EXPECT_TRUE(Clipboard.HasPicture());
}

TEST_F(MapClipboardTest, Copy_OfABlankMap_IsBlankPaper)
{
    Picture.Cls();

    Copy();

    EXPECT_FALSE(Clipboard.Picture.isNull());
    EXPECT_EQ(CountPixels(Clipboard.Picture, White), Clipboard.Picture.width() * Clipboard.Picture.height());
}

TEST_F(MapClipboardTest, CopiedPicture_StaysWhatItWas_WhenTheMapIsDrawnOn)
{
    Copy();
    const QImage copied = Clipboard.Picture.copy();

    Picture.Cls();

    EXPECT_TRUE(Clipboard.Picture == copied);
}

TEST_F(MapClipboardTest, CopyAndPaste_ShowTheSameMap)
{
    const QImage before = ShownBy(Picture).copy();
    Copy();
    Picture.Cls();

    Paste();

    EXPECT_TRUE(ShownBy(Picture) == before);
}

TEST_F(MapClipboardTest, Paste_PutsThePictureInTheTopLeft_AndWipesTheRest)
{
    ASSERT_FALSE(IsBlank(Picture));
    Clipboard.Picture = PictureOf(100, 50, Qt::green);

    Paste();

    EXPECT_EQ(ColourAt(Picture, {0, 0}), ColourAt(Picture, {50, 50}));
    EXPECT_GT(Drawn(ColourAt(Picture, {0, 0})), 0);
    EXPECT_EQ(Drawn(Black), 0);
    EXPECT_EQ(Drawn(ColourAt(Picture, {0, 0})) + Drawn(White), ShownBy(Picture).width() * ShownBy(Picture).height());
}

TEST_F(MapClipboardTest, Paste_TakesTheSizeFromTheDotsOfThePicture)
{
    Clipboard.Picture = PictureOf(100, 50, Qt::green);
    Paste();
    const Colour green = ColourAt(Picture, {0, 0});
    const int narrow = Drawn(green);
    Clipboard.Picture.setDotsPerMeterX(5000);
    Clipboard.Picture.setDotsPerMeterY(5000);

    Paste();

    EXPECT_NEAR(Drawn(green), 4 * narrow, narrow / 10);
}

TEST_F(MapClipboardTest, Paste_CutsWhatIsLargerThanTheMap)
{
    const QSize size = ShownBy(Picture).size();
    QImage large = PictureOf(200, 200, Qt::green);
    large.setDotsPerMeterX(10);
    large.setDotsPerMeterY(10);
    Clipboard.Picture = large;

    Paste();

    EXPECT_EQ(ShownBy(Picture).size(), size);
    EXPECT_EQ(Drawn(ColourAt(Picture, {0, 0})), size.width() * size.height());
}

TEST_F(MapClipboardTest, PasteOfText_DoesNothing)
{
    Clipboard.Text = u"text"_s;
    const QImage before = ShownBy(Picture).copy();

    Paste();

    EXPECT_TRUE(ShownBy(Picture) == before);
}

TEST_F(MapClipboardTest, PasteOfNothing_DoesNothing)
{
    const QImage before = ShownBy(Picture).copy();

    Paste();

    EXPECT_TRUE(ShownBy(Picture) == before);
}

TEST_F(MapClipboardTest, Paste_LeavesTheClipboard)
{
    Clipboard.Picture = PictureOf(10, 10, Qt::green);

    Paste();

    EXPECT_EQ(Clipboard.Picture.size(), QSize(10, 10));
}

TEST_F(MapClipboardTest, CopyAndPaste_LeaveTheItemsAndEveryFile)
{
    const Tree before = Home.Snapshot();
    const QString boxes = ListOfBoxes(P.Map);
    Copy();
    Clipboard.Picture = PictureOf(10, 10, Qt::green);

    Paste();

    EXPECT_EQ(ListOfBoxes(P.Map), boxes);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
