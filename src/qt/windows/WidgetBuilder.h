#pragma once

#include "platform/controls/ControlVisitor.h"
#include "qt/windows/BuildSite.h"

namespace lineforge
{

// Makes the widgets for the controls of a container, each by the builder of its family, which keeps both sides in step
// from then on. Made in the order of the controls, which is the order that Tab follows.
class WidgetBuilder : private ControlVisitor
{
public:
    WidgetBuilder(const Scale& scale, std::shared_ptr<const Gate> gate, Bindings& bindings);

    void Build(const Container& container, QWidget* parent);

private:
    void Visit(Label& label) override;
    void Visit(TextBox& box) override;
    void Visit(Button& button) override;
    void Visit(CheckBox& box) override;
    void Visit(OptionButton& option) override;
    void Visit(Frame& frame) override;
    void Visit(ListBox& list) override;
    void Visit(DriveList& list) override;
    void Visit(DirectoryList& list) override;
    void Visit(Image& image) override;
    void Visit(Shape& shape) override;
    void Visit(ScrollBar& bar) override;
    void Visit(Timer& timer) override;
    void Visit(MultimediaControl& player) override;
    void Visit(TextPanel& panel) override;
    void Visit(PictureBox& picture) override;
    void Visit(DataControl& data) override;

    // The controls of a container that stands in that frame, or in none.
    void BuildIn(Frame* frame, const Container& container, QWidget* parent);
    // Controls that come and go while the window is shown.
    void FollowChildren(Container& container, QWidget* parent);

    BuildSite site_;
};

} // namespace lineforge
