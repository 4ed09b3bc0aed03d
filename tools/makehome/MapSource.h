#pragma once

#include <QColor>
#include <QLine>
#include <QList>
#include <QPoint>
#include <QString>

namespace lineforge::makehome
{

struct MapBox {
    QPoint corner;
    QColor colour;
    QString file;
    qsizetype sourceLine = 0;
};

struct MapLine {
    QLine line;
    QColor colour;
    qsizetype sourceLine = 0;
};

struct MapText {
    QPoint corner;
    QString text;
    QString fontName;
    int fontSize = 0;
    QColor colour;
    qsizetype sourceLine = 0;
};

// A map as it is written by hand, one item a line; all measures are twips.
struct MapSource {
    QString path;
    QList<MapBox> boxes;
    QList<MapLine> lines;
    QList<MapText> texts;
};

MapSource ReadMapSource(const QString& path);

} // namespace lineforge::makehome
