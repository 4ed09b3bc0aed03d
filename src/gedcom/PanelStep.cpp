#include "gedcom/PanelStep.h"

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int growth = 1000; // twips
constexpr int growthOnBar = growth / 2;
} // namespace

void KeepLastLineInView(const TextPanel& panel, ScrollBar& bar)
{
    const int hidden = panel.CurrentY() - bar.Height;
    if (hidden > 2 * bar.Value)
        bar.Value = std::min(bar.Max, (hidden + 1) / 2);
}

void StepPanel(Program& p, TextPanel& panel, ScrollBar& bar)
{
    p.Loop.DoEvents();
    if (panel.CurrentY() > panel.Height - growth) {
        panel.Height = panel.Height + growth;
        bar.Max += growthOnBar;
        bar.Value = bar.Value + growthOnBar;
        p.Loop.DoEvents();
    } else {
        KeepLastLineInView(panel, bar);
    }
}

void ScrollPanel(TextPanel& panel, const ScrollBar& bar)
{
    panel.Top = -2 * bar.Value;
}

} // namespace lineforge
