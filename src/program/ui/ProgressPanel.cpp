#include "program/ui/ProgressPanel.h"

#include "platform/controls/TextPanel.h"

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int growth = 1000; // twips
constexpr int growthOnBar = growth / 2;

// From where on the bar the newest line can be seen, as far as the bar goes.
int EndOnBar(const TextPanel& panel, const ScrollBar& bar)
{
    const int hidden = panel.CurrentY() - bar.Height;
    return std::clamp((hidden + 1) / 2, 0, bar.Max.value());
}

bool IsFollowed(const TextPanel& panel, const ScrollBar& bar)
{
    return bar.Value >= panel.FollowedFrom;
}

void Grow(TextPanel& panel, ScrollBar& bar, bool isFollowed)
{
    panel.Height = panel.Height + growth;
    bar.Max = bar.Max + growthOnBar;
    if (isFollowed)
        bar.Value = bar.Value + growthOnBar;
}

// A panel that has yet to grow to its text doesn't show the end to one who follows it.
void RememberWhoFollows(TextPanel& panel, const ScrollBar& bar, bool isFollowed)
{
    const int end = EndOnBar(panel, bar);
    panel.FollowedFrom = isFollowed ? std::min(bar.Value.value(), end) : end;
}
} // namespace

void KeepLastLineInView(const TextPanel& panel, ScrollBar& bar)
{
    if (IsFollowed(panel, bar))
        bar.Value = std::max(bar.Value.value(), EndOnBar(panel, bar));
}

void StepPanel(EventLoop& loop, TextPanel& panel, ScrollBar& bar)
{
    loop.DoEvents();
    const bool isFollowed = IsFollowed(panel, bar);
    const bool grows = panel.CurrentY() > panel.Height - growth;
    if (grows)
        Grow(panel, bar, isFollowed);
    else
        KeepLastLineInView(panel, bar);
    RememberWhoFollows(panel, bar, isFollowed);
    if (grows)
        loop.DoEvents();
}

void ScrollPanel(TextPanel& panel, const ScrollBar& bar)
{
    panel.Top = -2 * bar.Value;
}

} // namespace lineforge
