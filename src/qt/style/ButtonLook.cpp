#include "qt/style/ButtonLook.h"

#include "platform/canvas/PictureBox.h"

#include <QPushButton>

#include <cmath>

namespace lineforge
{

namespace
{
// White stands out better on it than black does, by the usual measure of contrast.
bool IsDark(const QColor& colour)
{
    constexpr double evenContrast = 0.179;
    const auto light = [](double part) { return std::pow(part, 2.2); };
    return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) + 0.0722 * light(colour.blueF()) <
           evenContrast;
}
} // namespace

void ShowOnButton(QPushButton& button, const QImage& picture)
{
    if (picture.isNull() && button.icon().isNull())
        return;
    button.setFlat(true);
    button.setIcon(QPixmap::fromImage(picture));
}

void ColourButton(QPushButton& button, const std::optional<Colour>& colour)
{
    if (!colour) {
        button.setPalette({});
        return;
    }
    const QColor back = ToQColor(*colour);
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, back);
    palette.setColor(QPalette::ButtonText, IsDark(back) ? Qt::white : Qt::black);
    button.setPalette(palette);
}

} // namespace lineforge
