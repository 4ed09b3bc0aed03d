#pragma once

#include <QColor>
#include <QPoint>
#include <QString>

#include <vector>

namespace lineforge::tour
{

// A box as the map file of a branch has it.
struct FiledBox {
    QPoint Corner; // twips on the map
    QColor Colour;
    QString File; // the record's number
};

// Read without the program's help, as anybody with a text editor would.
std::vector<FiledBox> BoxesOfMap(const QByteArray& mapFile);
qsizetype LinesOfMap(const QByteArray& mapFile);
FiledBox BoxOfRecord(const std::vector<FiledBox>& boxes, const QString& file);

} // namespace lineforge::tour
