#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace lineforge::makehome
{

// The square drawing of an SVG file as a picture of `edge` pixels a side.
QImage VectorIcon(const QString& svgPath, int edge);

// Puts the drawing as an application's icon into a directory that is laid out like an icon theme, in all sizes in which
// desktops ask for one. The icon has the name of the SVG file.
void MakeThemeIcons(const QString& svgPath, const QString& themeDirectory);

} // namespace lineforge::makehome
