#pragma once

#include "forms/Form1.h"

namespace lineforge
{

// The buttons of the drawing tools, which are images with two faces.
void RaiseTool(forms::Form1& form, Image forms::Form1::*button);
void SinkTool(forms::Form1& form, Image forms::Form1::*button);
void RaiseAllTools(forms::Form1& form);

void ShowTools(forms::Form1& form);
// With the rectangle of a zone.
void HideTools(forms::Form1& form);
bool AreToolsShown(const forms::Form1& form);

} // namespace lineforge
