#pragma once

#include "Branch.h"

namespace lineforge::makehome
{

void CheckMap(const Branch& branch, const QList<Branch>& branches);

}
