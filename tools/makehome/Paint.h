#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

namespace lineforge::makehome
{

QImage Canvas(const QSize& size, const QColor& ground);

// A painter set up for smooth drawing.
class SmoothPainter : public QPainter
{
public:
    explicit SmoothPainter(QImage& picture);
};

// Sizes are pixels, so that a picture comes out alike whatever resolution the building machine believes in.
QFont SerifFont(int pixels, bool bold = false);

// Shrinks the type until the text fits the width of its area.
void DrawFittedText(QPainter& painter, const QRectF& area, QFont font, const QString& text);

} // namespace lineforge::makehome
