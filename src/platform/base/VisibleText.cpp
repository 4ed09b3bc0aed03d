#include "platform/base/VisibleText.h"

#include <QList>

#include <algorithm>
#include <array>

namespace lineforge
{

namespace
{
struct Range {
    char32_t First;
    char32_t Last;
};

// Shown as nothing, or as a blank, though their categories are those of letters, of signs or of what isn't assigned.
constexpr std::array<Range, 7> unseen{{{0x115F, 0x1160}, // fillers of the Korean script
                                       {0x3164, 0x3164},
                                       {0xFFA0, 0xFFA0},
                                       {0x2065, 0x2065}, // kept for what will be ignored
                                       {0xFFF0, 0xFFF8},
                                       {0xE0000, 0xE0FFF},
                                       {0x2800, 0x2800}}}; // the braille pattern without a dot

bool IsUnseen(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
        return true;
    default:
        return std::ranges::any_of(
            unseen, [&](const Range& range) { return character >= range.First && character <= range.Last; });
    }
}
} // namespace

bool ShowsNothing(QStringView text)
{
    return std::ranges::all_of(text.toUcs4(), [](uint character) { return IsUnseen(char32_t{character}); });
}

} // namespace lineforge
