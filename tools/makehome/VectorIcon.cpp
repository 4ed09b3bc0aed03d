#include "VectorIcon.h"

#include "Failure.h"
#include "Files.h"
#include "Paint.h"

#include <QDir>
#include <QFileInfo>
#include <QSvgRenderer>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

QImage VectorIcon(const QString& svgPath, int edge)
{
    QSvgRenderer drawing(svgPath);
    if (!drawing.isValid()) {
        throw Failure(u"cannot read the drawing %1"_s.arg(svgPath));
    }
    QImage picture = Canvas(QSize(edge, edge), Qt::transparent);
    SmoothPainter painter(picture);
    drawing.render(&painter);
    return picture;
}

void MakeThemeIcons(const QString& svgPath, const QString& themeDirectory)
{
    const QString name = QFileInfo(svgPath).completeBaseName() + u".png"_s;
    for (const int edge : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QDir directory(themeDirectory + u"/%1x%1/apps"_s.arg(edge));
        MakeDirectory(directory.path());
        WritePng(directory.filePath(name), VectorIcon(svgPath, edge));
    }
}

} // namespace lineforge::makehome
