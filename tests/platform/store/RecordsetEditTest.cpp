#include "platform/base/RuntimeError.h"
#include "platform/store/PeopleTable.h"
#include "platform/store/Recordset.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class RecordsetEditTest : public PeopleTable
{
protected:
    RecordsetEditTest() { GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s}); }
};

TEST_F(RecordsetEditTest, UpdatedField_IsStored_AndTheOthersStay)
{
    Recordset people = Open();
    people.MoveNext();

    people.Edit();
    people.Put(u"NAME", u"Robert \u00c9"_s);
    people.Update();

    EXPECT_EQ(people.Text(u"Name"), u"Robert \u00c9");
    EXPECT_EQ(people.Text(u"File"), u"A002");
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Robert \u00c9"_s, u"Cid"_s}));
    EXPECT_EQ(people.LastModified(), people.GetBookmark());
}

TEST_F(RecordsetEditTest, ValuePut_IsReadBeforeItIsStored)
{
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"Anna"_s);

    EXPECT_EQ(people.Text(u"Name"), u"Anna");
    EXPECT_TRUE(people.FieldIs(u"Name", u"anna"_s));
    EXPECT_EQ(people.Text(u"File"), u"A001");
    EXPECT_EQ(Stored().value(0), u"Ann");
}

TEST_F(RecordsetEditTest, EmptyText_IsStoredAsText_AndNothingAsNull)
{
    Recordset people = Open();
    for (const QString& empty : {u""_s, QString()}) {
        people.Edit();
        people.Put(u"Name", empty);
        people.Update();
        EXPECT_EQ(people.Value(u"Name"), FieldValue(u""_s));
        EXPECT_EQ(Stored().value(0), u"");
    }

    people.Edit();
    people.Put(u"Name", {});
    people.Update();
    EXPECT_EQ(people.Value(u"Name"), FieldValue());
    EXPECT_EQ(Stored().value(0), u"-");
}

TEST_F(RecordsetEditTest, TextWithQuotes_IsStoredAsItStands)
{
    Recordset people = Open();
    const QString text = u"O'Neil \"the\" ; DROP TABLE People; --\r\n\t\U0001F600"_s;
    people.Edit();
    people.Put(u"Name", text);
    people.Update();

    EXPECT_EQ(people.Text(u"Name"), text);
    EXPECT_EQ(Stored().value(0), text);
}

// The engine's encoding has a mark of the same bytes.
TEST_F(RecordsetEditTest, TextThatBeginsWithAByteOrderMark_IsReadAsItWasStored)
{
    Recordset people = Open();
    for (const QString& text : {u"\uFEFF"_s, u"\uFEFFAnne"_s, u"\uFEFF\uFEFFAnne"_s}) {
        people.Edit();
        people.Put(u"Name", text);
        people.Update();
        people.MoveNext();
        people.MoveFirst();
        EXPECT_EQ(people.Text(u"Name"), text);
        EXPECT_TRUE(people.Seek(u"Name", text));
    }
    EXPECT_FALSE(people.Seek(u"Name", u"Anne"_s));
}

TEST_F(RecordsetEditTest, WithoutEdit_NothingCanBePutOrUpdated)
{
    Recordset people = Open();

    EXPECT_EQ(RefusalOf([&] { people.Put(u"Name", u"x"_s); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::UpdateWithoutEdit);
    people.Edit();
    people.Update();
    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::UpdateWithoutEdit) << "an update ends the edit";
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
}

TEST_F(RecordsetEditTest, UnknownField_CannotBePut)
{
    Recordset people = Open();
    people.Edit();

    EXPECT_EQ(RefusalOf([&] { people.Put(u"Surname", u"x"_s); }), ErrorNumber::ItemNotFound);
    people.Put(u"Name", u"Anna"_s);
    people.Update();
    EXPECT_EQ(Stored().value(0), u"Anna");
}

TEST_F(RecordsetEditTest, EditLeftByAMove_IsForgotten)
{
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"x"_s);

    people.MoveNext();

    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(Stored().value(0), u"Ann");
}

TEST_F(RecordsetEditTest, EditBegunAgain_ForgetsWhatWasPut)
{
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"x"_s);
    people.Edit();
    people.Put(u"File", u"Z001"_s);
    people.Update();

    EXPECT_EQ(Stored().value(0), u"Ann");
    EXPECT_EQ(people.Text(u"File"), u"Z001");
}

TEST_F(RecordsetEditTest, EditWithoutChange_IsAnUpdateAllTheSame)
{
    Recordset people = Open();
    people.MoveNext();
    const Bookmark here = people.GetBookmark();

    people.Edit();
    people.Update();

    EXPECT_EQ(people.LastModified(), here);
    EXPECT_EQ(people.GetBookmark(), here);
}

TEST_F(RecordsetEditTest, UpdateOfARowDeletedMeanwhile_IsRecordDeleted)
{
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"x"_s);
    Recordset other = Open();
    other.Delete();

    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(Stored(), QStringList({u"Bob"_s, u"Cid"_s}));
}

TEST_F(RecordsetEditTest, AppendedRow_IsLastModified_ButNotCurrent)
{
    Recordset people = Open();
    people.MoveNext();

    people.AddNew();
    people.Put(u"Name", u"Dora"_s);
    people.Update();

    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    people.SetBookmark(people.LastModified());
    EXPECT_EQ(people.Text(u"Name"), u"Dora");
    EXPECT_EQ(people.Value(u"File"), FieldValue());
    people.MoveNext();
    EXPECT_TRUE(people.Eof()) << "it stands behind all others";
    EXPECT_EQ(Walk(people), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(RecordsetEditTest, RowBeingAdded_ReadsWhatWasPut_AndNullElsewhere)
{
    Recordset people = Open();
    people.AddNew();
    people.Put(u"Name", u"Dora"_s);

    EXPECT_EQ(people.Text(u"Name"), u"Dora");
    EXPECT_EQ(people.Value(u"File"), FieldValue());
    EXPECT_FALSE(people.FieldIs(u"File", u"A001"_s));
}

TEST_F(RecordsetEditTest, AdditionLeftByAMove_IsForgotten)
{
    Recordset people = Open();
    people.AddNew();
    people.Put(u"Name", u"Dora"_s);

    people.MoveFirst();

    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(Stored().size(), 3);
}

TEST_F(RecordsetEditTest, RowAddedDuringAWalk_IsComeToAtItsEnd)
{
    Recordset people = Open();
    people.MoveLast();
    people.AddNew();
    people.Put(u"Name", u"Dora"_s);
    people.Update();

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Dora");
}

TEST_F(RecordsetEditTest, RowAddedAtEof_LeavesTheCursorThere)
{
    Recordset people = Open();
    Walk(people);

    people.AddNew();
    people.Put(u"Name", u"Dora"_s);
    people.Update();

    EXPECT_TRUE(people.Eof());
    people.SetBookmark(people.LastModified());
    EXPECT_EQ(people.Text(u"Name"), u"Dora");
}

TEST_F(RecordsetEditTest, FirstRowOfAnEmptyTable_CanBeAdded_AndReached)
{
    SqliteFile(FilePath()).Execute("DELETE FROM People");
    Recordset people = Open();
    ASSERT_TRUE(people.IsEmpty());

    people.AddNew();
    people.Put(u"Name", u"Eve"_s);
    people.Update();
    people.SetBookmark(people.LastModified());

    EXPECT_EQ(people.Text(u"Name"), u"Eve");
    EXPECT_FALSE(people.IsEmpty());
    EXPECT_EQ(Walk(people), QStringList(u"Eve"_s));
}

TEST_F(RecordsetEditTest, RowAddedWithoutAnyField_IsAllNull)
{
    Recordset people = Open();
    people.AddNew();
    people.Update();

    people.MoveLast();
    EXPECT_EQ(people.Value(u"File"), FieldValue());
    EXPECT_EQ(people.Value(u"Name"), FieldValue());
    EXPECT_EQ(Stored().size(), 4);
}

TEST_F(RecordsetEditTest, DeletedRow_CannotBeRead_UntilAMove)
{
    Recordset people = Open();
    people.MoveNext();
    people.Delete();

    EXPECT_FALSE(people.HasRow());
    EXPECT_FALSE(people.Eof());
    EXPECT_FALSE(people.Bof());
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { people.FieldIs(u"Name", u"Bob"_s); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { people.Edit(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { people.Delete(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { people.GetBookmark(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s}));

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetEditTest, DeletedRow_IsLeftBackwardsToo)
{
    Recordset people = Open();
    people.MoveNext();
    people.Delete();

    people.MovePrevious();
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(RecordsetEditTest, DeletingInAWalk_ComesToEveryRow)
{
    Recordset people = Open();
    QStringList deleted;
    for (people.MoveFirst(); !people.Eof(); people.MoveNext()) {
        deleted.push_back(people.Text(u"Name"));
        people.Delete();
    }

    EXPECT_EQ(deleted, QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
    EXPECT_TRUE(people.IsEmpty());
    EXPECT_EQ(Stored(), QStringList());
}

TEST_F(RecordsetEditTest, DeletingTheLastRow_MovesOnToEof)
{
    Recordset people = Open();
    people.MoveLast();
    people.Delete();
    people.MoveNext();

    EXPECT_TRUE(people.Eof());
    EXPECT_FALSE(people.Bof());
}

TEST_F(RecordsetEditTest, BookmarkOfADeletedRow_LeadsToARowThatIsGone)
{
    Recordset people = Open();
    const Bookmark ann = people.GetBookmark();
    people.Delete();
    people.MoveLast();

    people.SetBookmark(ann);

    EXPECT_FALSE(people.HasRow());
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Bob");
}

TEST_F(RecordsetEditTest, RowAddedAfterADeletion_IsAnotherThanTheDeleted)
{
    Recordset people = Open();
    people.MoveLast();
    const Bookmark cid = people.GetBookmark();
    people.Delete();

    people.AddNew();
    people.Put(u"Name", u"Dora"_s);
    people.Update();

    EXPECT_NE(people.LastModified(), cid);
    people.SetBookmark(cid);
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(Walk(people), QStringList({u"Ann"_s, u"Bob"_s, u"Dora"_s}));
}

TEST_F(RecordsetEditTest, EveryUpdate_IsInTheFileAtOnce)
{
    Recordset people = Open();
    for (people.MoveFirst(); !people.Eof(); people.MoveNext()) {
        people.Edit();
        people.Put(u"Name", people.Text(u"Name").toUpper());
        people.Update();
    }

    EXPECT_EQ(Stored(), QStringList({u"ANN"_s, u"BOB"_s, u"CID"_s}));
    EXPECT_EQ(home.Snapshot().keys(), QStringList(u"people.db"_s)) << "one file, no journal beside it";
}

} // namespace
} // namespace lineforge
