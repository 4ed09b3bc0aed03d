#include "gui/ProgramWindowTest.h"
#include "qt/pictures/KeyboardPointer.h"

#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Point johnsBox{1200, 600};
constexpr Point marysBox{2400, 600};

// The map with the keyboard alone, from the menus on.
class MapKeyboardTest : public ProgramWindowTest
{
protected:
    MapKeyboardTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        Activate(*P.Form1);
        for (int round = 0; !Map().hasFocus() && round < 100; ++round)
            Type(Qt::Key_Tab);
        Type(Qt::Key_Right); // brings out the pointer
    }

    QWidget& Map() { return Find<QWidget>(*P.Form1, u"Picture1"_s); }
    QPoint Pointer() { return Find<QWidget>(*P.Form1, KeyboardPointer::Name).geometry().center(); }
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(ViewOf(*P.Form1).windowHandle(), key, modifiers);
        ServeEvents();
    }
    // With the arrows to a pixel of the map; the last ones single.
    void PointAt(QPoint pixel, Qt::KeyboardModifiers modifiers = {})
    {
        const auto go = [&](Qt::Key key, int distance) {
            for (int steps = 0; steps < distance / 5; ++steps)
                Type(key, modifiers);
            for (int steps = 0; steps < distance % 5; ++steps)
                Type(key, modifiers | Qt::ControlModifier);
        };
        const QPoint way = pixel - Pointer();
        go(way.x() < 0 ? Qt::Key_Left : Qt::Key_Right, std::abs(way.x()));
        go(way.y() < 0 ? Qt::Key_Up : Qt::Key_Down, std::abs(way.y()));
    }
    QPoint Pixel(Point twips) const { return {PixelScale().ToPixels(twips.X), PixelScale().ToPixels(twips.Y)}; }
    Point Twips(QPoint pixel) const { return {PixelScale().ToTwips(pixel.x()), PixelScale().ToTwips(pixel.y())}; }
    QPoint InBox(Point corner) const { return Pixel({corner.X + 300, corner.Y + 100}); }

    // Opens the tools by their menu and presses some, all by keys.
    void TakeTools(std::initializer_list<QStringView> images)
    {
        for (const auto& [key, modifiers] :
             {std::pair(Qt::Key_F, Qt::KeyboardModifiers(Qt::AltModifier)),
              std::pair(Qt::Key_Right, Qt::KeyboardModifiers()), std::pair(Qt::Key_Right, Qt::KeyboardModifiers()),
              std::pair(Qt::Key_T, Qt::KeyboardModifiers())})
            Type(key, modifiers);
        for (const QStringView image : images)
            PressByKey(image);
        TabTo(Map());
    }
    void PressByKey(QStringView image)
    {
        TabTo(Find<QWidget>(*P.Form1, image.toString()));
        Type(Qt::Key_Space);
    }
    void TabTo(const QWidget& widget)
    {
        constexpr int mostTabs = 60;
        for (int tabs = 0; tabs < mostTabs && !widget.hasFocus(); ++tabs)
            Type(Qt::Key_Tab);
        ASSERT_TRUE(widget.hasFocus());
    }
    auto& Box(int row) { return P.Map.BoxArr[row]; }
    auto& Line(int row) { return P.Map.LineArr[row]; }
};

TEST_F(MapKeyboardTest, EnterOnABox_ShowsItsSubject)
{
    PointAt(InBox(marysBox));
    Type(Qt::Key_Return);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
}

TEST_F(MapKeyboardTest, Space_ShowsTheCoordinates)
{
    PointAt(Pixel({3000, 3000}));
    Type(Qt::Key_Space);
    EXPECT_EQ(P.Form1->Text9.Text.value(), QString::number(Twips(Pointer()).X));
    EXPECT_EQ(P.Form1->Text10.Text.value(), QString::number(Twips(Pointer()).Y));
}

TEST_F(MapKeyboardTest, SpaceWithTheBoxTool_DrawsABoxAroundThePointer)
{
    TakeTools({u"Image7"});
    PointAt(Pixel({3000, 3000}));
    const int boxes = P.Map.SBoxes;
    Type(Qt::Key_Space);
    EXPECT_EQ(P.Map.SBoxes, boxes + 1);
    EXPECT_EQ(Box(P.Map.SBoxes)[BoxColumn::X].Number(), Twips(Pointer()).X - 307);
    EXPECT_EQ(Box(P.Map.SBoxes)[BoxColumn::Y].Number(), Twips(Pointer()).Y - 108);
}

TEST_F(MapKeyboardTest, ShiftSpaceAndArrowsWithTheLineTool_DrawALine)
{
    TakeTools({u"Image6"});
    PointAt(Pixel({3000, 3000}));
    const Point from = Twips(Pointer());
    Type(Qt::Key_Space, Qt::ShiftModifier);
    PointAt(Pixel({4200, 3600}));
    Type(Qt::Key_Space);
    const Point to = Twips(Pointer());
    ASSERT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(Line(1)[LineColumn::X1], from.X);
    EXPECT_EQ(Line(1)[LineColumn::Y1], from.Y);
    EXPECT_EQ(Line(1)[LineColumn::X2], to.X);
    EXPECT_EQ(Line(1)[LineColumn::Y2], to.Y);
}

TEST_F(MapKeyboardTest, ShiftWithTheArrows_MakesALineLevel)
{
    TakeTools({u"Image6"});
    PointAt(Pixel({3000, 3000}));
    const Point from = Twips(Pointer());
    Type(Qt::Key_Space, Qt::ShiftModifier);
    PointAt(Pixel({4200, 3200}), Qt::ShiftModifier);
    Type(Qt::Key_Space);
    ASSERT_EQ(P.Map.SLines, 1);
    EXPECT_EQ(Line(1)[LineColumn::Y2], from.Y);
    EXPECT_EQ(Line(1)[LineColumn::X2], Twips(Pointer()).X);
}

TEST_F(MapKeyboardTest, CtrlWithThePress_BeginsALineAtTheEndOfTheLast)
{
    TakeTools({u"Image6"});
    PointAt(Pixel({3000, 3000}));
    Type(Qt::Key_Space, Qt::ShiftModifier);
    PointAt(Pixel({4200, 3600}));
    Type(Qt::Key_Space);
    PointAt(Pixel({5000, 4000}));
    Type(Qt::Key_Space, Qt::ShiftModifier | Qt::ControlModifier);
    PointAt(Pixel({5600, 4600}));
    Type(Qt::Key_Space);
    ASSERT_EQ(P.Map.SLines, 2);
    EXPECT_EQ(Line(2)[LineColumn::X1], Line(1)[LineColumn::X2]);
    EXPECT_EQ(Line(2)[LineColumn::Y1], Line(1)[LineColumn::Y2]);
}

TEST_F(MapKeyboardTest, ABoxIsDraggedAway)
{
    TakeTools({u"Image7", u"Image2"});
    PointAt(InBox(johnsBox));
    const QPoint from = Pointer();
    Type(Qt::Key_Space, Qt::ShiftModifier);
    PointAt(Pixel({3000, 3000}));
    Type(Qt::Key_Space);
    const Point way = Twips(Pointer() - from);
    EXPECT_EQ(Box(0)[BoxColumn::X].Number(), johnsBox.X + way.X);
    EXPECT_EQ(Box(0)[BoxColumn::Y].Number(), johnsBox.Y + way.Y);
    EXPECT_EQ(Box(0)[BoxColumn::File].Text(), u"A001"_s);
}

TEST_F(MapKeyboardTest, ThePointerIsSeenFromTheFirstKeyOn_AndNotOnThePrintedWindow)
{
    QWidget& pointer = Find<QWidget>(*P.Form1, KeyboardPointer::Name);
    EXPECT_TRUE(pointer.isVisible());
    const QImage with = P.Form1->Picture();
    EXPECT_TRUE(pointer.isVisible());
    EXPECT_NE(with, Map().parentWidget()->grab().toImage());
    pointer.hide();
    EXPECT_EQ(with, P.Form1->Picture());
}

TEST_F(MapKeyboardTest, ThePointerScrollsTheMap)
{
    for (int steps = 0; steps < 400 && P.Form1->VScroll1.Value == 0; ++steps)
        Type(Qt::Key_Down);
    EXPECT_GT(P.Form1->VScroll1.Value, 0);
    EXPECT_EQ(P.Form1->Picture1.Top, -P.Form1->VScroll1.Value);
}

} // namespace
} // namespace lineforge
