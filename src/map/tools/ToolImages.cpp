#include "map/tools/ToolImages.h"

#include "forms/Form1.h"

#include <algorithm>

namespace lineforge
{

namespace
{
using forms::Form1;
using ToolImage = Form1::ToolImage;

const ToolImage& ImagesOf(Image Form1::*button)
{
    return *std::ranges::find(Form1::Tools, button, &ToolImage::Button);
}
} // namespace

void RaiseTool(Form1& form, Image Form1::*button)
{
    (form.*button).Picture = (form.*ImagesOf(button).Raised).Picture.value();
}

void SinkTool(Form1& form, Image Form1::*button)
{
    (form.*button).Picture = (form.*ImagesOf(button).Sunken).Picture.value();
}

void RaiseAllTools(Form1& form)
{
    for (const ToolImage& tool : Form1::Tools)
        RaiseTool(form, tool.Button);
}

void ShowTools(Form1& form)
{
    form.DrawToolFaces();
    RaiseAllTools(form);
    for (const ToolImage& tool : Form1::Tools)
        (form.*tool.Button).Visible = true;
}

void HideTools(Form1& form)
{
    for (const ToolImage& tool : Form1::Tools)
        (form.*tool.Button).Visible = false;
    form.Shape3.Visible = false;
}

bool AreToolsShown(const Form1& form)
{
    return form.Image8.Visible;
}

} // namespace lineforge
