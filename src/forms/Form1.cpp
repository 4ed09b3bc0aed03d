#include "forms/Form1.h"

namespace lineforge::forms
{

Form1::Form1() : Form(u"Form1", u"Lineforge", MainWindowClient)
{
    Picture1.Font = {QStringLiteral("Arial"), 8.25};
    Label9.Font.Bold = Label10.Font.Bold = true;
    Command5.Visible = false; // until a comparison has begun
    Shape3.Kind = Shape::Outline::Rectangle;
    Shape3.Dotted = true;
    Picture1.SpokenName = QStringLiteral("Family tree map");
    Image1.SpokenName = QStringLiteral("Subject picture");
    Frame4.SpokenName = QStringLiteral("Drawing tools");
    for (const ToolImage& tool : Tools) {
        for (Image Form1::*image : {tool.Button, tool.Raised, tool.Sunken})
            (this->*image).Visible = false;
        (this->*tool.Button).ToolTipText = tool.ToolTip.toString();
    }
}

const std::array<Form1::ToolImage, 8> Form1::Tools{{
    {&Form1::Image2, &Form1::Image10, &Form1::Image11, u"Move", ToolSymbol::Move},
    {&Form1::Image3, &Form1::Image12, &Form1::Image13, u"Colour", ToolSymbol::Colour},
    {&Form1::Image4, &Form1::Image14, &Form1::Image15, u"Text Font", ToolSymbol::Font},
    {&Form1::Image5, &Form1::Image16, &Form1::Image17, u"Delete", ToolSymbol::Delete},
    {&Form1::Image6, &Form1::Image20, &Form1::Image21, u"Line Tool", ToolSymbol::Line},
    {&Form1::Image7, &Form1::Image22, &Form1::Image23, u"Box Tool", ToolSymbol::Box},
    {&Form1::Image9, &Form1::Image18, &Form1::Image19, u"Text Tool", ToolSymbol::Text},
    {&Form1::Image8, &Form1::Image24, &Form1::Image25, u"Exit Map Changes", ToolSymbol::Exit},
}};

void Form1::DrawToolFaces()
{
    if (!Image10.Picture.value().isNull())
        return;
    for (const ToolImage& tool : Tools) {
        (this->*tool.Raised).Picture = DrawToolFace(tool.Symbol, false);
        (this->*tool.Sunken).Picture = DrawToolFace(tool.Symbol, true);
    }
}

Rectangle Form1::ToolPlace(int index)
{
    constexpr int side = 345;
    constexpr int pitch = 360;
    return {75 + index * pitch, 127, side, side};
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
