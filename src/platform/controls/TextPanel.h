#pragma once

#include "platform/controls/Controls.h"

#include <QStringList>

namespace lineforge
{

// A panel that text is printed into line by line. The lines are kept, so that they can be read, selected and copied;
// hundreds of thousands of them stay light.
struct TextPanel : ControlKind<TextPanel> {
    // A line's height in twips, for those who ask where the text ends.
    static constexpr int LineHeight = 195;

    TextPanel(Container& parent, QStringView name, Rectangle place);

    // Another line; a carriage return in it begins one more.
    void Print(QStringView line = {});
    void Cls();

    // Where the next line will stand, in twips below the panel's top.
    int CurrentY() const { return static_cast<int>(Lines.size()) * LineHeight; }

    QStringList Lines;
    int FollowedFrom = 0; // where its bar must at least stand for whoever scrolls the panel to follow the text on
    Event Changed;        // lines have come, or all have gone; set by whoever shows the panel
};

} // namespace lineforge
