#pragma once

#include "platform/controls/ControlVisitor.h"
#include "platform/controls/Controls.h"
#include "qt/events/Bindings.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/Scale.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace lineforge
{

// Makes the widgets for the controls of a container and keeps both sides in step from then on. Made in the order of the
// controls, which is the order that Tab follows.
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

    // Controls that come and go while the window is shown.
    void FollowChildren(Container& container, QWidget* parent);
    void AddAccessKey(QWidget* widget, const TextBox& box);
    void VisitDraggable(Image& image);
    void VisitLine(TextBox& box);
    void VisitLines(TextBox& box);
    // Keeps a view of a text box in step with it; clicks come to the widget `clicked`.
    template <class View>
    void Tie(View* view, QWidget* clicked, TextBox& box);
    // What all kinds have in common: name, place, being visible and enabled.
    void Dress(QWidget* widget, Control& control);
    // The same for a widget that finds its place itself.
    void Dress(QWidget* widget, Control& control, const std::function<void()>& place);
    void NameForReaders(QWidget* widget, const Control& control);
    template <class Caption>
    void FollowCaption(QWidget* widget, const Control& control, Caption& caption);

    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    Bindings& bindings_;
    const Container* container_ = nullptr;
    Frame* frame_ = nullptr; // that the controls stand in
    QWidget* parent_ = nullptr;
};

} // namespace lineforge
