#pragma once

#include "map/MapTest.h"
#include "map/items/MapDisplay.h"
#include "map/tools/ToolSelection.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lineforge
{

// The rows of an array as they read in a map file.
using RowTexts = QStringList;

inline testing::AssertionResult SameImage(const QImage& actual, const QImage& expected)
{
    if (actual == expected)
        return testing::AssertionSuccess();
    for (int y = 0; y < actual.height(); ++y)
        for (int x = 0; x < actual.width(); ++x)
            if (actual.pixel(x, y) != expected.pixel(x, y))
                return testing::AssertionFailure() << "pixel " << x << ", " << y << " is " << std::hex
                                                   << actual.pixel(x, y) << " instead of " << expected.pixel(x, y);
    return testing::AssertionFailure() << "the pictures differ in size";
}

// A user who draws on the map of branch A.
class ToolsTest : public MapTest
{
protected:
    using ToolButton = Image forms::Form1::*;

    // The map of branch A from its file, as it was built.
    void GivenMap()
    {
        GivenOpen(BranchA);
        OpenMap();
    }
    void GivenTools()
    {
        GivenMap();
        P.Form1->mnuTreeTools.Click();
    }

    void Click(ToolButton button) { ((*P.Form1).*button).Click(); }

    // Takes a tool in hand by the buttons that a user would press for it.
    void Choose(int sel)
    {
        PutDown();
        if (sel == 1) {
            Click(&forms::Form1::Image2);
        } else {
            Click(ButtonOf(sel));
            if (sel / 10 == 1)
                Click(&forms::Form1::Image2);
            else if (sel / 10 == 2)
                Click(&forms::Form1::Image5);
        }
        ASSERT_EQ(P.Tools.ToolSel, sel);
    }
    void PutDown()
    {
        const int sel = P.Tools.ToolSel;
        if (sel != 0)
            Click(sel < 7 ? &forms::Form1::Image2 : ButtonOf(sel));
        ASSERT_EQ(P.Tools.ToolSel, ToolSelection::None);
    }
    static ToolButton ButtonOf(int sel)
    {
        const int kind = sel % 10;
        return kind == 7 ? &forms::Form1::Image6 : kind == 8 ? &forms::Form1::Image7 : &forms::Form1::Image9;
    }
    bool IsRaised(ToolButton button) const { return Face(button) == Kept(button, &forms::Form1::ToolImage::Raised); }
    bool IsSunken(ToolButton button) const { return Face(button) == Kept(button, &forms::Form1::ToolImage::Sunken); }

    void Press(Point at, int shift = 0, int button = LeftButton) { Picture.MouseDown(button, shift, at.X, at.Y); }
    void Move(Point at, int shift = 0) { Picture.MouseMove(LeftButton, shift, at.X, at.Y); }
    void Release(Point at, int shift = 0) { Picture.MouseUp(LeftButton, shift, at.X, at.Y); }
    void PressAndRelease(Point at, int shift = 0)
    {
        Press(at, shift);
        Release(at, shift);
    }
    // Presses on the first point and releases on the last.
    void Drag(const std::vector<Point>& way, int shift = 0)
    {
        Press(way.front(), shift);
        for (std::size_t step = 1; step < way.size(); ++step)
            Move(way[step], shift);
        Release(way.back(), shift);
    }

    void ExpectText(QStringView answer, ScriptedPrompts::WhileOpen whileOpen = {},
                    ScriptPlace place = ScriptPlace::Here())
    {
        Prompts.ExpectInput(u"New Text Input", u"Enter the Text for display on the Tree Map", answer,
                            std::move(whileOpen), place);
    }
    void ExpectSaveQuestion(Answer answer, ScriptedPrompts::WhileOpen whileOpen = {},
                            ScriptPlace place = ScriptPlace::Here())
    {
        Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo, answer,
                       std::move(whileOpen), place);
    }
    void Leave(Answer answer)
    {
        ExpectSaveQuestion(answer);
        Click(&forms::Form1::Image8);
    }

    void DrawNewLine(Point from, Point to)
    {
        Choose(ToolSelection::LineDraw);
        Drag({from, to});
    }
    void PlaceBox(Point middle)
    {
        Choose(ToolSelection::BoxDraw);
        PressAndRelease(middle);
    }
    void PlaceText(Point press, QStringView text)
    {
        Choose(ToolSelection::TextDraw);
        ExpectText(text);
        PressAndRelease(press);
    }

    RowTexts Box(int row) const { return Texts(P.Map.BoxArr[row], BoxColumn::Count); }
    RowTexts Text(int row) const { return Texts(P.Map.TextArr[row], TextColumn::Count); }
    std::vector<int> Line(int row) const
    {
        std::vector<int> values;
        for (int column = 0; column < LineColumn::Count; ++column)
            values.push_back(P.Map.LineArr[row][column]);
        return values;
    }

    QByteArray MapBytes() const { return Home.ReadFile(BranchA.MapFile()); }
    static QByteArray BytesOf(QStringView boxes, QStringView lines, QStringView texts)
    {
        return MapFileBytes(u"LfgDat_A", boxes, lines, texts);
    }

    // A copy: what is drawn later doesn't change it.
    QImage Shown() const { return ShownBy(Picture).copy(); }

    // Draws the map from the arrays on an empty picture.
    QImage Afresh()
    {
        Picture.Cls();
        RedrawMap(P, MapOnScreen(P.Map, *P.Form1));
        return Shown();
    }
    // Whether the picture was, until now, what that gives.
    testing::AssertionResult IsAsPaintedAfresh()
    {
        const QImage shown = Shown();
        return SameImage(shown, Afresh());
    }

    static constexpr int LeftButton = 1;
    static constexpr int RightButton = 2;
    static constexpr int MiddleButton = 4;
    static constexpr int Shift = ShiftMask::Shift;
    static constexpr int Ctrl = ShiftMask::Ctrl;
    static constexpr Colour Red = Rgb(255, 0, 0);
    static constexpr Colour Green = Rgb(0, 160, 0);
    static constexpr Colour Blue = Rgb(0, 0, 255);

    Colour& DialogColour = P.Form1->CommonDialog1.Color;

private:
    template <class Row>
    static RowTexts Texts(const Row& row, int columns)
    {
        RowTexts values;
        for (int column = 0; column < columns; ++column)
            values.push_back(row[column].Text());
        return values;
    }
    QImage Face(ToolButton button) const { return (Form.*button).Picture; }
    QImage Kept(ToolButton button, Image forms::Form1::*forms::Form1::ToolImage::*kept) const
    {
        for (const forms::Form1::ToolImage& tool : forms::Form1::Tools)
            if (tool.Button == button)
                return (Form.*(tool.*kept)).Picture;
        return {};
    }

    const forms::Form1& Form = *P.Form1;
};

} // namespace lineforge
