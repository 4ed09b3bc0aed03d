#include "platform/canvas/TextMask.h"

#include "platform/canvas/CanvasScale.h"
#include "platform/drawing/Fonts.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <utility>

namespace lineforge
{

namespace
{
constexpr int twipsPerPoint = 20;
constexpr qint64 mostPixels = 4 << 20; // of an image that is searched for runs
constexpr std::size_t mostRuns = 100'000;
constexpr int wordBits = 32;

// Tells `run(x, y, length)` of the set pixels of an image of one bit a pixel and whole words a row, neighbours mostly
// together.
template <class Run>
void ForEachRun(const QImage& image, Run&& run)
{
    Q_ASSERT(image.format() == QImage::Format_MonoLSB && image.width() % wordBits == 0);
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const quint32*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); x += wordBits) {
            const quint64 bits = qFromLittleEndian(*row++);
            for (int from = 0; bits >> from;) {
                from += std::countr_zero(bits >> from);
                const int length = std::countr_one(bits >> from);
                run(x + from, y, length);
                from += length;
            }
        }
    }
}

std::vector<TextMask::Run> RunsOf(const QFont& font, const QString& text, const QRect& area)
{
    const int words = (area.width() + wordBits - 1) / wordBits;
    QImage image(words * wordBits, area.height(), QImage::Format_MonoLSB);
    image.fill(0u);
    {
        QPainter painter(&image);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(-area.topLeft(), text);
    }
    std::vector<TextMask::Run> runs;
    ForEachRun(image, [&](int x, int y, int length) {
        runs.push_back({static_cast<std::int16_t>(area.left() + x), static_cast<std::int16_t>(area.top() + y),
                        static_cast<std::int16_t>(length)});
    });
    runs.shrink_to_fit();
    return runs;
}

// Where all pixels of a text are. The bounds told are those of its letters one by one and wrong for a text with marks
// on letters, which may also stand far above each other.
QRect AreaOf(const QFontMetrics& metrics, const QString& text)
{
    const QRect line(0, -metrics.ascent(), metrics.horizontalAdvance(text), metrics.height());
    const int slack = 2 + metrics.height();
    return line.united(metrics.boundingRect(text)).adjusted(-slack, -slack, slack, slack);
}

bool IsSearchable(const QRect& area)
{
    const int farthest = std::max({-area.left(), -area.top(), area.right(), area.bottom()});
    return area.isValid() && farthest < std::numeric_limits<std::int16_t>::max() &&
           qint64{area.width()} * area.height() <= mostPixels;
}

QRect BoundsOf(const std::vector<TextMask::Run>& runs)
{
    QRect bounds;
    for (const TextMask::Run& run : runs)
        bounds |= QRect(run.X, run.Y, run.Length, 1);
    return bounds;
}

std::unique_ptr<TextMask> MaskOf(const TextFont& textFont, const QString& text)
{
    const QFont font = ToPixelFont(textFont);
    const QFontMetrics metrics(font);
    const QRect area = AreaOf(metrics, text);
    auto mask = std::make_unique<TextMask>(
        TextMask{metrics.ascent(), metrics.height(), metrics.horizontalAdvance(text), area, false, {}});
    if (!IsSearchable(area))
        return mask;
    std::vector<TextMask::Run> runs = RunsOf(font, text, area);
    mask->Reach = BoundsOf(runs);
    mask->IsKept = runs.size() <= mostRuns;
    if (mask->IsKept)
        mask->Runs = std::move(runs);
    return mask;
}

} // namespace

const TextMask& TextMasks::Of(const TextFont& font, const QString& text)
{
    const Key key{font, text};
    if (const TextMask* known = masks_.object(key))
        return *known;
    std::unique_ptr<TextMask> mask = MaskOf(font, text);
    const TextMask& result = *mask;
    const std::size_t bytes = sizeof(TextMask) + sizeof(Key) + mask->Runs.size() * sizeof(TextMask::Run) +
                              static_cast<std::size_t>(text.size()) * sizeof(QChar);
    // A mask that costs more than all may is thrown away at once.
    masks_.insert(key, mask.release(), std::min<qsizetype>(static_cast<qsizetype>(bytes), mostBytes));
    return result;
}

QFont ToPixelFont(const TextFont& font)
{
    QFont result(font.Name);
    result.setPixelSize(LetterHeight(font, twipsPerPoint / TwipsPerCanvasPixel));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setStyleStrategy(QFont::NoAntialias);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

} // namespace lineforge
