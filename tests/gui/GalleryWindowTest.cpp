#include "gui/ProgramWindowTest.h"
#include "output/Paper.h"
#include "platform/canvas/PictureBox.h"
#include "qt/pictures/DraggableImage.h"

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

// What stands on paper where the window shows it; a window wider than the page is made smaller.
class PrintedGalleryTest : public GalleryWindowTest
{
protected:
    static constexpr double PageWidth = 11'906; // twips

    void Print()
    {
        P.Form5->mnuPrintpic.Click();
        ASSERT_FALSE(Printer.Jobs.isEmpty());
        ASSERT_EQ(PagesOf(Printer.Jobs.last()), 1);
        paper_ = PictureOf(Printer.Jobs.last());
    }

    // Below the middle of a place in the window.
    QColor OnPaper(const QRect& pixels)
    {
        const double shrunk = std::min(1.0, PageWidth / P.Form5->ScaleSize().Width);
        const QPointF twips = QPointF(pixels.center()) * PixelScale().TwipsAPixel() * shrunk;
        return paper_.pixelColor((twips / PictureBox::TwipsPerPixel).toPoint());
    }

    // Every third pixel of the page.
    bool IsAnywhereLike(const QColor& colour) const
    {
        for (int y = 0; y < paper_.height(); y += 3)
            for (int x = 0; x < paper_.width(); x += 3)
                if (IsLike(paper_.pixelColor(x, y), colour))
                    return true;
        return false;
    }

private:
    QImage paper_;
};

TEST_F(PrintedGalleryTest, Page_ComesWithItsTiles)
{
    Print();
    EXPECT_TRUE(IsLike(OnPaper(Tile(0).geometry()), Qt::red));
    EXPECT_TRUE(IsLike(OnPaper(Tile(1).geometry()), Qt::blue));
}

TEST_F(PrintedGalleryTest, OpenPicture_ComesWithoutTheTiles)
{
    const QRect place = Tile(0).geometry();
    ClickTile(0);
    Print();
    EXPECT_TRUE(IsLike(OnPaper(Tile(0).geometry()), Qt::red));
    EXPECT_FALSE(IsLike(OnPaper(place), Qt::red));
    EXPECT_FALSE(IsAnywhereLike(Qt::blue));

    ClickTile(0);
    Print();
    EXPECT_TRUE(IsAnywhereLike(Qt::blue));
}

TEST_F(GalleryWindowTest, WholeArea_IsWhatTheWindowShowsBelowItsMenus)
{
    EXPECT_EQ(P.Form5->ScaleSize(), PixelScale().ToTwips(Client().size()));
}

// Two records with a gallery each.
class GalleriesWindowTest : public ProgramWindowTest
{
protected:
    GalleriesWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue)
            .Gallery({{u"A001_01.jpg"_s, PictureBytes(Qt::red, {400, 300})},
                      {u"A002_01.jpg"_s, PictureBytes(Qt::blue, {300, 400})}})
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        GoToGallery();
    }

    void GoToGallery() { Click(*P.Form1, u"Command2"_s); }
    void Click(const Form& form, const QString& name)
    {
        QTest::mouseClick(&Find<QWidget>(form, name), Qt::LeftButton);
        ServeEvents();
    }
    void ClickTile() { Click(*P.Form5, u"Image1(0)"_s); }
    // The buttons are hidden while a picture is open.
    void LeaveByTheFrame()
    {
        ViewOf(*P.Form5).close();
        ServeEvents();
    }
    void DoubleClickOnMarysBox()
    {
        const QPoint at(PixelScale().ToPixels(2700), PixelScale().ToPixels(700));
        QTest::mouseDClick(ViewOf(*P.Form1).windowHandle(), Qt::LeftButton, {},
                           Find<QWidget>(*P.Form1, u"Picture1"_s).mapTo(&ViewOf(*P.Form1), at));
        ServeEvents();
    }
    QWidget& Tile() { return Find<QWidget>(*P.Form5, u"Image1(0)"_s); }
    bool AreButtonsSeen()
    {
        return Find<QWidget>(*P.Form5, u"Command1"_s).isVisible() && Find<QWidget>(*P.Form5, u"Command2"_s).isVisible();
    }
};

TEST_F(GalleriesWindowTest, SamePageAgain_KeepsThePictureOpen)
{
    ClickTile();
    const QRect enlarged = Tile().geometry();
    LeaveByTheFrame();
    GoToGallery();
    EXPECT_EQ(Tile().geometry(), enlarged);
    EXPECT_FALSE(AreButtonsSeen());
}

TEST_F(GalleriesWindowTest, PageOfAnotherRecord_PutsTheOpenPictureAway)
{
    const QRect place = Tile().geometry();
    ClickTile();
    ASSERT_NE(Tile().geometry(), place);
    LeaveByTheFrame();
    DoubleClickOnMarysBox();
    GoToGallery();

    EXPECT_EQ(Tile().geometry(), place);
    EXPECT_TRUE(AreButtonsSeen());
    EXPECT_EQ(Tile().toolTip(), u"A002_01.jpg"_s);

    // The click that would have closed it does so, wherever it falls; the next one opens.
    ClickTile();
    EXPECT_EQ(Tile().geometry(), place);
    EXPECT_TRUE(AreButtonsSeen());
    ClickTile();
    EXPECT_EQ(Tile().size(), QSize(300, 400));
    EXPECT_FALSE(AreButtonsSeen());
}

} // namespace
} // namespace lineforge
