#pragma once

#include "platform/controls/Controls.h"

#include <QAccessible>

class QWidget;

namespace lineforge
{

// A caption as it is read aloud: without the mark of its access key.
QString SpokenCaption(const QString& caption);

// What a control without a caption is called: by its `SpokenName`; a field by the nearest label left of it, else by the
// label right above it; else by its tool tip, else by the caption of the frame around it, else by what it is. Its name
// is the last resort. A tool tip that isn't the name is read out as the description.
QString BorrowedName(const Control& control, const Container& container);

// The label that names a field: the nearest one on the left that says something, else the one right above; null for
// none.
const Label* LabelOf(const Control& field, const Container& container);

// What readers take a widget of ours for, which to the toolkit is nothing but an area.
void TakeFor(QWidget& widget, QAccessible::Role role);

// Lets readers ask again what the widget is. While it is being made, in a parent that is disabled, the toolkit tells
// them of it already and keeps what it was then: an area.
void TellReadersAnew(QWidget& widget);

} // namespace lineforge
