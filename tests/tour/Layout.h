#pragma once

#include "Display.h"
#include "platform/controls/Form.h"
#include "qt/style/Scale.h"

#include <QRect>

namespace lineforge::tour
{

// Where the controls of a window stand on this screen, taken from what the program itself lays its windows out by.
class Layout
{
public:
    explicit Layout(const Display& screen);

    const Scale& Pixels() const { return scale_; }
    // In the area below the window's menus. A control in a frame stands where the frame stands.
    QRect PlaceOf(const Form& form, const Control& control) const;

private:
    Scale scale_;
};

} // namespace lineforge::tour
