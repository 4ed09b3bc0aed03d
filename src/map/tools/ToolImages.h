#pragma once

#include "forms/Form1.h"
#include "program/state/Program.h"

namespace lineforge
{

// The buttons of the drawing tools, which are images with two faces.
void RaiseTool(Program& p, Image forms::Form1::*button);
void SinkTool(Program& p, Image forms::Form1::*button);
void RaiseAllTools(Program& p);

void ShowTools(Program& p);
// With the rectangle of a zone.
void HideTools(Program& p);
bool AreToolsShown(Program& p);

} // namespace lineforge
