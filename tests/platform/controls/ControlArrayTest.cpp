#include "platform/controls/ControlArray.h"

#include "platform/controls/Form.h"
#include "support/Refusal.h"

#include <gmock/gmock.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Contains;
using testing::Not;
using testing::SizeIs;

struct ArrayForm : Form {
    ArrayForm() : Form(u"ArrayForm", u"An array", {6000, 4000}) {}
    ControlArray<Shape> Shape2{*this, u"Shape2", MakeShape};

    static std::unique_ptr<Shape> MakeShape(Container& parent, const QString& name)
    {
        return std::make_unique<Shape>(parent, name, Rectangle{10, 20, 30, 40});
    }
};

class ControlArrayTest : public testing::Test
{
protected:
    ArrayForm Window;
    ControlArray<Shape>& Array = Window.Shape2;
};

TEST_F(ControlArrayTest, NothingIsThereAtFirst_ThePatternNeither)
{
    EXPECT_EQ(Array.Count(), 0U);
    EXPECT_THAT(Window.Controls(), SizeIs(0));
    EXPECT_EQ(RefusalOf([&] { Array[0]; }), ErrorNumber::ArrayElementMissing);
}

TEST_F(ControlArrayTest, Load_MakesAnElementAfterThePattern_NamedByItsIndex)
{
    Shape& made = Array.Load(1);

    EXPECT_EQ(made.Name, u"Shape2(1)"_s);
    EXPECT_EQ(made.Width, 30);
    EXPECT_FALSE(made.Visible);
    EXPECT_THAT(Window.Controls(), Contains(&made));
    EXPECT_EQ(&Array[1], &made);
    EXPECT_EQ(Array.Count(), 1U);
}

TEST_F(ControlArrayTest, Elements_AreEachTheirOwn)
{
    Array.Load(7).Left = 700;
    Array.Load(1).Left = 100;

    EXPECT_EQ(Array[1].Left, 100);
    EXPECT_EQ(Array[7].Left, 700);
    EXPECT_EQ(RefusalOf([&] { Array[2]; }), ErrorNumber::ArrayElementMissing);
}

TEST_F(ControlArrayTest, LoadingWhatIsLoaded_IsRefused_AndTheElementStays)
{
    Array.Load(1).Left = 100;

    EXPECT_EQ(RefusalOf([&] { Array.Load(1); }), ErrorNumber::ArrayElementLoaded);

    EXPECT_EQ(Array[1].Left, 100);
    EXPECT_EQ(Array.Count(), 1U);
}

TEST_F(ControlArrayTest, Unload_TakesTheElementOffTheWindow)
{
    const Control* made = &Array.Load(1);
    const Control& other = Array.Load(2);

    Array.Unload(1);

    EXPECT_EQ(Array.Count(), 1U);
    EXPECT_THAT(Window.Controls(), Not(Contains(made)));
    EXPECT_THAT(Window.Controls(), Contains(&other));
}

TEST_F(ControlArrayTest, UnloadingWhatIsGone_IsRefused)
{
    Array.Load(1);
    Array.Unload(1);

    EXPECT_EQ(RefusalOf([&] { Array.Unload(1); }), ErrorNumber::ArrayElementMissing);
    EXPECT_EQ(RefusalOf([&] { Array.Unload(0); }), ErrorNumber::ArrayElementMissing);
}

TEST_F(ControlArrayTest, AfterUnload_TheElementCanBeLoadedAfresh)
{
    Array.Load(1).Left = 100;
    Array.Unload(1);

    EXPECT_EQ(Array.Load(1).Left, 10);
}

TEST_F(ControlArrayTest, WhoeverShowsTheWindow_IsToldOfElementsThatComeAndGo)
{
    QStringList told;
    Window.Added = [&](Control& control) { told += u"came "_s + control.Name; };
    Window.Removed = [&](Control& control) { told += u"goes "_s + control.Name; };

    Array.Load(1);
    Array.Load(2);
    Array.Unload(1);

    EXPECT_EQ(told, QStringList({u"came Shape2(1)"_s, u"came Shape2(2)"_s, u"goes Shape2(1)"_s}));
}

TEST_F(ControlArrayTest, Refused_NobodyIsTold)
{
    Array.Load(1);
    int told = 0;
    Window.Added = Window.Removed = [&](Control&) { ++told; };

    RefusalOf([&] { Array.Load(1); });
    RefusalOf([&] { Array.Unload(2); });

    EXPECT_EQ(told, 0);
}

} // namespace
} // namespace lineforge
