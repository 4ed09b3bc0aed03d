#pragma once

#include <QString>

namespace lineforge::makehome
{

void MakeArtwork(const QString& targetDirectory);

}
