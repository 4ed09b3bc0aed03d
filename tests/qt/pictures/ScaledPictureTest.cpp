#include "qt/pictures/ScaledPicture.h"

#include "qt/WindowTest.h"

#include <QPainter>

namespace lineforge
{

namespace
{
constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb black = qRgb(0, 0, 0);

QImage WhiteDrawing(int width, int height)
{
    QImage drawing(width, height, QImage::Format_RGB32);
    drawing.fill(Qt::white);
    return drawing;
}

QImage Scaled(const QImage& drawing, double ratio, QSize size)
{
    QImage target(size, QImage::Format_RGB32);
    ScaleByArea(drawing, ratio, Qt::yellow, {0, 0}, target.rect(), target);
    return target;
}

// Lines and dots without any symmetry to the pixels of the screen.
QImage BusyDrawing(int width, int height)
{
    QImage drawing = WhiteDrawing(width, height);
    QPainter painter(&drawing);
    for (int at = 0; at < width + height; at += 7)
        painter.drawLine(at, 0, at / 3, height);
    painter.setPen(Qt::red);
    painter.drawEllipse(3, 5, width / 2, height / 3);
    return drawing;
}

TEST(ScaleByAreaTest, UniformColoursStayExact)
{
    for (const double ratio : {3.0, 2.4, 2.0, 1.6, 1.2, 1.0, 0.8, 0.6, 1.92}) {
        const QImage scaled = Scaled(WhiteDrawing(60, 60), ratio, {18, 18});
        for (int y = 0; y < scaled.height(); ++y)
            for (int x = 0; x < scaled.width(); ++x)
                ASSERT_EQ(scaled.pixel(x, y), white) << ratio << ": " << x << ", " << y;
    }
}

TEST(ScaleByAreaTest, AWholePixelOfBlackIsBlack_AndAThirdOfItAThird)
{
    QImage drawing = WhiteDrawing(9, 9);
    QPainter(&drawing).fillRect(0, 0, 3, 3, Qt::black);
    QPainter(&drawing).fillRect(3, 0, 1, 3, Qt::black);
    const QImage scaled = Scaled(drawing, 3.0, {3, 3});
    EXPECT_EQ(scaled.pixel(0, 0), black);
    EXPECT_EQ(scaled.pixel(1, 0), qRgb(170, 170, 170));
    EXPECT_EQ(scaled.pixel(2, 0), white);
    EXPECT_EQ(scaled.pixel(0, 1), white);
}

TEST(ScaleByAreaTest, APixelCutThroughCountsByItsPart)
{
    QImage drawing = WhiteDrawing(12, 12);
    QPainter(&drawing).fillRect(2, 0, 1, 12, Qt::black); // 2.4 of them go on a pixel: 0.4 left, 0.6 right
    const QImage scaled = Scaled(drawing, 2.4, {5, 5});
    EXPECT_NEAR(qRed(scaled.pixel(0, 0)), 255 * (1 - 0.4 / 2.4), 2);
    EXPECT_NEAR(qRed(scaled.pixel(1, 0)), 255 * (1 - 0.6 / 2.4), 2);
    EXPECT_EQ(scaled.pixel(2, 0), white);
}

TEST(ScaleByAreaTest, OutsideTheDrawingTheBackgroundShows)
{
    const QImage scaled = Scaled(WhiteDrawing(6, 6), 3.0, {4, 4});
    EXPECT_EQ(scaled.pixel(1, 1), white);
    EXPECT_EQ(scaled.pixel(2, 1), QColor(Qt::yellow).rgb());
    EXPECT_EQ(scaled.pixel(1, 2), QColor(Qt::yellow).rgb());
}

class ScaledInPartsTest : public testing::TestWithParam<double>
{
};

TEST_P(ScaledInPartsTest, PartsScaledApartMeetWithoutASeam)
{
    const QImage drawing = BusyDrawing(200, 200);
    const QSize size(60, 60);
    const QImage whole = Scaled(drawing, GetParam(), size);
    QImage parts(size, QImage::Format_RGB32);
    for (int top = 0; top < size.height(); top += 11)
        for (int left = 0; left < size.width(); left += 13)
            ScaleByArea(drawing, GetParam(), Qt::yellow, {0, 0}, QRect(left, top, 13, 11) & parts.rect(), parts);
    EXPECT_EQ(parts, whole);
}

INSTANTIATE_TEST_SUITE_P(Ratios, ScaledInPartsTest, testing::Values(3.0, 2.4, 1.6, 1.2, 0.8, 0.6, 1.28));

TEST(ScaledPictureTest, AChangeScalesOnlyWhatShowsIt_AndGivesWhatAFreshOneGives)
{
    for (const double ratio : {3.0, 2.4, 1.6, 0.6}) {
        QImage drawing = BusyDrawing(300, 300);
        ScaledPicture scaled;
        scaled.SetRatio(ratio);
        scaled.Band(0, 90, drawing, Qt::white);
        const long long before = scaled.PixelsScaled();

        QPainter(&drawing).fillRect(31, 42, 17, 5, Qt::green);
        const QRect shown = scaled.Invalidate({31, 42, 17, 5});
        const QImage band = scaled.Band(0, 90, drawing, Qt::white);

        ScaledPicture fresh;
        fresh.SetRatio(ratio);
        EXPECT_EQ(band, fresh.Band(0, 90, drawing, Qt::white)) << ratio;
        EXPECT_LE(scaled.PixelsScaled() - before, 1LL * shown.width() * shown.height()) << ratio;
        EXPECT_LT(shown.width(), 17 / ratio + 5) << ratio;
    }
}

TEST(ScaledPictureTest, WithoutAChangeNothingIsScaledAgain)
{
    const QImage drawing = BusyDrawing(300, 300);
    ScaledPicture scaled;
    scaled.SetRatio(3);
    scaled.Band(0, 90, drawing, Qt::white);
    const long long before = scaled.PixelsScaled();
    scaled.Band(0, 90, drawing, Qt::white);
    EXPECT_EQ(scaled.PixelsScaled(), before);
}

TEST(ScaledPictureTest, AChangeAcrossTwoBandsReachesBoth)
{
    QImage drawing = WhiteDrawing(90, 900);
    ScaledPicture scaled;
    scaled.SetRatio(3);
    scaled.Band(0, 30, drawing, Qt::white);
    scaled.Band(1, 30, drawing, Qt::white);
    const int border = ScaledPicture::BandHeight * 3;
    QPainter(&drawing).fillRect(0, border - 3, 90, 6, Qt::black);
    scaled.Invalidate({0, border - 3, 90, 6});
    EXPECT_EQ(scaled.Band(0, 30, drawing, Qt::white).pixel(5, ScaledPicture::BandHeight - 1), black);
    EXPECT_EQ(scaled.Band(1, 30, drawing, Qt::white).pixel(5, 0), black);
    EXPECT_EQ(scaled.Band(1, 30, drawing, Qt::white).pixel(5, 1), white);
}
} // namespace

} // namespace lineforge
