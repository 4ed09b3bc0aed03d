#pragma once

#include "map/items/MapFile.h"
#include "map/items/MapParse.h"
#include "map/items/MapSheet.h"
#include "program/branch/WorkDatabase.h"
#include "support/BranchBuilder.h"
#include "support/Pixels.h"
#include "support/ProgramTest.h"
#include "support/RecordingSurface.h"

namespace lineforge
{

// Whether two pictures show the same; tells the first pixel that differs.
inline testing::AssertionResult SameDrawing(const PictureBox& actual, const PictureBox& expected)
{
    const QImage one = ShownBy(actual);
    const QImage other = ShownBy(expected);
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y))
                return testing::AssertionFailure() << "pixel " << x << ", " << y << " is " << std::hex
                                                   << one.pixel(x, y) << " instead of " << other.pixel(x, y);
    return testing::AssertionSuccess();
}

// A picture like the map's, for drawing by hand what the map should show.
class PictureByHand
{
public:
    PictureByHand() { form_.Picture1.Font = {}; }
    PictureBox& operator*() { return form_.Picture1; }
    PictureBox* operator->() { return &form_.Picture1; }

private:
    forms::Form1 form_;
};

// A program with its main window, a branch to be built, and a page to print on.
class MapTest : public ProgramTest
{
protected:
    // The program works on that branch and its map is the one in memory, still empty.
    void GivenOpen(BranchBuilder& branch)
    {
        P.Branch.WorkDir = branch.Build();
        OpenWorkDatabase(P);
        P.Map.Owner = P.Branch.WorkDir;
    }

    void GivenBox(int row, Point corner, QStringView file = u"0", Colour colour = Black)
    {
        auto& box = P.Map.BoxArr[row];
        box[BoxColumn::X] = corner.X;
        box[BoxColumn::Y] = corner.Y;
        box[BoxColumn::Colour] = static_cast<int>(colour);
        box[BoxColumn::File] = file.toString();
        box[BoxColumn::Forename] = QString();
    }

    void GivenLine(int row, Point from, Point to, Colour colour = Black)
    {
        auto& line = P.Map.LineArr[row];
        line[LineColumn::X1] = from.X;
        line[LineColumn::Y1] = from.Y;
        line[LineColumn::X2] = to.X;
        line[LineColumn::Y2] = to.Y;
        line[LineColumn::Colour] = static_cast<int>(colour);
    }

    void GivenText(int row, Point place, QStringView text, const TextFont& font = {}, Colour colour = Black)
    {
        auto& cells = P.Map.TextArr[row];
        cells[TextColumn::X] = place.X;
        cells[TextColumn::Y] = place.Y;
        cells[TextColumn::Text] = text.toString();
        cells[TextColumn::FontName] = font.Name;
        cells[TextColumn::FontSize] = QString::number(font.Size);
        cells[TextColumn::Colour] = static_cast<int>(colour);
    }

    void GivenPrinting() { IsPrinting = true; }
    // What the map is drawn on: the picture, unless it is printed.
    MapSheet Sheet() { return IsPrinting ? MapOnPaper(Page) : MapOnScreen(P.Map, *P.Form1); }

    void OpenMap()
    {
        ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);
        ParseBoxes(P);
        ParseLines(P);
        ParseTexts(P);
    }

    BranchBuilder BranchA{Home, u'A'};
    BranchBuilder BranchB{Home, u'B'};
    RecordingSurface Page;
    PictureBox& Picture = LoadMainWindow();

private:
    bool IsPrinting = false;

    // As it stands between two operations.
    PictureBox& LoadMainWindow()
    {
        WriteAliasList(Home, {});
        P.Form1->Picture1.Font = {};
        return P.Form1->Picture1;
    }
};

} // namespace lineforge
