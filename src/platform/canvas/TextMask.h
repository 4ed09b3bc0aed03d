#pragma once

#include "platform/drawing/Surface.h"

#include <QCache>
#include <QFont>
#include <QRect>

#include <cstdint>
#include <vector>

namespace lineforge
{

// A text as the pixels that a painter sets of a picture, and its measures. Places are relative to the start of the
// baseline; all lengths in the picture's pixels.
struct TextMask {
    struct Run {
        std::int16_t X;
        std::int16_t Y;
        std::int16_t Length;
    };

    int Ascent;
    int Height;  // of the line
    int Width;   // to the start of what follows
    QRect Reach; // holds all pixels
    // False for a text so large that keeping its pixels isn't worth it; it has no runs.
    bool IsKept;
    std::vector<Run> Runs;
};

// Makes masks, and keeps those that were asked for last.
class TextMasks
{
public:
    // Valid until the next call.
    const TextMask& Of(const TextFont& font, const QString& text);

    struct Key {
        TextFont Font;
        QString Text;
        friend bool operator==(const Key&, const Key&) = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) noexcept
        {
            return qHashMulti(seed, key.Font.Name, key.Font.Size, key.Font.Bold, key.Font.Italic, key.Text);
        }
    };

private:
    static constexpr int mostBytes = 4 << 20;
    QCache<Key, TextMask> masks_{mostBytes};
};

// The font for the toolkit's painters on a picture.
QFont ToPixelFont(const TextFont& font);

} // namespace lineforge
