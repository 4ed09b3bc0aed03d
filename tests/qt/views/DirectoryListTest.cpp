#include "qt/WindowTest.h"
#include "qt/views/DirectoryView.h"
#include "support/TemporaryHome.h"

#include <QComboBox>
#include <QDir>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PlaceForm : Form {
    PlaceForm() : Form(u"PlaceForm", u"Place", {6000, 5000}) {}
    DriveList Drive1{*this, u"Drive1", {150, 150, 4000, 375}};
    DirectoryList Dir1{*this, u"Dir1", {150, 600, 4000, 4200}};
};

struct DirectoryListTest : WindowTest {
    Window<PlaceForm> Places{System()};
    TemporaryHome Home;

    void SetUp() override
    {
        Home.MakeDirectory(u"here/alpha");
        Home.MakeDirectory(u"here/beta");
        Places->Drive1.Drives = QStringList{u"/"_s, Home.Path()};
        Places->Drive1.Drive = u"/"_s;
        Places->Dir1.Path = Home.Path(u"here");
        Places->Visible = true;
    }

    DirectoryView& View() { return Find<DirectoryView>(*Places, u"Dir1"_s); }
    QComboBox& Drives() { return Find<QComboBox>(*Places, u"Drive1"_s); }

    QStringList Shown()
    {
        QStringList names;
        for (int row = 0; row < View().count(); ++row)
            names += View().item(row)->data(Qt::AccessibleTextRole).toString();
        return names;
    }
    int RowOf(const QString& name) { return static_cast<int>(Shown().indexOf(name)); }
    QPoint PlaceOf(const QString& name)
    {
        QListWidgetItem* item = View().item(RowOf(name));
        View().scrollToItem(item);
        return View().visualItemRect(item).center();
    }
    void DoubleClick(QPoint place)
    {
        QTest::mouseDClick(ViewOf(*Places).windowHandle(), Qt::LeftButton, {},
                           View().viewport()->mapTo(&ViewOf(*Places), place));
    }
};

TEST_F(DirectoryListTest, ShowsTheWayDown_AndWhatIsThere)
{
    EXPECT_EQ(Shown().first(), u"/"_s);
    EXPECT_EQ(Shown().last(3), QStringList({u"here"_s, u"alpha"_s, u"beta"_s}));
    EXPECT_EQ(View().currentRow(), RowOf(u"here"_s));
}

TEST_F(DirectoryListTest, Click_IsTold_AndLeavesThePath)
{
    int clicks = 0;
    Places->Dir1.Click = [&] { ++clicks; };

    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(u"alpha"_s));

    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Places->Dir1.Path.value(), Home.Path(u"here"));
}

TEST_F(DirectoryListTest, DoubleClick_GoesThere_DownAndUp)
{
    int changes = 0;
    Places->Dir1.Change = [&] { ++changes; };

    DoubleClick(PlaceOf(u"alpha"_s));
    EXPECT_EQ(Places->Dir1.Path.value(), Home.Path(u"here/alpha"));
    EXPECT_EQ(Shown().last(), u"alpha"_s);

    DoubleClick(PlaceOf(u"here"_s));
    EXPECT_EQ(Places->Dir1.Path.value(), Home.Path(u"here"));
    EXPECT_EQ(changes, 2);
}

TEST_F(DirectoryListTest, Enter_GoesToTheCurrentLine)
{
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Down);
    QTest::keyClick(&View(), Qt::Key_Return);

    EXPECT_EQ(Places->Dir1.Path.value(), Home.Path(u"here/alpha"));
}

TEST_F(DirectoryListTest, SpaceIsAClick_AndEnterADoubleClick)
{
    QStringList story;
    Places->Dir1.Click = [&story] { story += u"click"_s; };
    Places->Dir1.Change = [&story] { story += u"change"_s; };
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Down);
    EXPECT_EQ(story, QStringList());
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(story, QStringList{u"click"_s});
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(story, QStringList({u"click"_s, u"click"_s, u"change"_s}));
}

TEST_F(DirectoryListTest, DirectoryThatHasGone_IsNotEntered)
{
    const QPoint place = PlaceOf(u"beta"_s);
    ASSERT_TRUE(QDir().rmdir(Home.Path(u"here/beta")));

    DoubleClick(place);

    EXPECT_EQ(Places->Dir1.Path.value(), Home.Path(u"here"));
}

TEST_F(DirectoryListTest, ShownAgain_ItReadsTheDiskAgain)
{
    Places->Visible = false;
    Home.MakeDirectory(u"here/gamma");

    Places->Visible = true;

    EXPECT_EQ(Shown().last(), u"gamma"_s);
}

TEST_F(DirectoryListTest, Drives_AreChosenByKey_AndTold)
{
    QStringList chosen;
    Places->Drive1.Change = [&] { chosen += Places->Drive1.Drive; };
    EXPECT_EQ(Drives().count(), 2);
    EXPECT_EQ(Drives().currentText(), u"/"_s);

    Drives().setFocus();
    QTest::keyClick(&Drives(), Qt::Key_Down);

    EXPECT_EQ(chosen, QStringList{Home.Path()});
}

TEST_F(DirectoryListTest, Drive_FollowsTheProgram_WithoutAnEvent)
{
    int changes = 0;
    Places->Drive1.Change = [&] { ++changes; };

    Places->Drive1.Drive = Home.Path();

    EXPECT_EQ(Drives().currentText(), Home.Path());
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace lineforge
