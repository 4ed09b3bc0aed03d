#include "forms/Form1.h"
#include "forms/Form7.h"
#include "gui/qt/WindowTest.h"
#include "platform/qt/WindowView.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

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
    }

    // Never shown: the places are what counts.
    std::unique_ptr<WindowView> Build(Form& form)
    {
        return std::make_unique<WindowView>(form, scale, std::make_shared<Gate>(handlers));
    }

    const Scale scale{GetParam()};
    Handlers handlers;
};

INSTANTIATE_TEST_SUITE_P(TwipsAPixel, WindowLayoutTest, testing::Values(3, 4, 5, 6, 8, 10, 12, 15));

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
        EXPECT_LE(option->sizeHint().height(), option->height()) << qUtf8Printable(option->text());
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

    EXPECT_GE(mark.height(), option->fontMetrics().height());
    EXPECT_EQ(mark.width(), mark.height());
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
