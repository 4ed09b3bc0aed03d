#include "Paint.h"

#include <QFontMetricsF>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

QImage Canvas(const QSize& size, const QColor& ground)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(ground);
    return picture;
}

SmoothPainter::SmoothPainter(QImage& picture) : QPainter(&picture)
{
    setRenderHint(QPainter::Antialiasing);
    setRenderHint(QPainter::TextAntialiasing);
}

QFont SerifFont(int pixels, bool bold)
{
    QFont font;
    font.setFamilies({u"Liberation Serif"_s, u"Times New Roman"_s, u"DejaVu Serif"_s});
    font.setStyleHint(QFont::Serif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

void DrawFittedText(QPainter& painter, const QRectF& area, QFont font, const QString& text)
{
    while (font.pixelSize() > 8 && QFontMetricsF(font).horizontalAdvance(text) > area.width()) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    painter.setFont(font);
    painter.drawText(area, Qt::AlignCenter, text);
}

} // namespace lineforge::makehome
