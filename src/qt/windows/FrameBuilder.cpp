#include "qt/windows/FrameBuilder.h"

#include "qt/pictures/PictureView.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"

namespace lineforge
{

QWidget* BuildWidget(const BuildSite& site, Frame& frame)
{
    auto* view = new FrameView(site.Parent);
    site.Bindings.Follow(frame.Caption, [view, &frame] { view->setTitle(frame.Caption); });
    view->Clicked = [gate = site.Gate, &frame] { gate->Run(frame.Click); };
    site.Bindings.Follow(frame.Caption, [view, &frame] {
        view->setAccessibleName(frame.SpokenName.isEmpty() ? SpokenCaption(frame.Caption) : frame.SpokenName);
    });
    site.Dress(view, frame);
    return view;
}

PictureView* BuildWidget(const BuildSite& site, PictureBox& picture)
{
    auto* view = new PictureView(site.Parent, picture, site.Scale, site.Gate);
    site.NameForReaders(view, picture);
    site.Dress(view, picture);
    return view;
}

} // namespace lineforge
