#include "platform/controls/DataControl.h"

#include "qt/WindowTest.h"
#include "qt/views/RecordBar.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct DataForm : Form {
    DataForm() : Form(u"DataForm", u"Data", {6000, 3000})
    {
        Data1.RecordSource = u"People"_s;
        Data1.Bind(Text1, u"Name"_s);
        Data1.Bind(Label1, u"Name"_s);
    }
    DataControl Data1{*this, u"Data1", {150, 150, 3000, 375}, u"People"};
    TextBox Text1{*this, u"Text1", {150, 600, 3000, 315}};
    Label Label1{*this, u"Label1", {150, 1050, 3000, 255}};
};

struct DataControlTest : WindowTest {
    TemporaryHome Home;
    FileSystem Files{Home.Path()};
    Databases Open;
    Window<DataForm> Data{System()};

    void SetUp() override
    {
        SqliteFile file(Path());
        file.Execute("CREATE TABLE People (Name TEXT)");
        file.Execute("INSERT INTO People VALUES ('Ann'), ('Ben'), ('Cid')");
        Data->Data1.DatabaseName = Path();
    }
    QString Path() const { return Home.Path() + u"/people.mdb"_s; }
    void OpenAndShow()
    {
        Data->Data1.Refresh(Open, Files);
        Data->Visible = true;
        ServeEvents();
    }
    void Press(const QString& button) { QTest::mouseClick(&Find<QToolButton>(*Data, button), Qt::LeftButton); }
    QString Shown() { return Find<QLabel>(*Data, u"Label1"_s).text(); }
    QString Current() { return Data->Data1.Records().Text(u"Name"); }
};

TEST_F(DataControlTest, BoundControlsFollowTheRowWhenTheLoopRuns_NotDuringAWalk)
{
    OpenAndShow();
    EXPECT_EQ(Shown(), u"Ann"_s);
    Data->Data1.Records().MoveNext();
    Data->Data1.Records().MoveNext();
    EXPECT_EQ(Shown(), u"Ann"_s);
    ServeEvents();
    EXPECT_EQ(Shown(), u"Cid"_s);
    EXPECT_EQ(Find<QLineEdit>(*Data, u"Text1"_s).text(), u"Cid"_s);
}

TEST_F(DataControlTest, AStepByTheBar_IsTold_WhenTheRecordStands)
{
    OpenAndShow();
    QStringList told;
    Data->Data1.Stepped = [&] { told << Current(); };
    Press(u"Data1Next"_s);
    Press(u"Data1Last"_s);
    Data->Data1.Records().MoveFirst();
    EXPECT_EQ(told, QStringList({u"Ben"_s, u"Cid"_s}));
}

TEST_F(DataControlTest, AHiddenWindowsDataFollowsAsWell)
{
    Data->Data1.Refresh(Open, Files);
    ServeEvents();
    EXPECT_EQ(Data->Label1.Caption.Shown(), u"Ann"_s);
    EXPECT_EQ(System().WidgetOf(*Data), nullptr);
}

TEST_F(DataControlTest, ManyStaleWalksAskForOneCall)
{
    OpenAndShow();
    for (int step = 0; step < 50; ++step) {
        Data->Data1.Records().MoveFirst();
        EXPECT_EQ(Data->Text1.Text.value(), u"Ann"_s);
        Data->Data1.Records().MoveLast();
    }
    ServeEvents();
    EXPECT_EQ(Shown(), u"Cid"_s);
}

TEST_F(DataControlTest, TheButtonsWalk_AndStopQuietlyAtTheEnds)
{
    OpenAndShow();
    Press(u"Data1Previous"_s);
    EXPECT_EQ(Current(), u"Ann"_s);
    Press(u"Data1Next"_s);
    EXPECT_EQ(Current(), u"Ben"_s);
    Press(u"Data1Last"_s);
    EXPECT_EQ(Current(), u"Cid"_s);
    Press(u"Data1Next"_s);
    EXPECT_EQ(Current(), u"Cid"_s);
    Press(u"Data1Previous"_s);
    EXPECT_EQ(Current(), u"Ben"_s);
    Press(u"Data1First"_s);
    EXPECT_EQ(Current(), u"Ann"_s);
    EXPECT_TRUE(Refusals().empty());
}

TEST_F(DataControlTest, TheButtonsAreQuietOnAnEmptyTable_AndWithoutAFile)
{
    Data->Visible = true;
    for (const QString& button : {u"Data1First"_s, u"Data1Previous"_s, u"Data1Next"_s, u"Data1Last"_s})
        Press(button);
    SqliteFile(Path()).Execute("DELETE FROM People");
    Data->Data1.Refresh(Open, Files);
    for (const QString& button : {u"Data1First"_s, u"Data1Previous"_s, u"Data1Next"_s, u"Data1Last"_s})
        Press(button);
    EXPECT_TRUE(Data->Data1.Records().IsEmpty());
    EXPECT_TRUE(Refusals().empty());
}

TEST_F(DataControlTest, WhatIsTypedIsWrittenWhenTheRowIsLeft)
{
    OpenAndShow();
    QTest::keyClicks(&Find<QLineEdit>(*Data, u"Text1"_s), u"ie"_s);
    Press(u"Data1Next"_s);
    EXPECT_NE(SqliteFile(Path()).Value("SELECT Name FROM People LIMIT 1"), u"Ann"_s);
    EXPECT_EQ(Current(), u"Ben"_s);
}

TEST_F(DataControlTest, ShowingRowsWritesNothing)
{
    OpenAndShow();
    const Tree before = Home.Snapshot();
    for (int step = 0; step < 4; ++step) {
        Press(u"Data1Next"_s);
        ServeEvents();
    }
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DataControlTest, ButtonsAreAsWideAsTheBarIsHigh)
{
    OpenAndShow();
    const auto& bar = Find<QWidget>(*Data, u"Data1"_s);
    for (const QWidget* button : bar.findChildren<QToolButton*>())
        EXPECT_EQ(button->size(), QSize(bar.height(), bar.height())) << button->objectName().toStdString();
}

TEST_F(DataControlTest, HiddenTheBarIsOutOfSight)
{
    OpenAndShow();
    auto& bar = Find<QWidget>(*Data, u"Data1"_s);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.accessibleName(), u"People"_s);
    Data->Data1.Visible = false;
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(DataControlTest, AWindowUnloadedBeforeTheLoopRunsIsNotAskedAnyMore)
{
    Data->Data1.Refresh(Open, Files);
    Data.Unload();
    PassEventLoop();
    EXPECT_FALSE(Data.IsLoaded());
    EXPECT_TRUE(Refusals().empty());
}
} // namespace

} // namespace lineforge
