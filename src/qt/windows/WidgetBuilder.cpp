#include "qt/windows/WidgetBuilder.h"

#include "platform/controls/DataControl.h"
#include "platform/controls/TextPanel.h"
#include "qt/pictures/KeyboardPointer.h"
#include "qt/pictures/PictureView.h"
#include "qt/views/ShapeView.h"
#include "qt/windows/BarBuilder.h"
#include "qt/windows/ButtonBuilder.h"
#include "qt/windows/FrameBuilder.h"
#include "qt/windows/ListBuilder.h"
#include "qt/windows/PictureBuilder.h"
#include "qt/windows/TextBuilder.h"

#include <utility>

namespace lineforge
{

WidgetBuilder::WidgetBuilder(const Scale& scale, std::shared_ptr<const Gate> gate, Bindings& bindings)
    : site_{.Scale = scale, .Gate = std::move(gate), .Bindings = bindings}
{
}

void WidgetBuilder::Build(const Container& container, QWidget* parent)
{
    const Container* outerContainer = std::exchange(site_.Container, &container);
    QWidget* outerParent = std::exchange(site_.Parent, parent);
    for (Control* control : container.Controls())
        control->Accept(*this);
    site_.Container = outerContainer;
    site_.Parent = outerParent;
    for (QObject* child : parent->children())
        if (auto* shape = dynamic_cast<ShapeView*>(child))
            shape->raise();
}

void WidgetBuilder::BuildIn(Frame* frame, const Container& container, QWidget* parent)
{
    Frame* outer = std::exchange(site_.Frame, frame);
    Build(container, parent);
    site_.Frame = outer;
}

void WidgetBuilder::FollowChildren(Container& container, QWidget* parent)
{
    container.Added = [gate = site_.Gate, scale = site_.Scale, &container, parent](Control& control) {
        if (!gate->IsOpen())
            return;
        // What follows the control goes with its widget, not with the window.
        auto bindings = std::make_shared<Bindings>();
        WidgetBuilder builder(scale, gate, *bindings);
        builder.site_.Container = &container;
        builder.site_.Parent = parent;
        control.Accept(builder);
        if (auto* widget = parent->findChild<QWidget*>(control.Name, Qt::FindDirectChildrenOnly)) {
            QObject::connect(widget, &QObject::destroyed, widget, [bindings] {});
            widget->raise();
        }
    };
    container.Removed = [gate = site_.Gate, parent](Control& control) {
        if (gate->IsOpen())
            delete parent->findChild<QWidget*>(control.Name, Qt::FindDirectChildrenOnly);
    };
}

void WidgetBuilder::Visit(Frame& frame)
{
    BuildIn(&frame, frame, BuildWidget(site_, frame));
}

void WidgetBuilder::Visit(PictureBox& picture)
{
    PictureView* view = BuildWidget(site_, picture);
    BuildIn(nullptr, picture, view);
    if (picture.MouseDown)
        view->Parts().Follow(*new KeyboardPointer(*view));
    FollowChildren(picture, view);
}

void WidgetBuilder::Visit(Label& label)
{
    BuildWidget(site_, label);
}

void WidgetBuilder::Visit(TextBox& box)
{
    BuildWidget(site_, box);
}

void WidgetBuilder::Visit(Button& button)
{
    BuildWidget(site_, button);
}

void WidgetBuilder::Visit(CheckBox& box)
{
    BuildWidget(site_, box);
}

void WidgetBuilder::Visit(OptionButton& option)
{
    BuildWidget(site_, option);
}

void WidgetBuilder::Visit(ListBox& list)
{
    BuildWidget(site_, list);
}

void WidgetBuilder::Visit(DriveList& list)
{
    BuildWidget(site_, list);
}

void WidgetBuilder::Visit(DirectoryList& list)
{
    BuildWidget(site_, list);
}

void WidgetBuilder::Visit(Image& image)
{
    BuildWidget(site_, image);
}

void WidgetBuilder::Visit(Shape& shape)
{
    BuildWidget(site_, shape);
}

void WidgetBuilder::Visit(ScrollBar& bar)
{
    BuildWidget(site_, bar);
}

void WidgetBuilder::Visit(MultimediaControl& player)
{
    BuildWidget(site_, player);
}

void WidgetBuilder::Visit(TextPanel& panel)
{
    BuildWidget(site_, panel);
}

void WidgetBuilder::Visit(DataControl& data)
{
    BuildWidget(site_, data);
}

void WidgetBuilder::Visit(Timer&) {}

} // namespace lineforge
