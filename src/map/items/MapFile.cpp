#include "map/items/MapFile.h"

#include "map/items/MapValues.h"
#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/TextFile.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/SiblingBranch.h"

#include <QScopeGuard>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int fileNameLength = 12; // of "LfgDat_A.cfg"

bool BreaksList(QChar character)
{
    return QStringView(u",[\r\n").contains(character);
}

// Without what breaks the list a number might be another record's: such a box is empty in the file.
QString FiledNumber(const Cell& file)
{
    return FitsList(file.Text()) ? file.Text() : u"0"_s;
}

void Append(QString& list, QChar character)
{
    if (character != u'\r' && character != u'\n')
        list += character;
}

// Appends to the list itself, so that what a cut-off file still holds is there when its end is met as an error.
void ReadUpToBracket(TextReader& reader, QString& list)
{
    list.clear();
    for (QChar character = reader.Next(); character != u'['; character = reader.Next())
        Append(list, character);
}

// A "[" can stand in the last list, for nothing follows it.
void ReadToEnd(TextReader& reader, QString& list)
{
    list.clear();
    while (!reader.AtEnd())
        Append(list, reader.Next());
}

// The "[" that ended the list before is the first letter of the name, and has been read.
bool NextSectionIs(TextReader& reader, QStringView rest)
{
    for (const QChar expected : rest)
        if (reader.AtEnd() || reader.Next().toLower() != expected.toLower())
            return false;
    return true;
}

// After a name that isn't the expected one the search goes on for the first section, in what is left of the file.
bool ReadLists(TextReader& reader, MapState& map)
{
    while (reader.SkipPast(u"[Boxes]")) {
        ReadUpToBracket(reader, map.sBoxesText);
        if (!NextSectionIs(reader, u"Lines]"))
            continue;
        ReadUpToBracket(reader, map.sLinesText);
        if (!NextSectionIs(reader, u"Text]"))
            continue;
        ReadToEnd(reader, map.sTextsText);
        return true;
    }
    return false;
}

// A map goes to no branch but its own. With none open there is no branch to be spoilt.
bool BelongsToOpenBranch(const MapState& map, const BranchState& branch)
{
    return branch.WorkDir.isEmpty() || map.Owner == branch.WorkDir;
}

// The file that is written may be another than the one that was read.
MapSource SourceOfPart(const BranchState& branch)
{
    const QString written = MapFileToWrite(branch.WorkDir, branch.HomeDir, u".cfg");
    return SameText(MapFileToRead(branch.WorkDir), written) ? MapSource::Torn : MapSource::Unread;
}

// Nothing follows the texts that would tell their end.
bool HasWholeTexts(const MapState& map)
{
    const QString& texts = map.sTextsText;
    return CountsAsEmpty(texts) || texts.endsWith(u',');
}

void WriteLists(MapState& map, const BranchState& branch, FileSystem& files)
{
    const QString file = MapFileToWrite(branch.WorkDir, branch.HomeDir, u".cfg");
    const QString before = MapFileToWrite(branch.WorkDir, branch.HomeDir, u".~cf");
    const bool isBeforeKept = map.Source == MapSource::Torn && !files.Dir(before).isEmpty();
    if (!isBeforeKept && files.LookUpGivesTail(file, fileNameLength))
        files.FileCopy(file, before);
    WriteTextLines(files, file,
                   {u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY."_s,
                    u'[' + DirectoryName(branch.WorkDir) + u']', u"[Boxes]"_s, map.sBoxesText, u"[Lines]"_s,
                    map.sLinesText, u"[Text]"_s, map.sTextsText});
    // It holds a part of a map from now on, though it looks whole.
    if (map.Source == MapSource::Unread)
        map.Source = MapSource::Torn;
}
} // namespace

void EmptyMapArrays(MapState& map, MapMouseState& mouse, ToolState& tools)
{
    map.EraseArrays();
    mouse.BoxIdx = 0;
    mouse.BoxMiss = 0;
    tools.TextIdx = 0;
    tools.TextMiss = 0;
    tools.LineMiss = 0;
    tools.ChainTop = 0;
    tools.LineRow = -1;
    tools.ZoneTexts.Erase();
    tools.ZoneBoxes.Erase();
    tools.ZoneLines.Erase();
}

void ForgetMap(MapState& map, MapMouseState& mouse, ToolState& tools)
{
    EmptyMapArrays(map, mouse, tools);
    map.EraseLists();
    tools.ToolBookmark.reset();
}

QString FiledForename(QString forename)
{
    forename.removeIf(BreaksList);
    return forename;
}

bool FitsList(QStringView value)
{
    return std::ranges::none_of(value, BreaksList);
}

void ReadMapFile(MapState& map, const BranchState& branch, const FileSystem& files, Prompts& prompts)
{
    const QString file = MapFileToRead(branch.WorkDir);
    map.Owner = branch.WorkDir;
    // One that isn't there, or can't be read, may be back when the map is written.
    map.Source = MapSource::Unread;
    if (!files.LookUpGivesTail(file, fileNameLength)) {
        prompts.MsgBox(u"Graphic Config File not Found."_s,
                       u"You need to create a new Ancestral Map for this Database."_s, Buttons::Information);
        return;
    }
    try {
        // What is missing comes out empty.
        const bool isWhole = ReadMapLists(files, file, map) && HasWholeTexts(map);
        map.Source = isWhole ? MapSource::Whole : SourceOfPart(branch);
    } catch (const RuntimeError& refusal) {
        if (refusal.Number == ErrorNumber::InputPastEnd)
            map.Source = SourceOfPart(branch);
        throw;
    }
    WarnOfFirstEmptyList(map, prompts);
}

void WarnOfFirstEmptyList(const MapState& map, Prompts& prompts)
{
    const struct {
        const QString& List;
        QStringView Kind;
    } lists[] = {{map.sBoxesText, u"Box"}, {map.sLinesText, u"Line"}, {map.sTextsText, u"Text"}};
    for (const auto& [list, kind] : lists) {
        if (list.isEmpty()) {
            prompts.MsgBox(u"Box Config File record corrupt"_s, u"Config "_s + kind + u" Record empty",
                           Buttons::Information);
            return;
        }
    }
}

bool ReadMapLists(const FileSystem& files, const QString& path, MapState& map)
{
    TextReader reader(files, path);
    return ReadLists(reader, map);
}

void WriteMapFile(MapState& map, BranchState& branch, FileSystem& files)
{
    const bool isAlternate = branch.IsSiblingShown();
    if (isAlternate)
        SwapBranchDirs(branch);
    const auto swapBack = qScopeGuard([&] {
        if (isAlternate)
            SwapBranchDirs(branch);
    });
    if (BelongsToOpenBranch(map, branch))
        WriteLists(map, branch, files);
}

void SaveBoxes(MapState& map, BranchState& branch, FileSystem& files)
{
    map.sBoxesText = ListOfBoxes(map);
    WriteMapFile(map, branch, files);
}

QString ListWithForename(const QString& boxes, const QString& file, const QString& forename)
{
    QStringList values = boxes.split(u',');
    for (qsizetype row = 0; row + BoxColumn::Forename < values.size(); row += BoxColumn::Count) {
        if (file.isEmpty() || !SameText(values[row + BoxColumn::File], file))
            continue;
        values[row + BoxColumn::Forename] = FiledForename(forename);
        break;
    }
    return values.join(u',');
}

QString ListOfBoxes(const MapState& map)
{
    QString list;
    for (int row = 0; row <= LastFiledBox; ++row) {
        const auto& box = map.BoxArr[row];
        if (IsFreeRow(box))
            continue;
        for (int column = 0; column < BoxColumn::File; ++column)
            list += box[column].Text() + u',';
        list += FiledNumber(box[BoxColumn::File]) + u',' + FiledForename(box[BoxColumn::Forename].Text()) + u',';
    }
    return list;
}

QString ListOfLines(const MapState& map)
{
    QString list;
    for (int row = 0; row <= LastFiledLine; ++row) {
        if (IsFreeRow(map.LineArr[row]))
            continue;
        for (int column = 0; column < LineColumn::Count; ++column)
            list += QString::number(map.LineArr[row][column]) + u',';
    }
    return list;
}

QString ListOfTexts(const MapState& map)
{
    QString list;
    for (int row = 0; row <= map.STexts; ++row) {
        if (IsFreeRow(map.TextArr[row]))
            continue;
        for (int column = 0; column < TextColumn::Count; ++column)
            list += map.TextArr[row][column].Text() + u',';
    }
    return list;
}

} // namespace lineforge
