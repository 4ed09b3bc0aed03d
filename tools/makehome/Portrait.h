#pragma once

#include "Records.h"

#include <QImage>

namespace lineforge::makehome
{

// The picture shown for a record that has none of its own.
QImage BlankPortrait();

QImage Portrait(const Record& record);

} // namespace lineforge::makehome
