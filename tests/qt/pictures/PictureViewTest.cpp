#include "qt/pictures/PictureView.h"

#include "qt/Frames.h"
#include "qt/PaintCounter.h"
#include "qt/WindowTest.h"

#include <QPainter>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PictureForm : Form {
    PictureForm() : Form(u"PictureForm", u"Picture", {6000, 4000}) {}
    PictureBox Picture1{*this, u"Picture1", {300, 150, 5400, 7500}};
};

struct PictureViewTest : WindowTest {
    Window<PictureForm> Pictures{System()};
    QStringList Story;

    void SetUp() override
    {
        Pictures->Picture1.MouseDown = Recorder(u"down"_s);
        Pictures->Picture1.MouseMove = Recorder(u"move"_s);
        Pictures->Picture1.MouseUp = Recorder(u"up"_s);
        Pictures->Picture1.DblClick = [this] { Story += u"double"_s; };
        Pictures->Visible = true;
        ServeEvents(); // the frame comes, and with it the last place of the window
    }

    PictureBox::MouseEvent Recorder(const QString& what)
    {
        return [this, what](int button, int shift, double x, double y) {
            Story += u"%1 %2 %3 %4,%5"_s.arg(what).arg(button).arg(shift).arg(x).arg(y);
        };
    }
    QWidget& View() { return Find<QWidget>(*Pictures, u"Picture1"_s); }
    QWindow* Handle() { return ViewOf(*Pictures).windowHandle(); }
    // The pointer is there before it presses: a press elsewhere would begin with a move.
    QPoint PointAt(QPoint pixel)
    {
        QTest::mouseMove(Handle(), InWindow(pixel));
        Story.clear();
        return InWindow(pixel);
    }
    // From pixels of the picture to those of the window.
    QPoint InWindow(QPoint pixel) { return View().mapTo(&ViewOf(*Pictures), pixel); }
    QString Twips(int x, int y) { return u"%1,%2"_s.arg(PixelScale().ToTwips(x)).arg(PixelScale().ToTwips(y)); }
};

TEST_F(PictureViewTest, PressAndRelease_InWholeTwipsOfThePicture)
{
    QTest::mouseClick(Handle(), Qt::LeftButton, {}, PointAt({10, 20}));
    EXPECT_EQ(Story, QStringList({u"down 1 0 "_s + Twips(10, 20), u"up 1 0 "_s + Twips(10, 20)}));
}

TEST_F(PictureViewTest, AScrolledPictureStillCountsFromItsOwnCorner)
{
    Pictures->Picture1.Top = 150 - 40 * PixelScale().TwipsAPixel();
    QTest::mousePress(Handle(), Qt::LeftButton, {}, PointAt({10, 55}));
    EXPECT_EQ(Story, QStringList{u"down 1 0 "_s + Twips(10, 55)});
    QTest::mouseRelease(Handle(), Qt::LeftButton, {}, InWindow({10, 55}));
}

TEST_F(PictureViewTest, ADoubleClickIsPressReleaseDoubleRelease)
{
    QTest::mouseDClick(Handle(), Qt::LeftButton, {}, PointAt({10, 20}));
    const QString at = Twips(10, 20);
    EXPECT_EQ(Story, QStringList({u"down 1 0 "_s + at, u"up 1 0 "_s + at, u"double"_s, u"up 1 0 "_s + at}));
}

TEST_F(PictureViewTest, ButtonsAndModifiersHaveTheirNumbers)
{
    QTest::mouseClick(Handle(), Qt::RightButton, Qt::ShiftModifier, PointAt({1, 1}));
    QTest::mouseClick(Handle(), Qt::MiddleButton, Qt::ControlModifier | Qt::AltModifier, InWindow({1, 1}));
    const QString at = Twips(1, 1);
    EXPECT_EQ(Story, QStringList({u"down 2 1 "_s + at, u"up 2 1 "_s + at, u"down 4 6 "_s + at, u"up 4 6 "_s + at}));
}

TEST_F(PictureViewTest, MovesComeWithAndWithoutAButton)
{
    QTest::mouseMove(Handle(), InWindow({5, 5}));
    QTest::mousePress(Handle(), Qt::LeftButton, {}, InWindow({5, 5}));
    QTest::mouseMove(Handle(), InWindow({6, 7}));
    QTest::mouseRelease(Handle(), Qt::LeftButton, {}, InWindow({6, 7}));
    EXPECT_EQ(Story, QStringList({u"move 0 0 "_s + Twips(5, 5), u"down 1 0 "_s + Twips(5, 5),
                                  u"move 1 0 "_s + Twips(6, 7), u"up 1 0 "_s + Twips(6, 7)}));
}

TEST_F(PictureViewTest, DisabledItHearsNothing_AndTheWindowBehindNeither)
{
    int windowClicks = 0;
    Pictures->Click = [&windowClicks] { ++windowClicks; };
    Pictures->Picture1.Enabled = false;
    QTest::mouseClick(Handle(), Qt::LeftButton, {}, InWindow({10, 20}));
    EXPECT_EQ(Story, QStringList());
    EXPECT_EQ(windowClicks, 0);
}

QImage ScaledAfresh(const PictureBox& picture, const Scale& scale, QSize size)
{
    QImage shown(size, QImage::Format_RGB32);
    const double ratio = scale.TwipsAPixel() / double{PictureBox::TwipsPerPixel};
    ScaleByArea(picture.Drawing(), ratio, Qt::white, {0, 0}, shown.rect(), shown);
    return shown;
}

void DrawSomething(PictureBox& picture, int from)
{
    picture.ForeColor = Rgb(0, 0, 255);
    for (int at = from; at < from + 10; ++at)
        picture.Box({at * 401 % 4000, at * 517 % 6500, 615, 217});
    picture.ForeColor = Black;
    picture.Line({from * 100, 30}, {4000, 7000});
    picture.PrintAt({1000, 1000 + from * 100}, u"A001"_s);
}

TEST_F(PictureViewTest, UntouchedItIsWhite_WithoutAnImage)
{
    const QImage shown = View().grab().toImage();
    EXPECT_EQ(shown.pixelColor(3, 3), QColor(Qt::white));
    EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(Qt::white));
    EXPECT_TRUE(Pictures->Picture1.Drawing().isNull());
}

TEST_F(PictureViewTest, ShowsTheDrawingScaledByArea_AlsoAfterChangesPieceByPiece)
{
    for (int from = 0; from < 50; from += 10) {
        DrawSomething(Pictures->Picture1, from);
        const QImage shown = View().grab().toImage().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(shown, ScaledAfresh(Pictures->Picture1, PixelScale(), shown.size())) << from;
    }
}

TEST_F(PictureViewTest, ClsMakesItWhiteAgain)
{
    DrawSomething(Pictures->Picture1, 0);
    View().grab();
    Pictures->Picture1.Cls();
    QImage white(View().size(), QImage::Format_RGB32);
    white.fill(Qt::white);
    EXPECT_EQ(View().grab().toImage().convertToFormat(QImage::Format_RGB32), white);
    DrawSomething(Pictures->Picture1, 20);
    const QImage shown = View().grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(shown, ScaledAfresh(Pictures->Picture1, PixelScale(), shown.size()));
}

TEST_F(PictureViewTest, ManyChangesShareAPaint_EvenWhenEventsAreServedBetweenThem)
{
    HeldClocks clocks;
    PassAFrame(clocks);
    PaintCounter counter(View());
    for (int step = 0; step < 1000; ++step) {
        Pictures->Picture1.Line({step, 0}, {4000, 3000});
        ServeEvents();
    }
    EXPECT_EQ(counter.Paints, 1);
    PassAFrame(clocks);
    EXPECT_EQ(counter.Paints, 2);
    const QImage shown = View().grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(shown, ScaledAfresh(Pictures->Picture1, PixelScale(), shown.size()));
}

TEST_F(PictureViewTest, ScrollingMovesIt)
{
    DrawSomething(Pictures->Picture1, 0);
    Pictures->Picture1.Top = 150 - 100 * PixelScale().TwipsAPixel();
    EXPECT_EQ(View().y(), PixelScale().ToPixels(150) - 100);
    const QImage window = ViewOf(*Pictures).grab().toImage();
    const QImage picture = View().grab().toImage();
    const QPoint corner = View().mapTo(&ViewOf(*Pictures), QPoint(0, 0));
    for (int y = 110; y < 200; ++y)
        for (int x = 0; x < 200; ++x)
            ASSERT_EQ(window.pixel(corner + QPoint(x, y)), picture.pixel(x, y)) << x << ", " << y;
}
} // namespace

} // namespace lineforge
