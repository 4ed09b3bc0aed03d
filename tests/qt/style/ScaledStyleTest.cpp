#include "qt/style/ScaledStyle.h"

#include "qt/WindowTest.h"

#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionSlider>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The same style three times as large, beside the usual one.
struct ScaledStyleTest : WindowTest {
    static constexpr int Factor = 3;

    ScaledStyle Large{Factor};
    std::unique_ptr<QStyle> Usual{QStyleFactory::create(u"Fusion"_s)};
};

struct MetricRow {
    const char* Name;
    QStyle::PixelMetric Metric;
};

struct ScaledMetricTest : ScaledStyleTest, testing::WithParamInterface<MetricRow> {
};

TEST_P(ScaledMetricTest, GrowsByTheFactor)
{
    const QWidget window;
    for (const QWidget* widget : {&window, static_cast<const QWidget*>(nullptr)})
        EXPECT_EQ(Large.pixelMetric(GetParam().Metric, nullptr, widget),
                  Factor * Usual->pixelMetric(GetParam().Metric, nullptr, widget));
}

INSTANTIATE_TEST_SUITE_P(Metrics, ScaledMetricTest,
                         testing::Values(MetricRow{"CheckMark", QStyle::PM_IndicatorWidth},
                                         MetricRow{"OptionMark", QStyle::PM_ExclusiveIndicatorWidth},
                                         MetricRow{"ScrollBar", QStyle::PM_ScrollBarExtent},
                                         MetricRow{"IconInABox", QStyle::PM_MessageBoxIconSize},
                                         MetricRow{"IconOnAButton", QStyle::PM_ButtonIconSize},
                                         MetricRow{"EdgeOfABox", QStyle::PM_LayoutLeftMargin}),
                         [](const auto& row) { return row.param.Name; });

TEST_F(ScaledStyleTest, LinesAndTheDesktopsTitles_StayAsTheyAre)
{
    for (const QStyle::PixelMetric metric : {QStyle::PM_DefaultFrameWidth, QStyle::PM_TitleBarHeight})
        EXPECT_EQ(Large.pixelMetric(metric), Usual->pixelMetric(metric));
}

TEST_F(ScaledStyleTest, TheCallersOption_IsGivenBackAsItWas)
{
    QStyleOptionSlider option;
    const QFontMetrics before = option.fontMetrics;

    Large.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, nullptr);

    EXPECT_EQ(option.fontMetrics.fontDpi(), before.fontDpi());
    EXPECT_EQ(option.fontMetrics, before);
}

TEST_F(ScaledStyleTest, WordsOfAMenuBar_StandTheFactorApart)
{
    QMenuBar bar;
    bar.addMenu(u"File"_s);
    const int word = bar.fontMetrics().size(Qt::TextShowMnemonic, u"File"_s).width();
    const auto apart = [&](QStyle& style) {
        bar.setStyle(&style);
        return bar.actionGeometry(bar.actions().first()).width() - word;
    };
    const int usual = apart(*Usual);

    EXPECT_GT(usual, 0);
    EXPECT_EQ(apart(Large), Factor * usual);
}

TEST_F(ScaledStyleTest, WhatAListShows_KeepsOffTheLineAroundIt)
{
    QListWidget list;
    list.setStyle(&Large);
    list.resize(60, 60);
    const QRgb paper = list.palette().color(QPalette::Base).rgb();

    const QImage picture = list.grab().toImage();

    EXPECT_GT(list.viewport()->x(), 1);
    EXPECT_LT(qGray(picture.pixel(0, 30)), qGray(paper));
    for (int x = 1; x < 10; ++x)
        EXPECT_EQ(picture.pixel(x, 30), paper) << x;
}

struct IconRow {
    const char* Name;
    QStyle::StandardPixmap Kind;
};

struct ScaledIconTest : ScaledStyleTest, testing::WithParamInterface<IconRow> {
};

TEST_P(ScaledIconTest, GrowsByTheFactor_ButNotBeyondWhatABoxWants)
{
    const int side = Factor * Usual->pixelMetric(QStyle::PM_MessageBoxIconSize);
    const QSize wanted(side, side);
    const QSize usual = Usual->standardIcon(GetParam().Kind).actualSize(wanted);

    EXPECT_FALSE(usual.isEmpty());
    EXPECT_EQ(Large.standardIcon(GetParam().Kind).actualSize(wanted), (usual * Factor).boundedTo(wanted));
}

INSTANTIATE_TEST_SUITE_P(Icons, ScaledIconTest,
                         testing::Values(IconRow{"Question", QStyle::SP_MessageBoxQuestion},
                                         IconRow{"Information", QStyle::SP_MessageBoxInformation},
                                         IconRow{"Directory", QStyle::SP_DirIcon}),
                         [](const auto& row) { return row.param.Name; });

// How many pixels of what a scroll bar's lower button shows are clearly darker than the button.
int ArrowInk(const QStyle& style)
{
    constexpr int side = 90;
    QImage picture(side, 2 * side, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QStyleOptionSlider option;
    option.orientation = Qt::Vertical;
    option.rect = picture.rect();
    option.subControls = QStyle::SC_ScrollBarAddLine;
    option.state = QStyle::State_Enabled;
    QPainter painter(&picture);
    style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
    painter.end();
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ink += qGray(picture.pixel(x, y)) < 110;
    return ink;
}

TEST_F(ScaledStyleTest, TheArrowOfAScrollBar_GrowsBothWays)
{
    const int usual = ArrowInk(*Usual);

    EXPECT_GT(usual, 0);
    EXPECT_GT(ArrowInk(Large), Factor * usual);
}

TEST_F(ScaledStyleTest, TheProgramsStyle_HasTheSizeOfItsWindows)
{
    const QWidget widget;
    const double scale = PixelScale().Magnification();
    EXPECT_NE(dynamic_cast<const ScaledStyle*>(QApplication::style()), nullptr);

    for (const QStyle::PixelMetric metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ScrollBarExtent})
        EXPECT_NEAR(QApplication::style()->pixelMetric(metric, nullptr, &widget),
                    scale * Usual->pixelMetric(metric, nullptr, &widget), 1);
}
} // namespace

} // namespace lineforge
