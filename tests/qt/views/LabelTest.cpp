#include "qt/WindowTest.h"
#include "qt/views/LabelView.h"

#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct LabelForm : Form {
    LabelForm() : Form(u"LabelForm", u"Labels", {6000, 3000})
    {
        Label3.Font = {u"Courier"_s, 16, true, true};
        Label4.Centred = true;
    }
    Label Label1{*this, u"Label1", {150, 150, 3000, 255}, u"First & foremost"};
    Label Label2{*this, u"Label2", {150, 600, 3000, 900}, u"A text that needs more than one line in its place"};
    Label Label3{*this, u"Label3", {150, 1600, 3000, 600}, u"<b>bold</b>"};
    Label Label4{*this, u"Label4", {150, 2400, 3000, 255}, u"i"};
};

struct LabelTest : WindowTest {
    Window<LabelForm> Labels{System()};
    void SetUp() override { Labels->Visible = true; }
};

TEST_F(LabelTest, ShowsItsCaption_AndFollowsIt)
{
    const auto& view = Find<QLabel>(*Labels, u"Label1"_s);
    EXPECT_EQ(view.text(), u"First & foremost"_s);
    EXPECT_EQ(view.accessibleName(), u"First & foremost"_s);
    Labels->Label1.Caption = u"Second"_s;
    EXPECT_EQ(view.text(), u"Second"_s);
    EXPECT_EQ(view.accessibleName(), u"Second"_s);
}

TEST_F(LabelTest, TextStandsAtTheLeft_OrInTheMiddle)
{
    const auto middleOfInk = [this](const QString& name) {
        const QImage shown = Find<QLabel>(*Labels, name).grab().toImage();
        int first = shown.width();
        int last = -1;
        for (int x = 0; x < shown.width(); ++x)
            for (int y = 0; y < shown.height(); ++y)
                if (shown.pixelColor(x, y).lightness() < 100) {
                    first = std::min(first, x);
                    last = x;
                }
        return (first + last) / 2;
    };
    Labels->Label1.Caption = u"i"_s;
    EXPECT_LT(middleOfInk(u"Label1"_s), 10);
    EXPECT_LE(std::abs(middleOfInk(u"Label4"_s) - PixelScale().ToPixels(1500)), 2);
}

TEST_F(LabelTest, TextIsNeverMarkup)
{
    EXPECT_EQ(Find<QLabel>(*Labels, u"Label3"_s).textFormat(), Qt::PlainText);
}

TEST_F(LabelTest, FontIsTheLabelsOwn_AndTheUsualOneByDefault)
{
    const QFont own = Find<QLabel>(*Labels, u"Label3"_s).font();
    EXPECT_EQ(own.family(), u"Courier"_s);
    EXPECT_EQ(own.pixelSize(), PixelScale().FontPixels(16));
    EXPECT_TRUE(own.bold());
    EXPECT_TRUE(own.italic());
    EXPECT_EQ(Find<QLabel>(*Labels, u"Label1"_s).font(), QApplication::font());
}

TEST_F(LabelTest, StandsAtItsPlace_AndFollowsIt)
{
    const auto& view = Find<QLabel>(*Labels, u"Label1"_s);
    EXPECT_EQ(view.geometry(), PixelScale().ToPixels(Rectangle{150, 150, 3000, 255}));
    Labels->Label1.Move({300, 450});
    Labels->Label1.Width = 1500;
    Labels->Label1.Height = 300;
    EXPECT_EQ(view.geometry(), PixelScale().ToPixels(Rectangle{300, 450, 1500, 300}));
}

TEST_F(LabelTest, VisibleAndEnabledFollow)
{
    const auto& view = Find<QLabel>(*Labels, u"Label1"_s);
    EXPECT_TRUE(view.isVisible());
    Labels->Label1.Visible = false;
    Labels->Label1.Enabled = false;
    EXPECT_FALSE(view.isVisible());
    EXPECT_FALSE(view.isEnabled());
}

bool HasInk(const QImage& image, const QRect& place)
{
    const QRgb paper = image.pixel(image.rect().bottomRight());
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.pixel(x, y) != paper)
                return true;
    return false;
}

TEST_F(LabelTest, ALongTextTakesSeveralLinesWhereThereIsRoom)
{
    auto& view = Find<QLabel>(*Labels, u"Label2"_s);
    const QImage image = view.grab().toImage();
    const int line = view.fontMetrics().lineSpacing();
    EXPECT_TRUE(HasInk(image, QRect(0, line + line / 4, 60, line / 2)));
}

TEST_F(LabelTest, ALongTextInALowPlaceEndsInAnEllipsisWithinIt)
{
    Labels->Label1.Caption = QString(200, u'W');
    auto& view = Find<QLabel>(*Labels, u"Label1"_s);
    const QImage image = view.grab().toImage();
    // The upper half of the last letters is empty: dots stand there.
    const int dots = view.fontMetrics().horizontalAdvance(u'\u2026') - 2;
    EXPECT_FALSE(HasInk(image, QRect(image.width() - dots, 0, dots, image.height() / 2)));
    EXPECT_TRUE(HasInk(image, QRect(0, 0, image.width() / 2, image.height())));
}
} // namespace

} // namespace lineforge
