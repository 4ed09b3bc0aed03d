#pragma once

#include <QImage>

namespace lineforge::makehome
{

// A paddle yacht steaming past a headland; progress runs from 0 to 1 through the scene.
QImage YachtScene(const QSize& size, double progress);

} // namespace lineforge::makehome
