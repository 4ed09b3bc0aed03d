#include "qt/pictures/DraggableImage.h"

#include "qt/WindowTest.h"

#include <QAccessible>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct TilesForm : Form {
    TilesForm() : Form(u"TilesForm", u"Tiles", {6000, 3000})
    {
        for (Image* tile : {&One, &Two, &Behind}) {
            tile->Draggable = true;
            tile->DragDrop = [this, tile](const Image& source) { Drops << source.Name + u" on " + tile->Name; };
        }
    }
    Image One{*this, u"Image1(0)", {300, 300, 735, 855}};
    Image Two{*this, u"Image1(1)", {1135, 300, 735, 855}};
    Image Behind{*this, u"Image1(2)", {300, 300, 735, 855}};
    Image Plain{*this, u"Image2", {3000, 300, 735, 855}};
    Button Command1{*this, u"Command1", {300, 2000, 975, 375}, u"Tree"};
    QStringList Drops;
};

struct DraggableImageTest : WindowTest {
    Window<TilesForm> Tiles{System()};
    void SetUp() override { Tiles->Visible = true; }
    DraggableImage& View(const QString& name) { return Find<DraggableImage>(*Tiles, name); }
    DraggableImage& One() { return View(u"Image1(0)"_s); }
    DraggableImage& Two() { return View(u"Image1(1)"_s); }
    QWidget& Plain() { return Find<QWidget>(*Tiles, u"Image2"_s); }

    static QPoint Middle(const QWidget& widget) { return widget.rect().center(); }
    // Null while nothing is outlined.
    const QRubberBand* Outline()
    {
        const QList<QRubberBand*> outlines = ViewOf(*Tiles).findChildren<QRubberBand*>();
        const auto shown = std::ranges::find_if_not(outlines, &QRubberBand::isHidden);
        return shown == outlines.end() ? nullptr : *shown;
    }

    void Press() { QTest::mousePress(&One(), Qt::LeftButton, {}, Middle(One())); }
    void MoveTo(QPoint inOne)
    {
        QMouseEvent event(QEvent::MouseMove, inOne, One().mapToGlobal(inOne), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&One(), &event);
    }
    void MoveTo(QWidget& target) { MoveTo(One().mapFromGlobal(target.mapToGlobal(Middle(target)))); }
    void ReleaseOn(QWidget& target)
    {
        QTest::mouseRelease(&One(), Qt::LeftButton, {}, One().mapFromGlobal(target.mapToGlobal(Middle(target))));
    }
};

TEST_F(DraggableImageTest, Click_IsADropOnItself)
{
    QTest::mouseClick(&One(), Qt::LeftButton);
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(0) on Image1(0)"_s});
}

TEST_F(DraggableImageTest, OtherButtons_DragNothing)
{
    QTest::mouseClick(&One(), Qt::RightButton);
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggableImageTest, ReleasedOnAnotherTile_IsDroppedThere)
{
    Press();
    MoveTo(Two());
    ReleaseOn(Two());
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(0) on Image1(1)"_s});
}

TEST_F(DraggableImageTest, DraggedAwayAndBack_IsAClick)
{
    Press();
    MoveTo(Two());
    MoveTo(One());
    ReleaseOn(One());
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(0) on Image1(0)"_s});
}

TEST_F(DraggableImageTest, ReleasedBesideTheTiles_IsDroppedNowhere)
{
    for (QWidget* target : {&Plain(), &Find<QWidget>(*Tiles, u"Command1"_s), ViewOf(*Tiles).window()}) {
        Press();
        MoveTo(*target);
        ReleaseOn(*target);
    }
    EXPECT_EQ(Tiles->Drops, QStringList());
    EXPECT_EQ(Outline(), nullptr);
}

TEST_F(DraggableImageTest, OutlineOfTheTile_FollowsThePointer_AndGoesWithTheRelease)
{
    Press();
    EXPECT_EQ(Outline(), nullptr);
    MoveTo(Middle(One()) + QPoint(1, 0));
    EXPECT_EQ(Outline(), nullptr);
    MoveTo(Middle(One()) + QPoint(40, 30));
    ASSERT_NE(Outline(), nullptr);
    EXPECT_TRUE(Outline()->isVisible());
    EXPECT_EQ(Outline()->geometry(), One().geometry().translated(40, 30));
    MoveTo(Middle(One()) + QPoint(60, 5));
    EXPECT_EQ(Outline()->geometry(), One().geometry().translated(60, 5));
    ReleaseOn(Two());
    EXPECT_EQ(Outline(), nullptr);
}

TEST_F(DraggableImageTest, Escape_PutsItBack)
{
    Press();
    MoveTo(Two());
    QTest::keyClick(&One(), Qt::Key_Escape);
    EXPECT_EQ(Outline(), nullptr);
    ReleaseOn(Two());
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggableImageTest, HiddenWhileItIsHeld_IsDroppedNowhere)
{
    Press();
    MoveTo(Two());
    Tiles->One.Visible = false;
    EXPECT_EQ(Outline(), nullptr);
    Tiles->One.Visible = true;
    ReleaseOn(Two());
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggableImageTest, WindowHiddenWhileATileIsHeld_IsSurvived_AndDropsNothing)
{
    Press();
    MoveTo(Two());
    Tiles->Hide();
    EXPECT_EQ(Outline(), nullptr);
    Tiles->Visible = true;
    ReleaseOn(Two());
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggableImageTest, OfTwoInOnePlace_TheEarlierOneTakesTheMouse)
{
    EXPECT_EQ(ViewOf(*Tiles).childAt(One().mapTo(&ViewOf(*Tiles), Middle(One()))), &One());
}

TEST_F(DraggableImageTest, ReadersMeetTheTilesInTheirOrder)
{
    const QList<QObject*> children = One().parentWidget()->children();
    EXPECT_LT(children.indexOf(&One()), children.indexOf(&Two()));
}

TEST_F(DraggableImageTest, KeyboardAndReaders_ClickIt)
{
    One().setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(&One(), key);
    EXPECT_EQ(Tiles->Drops.size(), 3);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&One());
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::Button);
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ServeEvents();
    EXPECT_EQ(Tiles->Drops.size(), 4);
}

TEST_F(DraggableImageTest, Escape_PutsItBack_WhereverTheKeyboardWasBefore)
{
    Activate(*Tiles);
    Find<QWidget>(*Tiles, u"Command1"_s).setFocus();
    Press();
    MoveTo(Two());
    QTest::keyClick(ViewOf(*Tiles).windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(Outline(), nullptr);
    ReleaseOn(Two());
    EXPECT_EQ(Tiles->Drops, QStringList());
}

struct DraggedByKeysTest : DraggableImageTest {
    void SetUp() override
    {
        DraggableImageTest::SetUp();
        Tiles->Behind.Move({300, 1200}); // below the first
        Activate(*Tiles);
        One().setFocus(Qt::TabFocusReason);
    }
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(ViewOf(*Tiles).windowHandle(), key, modifiers);
    }
    DraggableImage& Below() { return View(u"Image1(2)"_s); }
};

TEST_F(DraggedByKeysTest, Arrows_LeadToTheNeighbours)
{
    Type(Qt::Key_Right);
    EXPECT_TRUE(Two().hasFocus());
    Type(Qt::Key_Right);
    EXPECT_TRUE(Two().hasFocus());
    Type(Qt::Key_Left);
    EXPECT_TRUE(One().hasFocus());
    Type(Qt::Key_Down);
    EXPECT_TRUE(Below().hasFocus());
    Type(Qt::Key_Up);
    EXPECT_TRUE(One().hasFocus());
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggedByKeysTest, Arrows_PassOverATileThatIsHidden)
{
    Tiles->Two.Visible = false;
    Type(Qt::Key_Right);
    EXPECT_TRUE(One().hasFocus());
}

TEST_F(DraggedByKeysTest, ShiftSpaceTakes_SpaceDrops)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Right);
    Type(Qt::Key_Space);
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(0) on Image1(1)"_s});
    Type(Qt::Key_Space);
    EXPECT_EQ(Tiles->Drops.last(), u"Image1(1) on Image1(1)"_s);
}

TEST_F(DraggedByKeysTest, TabAndEnter_DoTheSame)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Tab);
    EXPECT_TRUE(Two().hasFocus());
    Type(Qt::Key_Return);
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(0) on Image1(1)"_s});
}

TEST_F(DraggedByKeysTest, Outline_LiesWhereTheFocusIs_AndTheTileSaysThatItIsTaken)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    ASSERT_NE(Outline(), nullptr);
    EXPECT_EQ(Outline()->geometry(), One().geometry());
    EXPECT_EQ(One().accessibleDescription(), u"Taken"_s);
    Type(Qt::Key_Down);
    EXPECT_EQ(Outline()->geometry(), Below().geometry());
    Type(Qt::Key_Return);
    EXPECT_EQ(Outline(), nullptr);
    EXPECT_EQ(One().accessibleDescription(), QString());
}

TEST_F(DraggedByKeysTest, DroppedOnItself_IsOnlyPutDown)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Space);
    EXPECT_EQ(Outline(), nullptr);
    EXPECT_EQ(Tiles->Drops, QStringList());
}

TEST_F(DraggedByKeysTest, Escape_GivesUp_OnWhicheverTile)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Right);
    Type(Qt::Key_Escape);
    EXPECT_EQ(Outline(), nullptr);
    Type(Qt::Key_Space);
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(1) on Image1(1)"_s});
}

TEST_F(DraggedByKeysTest, KeysHeldDown_TakeAndDropOnce)
{
    const auto repeat = [this](Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, modifiers, {}, true);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    Type(Qt::Key_Space, Qt::ShiftModifier);
    repeat(Qt::ShiftModifier);
    EXPECT_NE(Outline(), nullptr);
    Type(Qt::Key_Right);
    Type(Qt::Key_Space);
    repeat({});
    EXPECT_EQ(Tiles->Drops.size(), 1);
}

TEST_F(DraggedByKeysTest, TheMouse_TakesOver)
{
    Type(Qt::Key_Space, Qt::ShiftModifier);
    QTest::mouseClick(&Two(), Qt::LeftButton);
    EXPECT_EQ(Outline(), nullptr);
    EXPECT_EQ(Tiles->Drops, QStringList{u"Image1(1) on Image1(1)"_s});
}

TEST_F(DraggedByKeysTest, ATileThatItsClickHidesForAMoment_KeepsTheKeyboard)
{
    Tiles->One.DragDrop = [this](const Image&) {
        Tiles->One.Visible = false;
        Tiles->One.Visible = true;
    };
    Type(Qt::Key_Space);
    EXPECT_TRUE(One().hasFocus());
}

TEST_F(DraggedByKeysTest, Arrows_MoveWhatIsLargerThanTheWindow)
{
    Tiles->One.Move({0, 0});
    Tiles->One.Height = 9000;
    Type(Qt::Key_Down);
    EXPECT_EQ(Tiles->One.Top, -PixelScale().ToTwips(40));
    EXPECT_TRUE(One().hasFocus());
    Type(Qt::Key_Up);
    EXPECT_EQ(Tiles->One.Top, 0);
}

TEST_F(DraggableImageTest, IsNamedAfterItsTag_WithoutTheWayToIt)
{
    EXPECT_EQ(One().accessibleName(), u"Empty tile"_s);
    Tiles->One.Tag = u"17"_s;
    EXPECT_EQ(One().accessibleName(), u"Empty tile"_s);
    EXPECT_EQ(One().toolTip(), QString());
    Tiles->One.Tag = u"/home/somebody/LfgDat_A/LfgGal_A/A001_01.jpg"_s;
    EXPECT_EQ(One().accessibleName(), u"A001_01.jpg"_s);
    EXPECT_EQ(One().toolTip(), u"A001_01.jpg"_s);
}

TEST_F(DraggableImageTest, TagThatStoodBeforeTheWindowWasShown_IsToldToo)
{
    Window<TilesForm> other(System());
    other->One.Tag = u"/home/somebody/A001_01.jpg"_s;
    other->Visible = true;
    EXPECT_EQ(Find<QWidget>(*other, u"Image1(0)"_s).accessibleName(), u"A001_01.jpg"_s);
    EXPECT_EQ(Find<QWidget>(*other, u"Image1(0)"_s).toolTip(), u"A001_01.jpg"_s);
}

TEST_F(DraggableImageTest, WithoutAPicture_ItsPlaceCanBeSeen)
{
    const QImage without = One().grab().toImage();
    EXPECT_NE(without.pixelColor(0, 0), without.pixelColor(10, 10));
    QImage white(10, 10, QImage::Format_RGB32);
    white.fill(Qt::white);
    Tiles->One.Picture = white;
    const QImage with = One().grab().toImage();
    EXPECT_EQ(with.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(DraggableImageTest, Wheel_MovesWhatIsLargerThanTheWindow_NoFurtherThanItsEdges)
{
    const auto turn = [this](QPoint by) {
        QWheelEvent event(Middle(One()), One().mapToGlobal(Middle(One())), {}, by, Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&One(), &event);
    };
    turn({0, -120});
    EXPECT_EQ(Tiles->One.Top, 300);

    Tiles->One.Move({0, 0});
    Tiles->One.Height = 9000;
    turn({0, 120});
    EXPECT_EQ(Tiles->One.Top, 0);
    turn({0, -120});
    EXPECT_EQ(Tiles->One.Top, -PixelScale().ToTwips(120));
    for (int turns = 0; turns < 50; ++turns)
        turn({0, -120});
    EXPECT_EQ(One().geometry().bottom(), One().parentWidget()->rect().bottom());
    EXPECT_EQ(Tiles->One.Left, 0);
}

TEST_F(DraggableImageTest, HandlerThatUnloadsTheWindow_IsSurvived)
{
    Tiles->One.DragDrop = [this](const Image&) { Tiles.Unload(); };
    QTest::mouseClick(&One(), Qt::LeftButton);
    ServeEvents();
    EXPECT_FALSE(Tiles.IsLoaded());
}

} // namespace
} // namespace lineforge
