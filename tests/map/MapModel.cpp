#include "map/MapModelCells.h"

#include <algorithm>

// Lists, file and records of the model.
namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype shortestList = 9;

// Calls store(row, column, value) for each value that a comma ends; returns how many rows are whole.
template <class Store>
int ForEachValue(const QString& list, int columns, Store&& store)
{
    int count = 0;
    QString value = u""_s;
    for (const QChar character : list) {
        if (character != u',') {
            value += character;
            continue;
        }
        store(count / columns, count % columns, value);
        value = u""_s;
        ++count;
    }
    return count / columns;
}
} // namespace

MapModel::MapModel(std::vector<Record> ofA, std::vector<Record> ofB)
{
    Tables[u'A'] = std::move(ofA);
    Tables[u'B'] = std::move(ofB);
    for (const auto& [letter, records] : Tables)
        for (const Record& record : records)
            AddPicture(letter, record.File);
}

void MapModel::OpenBranch(const QString& boxes, const QString& lines, const QString& texts)
{
    PointAt(u'A');
    EraseItems();
    AtOpening.reset();
    BoxesList = boxes;
    LinesList = lines;
    TextsList = texts;
    WriteFile();
    PenFont = {};
    ParseBoxes();
    ParseLines();
    ParseTexts();
    PaintOnBlankPaper(Promise::Opened);
}

// Of several lists that came out empty only the first is told.
void MapModel::OpenAgain()
{
    const auto [boxes, lines, texts] = File;
    const QString empty = boxes.isEmpty()   ? u"Box"_s
                          : lines.isEmpty() ? u"Line"_s
                          : texts.isEmpty() ? u"Text"_s
                                            : QString();
    if (!empty.isEmpty())
        Tell(u"Box Config File record corrupt"_s, u"Config "_s + empty + u" Record empty"_s);
    OpenBranch(boxes, lines, texts);
}

void MapModel::StepToNextRecord()
{
    ++Cursor;
}

void MapModel::SearchInVain()
{
    Cursor = static_cast<int>(Table().size());
}

QString MapModel::ListOfBoxes() const
{
    QString list;
    for (int row = 0; row <= 99; ++row) {
        const Cells& box = Boxes[static_cast<std::size_t>(row)];
        if (!IsFree(box))
            list += box[0] + u',' + box[1] + u',' + box[2] + u',' + box[3] + u',' + Filed(box[4]) + u',';
    }
    return list;
}

QString MapModel::ListOfLines() const
{
    QString list;
    for (int row = 0; row <= 199; ++row) {
        const Line& line = Lines[static_cast<std::size_t>(row)];
        if (line[0] != 0)
            for (const int value : line)
                list += QString::number(value) + u',';
    }
    return list;
}

QString MapModel::ListOfTexts() const
{
    QString list;
    for (int row = 0; row <= STexts; ++row) {
        const Cells& text = Texts[static_cast<std::size_t>(row)];
        if (!IsFree(text))
            for (const QString& value : text)
                list += value + u',';
    }
    return list;
}

void MapModel::WriteFile()
{
    File = {BoxesList, LinesList, TextsList};
}

void MapModel::SaveBoxes()
{
    BoxesList = ListOfBoxes();
    WriteFile();
}

void MapModel::EraseItems()
{
    Boxes.fill({});
    Lines.fill({});
    Texts.fill({});
    BoxIdx = BoxMiss = TextIdx = TextMiss = LineMiss = 0;
    Chain = {0};
    DrawnLast.reset();
    ZoneBoxes.clear();
    ZoneLines.clear();
    ZoneTexts.clear();
}

void MapModel::ParseBoxes()
{
    if (BoxesList.size() < shortestList)
        return;
    const int rows = ForEachValue(BoxesList, 5, [&](int row, int column, const QString& value) {
        if (row <= LastRow)
            Boxes[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = value;
    });
    SBoxes = std::min(rows - 1, LastRow);
    KeepPosition();
    DrawCaptions();
    ComeBack();
}

void MapModel::ParseLines()
{
    Pen = 0;
    if (LinesList.size() < shortestList)
        return;
    SLines = ForEachValue(LinesList, 5,
                          [&](int row, int column, const QString& value) {
                              Lines[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = value.toInt();
                          }) -
             1;
}

// A text leaves its colour in the pen.
void MapModel::ParseTexts()
{
    STexts = -1;
    if (TextsList.size() < shortestList)
        return;
    const int rows = ForEachValue(TextsList, 6, [&](int row, int column, const QString& value) {
        if (row > LastRow)
            return;
        Cells& text = Texts[static_cast<std::size_t>(row)];
        text[static_cast<std::size_t>(column)] = value;
        if (column == 5 && !IsFree(text) && NumberIn(text[0]) && NumberIn(text[1]))
            if (const std::optional<int> colour = NumberIn(value))
                Pen = static_cast<unsigned>(*colour);
    });
    STexts = std::min(rows - 1, LastRow);
    PenFont = {};
}

// The pen is as before behind each text, and so is a font called Arial.
void MapModel::Redraw()
{
    if (STexts >= 0 && PenFont.Name != u"Arial")
        PenFont = {};
    KeepPosition();
    DrawCaptions();
    ComeBack();
    // While a subject is placed only its first box gets its caption again.
    if (Picture != Promise::Nothing)
        Picture = CursorMode == 0 ? Promise::Whole : Promise::Holes;
    if (!IsPaintedWhole())
        Picture = Promise::Nothing;
}

// Captions are printed in black, in Arial 8.
void MapModel::DrawCaptions()
{
    if (!IsAnyCaptionDrawn())
        return;
    Pen = 0;
    PenFont = {};
}

bool MapModel::HasCaption(int row) const
{
    const Cells& box = Boxes[static_cast<std::size_t>(row)];
    if (row > 99 || !IsPlaced(box) || box[3].isEmpty())
        return false;
    return !box[3].startsWith(u'0') || IsInTable(row);
}

// While a subject is placed the box of the current record is looked for before each number, which so comes only into
// boxes of other branches and of records that are there.
bool MapModel::IsAnyCaptionDrawn() const
{
    for (int row = 0; row <= 99; ++row)
        if (HasCaption(row) && (CursorMode == 0 || IsOfOtherBranch(row) || IsInTable(row)))
            return true;
    return false;
}

bool MapModel::IsOfOtherBranch(int row) const
{
    const QString& file = Boxes[static_cast<std::size_t>(row)][3];
    return !file.isEmpty() && file[0] != u'0' && file[0].toUpper() != Branch;
}

bool MapModel::IsInTable(int row) const
{
    const QString& file = Boxes[static_cast<std::size_t>(row)][3];
    return std::any_of(Table().begin(), Table().end(), [&](const Record& r) { return IsSame(r.File, file); });
}

void MapModel::PaintOnBlankPaper(Promise picture)
{
    Picture = CursorMode == 0 && IsPaintedWhole() ? picture : Promise::Nothing;
}

void MapModel::PromiseLess(Promise picture)
{
    Picture = std::max(Picture, picture);
}

// Rows behind the counts are in use but not painted again, and so are those that were dropped at the left edge. A font
// or colour that is no number leaves what is in force.
bool MapModel::IsPaintedWhole() const
{
    for (int row = 0; row <= LastRow; ++row) {
        const auto at = static_cast<std::size_t>(row);
        const Cells& box = Boxes[at];
        const Line& line = Lines[at];
        const Cells& text = Texts[at];
        if ((row > SBoxes && !IsFree(box)) || (row > SLines && line[0] != 0) || (row > STexts && !IsFree(text)))
            return false;
        const auto isStored = [](const QString& cell) { return !cell.isEmpty() && cell != u"0"; };
        if ((IsFree(box) && std::any_of(box.begin() + 1, box.begin() + 4, isStored)) ||
            (IsFree(text) && std::any_of(text.begin() + 1, text.end(), isStored)) || (line[0] == 0 && line != Line{}))
            return false;
        if (!IsFree(text) && (!NumberIn(text[4]) || !NumberIn(text[5])))
            return false;
    }
    return true;
}

void MapModel::AddPicture(QChar branch, const QString& file)
{
    Pictures += QString(branch + file).toUpper();
}

bool MapModel::HasPicture(QChar branch, const QString& file) const
{
    return Pictures.contains(QString(branch + file).toUpper());
}

QString MapModel::CurrentFile() const
{
    return HasRow() ? Table()[static_cast<std::size_t>(Cursor)].File : QString();
}

// From the first record on; without a match the cursor ends behind the last.
bool MapModel::Seek(const QString& file)
{
    for (Cursor = 0; HasRow(); ++Cursor)
        if (IsSame(CurrentFile(), file))
            return true;
    return false;
}

void MapModel::KeepPosition()
{
    if (HasRow())
        Saved = Cursor;
}

void MapModel::ComeBack()
{
    if (Saved && !Table().empty())
        Cursor = *Saved;
}

void MapModel::PointAt(QChar branch)
{
    Branch = branch;
    Cursor = 0;
    Saved.reset();
}

// The first of the rows 0 to 99 that hold the current record, or 100.
int MapModel::RowOfCurrent() const
{
    const QString file = CurrentFile();
    int row = 0;
    while (row <= 99) {
        const Cells& box = Boxes[static_cast<std::size_t>(row)];
        if (!file.isEmpty() && IsSame(box[3], file) && IsPlaced(box))
            break;
        ++row;
    }
    return row;
}

void MapModel::MarkCurrentBox()
{
    IsMarkerShown = false;
    if (const int row = RowOfCurrent(); row <= 99) {
        const Cells& box = Boxes[static_cast<std::size_t>(row)];
        Marker = {*NumberIn(box[0]) + 307 - 60, *NumberIn(box[1]) + 108 - 60};
        IsMarkerShown = true;
    }
}

} // namespace lineforge
