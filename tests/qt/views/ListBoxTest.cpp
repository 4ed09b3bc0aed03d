#include "qt/WindowTest.h"

#include <QListWidget>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ListForm : Form {
    ListForm() : Form(u"ListForm", u"List", {6000, 3000}) {}
    Button Command1{*this, u"Command1", {150, 150, 1200, 375}, u"Open"};
    ListBox List1{*this, u"List1", {150, 600, 4000, 2000}};
};

struct ListBoxTest : WindowTest {
    Window<ListForm> Lists{System()};
    void SetUp() override
    {
        Lists->List1.Items = QStringList{u"Smiths"_s, u"Joneses"_s, u"Browns"_s};
        Lists->List1.ListIndex = 1;
        Lists->Visible = true;
    }
    QListWidget& View() { return Find<QListWidget>(*Lists, u"List1"_s); }
    QString Selected()
    {
        const auto items = View().selectedItems();
        return items.isEmpty() ? u"(none)"_s : items.first()->text();
    }
    QPoint PlaceOf(int row) { return View().visualItemRect(View().item(row)).center(); }
};

TEST_F(ListBoxTest, ShowsItemsAndSelectionFromTheStart)
{
    EXPECT_EQ(View().count(), 3);
    EXPECT_EQ(View().item(2)->text(), u"Browns"_s);
    EXPECT_EQ(Selected(), u"Joneses"_s);
}

TEST_F(ListBoxTest, FollowsTheProgram)
{
    Lists->List1.ListIndex = 2;
    EXPECT_EQ(Selected(), u"Browns"_s);
    Lists->List1.ListIndex = -1;
    EXPECT_EQ(Selected(), u"(none)"_s);
    Lists->List1.SetText(u"Smiths"_s);
    EXPECT_EQ(Selected(), u"Smiths"_s);
    Lists->List1.Items = QStringList{u"Other"_s};
    EXPECT_EQ(View().count(), 1);
    EXPECT_EQ(Selected(), u"Other"_s);
    EXPECT_EQ(Lists->List1.ListIndex.value(), 0);
}

TEST_F(ListBoxTest, AnIndexBeyondTheItemsSelectsNothing_AndStays)
{
    Lists->List1.ListIndex = 7;
    EXPECT_EQ(Selected(), u"(none)"_s);
    EXPECT_EQ(Lists->List1.ListIndex.value(), 7);
}

TEST_F(ListBoxTest, TheUserSelectsByMouseAndKey)
{
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(2));
    EXPECT_EQ(Lists->List1.ListIndex.value(), 2);
    QTest::keyClick(&View(), Qt::Key_Up);
    EXPECT_EQ(Lists->List1.ListIndex.value(), 1);
    EXPECT_EQ(Lists->List1.Text(), u"Joneses"_s);
}

TEST_F(ListBoxTest, OnlyOneItemIsEverSelected)
{
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(0));
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(2));
    EXPECT_EQ(View().selectedItems().size(), 1);
}

TEST_F(ListBoxTest, GettingTheFocusSelectsNothing)
{
    Lists->List1.ListIndex = -1;
    Activate(*Lists);
    View().setFocus();
    EXPECT_EQ(Lists->List1.ListIndex.value(), -1);
}

TEST_F(ListBoxTest, Enter_IsTheDoubleClickOfWhatIsSelected)
{
    int opened = 0;
    Lists->List1.DblClick = [&opened] { ++opened; };
    Activate(*Lists);
    View().setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(ViewOf(*Lists).windowHandle(), key);
    QTest::keyClick(ViewOf(*Lists).windowHandle(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(opened, 3);

    Lists->List1.ListIndex = -1;
    QTest::keyClick(ViewOf(*Lists).windowHandle(), Qt::Key_Return);
    Lists->List1.ListIndex = 0;
    Find<QWidget>(*Lists, u"Command1"_s).setFocus();
    QTest::keyClick(ViewOf(*Lists).windowHandle(), Qt::Key_Return);
    EXPECT_EQ(opened, 3);
}

TEST_F(ListBoxTest, ADoubleClickSelectsFirst_ThenFires)
{
    std::vector<int> seen;
    Lists->List1.DblClick = [&] { seen.push_back(Lists->List1.ListIndex); };
    QTest::mouseDClick(ViewOf(*Lists).windowHandle(), Qt::LeftButton, {},
                       View().viewport()->mapTo(&ViewOf(*Lists), PlaceOf(0)));
    EXPECT_EQ(seen, std::vector<int>{0});
}
} // namespace

} // namespace lineforge
