#include "platform/controls/TextPanel.h"

namespace lineforge
{

TextPanel::TextPanel(Container& parent, QStringView name, Rectangle place) : ControlKind(parent, name, place) {}

void TextPanel::Print(QStringView line)
{
    for (const QStringView part : line.split(u'\r'))
        Lines.push_back(part.toString());
    Fire(Changed);
}

void TextPanel::Cls()
{
    Lines.clear();
    FollowedFrom = 0;
    Fire(Changed);
}

} // namespace lineforge
