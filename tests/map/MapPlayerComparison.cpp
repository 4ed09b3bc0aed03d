#include "map/MapPlayer.h"
#include "map/tools/ToolsTest.h"

// Whether a program and the model are alike.
namespace lineforge
{

using namespace Qt::StringLiterals;
using forms::Form1;

template <class Row>
void MapPlayer::ExpectCells(const char* kind, int row, const Row& actual, const MapModel::Cells& expected, int columns)
{
    for (int column = 0; column < columns; ++column)
        if (const QString text = actual[column].Text(); text != expected[static_cast<std::size_t>(column)])
            Expect(u"column %1 of %2 %3"_s.arg(column).arg(QLatin1StringView(kind)).arg(row), text,
                   expected[static_cast<std::size_t>(column)]);
}

void MapPlayer::CompareItems()
{
    for (int row = 0; row <= LastMapRow; ++row) {
        const auto at = static_cast<std::size_t>(row);
        ExpectCells("box", row, P.Map.BoxArr[row], model_.Boxes[at], BoxColumn::Count);
        ExpectCells("text", row, P.Map.TextArr[row], model_.Texts[at], TextColumn::Count);
        for (int column = 0; column < LineColumn::Count; ++column)
            if (const int value = model_.Lines[at][static_cast<std::size_t>(column)];
                P.Map.LineArr[row][column] != value)
                Expect(u"column %1 of line %2"_s.arg(column).arg(row), P.Map.LineArr[row][column], value);
    }
    Expect(u"SBoxes"_s, P.Map.SBoxes, model_.SBoxes);
    Expect(u"SLines"_s, P.Map.SLines, model_.SLines);
    Expect(u"STexts"_s, P.Map.STexts, model_.STexts);
    Expect(u"sBoxesText"_s, P.Map.sBoxesText, model_.BoxesList);
    Expect(u"sLinesText"_s, P.Map.sLinesText, model_.LinesList);
    Expect(u"sTextsText"_s, P.Map.sTextsText, model_.TextsList);
    const auto& [boxes, lines, texts] = model_.File;
    Expect(u"the map file"_s, QString::fromLatin1(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg")),
           QString::fromLatin1(MapFileBytes(u"LfgDat_A", boxes, lines, texts)));
}

void MapPlayer::CompareTools()
{
    const ToolState& tools = P.Tools;
    const std::pair<const char*, std::pair<int, int>> numbers[] = {
        {"ToolMode", {tools.ToolMode, model_.ToolMode}},
        {"ToolSel", {tools.ToolSel, model_.ToolSel}},
        {"ToolStep", {tools.ToolStep, model_.ToolStep}},
        {"MapCursorMode", {tools.MapCursorMode, model_.CursorMode}},
        {"DownX", {P.Mouse.DownX, model_.Down.X}},
        {"DownY", {P.Mouse.DownY, model_.Down.Y}},
        {"MoveX", {tools.MoveX, model_.Moved.X}},
        {"MoveY", {tools.MoveY, model_.Moved.Y}},
        {"BoxIdx", {P.Mouse.BoxIdx, model_.BoxIdx}},
        {"BoxMiss", {P.Mouse.BoxMiss, model_.BoxMiss}},
        {"TextIdx", {tools.TextIdx, model_.TextIdx}},
        {"TextMiss", {tools.TextMiss, model_.TextMiss}},
        {"LineMiss", {tools.LineMiss, model_.LineMiss}},
        {"ChainTop", {tools.ChainTop, static_cast<int>(model_.Chain.size()) - 1}},
        {"sounds", {sounds_, model_.Sounds}},
    };
    for (const auto& [name, values] : numbers)
        Expect(QString::fromLatin1(name), values.first, values.second);
    for (std::size_t entry = 0; entry < model_.Chain.size(); ++entry)
        Expect(u"LineChain %1"_s.arg(entry), static_cast<int>(P.Map.LineChain[static_cast<int>(entry)]),
               model_.Chain[entry]);
}

void MapPlayer::CompareWindow()
{
    Form1& form = *P.Form1;
    const PictureBox& picture = form.Picture1;
    Expect(u"pointer"_s, static_cast<int>(P.Screen.Pointer.value()), model_.Pointer);
    Expect(u"pen"_s, picture.ForeColor, model_.Pen);
    Expect(u"DrawMode"_s, static_cast<int>(picture.Mode), model_.Mode);
    Expect(u"font"_s, u"%1 %2"_s.arg(picture.Font.Name).arg(picture.Font.Size),
           u"%1 %2"_s.arg(model_.PenFont.Name).arg(model_.PenFont.Size));
    Expect(u"bold"_s, picture.Font.Bold, false);
    Expect(u"the dialog's colour"_s, form.CommonDialog1.Color, model_.DialogColour);
    Expect(u"the images' sight"_s, form.Image8.Visible.value(), model_.AreImagesShown);
    Expect(u"the zone's sight"_s, form.Shape3.Visible.value(), model_.IsZoneShown);
    if (model_.IsZoneShown)
        Expect(
            u"the zone"_s,
            u"%1 %2 %3 %4"_s.arg(form.Shape3.Left).arg(form.Shape3.Top).arg(form.Shape3.Width).arg(form.Shape3.Height),
            u"%1 %2 %3 %4"_s.arg(model_.Zone.Left).arg(model_.Zone.Top).arg(model_.Zone.Width).arg(model_.Zone.Height));
    Expect(u"the marker's sight"_s, form.Shape1.Visible.value(), model_.IsMarkerShown);
    if (model_.IsMarkerShown && model_.Marker != Point{})
        Expect(u"the marker"_s, u"%1 %2"_s.arg(form.Shape1.Left).arg(form.Shape1.Top),
               u"%1 %2"_s.arg(model_.Marker.X).arg(model_.Marker.Y));
    if (!model_.Coordinates.isEmpty())
        Expect(u"the coordinates"_s,
               QString(form.Text9.Text.value() + u' ' + form.Text10.Text.value() + u' ' + form.Text8.Text.value()),
               model_.Coordinates);
    if (!model_.AreImagesShown)
        return;
    for (const auto& [image, button] :
         {std::pair{2, &Form1::Image2}, std::pair{3, &Form1::Image3}, std::pair{4, &Form1::Image4},
          std::pair{5, &Form1::Image5}, std::pair{6, &Form1::Image6}, std::pair{7, &Form1::Image7},
          std::pair{8, &Form1::Image8}, std::pair{9, &Form1::Image9}})
        for (const Form1::ToolImage& tool : Form1::Tools)
            if (tool.Button == button)
                Expect(u"image %1 is sunken: that"_s.arg(image),
                       (form.*button).Picture.value() == (form.*tool.Sunken).Picture.value(), model_.Sunken[image]);
}

void MapPlayer::CompareRecords()
{
    Expect(u"what is told"_s, prompts_.Told.join(u'\n'), model_.Told.join(u'\n'));
    Expect(u"the current record"_s, Records(P.Form3).HasRow() ? Records(P.Form3).Text(u"File") : QString(),
           model_.CurrentFile());
    Expect(u"UsingAlternate"_s, P.Branch.UsingAlternate == 1, model_.UsingAlternate);
    Expect(u"sCurFile"_s, P.Record.sCurFile, model_.CurFile);
}

void MapPlayer::ComparePicture()
{
    const bool isOpened = model_.Picture == MapModel::Promise::Opened;
    if ((!isOpened && model_.Picture != MapModel::Promise::Whole) || model_.IsPressed || model_.UsingAlternate)
        return;
    painter_.Open(P.Branch.WorkDir);
    const QImage expected = isOpened ? painter_.Opened(P.Map) : painter_.Painted(P.Map);
    if (const auto same = SameImage(ShownBy(P.Form1->Picture1), expected); !same)
        difference_ = u"the picture: "_s + QString::fromLatin1(same.message());
}

void MapPlayer::Compare()
{
    CompareItems();
    CompareTools();
    CompareWindow();
    CompareRecords();
    // Painting takes longer than all else.
    if (difference_.isEmpty() && OneIn(4))
        ComparePicture();
}

} // namespace lineforge
