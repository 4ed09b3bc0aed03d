#include "gui/EveryWindow.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The colours of a dark desktop, while it lives.
class DarkDesktop
{
public:
    DarkDesktop() : usual_(QApplication::palette())
    {
        QPalette dark(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            dark.setColor(role, QColor(0xfc, 0xfc, 0xfc));
            dark.setColor(QPalette::Disabled, role, QColor(0x77, 0x7b, 0x80));
        }
        dark.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
        dark.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
        QApplication::setPalette(dark);
    }
    ~DarkDesktop() { QApplication::setPalette(usual_); }

private:
    QPalette usual_;
};

// As the guidelines for accessible contents measure brightness, from 0 to 1.
double Brightness(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// The greatest contrast between two pixels of what the window shows there: 1 where all is one colour, 21 for black and
// white.
double ContrastIn(QWidget& window, const QWidget& widget, QRect part)
{
    const QImage shown = window.grab(part.translated(widget.mapTo(&window, QPoint()))).toImage();
    double darkest = 1;
    double brightest = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const double brightness = Brightness(shown.pixelColor(x, y));
            darkest = std::min(darkest, brightness);
            brightest = std::max(brightest, brightness);
        }
    return (brightest + 0.05) / (darkest + 0.05);
}

double ContrastIn(QWidget& window, const QWidget& widget)
{
    return ContrastIn(window, widget, widget.rect());
}

class DarkThemeTest : public EveryWindowTest
{
protected:
    template <class Widget>
    static QList<Widget*> Visible(const QWidget& window)
    {
        QList<Widget*> visible = window.findChildren<Widget*>();
        visible.removeIf([](const Widget* widget) { return !widget->isVisible(); });
        return visible;
    }

private:
    DarkDesktop desktop_;
};

INSTANTIATE_TEST_SUITE_P(Windows, DarkThemeTest, testing::ValuesIn(every_window::all), NameOf);

TEST_P(DarkThemeTest, EveryTextStandsOut)
{
    constexpr double readable = 4.5;
    QWidget& window = Open();
    for (const QLabel* label : Visible<QLabel>(window))
        if (!label->text().isEmpty() && label->isEnabled()) {
            EXPECT_GE(ContrastIn(window, *label), readable) << label->objectName().toStdString();
        }
    for (const QAbstractButton* button : Visible<QAbstractButton>(window))
        if (button->isEnabled()) {
            EXPECT_GE(ContrastIn(window, *button), readable) << button->objectName().toStdString();
        }
}

TEST_P(DarkThemeTest, TheLineOfAFrameIsSeen)
{
    constexpr double visible = 1.8;
    QWidget& window = Open();
    for (const QGroupBox* frame : Visible<QGroupBox>(window)) {
        const QRect leftEdge(0, frame->height() / 2, 3, 1);
        EXPECT_GE(ContrastIn(window, *frame, leftEdge), visible) << frame->objectName().toStdString();
    }
}

using DarkMapTest = EveryWindowTest;

INSTANTIATE_TEST_SUITE_P(Windows, DarkMapTest, testing::Values(every_window::all[0]), NameOf);

TEST_P(DarkMapTest, IsTheSameWhitePaper)
{
    Open();
    QWidget& map = Find<QWidget>(*P.Form1, u"Picture1"_s);
    const QImage before = map.grab().toImage();
    EXPECT_EQ(before.pixelColor(before.rect().center()), QColor(Qt::white));

    const DarkDesktop dark;
    ServeEvents();

    EXPECT_EQ(map.grab().toImage(), before);
}

} // namespace
} // namespace lineforge
