#include "gui/ProgramWindowTest.h"
#include "platform/qt/DraggableImage.h"

#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The gallery of a record with two pictures, opened from the map.
class GalleryWindowTest : public ProgramWindowTest
{
protected:
    GalleryWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}})
            .Boxes(u"1200,600,255,A001,John,")
            .Picture(u"A001", Qt::red)
            .Gallery({{u"A001_01.jpg"_s, PictureBytes(Qt::red, {400, 300})},
                      {u"A001_02.jpg"_s, PictureBytes(Qt::blue, {4000, 300})}})
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        Click(*P.Form1, u"Command2"_s);
        Activate(*P.Form5);
    }

    void Click(const Form& form, const QString& name)
    {
        QTest::mouseClick(&Find<QWidget>(form, name), Qt::LeftButton);
        ServeEvents();
    }
    QWidget& Tile(int index) { return Find<QWidget>(*P.Form5, u"Image1(%1)"_s.arg(index)); }
    void ClickTile(int index) { Click(*P.Form5, u"Image1(%1)"_s.arg(index)); }
    void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(ViewOf(*P.Form5).windowHandle(), key, modifiers);
        ServeEvents();
    }
    QWidget& Client() { return *Tile(0).parentWidget(); }

    static bool IsLike(const QColor& a, const QColor& b)
    {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) < 30;
    }
    bool Shows(int index, const QColor& colour)
    {
        const QImage shown = Tile(index).grab().toImage();
        return IsLike(shown.pixelColor(shown.rect().center()), colour);
    }
};

TEST_F(GalleryWindowTest, PageShowsItsPictures_AndTheMapIsHidden)
{
    EXPECT_TRUE(Shows(0, Qt::red));
    EXPECT_TRUE(Shows(1, Qt::blue));
    EXPECT_TRUE(Tile(2).isVisible());
    EXPECT_FALSE(Tile(3).isVisible());
    EXPECT_FALSE(P.Form1->Visible);
    EXPECT_EQ(ViewOf(*P.Form5).windowTitle(), u"Smiths Tree Branch. Gallery A001 of John Smith"_s);
}

TEST_F(GalleryWindowTest, AllTilesOfAFullPage_FitIntoTheWindow)
{
    for (int index = 0; index < 98; ++index) {
        P.Form5->Image1[index].Visible = true;
        EXPECT_TRUE(Client().rect().contains(Tile(index).geometry())) << index;
    }
    // The last one stands where the first does, and never takes the mouse from it.
    P.Form5->Image1[98].Visible = true;
    EXPECT_EQ(Client().childAt(Tile(0).geometry().center()), &Tile(0));
}

TEST_F(GalleryWindowTest, PlayersFitIntoTheWindow)
{
    for (PictureBox forms::Form5::*panel : {&forms::Form5::Picture1, &forms::Form5::Picture2}) {
        PictureBox& box = (*P.Form5).*panel;
        box.Visible = true;
        QWidget& view = Find<QWidget>(*P.Form5, box.Name);
        EXPECT_TRUE(Client().rect().contains(view.geometry())) << box.Name.toStdString();
        for (const QWidget* child : view.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            EXPECT_TRUE(view.rect().contains(child->geometry())) << child->objectName().toStdString();
    }
}

TEST_F(GalleryWindowTest, Click_ShowsThePictureDotByDotInTheMiddle_AndTheNextPutsItBack)
{
    const QRect place = Tile(0).geometry();
    ClickTile(0);
    EXPECT_EQ(Tile(0).size(), QSize(400, 300));
    EXPECT_LE((Tile(0).geometry().center() - Client().rect().center()).manhattanLength(), 2);
    EXPECT_TRUE(Shows(0, Qt::red));
    EXPECT_FALSE(Tile(1).isVisible());
    EXPECT_FALSE(Find<QWidget>(*P.Form5, u"Command1"_s).isVisible());

    ClickTile(0);
    EXPECT_EQ(Tile(0).geometry(), place);
    EXPECT_TRUE(Tile(1).isVisible());
    EXPECT_TRUE(Find<QWidget>(*P.Form5, u"Command1"_s).isVisible());
}

TEST_F(GalleryWindowTest, PictureWiderThanTheWindow_IsMovedByTheWheel)
{
    ClickTile(1);
    const int before = Tile(1).x();
    EXPECT_LT(before, 0);
    const QPoint middle = Tile(1).rect().center();
    QWheelEvent event(middle, Tile(1).mapToGlobal(middle), {}, {120, 0}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Tile(1), &event);
    EXPECT_EQ(Tile(1).x(), before + 120);
}

TEST_F(GalleryWindowTest, TileDroppedOnAnother_RearrangesTheFiles)
{
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    const QPoint from = Tile(0).rect().center();
    const QPoint to = Tile(0).mapFromGlobal(Tile(1).mapToGlobal(Tile(1).rect().center()));
    QTest::mousePress(&Tile(0), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Tile(0).mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&Tile(0), &move);
    QTest::mouseRelease(&Tile(0), Qt::LeftButton, {}, to);
    ServeEvents();
    EXPECT_TRUE(Shows(0, Qt::blue));
    EXPECT_TRUE(Shows(1, Qt::red));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgGal_A/A001_01.jpg"), PictureBytes(Qt::blue, {4000, 300}));
}

TEST_F(GalleryWindowTest, TileDraggedByKeys_RearrangesTheFiles)
{
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    Tile(0).setFocus(Qt::TabFocusReason);
    Type(Qt::Key_Space, Qt::ShiftModifier);
    Type(Qt::Key_Right);
    Type(Qt::Key_Space);
    EXPECT_TRUE(Shows(0, Qt::blue));
    EXPECT_TRUE(Shows(1, Qt::red));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgGal_A/A001_01.jpg"), PictureBytes(Qt::blue, {4000, 300}));
}

TEST_F(GalleryWindowTest, Keys_OpenAPicture_MoveItAbout_AndPutItBack)
{
    Tile(1).setFocus(Qt::TabFocusReason);
    const QRect place = Tile(1).geometry();
    Type(Qt::Key_Space);
    EXPECT_EQ(Tile(1).size(), QSize(4000, 300));
    const int before = Tile(1).x();
    Type(Qt::Key_Left);
    EXPECT_EQ(Tile(1).x(), before + 40);
    Type(Qt::Key_Space);
    EXPECT_EQ(Tile(1).geometry(), place);
    EXPECT_TRUE(Tile(1).hasFocus());
}

TEST_F(GalleryWindowTest, DeletionByMenu_TakesTheTileThatIsClicked)
{
    Prompts.Expect(u"Deleting Gallery File.", u"Click on the File Icon you want to Delete.",
                   Buttons::InformationOkCancel);
    P.Form5->mnuEdit.Click();
    P.Form5->MnuDeleteFile.Click();
    ClickTile(0);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgGal_A/A001_01.jpg"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgGal_A/A001_02.jpg"));
    EXPECT_TRUE(Tile(0).isVisible());
}

TEST_F(GalleryWindowTest, Tree_GoesBackToTheMap_AndTheFrameToo)
{
    Click(*P.Form5, u"Command1"_s);
    EXPECT_TRUE(ViewOf(*P.Form1).isVisible());
    EXPECT_FALSE(ViewOf(*P.Form5).isVisible());

    Click(*P.Form1, u"Command2"_s);
    ViewOf(*P.Form5).close();
    ServeEvents();
    EXPECT_TRUE(ViewOf(*P.Form1).isVisible());
    EXPECT_FALSE(ViewOf(*P.Form5).isVisible());
}

TEST_F(GalleryWindowTest, OpenPicture_IsPrintedWithoutTheTiles)
{
    ClickTile(0);
    const QImage printed = P.Form5->Picture();
    EXPECT_TRUE(IsLike(printed.pixelColor(printed.rect().center()), Qt::red));
    EXPECT_EQ(printed.size(), Client().size());
    const Image& second = P.Form5->Image1[1];
    const QRect place = PixelScale().ToPixels(Rectangle{second.Left, second.Top, second.Width, second.Height});
    EXPECT_FALSE(IsLike(printed.pixelColor(place.center()), Qt::blue));
}

TEST_F(GalleryWindowTest, WholeArea_IsWhatTheWindowShowsBelowItsMenus)
{
    EXPECT_EQ(P.Form5->ScaleSize(), PixelScale().ToTwips(Client().size()));
}

} // namespace
} // namespace lineforge
