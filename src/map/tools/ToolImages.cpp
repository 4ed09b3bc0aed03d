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

void RaiseTool(Program& p, Image Form1::*button)
{
    Form1& form = *p.Form1;
    (form.*button).Picture = (form.*ImagesOf(button).Raised).Picture.value();
}

void SinkTool(Program& p, Image Form1::*button)
{
    Form1& form = *p.Form1;
    (form.*button).Picture = (form.*ImagesOf(button).Sunken).Picture.value();
}

void RaiseAllTools(Program& p)
{
    for (const ToolImage& tool : Form1::Tools)
        RaiseTool(p, tool.Button);
}

void ShowTools(Program& p)
{
    p.Form1->DrawToolFaces();
    RaiseAllTools(p);
    for (const ToolImage& tool : Form1::Tools)
        ((*p.Form1).*tool.Button).Visible = true;
}

void HideTools(Program& p)
{
    for (const ToolImage& tool : Form1::Tools)
        ((*p.Form1).*tool.Button).Visible = false;
    p.Form1->Shape3.Visible = false;
}

bool AreToolsShown(Program& p)
{
    return p.Form1->Image8.Visible;
}

} // namespace lineforge
