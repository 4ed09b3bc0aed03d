#include "qt/machine/ScreenPointer.h"

#include "qt/Dialogs.h"
#include "qt/WindowTest.h"

#include <QGuiApplication>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ScreenPointerTest : WindowTest {
    Screen& TheScreen() { return Machine().Bundle().Screen; }
    static std::optional<Qt::CursorShape> Shown()
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor ? std::optional(cursor->shape()) : std::nullopt;
    }
};

TEST_F(ScreenPointerTest, EachPointerHasItsShape_AndTheArrowGivesTheOwnOnesBack)
{
    EXPECT_EQ(Shown(), std::nullopt);
    TheScreen().Pointer = MousePointer::Hourglass;
    EXPECT_EQ(Shown(), Qt::WaitCursor);
    TheScreen().Pointer = MousePointer::Cross;
    EXPECT_EQ(Shown(), Qt::CrossCursor);
    TheScreen().Pointer = MousePointer::SizeAll;
    EXPECT_EQ(Shown(), Qt::SizeAllCursor);
    TheScreen().Pointer = MousePointer::Arrow;
    EXPECT_EQ(Shown(), std::nullopt);
    TheScreen().Pointer = MousePointer::Cross;
    TheScreen().Pointer = MousePointer::Default;
    EXPECT_EQ(Shown(), std::nullopt);
}

TEST_F(ScreenPointerTest, ABoxShowsTheArrow_AndTheHourglassComesBack)
{
    TheScreen().Pointer = MousePointer::Hourglass;
    std::optional<Qt::CursorShape> inside;
    const NextDialog dialog([&inside](QDialog& box) {
        inside = Shown();
        box.reject();
    });
    Machine().Bundle().Prompts.MsgBox(u"t"_s, u"x"_s, Buttons::Plain);
    EXPECT_EQ(inside, Qt::ArrowCursor);
    EXPECT_EQ(Shown(), Qt::WaitCursor);
}

TEST_F(ScreenPointerTest, WhoeverShowsItTakesItAlong)
{
    Screen screen{1, 1, {}};
    {
        const ScreenPointer pointer(screen);
        screen.Pointer = MousePointer::Hourglass;
        EXPECT_EQ(Shown(), Qt::WaitCursor);
    }
    EXPECT_EQ(Shown(), std::nullopt);
}
} // namespace

} // namespace lineforge
