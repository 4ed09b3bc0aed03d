#include "ToolView.h"

#include "Ink.h"
#include "MapView.h"
#include "Menus.h"

#include <algorithm>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
QImage PictureOfTool(const Tour& tour, const Image& tool)
{
    return tour.PictureOf(tour.OnMain(tool));
}
} // namespace

void OpenTools(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuTreeGraphics, tour.MainForm.mnuTreeTools);
    tour.Await(u"the tools beside the map"_s, [&] {
        return std::ranges::all_of(forms::Form1::Tools, [&](const forms::Form1::ToolImage& tool) {
            return !IsOneColour(PictureOfTool(tour, tour.MainForm.*tool.Button));
        });
    });
}

void PressTool(Tour& tour, const Image& tool)
{
    const QImage before = PictureOfTool(tour, tool);
    tour.Hands.Click(tour.OnMain(tool).center());
    tour.Await(u"the tool "_s + tool.ToolTipText + u" to look different"_s,
               [&] { return PictureOfTool(tour, tool) != before; });
}

QPoint PointOnMap(const Tour& tour, QPoint twips)
{
    return PlaceOnMap(tour, {twips.x(), twips.y(), 1, 1}).topLeft();
}

} // namespace lineforge::tour
