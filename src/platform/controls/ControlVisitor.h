#pragma once

namespace lineforge
{

struct Label;
struct TextBox;
struct Button;
struct CheckBox;
struct OptionButton;
struct Frame;
struct ListBox;
struct DriveList;
struct DirectoryList;
struct Image;
struct Shape;
struct ScrollBar;
struct Timer;
struct MultimediaControl;
struct TextPanel;
class PictureBox;
class DataControl;

// One stop for each kind of control, so that whoever walks a window can't forget a kind.
class ControlVisitor
{
public:
    virtual ~ControlVisitor() = default;
    virtual void Visit(Label& label) = 0;
    virtual void Visit(TextBox& box) = 0;
    virtual void Visit(Button& button) = 0;
    virtual void Visit(CheckBox& box) = 0;
    virtual void Visit(OptionButton& option) = 0;
    virtual void Visit(Frame& frame) = 0;
    virtual void Visit(ListBox& list) = 0;
    virtual void Visit(DriveList& list) = 0;
    virtual void Visit(DirectoryList& list) = 0;
    virtual void Visit(Image& image) = 0;
    virtual void Visit(Shape& shape) = 0;
    virtual void Visit(ScrollBar& bar) = 0;
    virtual void Visit(Timer& timer) = 0;
    virtual void Visit(MultimediaControl& player) = 0;
    virtual void Visit(TextPanel& panel) = 0;
    virtual void Visit(PictureBox& picture) = 0;
    virtual void Visit(DataControl& data) = 0;
};

} // namespace lineforge
