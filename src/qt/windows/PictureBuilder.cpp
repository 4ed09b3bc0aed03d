#include "qt/windows/PictureBuilder.h"

#include "qt/pictures/DraggableImage.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/views/ShapeView.h"

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int thinnestOutline = 2;

void BuildDraggable(const BuildSite& site, Image& image)
{
    auto* view = new DraggableImage(site.Parent, image);
    site.Bindings.Follow(image.Picture, [view, &image] { view->Show(image.Picture); });
    view->Dropped = [gate = site.Gate, &image](DraggableImage& source) {
        gate->Run([&image, dropped = &source.Control()] {
            if (image.DragDrop)
                image.DragDrop(*dropped);
        });
    };
    view->Moved = [gate = site.Gate, scale = site.Scale, &image](QPoint topLeft) {
        if (gate->IsOpen())
            image.Move({scale.ToTwips(topLeft.x()), scale.ToTwips(topLeft.y())});
    };
    site.Dress(view, image);
    site.Bindings.Follow(image.Tag, [view] { view->TakeTag(); });
    view->LieBelowThoseThere();
}
} // namespace

void BuildWidget(const BuildSite& site, Image& image)
{
    if (image.Draggable)
        return BuildDraggable(site, image);
    auto* view = new ImageView(site.Parent);
    site.Bindings.Follow(image.Picture, [view, &image] { view->Show(image.Picture); });
    view->TakesClicks = [gate = site.Gate, &image] { return gate->IsOpen() && image.Click; };
    view->Clicked = [gate = site.Gate, &image] { gate->Run(image.Click); };
    // A click leaves the focus where the user works.
    if (image.Click)
        view->setFocusPolicy(Qt::TabFocus);
    site.NameForReaders(view, image);
    site.Dress(view, image);
}

void BuildWidget(const BuildSite& site, Shape& shape)
{
    const int pen = std::max(thinnestOutline, site.Scale.ToPixels(shape.BorderWidth * designTwipsAPixel));
    auto* view = new ShapeView(site.Parent, shape, pen);
    site.Bindings.Follow(shape.BorderColor, [view, &shape] { view->SetColour(ToQColor(shape.BorderColor)); });
    TakeFor(*view, QAccessible::Graphic);
    site.NameForReaders(view, shape);
    site.Dress(view, shape);
}

} // namespace lineforge
