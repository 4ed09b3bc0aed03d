#include "qt/WindowTest.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct FrameForm : Form {
    FrameForm() : Form(u"FrameForm", u"Frame", {6000, 6000}) {}
    Frame Frame1{*this, u"Frame1", {300, 300, 3000, 3000}, u"Ref  A001"};
    Label Label1{Frame1, u"Label1", {150, 450, 900, 255}, u"Name"};
    TextBox Text1{Frame1, u"Text1", {1200, 450, 900, 315}};
    Image Image1{Frame1, u"Image1", {150, 1200, 900, 900}};
    Frame Frame2{*this, u"Frame2", {300, 3600, 3000, 900}};
};

struct FrameTest : WindowTest {
    Window<FrameForm> Frames{System()};
    int Clicks = 0;
    int WindowClicks = 0;
    void SetUp() override
    {
        Frames->Frame1.Click = [this] { ++Clicks; };
        Frames->Click = [this] { ++WindowClicks; };
        Frames->Visible = true;
    }
    void ClickOn(Point twips)
    {
        QTest::mouseClick(ViewOf(*Frames).windowHandle(), Qt::LeftButton, {},
                          QPoint(PixelScale().ToPixels(twips.X), PixelScale().ToPixels(twips.Y)));
    }
};

TEST_F(FrameTest, TitleFollowsItsCaption)
{
    const auto& box = Find<QGroupBox>(*Frames, u"Frame1"_s);
    EXPECT_EQ(box.title(), u"Ref  A001"_s);
    EXPECT_EQ(box.accessibleName(), u"Ref  A001"_s);
    Frames->Frame1.Caption = u"Ref  B002"_s;
    EXPECT_EQ(box.title(), u"Ref  B002"_s);
    EXPECT_EQ(Find<QGroupBox>(*Frames, u"Frame2"_s).accessibleName(), QString());
}

TEST_F(FrameTest, ItsControlsStandInItAtTheirTwips)
{
    const auto& box = Find<QGroupBox>(*Frames, u"Frame1"_s);
    const auto& text = Find<QLineEdit>(*Frames, u"Text1"_s);
    EXPECT_EQ(text.parentWidget(), &box);
    EXPECT_EQ(text.geometry(), PixelScale().ToPixels(Rectangle{1200, 450, 900, 315}));
}

TEST_F(FrameTest, AClickOnItsBareAreaIsItsOwn)
{
    ClickOn({3000, 3000});
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(WindowClicks, 0);
}

TEST_F(FrameTest, ALabelAndAPictureThatTakeNoClicksCountAsFrame)
{
    ClickOn({600, 850});
    EXPECT_EQ(Clicks, 1);
    ClickOn({600, 1700});
    EXPECT_EQ(Clicks, 2);
}

TEST_F(FrameTest, AControlThatTakesClicksKeepsThem_DisabledToo)
{
    int pictureClicks = 0;
    Frames->Image1.Click = [&pictureClicks] { ++pictureClicks; };
    ClickOn({600, 1700});
    EXPECT_EQ(pictureClicks, 1);
    ClickOn({1700, 850});
    Frames->Text1.Enabled = false;
    ClickOn({1700, 850});
    EXPECT_EQ(Clicks, 0);
}

TEST_F(FrameTest, DisabledItTakesItsControlsAlong)
{
    Frames->Frame1.Enabled = false;
    EXPECT_FALSE(Find<QLineEdit>(*Frames, u"Text1"_s).isEnabled());
    ClickOn({3000, 3000});
    EXPECT_EQ(Clicks, 0);
}

TEST_F(FrameTest, HiddenItTakesItsControlsAlong)
{
    Frames->Frame1.Visible = false;
    EXPECT_FALSE(Find<QLineEdit>(*Frames, u"Text1"_s).isVisible());
}
} // namespace

} // namespace lineforge
