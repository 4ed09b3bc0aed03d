#include "forms/ToolFaces.h"

#include "forms/Form1.h"

#include <gtest/gtest.h>

namespace lineforge::forms
{
namespace
{

constexpr ToolSymbol all[] = {ToolSymbol::Move, ToolSymbol::Colour, ToolSymbol::Font, ToolSymbol::Delete,
                              ToolSymbol::Line, ToolSymbol::Box,    ToolSymbol::Text, ToolSymbol::Exit};

// In tenths of a percent, how many pixels differ so much that it is seen.
int Difference(const QImage& a, const QImage& b)
{
    constexpr int seen = 48;
    int differing = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            differing += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > seen;
    return differing * 1000 / (a.width() * a.height());
}

// As small as a tool is on the smallest screen.
QImage AsShown(const QImage& face)
{
    return face.scaled(23, 23, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

class ToolFacesTest : public testing::TestWithParam<ToolSymbol>
{
};

TEST_P(ToolFacesTest, Face_IsASquareOf96_TransparentOutsideItsCorners)
{
    for (const bool sunken : {false, true}) {
        const QImage face = DrawToolFace(GetParam(), sunken);
        EXPECT_EQ(face.size(), QSize(96, 96));
        EXPECT_EQ(qAlpha(face.pixel(0, 0)), 0);
        EXPECT_EQ(qAlpha(face.pixel(48, 10)), 255);
    }
}

TEST_P(ToolFacesTest, Sunken_IsPlainlyAnotherFace)
{
    EXPECT_GT(Difference(AsShown(DrawToolFace(GetParam(), false)), AsShown(DrawToolFace(GetParam(), true))), 500);
}

TEST_P(ToolFacesTest, NoOtherTool_LooksAlike)
{
    for (const ToolSymbol other : all) {
        if (other == GetParam())
            continue;
        for (const bool sunken : {false, true})
            EXPECT_GT(Difference(AsShown(DrawToolFace(GetParam(), sunken)), AsShown(DrawToolFace(other, sunken))), 60)
                << static_cast<int>(other) << (sunken ? " sunken" : " raised");
    }
}

INSTANTIATE_TEST_SUITE_P(Tools, ToolFacesTest, testing::ValuesIn(all));

TEST(MainWindowToolsTest, Faces_AreThereOnceTheyAreWanted_EachInTheImageOfItsTool)
{
    Form1 form;
    for (const Form1::ToolImage& tool : Form1::Tools)
        EXPECT_TRUE((form.*tool.Raised).Picture.value().isNull());

    form.DrawToolFaces();

    for (const Form1::ToolImage& tool : Form1::Tools) {
        EXPECT_EQ((form.*tool.Raised).Picture.value(), DrawToolFace(tool.Symbol, false));
        EXPECT_EQ((form.*tool.Sunken).Picture.value(), DrawToolFace(tool.Symbol, true));
    }
}

} // namespace
} // namespace lineforge::forms
