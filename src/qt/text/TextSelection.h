#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <compare>

// Places in a text of many lines and what is selected between two of them. Offsets count the characters of the whole
// text, a line feed between two lines among them.
namespace lineforge
{

// Before a character of a line, or behind its last.
struct TextPosition {
    qsizetype Line = 0;
    qsizetype Column = 0;
    friend auto operator<=>(const TextPosition&, const TextPosition&) = default;
};

struct TextSelection {
    TextPosition Anchor; // where it was begun
    TextPosition Caret;  // where it was drawn to

    bool IsEmpty() const { return Anchor == Caret; }
    TextPosition First() const { return std::min(Anchor, Caret); }
    TextPosition Last() const { return std::max(Anchor, Caret); }
    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

TextPosition EndOf(const QStringList& lines);

// The text between two places, with a line feed between its lines.
QString TextBetween(const QStringList& lines, TextPosition first, TextPosition last);

qsizetype OffsetOf(const QStringList& lines, TextPosition position);
// Of an offset that lies in no line the nearest end of the text.
TextPosition PositionOf(const QStringList& lines, qsizetype offset);

// The word at a place, or the one character that stands there.
TextSelection WordAt(const QStringList& lines, TextPosition position);

// One character on or back, over the ends of lines.
TextPosition After(const QStringList& lines, TextPosition position);
TextPosition Before(const QStringList& lines, TextPosition position);

} // namespace lineforge
