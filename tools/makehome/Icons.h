#pragma once

#include <QImage>

namespace lineforge::makehome
{

// What the gallery shows in place of a thumbnail.
QImage SoundClipIcon();
QImage FilmClipIcon();
QImage TextFileIcon();

// What the tools' Exit shows while it works.
QImage PressedExitButton();

} // namespace lineforge::makehome
