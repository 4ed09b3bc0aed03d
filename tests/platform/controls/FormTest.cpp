#include "platform/controls/Form.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

TEST(FormTest, FreshForm_IsHidden_AndAsLargeAsItsDesign)
{
    const Form form(u"Form1", u"Family Tree", {9000, 6000});

    EXPECT_EQ(form.Name, u"Form1");
    EXPECT_EQ(form.Caption.value(), u"Family Tree");
    EXPECT_FALSE(form.Visible);
    EXPECT_TRUE(form.Enabled);
    EXPECT_EQ(form.Width, 9000);
    EXPECT_EQ(form.Height, 6000);
    EXPECT_EQ(form.Client, (Size{9000, 6000}));
}

TEST(FormTest, ShowAndHide_AreItsVisibility)
{
    Form form(u"Form1", u"", {});
    form.Show();
    EXPECT_TRUE(form.Visible);
    form.Hide();
    EXPECT_FALSE(form.Visible);
}

TEST(FormTest, Centre_PutsItInTheMiddle_OrHigher)
{
    Form form(u"Form1", u"", {9000, 6000});

    form.Centre({12000, 9000});
    EXPECT_EQ(form.Left, 1500);
    EXPECT_EQ(form.Top, 1500);

    form.Centre({12000, 9000}, 500);
    EXPECT_EQ(form.Left, 1500);
    EXPECT_EQ(form.Top, 1000);
}

TEST(FormTest, CentreOfAFormLargerThanTheScreen_StandsOutOnBothSides)
{
    Form form(u"Form1", u"", {9000, 6000});
    form.Centre({8000, 5000});

    EXPECT_EQ(form.Left, -500);
    EXPECT_EQ(form.Top, -500);
}

TEST(FormTest, Release_ReachesTheControlsInsideOthers)
{
    Form form(u"Form1", u"", {});
    Frame outer(form, u"Frame1", {});
    Frame inner(outer, u"Frame2", {});
    MultimediaControl first(form, u"MMControl1");
    MultimediaControl second(inner, u"MMControl2");
    QStringList closed;
    first.Act = [&](QStringView command) { closed.push_back(u"first "_s + command); };
    second.Act = [&](QStringView command) { closed.push_back(u"second "_s + command); };

    form.Release();

    closed.sort();
    EXPECT_EQ(closed, QStringList({u"first Close"_s, u"second Close"_s}));
}

} // namespace
} // namespace lineforge
