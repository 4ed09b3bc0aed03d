#include "forms/Form1.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "forms/Form7.h"
#include "qt/WindowTest.h"
#include "qt/style/ScaledStyle.h"
#include "qt/windows/WindowView.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Windows of the program at every magnification that a screen may ask for.
class WindowLayoutTest : public WindowTest, public testing::WithParamInterface<int>
{
protected:
    WindowLayoutTest()
    {
        constexpr double usualPoints = 8;
        QFont font = QApplication::font();
        font.setPixelSize(scale.FontPixels(usualPoints));
        QApplication::setFont(font);
        QApplication::setStyle(new ScaledStyle(scale.Magnification()));
    }

    // Never shown: the places are what counts.
    std::unique_ptr<WindowView> Build(Form& form)
    {
        return std::make_unique<WindowView>(form, scale, std::make_shared<Gate>(handlers));
    }

    // Screens that ask for less than the design's size have several dots for a pixel.
    const Scale scale{GetParam(), GetParam() > designTwipsAPixel ? 2.0 : 1.0};
    Handlers handlers;
};

INSTANTIATE_TEST_SUITE_P(TwipsAPixel, WindowLayoutTest, testing::Values(3, 4, 5, 6, 8, 10, 12, 15, 18, 20, 24, 30));

bool IsInsideItsParent(const QWidget& widget)
{
    return widget.parentWidget()->rect().contains(widget.geometry());
}

TEST_P(WindowLayoutTest, MappingOptions_ShowAllTheirWords)
{
    forms::Form7 form;
    const auto window = Build(form);

    const auto options = window->findChildren<QRadioButton*>();
    EXPECT_EQ(options.size(), 7);
    for (const QRadioButton* option : options) {
        EXPECT_TRUE(IsInsideItsParent(*option)) << qUtf8Printable(option->text());
        EXPECT_LE(option->sizeHint().width(), option->width()) << qUtf8Printable(option->text());
        EXPECT_LE(option->fontMetrics().height(), option->height()) << qUtf8Printable(option->text());
        EXPECT_LE(option->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, option), option->height());
    }
    for (const QLabel* label : window->findChildren<QLabel*>())
        EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width());
    const QRect client({}, scale.ToPixels(form.Client));
    for (const QPushButton* button : window->findChildren<QPushButton*>()) {
        EXPECT_TRUE(client.contains(button->geometry())) << qUtf8Printable(button->text());
        EXPECT_LE(button->sizeHint().height(), button->height()) << qUtf8Printable(button->text());
    }
    const auto* number = window->findChild<QLineEdit*>();
    ASSERT_TRUE(number);
    EXPECT_LT(number->fontMetrics().height(), number->height());
    EXPECT_GE(number->width(), number->fontMetrics().horizontalAdvance(u"A0000"_s));
}

TEST_P(WindowLayoutTest, TheMarkOfAnOption_IsAsLargeAsItsText)
{
    forms::Form7 form;
    const auto window = Build(form);
    const auto* option = window->findChild<QRadioButton*>();
    QStyleOptionButton look;
    look.initFrom(option);

    const QRect mark = option->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &look, option);

    EXPECT_GE(mark.height(), QFontInfo(option->font()).pixelSize());
    EXPECT_EQ(mark.width(), mark.height());
}

// The first column that has something of a letter.
int FirstInk(const QImage& picture, QRect within)
{
    for (int x = within.left(); x <= within.right(); ++x)
        for (int y = within.top(); y <= within.bottom(); ++y)
            if (qGray(picture.pixel(x, y)) < 128)
                return x - within.left();
    return within.width();
}

TEST_P(WindowLayoutTest, WhatIsWrittenInABox_StandsOffItsEdge)
{
    forms::Form3 form;
    form.Text2.Text = u"HHHH"_s;  // of one line
    form.Text12.Text = u"HHHH"_s; // of several
    const auto window = Build(form);
    constexpr int edge = 2;
    const int leastDistance = scale.ToPixels(45);

    for (const TextBox* box : {&form.Text2, &form.Text12}) {
        const QImage picture = window->findChild<QWidget*>(box->Name)->grab().toImage();
        const QRect within = picture.rect().adjusted(edge, edge + 2, -edge, -edge - 2);
        EXPECT_GE(FirstInk(picture, within) + edge, leastDistance) << qUtf8Printable(box->Name);
        EXPECT_LE(FirstInk(picture, within) + edge, 3 * leastDistance) << qUtf8Printable(box->Name);
    }
}

TEST_P(WindowLayoutTest, TheButtonsOfTheScrollBar_AreAboutAsHighAsItIsWide)
{
    forms::Form1 form;
    const auto window = Build(form);
    const auto* bar = window->findChild<QScrollBar*>(form.VScroll1.Name);
    ASSERT_TRUE(bar);
    QStyleOptionSlider look;
    look.initFrom(bar);
    look.orientation = Qt::Vertical;

    const QRect button = bar->style()->subControlRect(QStyle::CC_ScrollBar, &look, QStyle::SC_ScrollBarAddLine, bar);

    EXPECT_NEAR(button.height(), bar->width(), bar->width() / 3);
}

// There is room for more than the time and the buttons.
class RoomyWindowTest : public WindowLayoutTest
{
};

INSTANTIATE_TEST_SUITE_P(TwipsAPixel, RoomyWindowTest, testing::Values(3, 4, 5, 6, 8, 10, 12));

TEST_P(RoomyWindowTest, TheTimeOfAFilm_TouchesNeitherTheFilmNorTheButtons)
{
    forms::Form5 form;
    form.MMControl2.Length = 2000;
    form.MMControl2.IsOpen = true;
    const auto window = Build(form);
    auto* player = window->findChild<QWidget*>(form.MMControl2.Name);
    ASSERT_TRUE(player);
    player->ensurePolished();
    QResizeEvent resize(player->size(), {});
    QCoreApplication::sendEvent(player, &resize);

    const auto* time = window->findChild<QLabel*>(form.MMControl2.Name + u"Time"_s);
    ASSERT_TRUE(time);
    EXPECT_FALSE(time->isHidden());
    EXPECT_GE(time->height(), 5 * time->fontMetrics().height() / 4);
}

TEST_P(WindowLayoutTest, Tools_StandSideBySide_EachASquareInTheirFrame)
{
    forms::Form1 form;
    form.DrawToolFaces();
    for (const forms::Form1::ToolImage& tool : forms::Form1::Tools) {
        (form.*tool.Button).Visible = true;
        (form.*tool.Button).Picture = (form.*tool.Raised).Picture.value();
    }
    const auto window = Build(form);

    const QWidget* before = nullptr;
    for (const forms::Form1::ToolImage& tool : forms::Form1::Tools) {
        const auto* image = window->findChild<QWidget*>((form.*tool.Button).Name);
        ASSERT_TRUE(image);
        EXPECT_TRUE(image->isVisibleTo(window.get()));
        EXPECT_TRUE(IsInsideItsParent(*image));
        EXPECT_NEAR(image->width(), image->height(), 1);
        if (before) {
            EXPECT_GT(image->x(), before->geometry().right());
        }
        before = image;
    }
}
} // namespace

} // namespace lineforge
