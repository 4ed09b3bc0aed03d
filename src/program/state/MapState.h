#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"

#include <QImage>
#include <QString>
#include <QStringList>

#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace lineforge
{

// A cell of a map array: a text as it came out of the file, or a number that a tool stored. A cell in which nothing
// has been stored counts as 0 and as empty text.
class Cell
{
public:
    Cell() = default;
    Cell(QString text) : text_(std::move(text)), number_(NumberIn(text_)), holds_(Holding::Text) {}
    Cell(int number) : number_(number), holds_(Holding::Number) {}

    // Error 13 for a stored text that is no number, 6 for one outside 32 bits.
    int Number() const { return IsNumber() ? static_cast<int>(std::nearbyint(*number_)) : ToLong(text_); }
    double Fraction() const { return number_ ? *number_ : ToNumber(text_); }
    // Whether there is a whole number of 32 bits to be had.
    bool IsNumber() const
    {
        using Limits = std::numeric_limits<int>;
        return number_ && *number_ > Limits::min() - 0.5 && *number_ < Limits::max() + 0.5;
    }
    int NumberOr(int otherwise) const { return IsNumber() ? Number() : otherwise; }
    // A fraction counts; a text that is no number isn't zero.
    bool IsZero() const { return number_ == 0; }
    // Back to the state before anything was stored.
    void Erase()
    {
        if (holds_ != Holding::Nothing)
            *this = Cell();
    }
    QString Text() const { return holds_ == Holding::Number ? QString::number(Number()) : text_; }

    friend bool operator==(const Cell& a, const Cell& b) { return a.Text() == b.Text(); }

private:
    enum class Holding { Nothing, Text, Number };

    QString text_;
    // Found out once: a drag asks for it at every step.
    std::optional<double> number_ = 0;
    Holding holds_ = Holding::Nothing;
};

// Columns of the three arrays. A row whose X is 0 is free: it is neither drawn nor written nor hit by the mouse.
namespace BoxColumn
{
inline constexpr int X = 0; // top left corner, twips on the picture
inline constexpr int Y = 1;
inline constexpr int Colour = 2; // of the outline
inline constexpr int File = 3;   // of the record that the box stands for; "0" or empty for none
inline constexpr int Forename = 4;
inline constexpr int Count = 5;
} // namespace BoxColumn

namespace LineColumn
{
inline constexpr int X1 = 0;
inline constexpr int Y1 = 1;
inline constexpr int X2 = 2;
inline constexpr int Y2 = 3;
inline constexpr int Colour = 4;
inline constexpr int Count = 5;
} // namespace LineColumn

namespace TextColumn
{
inline constexpr int X = 0; // top left of the text
inline constexpr int Y = 1;
inline constexpr int Text = 2;
inline constexpr int FontName = 3;
inline constexpr int FontSize = 4; // points
inline constexpr int Colour = 5;
inline constexpr int Count = 6; // column 6 of the array is never used
} // namespace TextColumn

// Whether a row of one of the three is free.
template <class Row>
bool IsFreeRow(const Row& row)
{
    static_assert(BoxColumn::X == 0 && LineColumn::X1 == 0 && TextColumn::X == 0);
    const auto& x = row[0];
    if constexpr (requires { x.IsZero(); })
        return x.IsZero();
    else
        return x == 0;
}

inline constexpr int LastMapRow = 200;
// The map file holds the boxes of rows 0 to 99 only, and all look-ups of records go no further.
inline constexpr int LastFiledBox = 99;
inline constexpr int LastFiledLine = 199;

inline constexpr int BoxWidth = 615; // twips; the size isn't stored
inline constexpr int BoxHeight = 217;
inline constexpr int BoxCentreX = 307; // from its corner
inline constexpr int BoxCentreY = 108;

// The file that the map in memory is written to, as it was when the map was read. A torn one has only a part of its
// lists; one that hasn't been read, or wasn't there, may be whole when it is written, although the map isn't.
enum class MapSource { Whole, Torn, Unread };

// The map in memory: three arrays, and the three lists of the map file that they were made from.
struct MapState {
    FixedArray<FixedArray<Cell, 0, 4>, 0, LastMapRow> BoxArr;
    FixedArray<FixedArray<int, 0, 4>, 0, LastMapRow> LineArr;
    FixedArray<FixedArray<Cell, 0, 6>, 0, LastMapRow> TextArr;
    FixedArray<Integer16, 0, 100> LineChain; // the lines that move or die together; 0 is the empty value

    int SBoxes = 0; // highest row in use, as of the last parse
    int SLines = 0;
    int STexts = 0;

    QString sBoxesText; // runs of values, a comma after each
    QString sLinesText;
    QString sTextsText;

    // What stands in the boxes on the picture: texts by the X and Y at which they begin. To wipe one it is printed
    // again in the colour of the paper, whatever its record or row may say by then.
    using CaptionTexts = std::map<std::pair<int, int>, QStringList>;
    CaptionTexts Captions;

    // The picture as it was put on the clipboard last, with what stood in its boxes, for when it is shown again.
    struct {
        QImage Picture;
        CaptionTexts Captions;
    } Copied;

    Integer16 MarkCount; // frames of the last lineage view

    // The branch directory whose map this is; empty when none has been read since the arrays were erased. A map is
    // written to no other branch.
    QString Owner;
    // While it is a torn one, the file of the generation before is the best that there is of the map, and stays.
    MapSource Source = MapSource::Whole;

    // Before the arrays are filled again from the lists; the counts keep their values.
    void EraseArrays()
    {
        BoxArr.Erase();
        LineArr.Erase();
        TextArr.Erase();
        LineChain.Erase();
    }

    // What else stands of a branch's map.
    void EraseLists()
    {
        Captions.clear();
        sBoxesText.clear();
        sLinesText.clear();
        sTextsText.clear();
        Owner.clear();
        Source = MapSource::Whole;
    }
};

} // namespace lineforge
