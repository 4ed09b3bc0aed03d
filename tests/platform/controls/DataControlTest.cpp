#include "platform/controls/DataControl.h"

#include "platform/base/RuntimeError.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/PeopleTable.h"

#include <memory>
#include <sqlite3.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A window's worth of controls over the table: the field Name in a label and in a box, File in a box.
class DataControlTest : public PeopleTable
{
protected:
    DataControlTest()
    {
        data.DatabaseName = u"people.db"_s;
        data.RecordSource = u"People"_s;
        data.Bind(label, u"Name"_s);
        data.Bind(name, u"Name"_s);
        data.Bind(file, u"File"_s);
    }

    void GivenOpened(const QList<std::optional<QString>>& names)
    {
        GivenPeople(names);
        data.Refresh(databases, files);
    }

    struct : Container {
    } window;
    DataControl data{window, u"Data1", {}, u"Lineforge"};
    Label label{window, u"Label1", {}};
    TextBox name{window, u"Text1", {}};
    TextBox file{window, u"Text2", {}};
};

TEST_F(DataControlTest, BeforeRefresh_ThereAreNoRecords_AndTheControlsAreTheirOwn)
{
    EXPECT_FALSE(data.IsOpen());
    EXPECT_EQ(RefusalOf([&] { data.Records(); }), ErrorNumber::ObjectNotSet);

    name.Text = u"typed"_s;
    EXPECT_EQ(name.Text.value(), u"typed");
}

TEST_F(DataControlTest, Refresh_ShowsTheFirstRow)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});

    EXPECT_TRUE(data.IsOpen());
    EXPECT_EQ(label.Caption.value(), u"Ann");
    EXPECT_EQ(name.Text.value(), u"Ann");
    EXPECT_EQ(file.Text.value(), u"A001");
}

TEST_F(DataControlTest, BoundControls_FollowTheRow_WhenTheyAreRead)
{
    GivenOpened({u"Ann"_s, std::nullopt, u"Cid"_s});

    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), QString()) << "Null shows as nothing";
    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), u"Cid");
    EXPECT_EQ(label.Caption.value(), u"Cid");
    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), QString()) << "behind the last row there is nothing to show";
    data.Records().MoveFirst();
    EXPECT_EQ(name.Text.value(), u"Ann");
}

TEST_F(DataControlTest, BoundControls_DoNotFollowDuringAWalk)
{
    GivenOpened({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    ASSERT_EQ(name.Text.value(), u"Ann");
    int changes = 0;
    const auto observer = name.Text.OnChange([&] { ++changes; });

    Walk(data.Records());
    data.Records().MoveLast();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(name.Text.Shown(), u"Ann");

    data.Settle();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(name.Text.Shown(), u"Cid");
}

TEST_F(DataControlTest, Stale_IsToldOnce_UntilTheControlsAreSettled)
{
    GivenOpened({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    data.Settle();
    int told = 0;
    data.Stale = [&] { ++told; };

    Walk(data.Records());
    data.Records().MoveFirst();
    EXPECT_EQ(told, 1);

    data.Settle();
    data.Settle();
    EXPECT_EQ(told, 1);
    data.Records().MoveNext();
    EXPECT_EQ(told, 2);
}

TEST_F(DataControlTest, RefusedReading_IsTriedAgainAtTheNext)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    data.Records().MoveNext();
    data.Records().Rest();
    databases.Others().Milliseconds = 0;
    SqliteFile other(home.Path(u"people.db"));
    other.Execute("BEGIN EXCLUSIVE");

    EXPECT_EQ(RefusalOf([&] { (void)label.Caption.value(); }), ErrorNumber::DatabaseBusy);

    other.Execute("COMMIT");
    EXPECT_EQ(label.Caption.value(), u"Bob");
}

TEST_F(DataControlTest, Settling_LetsTheWalkRest)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    data.Records().MoveFirst();
    SqliteFile other(FilePath());
    ASSERT_EQ(other.Try("UPDATE People SET File = File"), SQLITE_BUSY);

    data.Settle();

    EXPECT_EQ(other.Try("UPDATE People SET File = File"), SQLITE_OK);
}

TEST_F(DataControlTest, UpdateOfTheCurrentRow_IsShown)
{
    GivenOpened({u"Ann"_s});
    ASSERT_EQ(name.Text.value(), u"Ann");

    data.Records().Edit();
    data.Records().Put(u"Name", u"Anna"_s);
    data.Records().Update();

    EXPECT_EQ(name.Text.value(), u"Anna");
    EXPECT_EQ(label.Caption.value(), u"Anna");
}

TEST_F(DataControlTest, DeletedRow_ShowsNothing)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    ASSERT_EQ(name.Text.value(), u"Ann");

    data.Records().Delete();
    EXPECT_EQ(name.Text.value(), QString());

    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), u"Bob");
}

TEST_F(DataControlTest, TypedText_IsPending_UntilTheRowIsLeft)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});

    name.Text = u"Anna"_s;
    EXPECT_EQ(name.Text.value(), u"Anna");
    EXPECT_EQ(Stored().value(0), u"Ann");

    data.Records().MoveNext();
    EXPECT_EQ(Stored(), QStringList({u"Anna"_s, u"Bob"_s}));
    EXPECT_EQ(name.Text.value(), u"Bob");
}

struct WayToLeave {
    const char* Name;
    void (*Leave)(Recordset& people, const Bookmark& last);
};

void PrintTo(const WayToLeave& way, std::ostream* out)
{
    *out << way.Name;
}

class LeaveRowTest : public DataControlTest, public testing::WithParamInterface<WayToLeave>
{
};

TEST_P(LeaveRowTest, LeavingTheRow_StoresWhatWasTyped)
{
    GivenOpened({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    data.Records().MoveLast();
    const Bookmark last = data.Records().GetBookmark();
    data.Records().MovePrevious();

    name.Text = u"Bobby"_s;
    GetParam().Leave(data.Records(), last);

    EXPECT_EQ(Stored().mid(0, 3), QStringList({u"Ann"_s, u"Bobby"_s, u"Cid"_s}));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, LeaveRowTest,
    testing::Values(WayToLeave{"MoveFirst", [](Recordset& people, const Bookmark&) { people.MoveFirst(); }},
                    WayToLeave{"MoveLast", [](Recordset& people, const Bookmark&) { people.MoveLast(); }},
                    WayToLeave{"MoveNext", [](Recordset& people, const Bookmark&) { people.MoveNext(); }},
                    WayToLeave{"MovePrevious", [](Recordset& people, const Bookmark&) { people.MovePrevious(); }},
                    WayToLeave{"Seek", [](Recordset& people, const Bookmark&) { people.Seek(u"Name", u"nobody"_s); }},
                    WayToLeave{"SetBookmark",
                               [](Recordset& people, const Bookmark& last) { people.SetBookmark(last); }},
                    WayToLeave{"AddNew", [](Recordset& people, const Bookmark&) { people.AddNew(); }},
                    WayToLeave{"Update", [](Recordset& people, const Bookmark&) { people.Update(); }}));

TEST_F(DataControlTest, SearchForTheTextJustTyped_FindsItsRow)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    name.Text = u"Zoe"_s;

    EXPECT_TRUE(data.Records().Seek(u"Name", u"zoe"_s));
    EXPECT_EQ(file.Text.value(), u"A001");
}

TEST_F(DataControlTest, EditByTheProgram_CarriesTheTypedTextAlong)
{
    GivenOpened({u"Ann"_s});
    name.Text = u"Anna"_s;

    data.Records().Edit();
    data.Records().Put(u"File", u"Z001"_s);
    data.Records().Update();

    EXPECT_EQ(name.Text.value(), u"Anna");
    EXPECT_EQ(file.Text.value(), u"Z001");
    EXPECT_EQ(Stored().value(0), u"Anna");
}

TEST_F(DataControlTest, TextTypedBeforeTheProgramPutAnother_GivesWayToIt)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    name.Text = u"typed"_s;
    file.Text = u"A007"_s;
    data.Records().Edit();
    data.Records().Put(u"name", u"put"_s);
    data.Records().Update();
    EXPECT_EQ(name.Text.value(), u"put");
    data.Records().MoveNext();
    data.Records().MoveFirst();
    EXPECT_EQ(name.Text.value(), u"put");
    EXPECT_EQ(file.Text.value(), u"A007") << "what is typed elsewhere goes along";
}

TEST_F(DataControlTest, TextTypedAfterTheProgramPutAnother_TakesItsPlace)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    data.Records().Edit();
    data.Records().Put(u"Name", u"put"_s);
    name.Text = u"typed"_s;
    data.Records().Update();
    EXPECT_EQ(name.Text.value(), u"typed");
}

TEST_F(DataControlTest, UntouchedRow_IsNotWritten)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    const Tree before = home.Snapshot();

    static_cast<void>(name.Text.value());
    Walk(data.Records());
    data.Release();

    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(DataControlTest, Update_WithNothingTyped_IsRefusedAsEver)
{
    GivenOpened({u"Ann"_s});

    EXPECT_EQ(RefusalOf([&] { data.Records().Update(); }), ErrorNumber::UpdateWithoutEdit);
}

TEST_F(DataControlTest, EmptiedBox_StoresAnEmptyText_NotNull)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});

    name.Text = QString();
    data.Records().MoveNext();
    name.Text = u""_s;
    data.Records().MoveNext();

    EXPECT_EQ(Stored(), QStringList({u""_s, u""_s}));
}

TEST_F(DataControlTest, UntouchedNull_StaysNull_WhenAnotherFieldIsTyped)
{
    GivenOpened({std::nullopt});

    file.Text = u"Z001"_s;
    data.Records().MoveNext();

    EXPECT_EQ(Stored(), QStringList(u"-"_s));
}

TEST_F(DataControlTest, Label_NeverWrites)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});

    label.Caption = u"note"_s;
    EXPECT_EQ(label.Caption.value(), u"note");
    EXPECT_EQ(RefusalOf([&] { data.Records().Update(); }), ErrorNumber::UpdateWithoutEdit);
    data.Records().MoveNext();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s}));
    EXPECT_EQ(label.Caption.value(), u"Bob");
}

TEST_F(DataControlTest, TextTypedRightAfterAMove_GoesToTheNewRow)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});

    data.Records().MoveNext();
    name.Text = u"Bobby"_s;
    data.Records().MoveFirst();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bobby"_s}));
}

TEST_F(DataControlTest, Release_StoresWhatWasTyped_AndClosesTheFile)
{
    GivenOpened({u"Ann"_s});
    name.Text = u"Anna"_s;

    data.Release();

    EXPECT_EQ(Stored(), QStringList(u"Anna"_s));
    EXPECT_FALSE(data.IsOpen());
    EXPECT_EQ(RefusalOf([&] { data.Records(); }), ErrorNumber::ObjectNotSet);
    data.Release();
}

TEST_F(DataControlTest, AfterRelease_TheControlsAreTheirOwnAgain)
{
    GivenOpened({u"Ann"_s});
    ASSERT_EQ(name.Text.value(), u"Ann");
    data.Release();
    EXPECT_EQ(name.Text.value(), u"Ann") << "what they showed stays";

    name.Text = u"Anna"_s;
    data.Refresh(databases, files);
    data.Records().MoveNext();

    EXPECT_EQ(name.Text.value(), u"Anna");
    EXPECT_EQ(Stored(), QStringList(u"Ann"_s));
}

// Where nothing could keep what is typed.
class WithoutRowTest : public DataControlTest
{
protected:
    void ExpectLocked(const char* where)
    {
        EXPECT_EQ(name.Text.value(), QString()) << where;
        EXPECT_TRUE(name.Locked) << where;
        EXPECT_TRUE(file.Locked) << where;
        name.Text = u"typed"_s;
        EXPECT_EQ(name.Text.value(), QString()) << where;
    }
    void ExpectFree(const QString& shown)
    {
        EXPECT_EQ(name.Text.value(), shown);
        EXPECT_FALSE(name.Locked) << qUtf8Printable(shown);
    }
};

TEST_F(WithoutRowTest, BeforeTheFirstOpening_BoxesAreLocked)
{
    EXPECT_TRUE(name.Locked);
    EXPECT_TRUE(file.Locked);
}

TEST_F(WithoutRowTest, BoxesTakeNoText_UntilThereIsOneAgain)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    ExpectFree(u"Ann"_s);

    data.Records().MovePrevious();
    ExpectLocked("before the first");
    data.Records().MoveLast();
    ExpectFree(u"Bob"_s);
    data.Records().MoveNext();
    ExpectLocked("behind the last");
    data.Records().MoveLast();
    data.Records().Delete();
    ExpectLocked("on one that is deleted");
    data.Records().MoveFirst();
    ExpectFree(u"Ann"_s);

    EXPECT_EQ(Stored(), QStringList(u"Ann"_s));
}

TEST_F(WithoutRowTest, EmptyTable_LocksTheBoxes_UntilARowIsAdded)
{
    GivenOpened({});
    ExpectLocked("empty");

    data.Records().AddNew();
    data.Records().Put(u"File", u"A001"_s);
    data.Records().Update();
    ExpectLocked("beside the new one");
    data.Records().SetBookmark(data.Records().LastModified());
    ExpectFree(QString());

    name.Text = u"Ann"_s;
    data.Release();
    EXPECT_EQ(Stored(), QStringList(u"Ann"_s));
}

TEST_F(WithoutRowTest, BoxesAreFreeAgain_WhenTheControlLetsGo)
{
    GivenOpened({});
    ExpectLocked("empty");

    data.Release();

    EXPECT_FALSE(name.Locked);
}

class RepointedTest : public DataControlTest
{
protected:
    RepointedTest()
    {
        SqliteFile(home.Path(u"other.db"))
            .Execute("CREATE TABLE People (File TEXT, Name TEXT); INSERT INTO People VALUES ('B001', 'Zoe')");
    }

    int RefusalToPointAt(const QString& database, const QString& table = u"People"_s)
    {
        data.DatabaseName = database;
        data.RecordSource = table;
        return RefusalOf([&] { data.Refresh(databases, files); });
    }
};

TEST_F(RepointedTest, ControlsShowTheOtherTable_AndWhatWasTypedIsInTheFirst)
{
    GivenOpened({u"Ann"_s});
    name.Text = u"Anna"_s;

    EXPECT_EQ(RefusalToPointAt(u"other.db"_s), 0);

    EXPECT_EQ(name.Text.value(), u"Zoe");
    EXPECT_EQ(Stored(), QStringList(u"Anna"_s));
    EXPECT_EQ(SqliteFile(home.Path(u"other.db")).Value("SELECT Name FROM People"), u"Zoe"_s);
    name.Text = u"Zo\u00eb"_s;
    data.Release();
    EXPECT_EQ(SqliteFile(home.Path(u"other.db")).Value("SELECT Name FROM People"), u"Zo\u00eb"_s);
}

TEST_F(RepointedTest, RefusedRefresh_KeepsTheOldRows_AndWhatIsPending)
{
    GivenOpened({u"Ann"_s, u"Bob"_s});
    data.Records().MoveNext();
    name.Text = u"Bobby"_s;
    home.WriteFile(u"garbage.db", QByteArray(5000, 'x'));
    home.MakeReadOnly(u"other.db");

    EXPECT_EQ(RefusalToPointAt(u"missing.db"_s), ErrorNumber::DatabaseNotFound);
    EXPECT_EQ(RefusalToPointAt(u"garbage.db"_s), ErrorNumber::NotADatabase);
    EXPECT_EQ(RefusalToPointAt(u"other.db"_s), ErrorNumber::DatabaseReadOnly);
    EXPECT_EQ(RefusalToPointAt(u"people.db"_s, u"Nobody"_s), ErrorNumber::TableNotFound);

    EXPECT_EQ(file.Text.value(), u"A002");
    EXPECT_EQ(name.Text.value(), u"Bobby");
    data.Records().MoveFirst();
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bobby"_s}));
}

TEST_F(RepointedTest, RefreshOfTheSameTable_ComesBackToTheFirstRow_AndSeesRowsOfOthers)
{
    GivenOpened({u"Ann"_s});
    Recordset other = Open();
    other.AddNew();
    other.Put(u"Name", u"Theirs"_s);
    other.Update();
    EXPECT_EQ(Walk(data.Records()), QStringList(u"Ann"_s));

    data.Refresh(databases, files);

    EXPECT_EQ(name.Text.value(), u"Ann");
    EXPECT_EQ(Walk(data.Records()), QStringList({u"Ann"_s, u"Theirs"_s}));
}

TEST_F(DataControlTest, FieldThatTheTableLacks_IsTold_WhenTheControlIsRead)
{
    TextBox stray(window, u"Text3", {});
    data.Bind(stray, u"Surname"_s);
    GivenOpened({u"Ann"_s});

    EXPECT_EQ(RefusalOf([&] { static_cast<void>(stray.Text.value()); }), ErrorNumber::ItemNotFound);
}

TEST_F(DataControlTest, ControlThatGoesBeforeTheDataControl_IsForgotten)
{
    auto otherWindow = std::make_unique<Container>();
    auto caption = std::make_unique<Label>(*otherWindow, u"Label9", Rectangle{});
    auto box = std::make_unique<TextBox>(*otherWindow, u"Text9", Rectangle{});
    data.Bind(*caption, u"Name"_s);
    data.Bind(*box, u"Name"_s);
    GivenOpened({u"Ann"_s, u"Bob"_s});
    ASSERT_EQ(caption->Caption.value(), u"Ann");
    box->Text = u"typed"_s;

    caption.reset();
    box.reset();

    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), u"Bob");
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s})) << "with the box goes what was typed in it";
}

TEST_F(DataControlTest, ControlThatOutlivesTheDataControl_KeepsItsText)
{
    GivenPeople({u"Ann"_s});
    auto other = std::make_unique<DataControl>(window, u"Data2", Rectangle{}, u"");
    other->DatabaseName = u"people.db"_s;
    other->RecordSource = u"People"_s;
    TextBox box(window, u"Text9", {});
    other->Bind(box, u"Name"_s);
    other->Refresh(databases, files);
    ASSERT_EQ(box.Text.value(), u"Ann");

    other.reset();

    EXPECT_EQ(box.Text.value(), u"Ann");
    box.Text = u"its own"_s;
    EXPECT_EQ(box.Text.value(), u"its own");
}

} // namespace
} // namespace lineforge
