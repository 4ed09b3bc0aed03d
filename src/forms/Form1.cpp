#include "forms/Form1.h"

namespace lineforge::forms
{

Form1::Form1() : Form(u"Form1", u"Lineforge", MainWindowClient)
{
    Picture1.Font = {QStringLiteral("Arial"), 8.25};
    Label9.Font.Bold = Label10.Font.Bold = true;
}

std::unique_ptr<Shape> Form1::LineageFrame(Container& parent, const QString& name)
{
    auto frame = std::make_unique<Shape>(parent, name, Rectangle{0, 0, 735, 495});
    frame->Kind = Shape::Outline::Rectangle;
    frame->BorderColor = Rgb(0, 128, 0);
    frame->BorderWidth = 3;
    return frame;
}

} // namespace lineforge::forms
