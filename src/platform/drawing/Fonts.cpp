#include "platform/drawing/Fonts.h"

#include <QTextLayout>

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int twipsAPoint = 20;
constexpr double mostDots = 16'000; // the toolkit reckons the height of a line in 16 bits

QStringList Broken(const QString& paragraph, const QFont& font, int width)
{
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(paragraph.sliced(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines.isEmpty() ? QStringList{QString()} : lines;
}
} // namespace

int LetterHeight(const TextFont& font, double dotsAPoint)
{
    return qRound(std::clamp(font.Size * dotsAPoint, 1.0, mostDots));
}

QFont FontInTwips(const TextFont& font)
{
    QFont result(font.Name);
    result.setPixelSize(LetterHeight(font, twipsAPoint));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QStringList LinesOfWidth(const QString& text, const QFont& font, int width)
{
    QStringList lines;
    for (QString paragraph : text.split(u'\n')) {
        if (paragraph.endsWith(u'\r'))
            paragraph.chop(1);
        lines += Broken(paragraph, font, width);
    }
    return lines;
}

} // namespace lineforge
