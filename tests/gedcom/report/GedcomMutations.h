#pragma once

#include <QByteArray>

namespace lineforge
{

// Sources that begin as small ones of the dialects that are met, and of which each number changes some other bytes,
// lines or tags. The same number gives the same source on every machine. Few of them end in anything but two line ends,
// since a run over such a source goes on through 32,767 children.
QByteArray MutatedSource(unsigned number);

} // namespace lineforge
