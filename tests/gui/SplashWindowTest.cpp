#include "gui/ProgramWindowTest.h"
#include "qt/windows/WindowView.h"
#include "shell/handlers/InstallHandlers.h"
#include "support/ProgramTest.h"

#include <QScreen>
#include <QTest>

#include <algorithm>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The splash before the main window, as the program has started.
class SplashWindowTest : public ProgramWindowTest
{
protected:
    SplashWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}})
            .Boxes(u"1200,600,255,A001,John,")
            .Picture(u"A001", Qt::red)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}}, 0);
    }

    void Start()
    {
        InstallHandlers(P);
        StartProgram(P);
        ServeEvents();
    }

    // In twips of the area below the menus.
    void ClickMainWindow(Point place)
    {
        auto& view = static_cast<QMainWindow&>(ViewOf(*P.Form1));
        const QPoint inClient(PixelScale().ToPixels(place.X), PixelScale().ToPixels(place.Y));
        QTest::mouseClick(view.windowHandle(), Qt::LeftButton, {}, view.centralWidget()->mapTo(&view, inClient));
        ServeEvents();
    }
    void ClickMiddleOf(const Control& control)
    {
        ClickMainWindow({control.Left + control.Width / 2, control.Top + control.Height / 2});
    }

    bool IsSplashSeen() { return P.form9.IsLoaded() && ViewOf(*P.form9).isVisible(); }
};

constexpr Point onTheMap{4000, 4000};
constexpr Point besideAll{8705, 4000}; // between the map and what stands on its right

TEST_F(SplashWindowTest, ClickOnTheMap_LeavesIt_AlsoWhileTheMapIsStillDead)
{
    Start();
    ClickMainWindow(onTheMap);
    EXPECT_TRUE(IsSplashSeen());
}

TEST_F(SplashWindowTest, ClickOnTheMapOfABranch_LeavesIt)
{
    OpenBranch(u"Smiths"_s);
    for (const Point place : {onTheMap, Point{1400, 700}})
        ClickMainWindow(place);
    EXPECT_NE(P.Form1->Text9.Text.value(), QString()) << "the map has taken the clicks";
    EXPECT_TRUE(IsSplashSeen());
}

TEST_F(SplashWindowTest, ClickOnAnythingElseInTheMainWindow_LeavesIt)
{
    OpenBranch(u"Smiths"_s);
    const forms::Form1& form = *P.Form1;
    for (const Control* control : std::initializer_list<const Control*>{&form.Label9, &form.Label2, &form.Frame1,
                                                                        &form.Frame2, &form.Frame4, &form.VScroll1})
        ClickMiddleOf(*control);
    EXPECT_TRUE(IsSplashSeen());
}

TEST_F(SplashWindowTest, ClickOnTheBareMainWindow_DismissesIt)
{
    for (const bool hasBranch : {false, true}) {
        hasBranch ? OpenBranch(u"Smiths"_s) : Start();
        ASSERT_TRUE(IsSplashSeen());
        ClickMainWindow(besideAll);
        EXPECT_FALSE(IsSplashSeen());
        EXPECT_FALSE(P.form9.IsLoaded());
    }
}

TEST_F(SplashWindowTest, ClickOnItself_DismissesIt)
{
    Start();
    QWidget& frame = Find<QWidget>(*P.form9, u"Frame1"_s);
    QWidget& window = ViewOf(*P.form9);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, frame.mapTo(&window, QPoint(frame.width() / 2, 5)));
    ServeEvents();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashWindowTest, StandsBeforeTheMainWindow_WhichIsAtLeastAsLargeAsItsDesign)
{
    Start();
    EXPECT_TRUE(ViewOf(*P.form9).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const QSize client = static_cast<QMainWindow&>(ViewOf(*P.Form1)).centralWidget()->size();
    const QSize design = PixelScale().ToPixels(MainWindowSize);
    EXPECT_EQ(client.expandedTo(design), client);

    P.Form1->Height = 4000;
    ServeEvents();
    EXPECT_EQ(static_cast<QMainWindow&>(ViewOf(*P.Form1)).centralWidget()->height(), design.height());
}

// On screens of every fineness: it grows with all that it shows.
class SplashScaleTest : public ProgramTest, public testing::WithParamInterface<int>
{
};

INSTANTIATE_TEST_SUITE_P(TwipsAPixel, SplashScaleTest, testing::Values(10, 12, 15, 20, 24, 30));

TEST_P(SplashScaleTest, PlaceAndSize_ArePointsOfTheWindowsScale)
{
    WriteAliasList(Home, {}, 0);
    StartProgram(P);
    const Scale scale{GetParam(), 1.0};
    Handlers handlers;
    const WindowView view(*P.form9, scale, std::make_shared<Gate>(handlers));

    const QPoint place(scale.ToPixels(150 * 15), scale.ToPixels(150 * 15));
    EXPECT_EQ(view.size(), QSize(scale.ToPixels(500 * 15), scale.ToPixels(300 * 15)));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(view.pos(), QPoint(std::min(place.x(), screen.width() - view.width()), place.y()));
}

} // namespace
} // namespace lineforge
