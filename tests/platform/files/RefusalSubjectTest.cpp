#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/drawing/PictureFile.h"
#include "platform/drawing/Thumbnails.h"
#include "platform/files/SequentialFile.h"
#include "platform/files/TextFile.h"
#include "platform/store/PeopleTable.h"

#include <functional>
#include <ostream>
#include <tuple>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// What the action is refused for; no text when it isn't refused.
template <class Action>
QString SubjectOf(Action&& action)
{
    try {
        std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        return error.Subject;
    }
    return u"not refused"_s;
}

struct DiskRefusal {
    const char* Name;
    std::function<void(FileSystem&)> Action;
    QStringView Subject; // in the home directory
};

void PrintTo(const DiskRefusal& refusal, std::ostream* out)
{
    *out << refusal.Name;
}

class DiskRefusalTest : public testing::TestWithParam<DiskRefusal>
{
};

TEST_P(DiskRefusalTest, TellsTheFileOrDirectory_AsItStandsOnDisk)
{
    TemporaryHome home;
    FileSystem files{home.Path()};
    home.WriteFile(u"Full.txt", "text");
    home.WriteFile(u"Locked.txt", "text");
    home.WriteFile(u"Sub/inside.txt", "text");
    home.MakeReadOnly(u"Locked.txt");

    EXPECT_EQ(SubjectOf([&] { GetParam().Action(files); }), home.Path(GetParam().Subject));
}

INSTANTIATE_TEST_SUITE_P(
    Actions, DiskRefusalTest,
    testing::Values(
        DiskRefusal{"CopyOfNothing", [](FileSystem& f) { f.FileCopy(u"no.txt"_s, u"to.txt"_s); }, u"no.txt"},
        DiskRefusal{"CopyOntoItself", [](FileSystem& f) { f.FileCopy(u"full.txt"_s, u"FULL.txt"_s); }, u"Full.txt"},
        DiskRefusal{"CopyOntoReadOnly", [](FileSystem& f) { f.FileCopy(u"full.txt"_s, u"locked.txt"_s); },
                    u"Locked.txt"},
        DiskRefusal{"CopyToNoDirectory", [](FileSystem& f) { f.FileCopy(u"full.txt"_s, u"no/to.txt"_s); }, u"no"},
        DiskRefusal{"KillOfNothing", [](FileSystem& f) { f.Kill(u"no.txt"_s); }, u"no.txt"},
        DiskRefusal{"KillOfReadOnly", [](FileSystem& f) { f.Kill(u"locked.txt"_s); }, u"Locked.txt"},
        DiskRefusal{"RenameOfNothing", [](FileSystem& f) { f.Rename(u"no.txt"_s, u"to.txt"_s); }, u"no.txt"},
        DiskRefusal{"RenameToTaken", [](FileSystem& f) { f.Rename(u"full.txt"_s, u"locked.txt"_s); }, u"Locked.txt"},
        DiskRefusal{"MkDirOfTaken", [](FileSystem& f) { f.MkDir(u"sub"_s); }, u"Sub"},
        DiskRefusal{"MkDirInNothing", [](FileSystem& f) { f.MkDir(u"no/sub"_s); }, u"no"},
        DiskRefusal{"RmDirOfNothing", [](FileSystem& f) { f.RmDir(u"no"_s); }, u"no"},
        DiskRefusal{"RmDirOfFull", [](FileSystem& f) { f.RmDir(u"sub"_s); }, u"Sub"},
        DiskRefusal{"ChDirToNothing", [](FileSystem& f) { f.ChDir(u"no"_s); }, u"no"},
        DiskRefusal{"AttributesOfNothing", [](FileSystem& f) { f.GetAttr(u"no.txt"_s); }, u"no.txt"},
        DiskRefusal{"ReplaceReadOnly", [](FileSystem& f) { f.Replace(u"locked.txt"_s, "new"); }, u"Locked.txt"},
        DiskRefusal{"ReadOfNothing", [](FileSystem& f) { f.Read(u"no.txt"_s); }, u"no.txt"},
        DiskRefusal{"WritingAsItGoes", [](FileSystem& f) { SequentialFile(f, u"locked.txt"_s); }, u"Locked.txt"},
        DiskRefusal{"PictureOfNothing", [](FileSystem& f) { LoadPicture(f, u"no.jpg"_s); }, u"no.jpg"},
        DiskRefusal{"NoPicture", [](FileSystem& f) { LoadPicture(f, u"full.txt"_s); }, u"Full.txt"},
        DiskRefusal{"KeptPictureOfNothing", [](FileSystem& f) { PictureCache().Load(f, u"no.jpg"_s); }, u"no.jpg"},
        DiskRefusal{"TileOfNothing",
                    [](FileSystem& f) {
                        Thumbnails().Load(f, u"no.jpg"_s, {9, 9}, {});
                    },
                    u"no.jpg"},
        DiskRefusal{"TileOfNoPicture",
                    [](FileSystem& f) {
                        Thumbnails().Load(f, u"full.txt"_s, {9, 9}, {});
                    },
                    u"Full.txt"},
        DiskRefusal{"NoDatabase", [](FileSystem& f) { std::ignore = Databases().Open(f, u"no.db"_s); }, u"no.db"},
        DiskRefusal{"ReadOnlyDatabase", [](FileSystem& f) { std::ignore = Databases().Open(f, u"locked.txt"_s); },
                    u"Locked.txt"},
        DiskRefusal{"WrongDatabase", [](FileSystem& f) { std::ignore = Databases().Open(f, u"full.txt"_s); },
                    u"Full.txt"},
        DiskRefusal{"EndOfText",
                    [](FileSystem& f) {
                        TextReader reader(f, u"full.txt"_s);
                        while (true)
                            reader.Next();
                    },
                    u"Full.txt"}),
    [](const auto& refusal) { return refusal.param.Name; });

TEST(ValueRefusal, TellsTheValue)
{
    EXPECT_EQ(SubjectOf([] { ToLong(u" 12x"); }), u"' 12x'"_s);
    EXPECT_EQ(SubjectOf([] { ToInteger(u"40000"); }), u"'40000'"_s);
    EXPECT_EQ(SubjectOf([] { ToNumber(u"1e999"); }), u"'1e999'"_s);
    EXPECT_EQ(SubjectOf([] {
                  Integer16 number{32767};
                  number += 1;
              }),
              u"32768"_s);
    EXPECT_EQ(SubjectOf([] { FixedArray<int, 1, 9>()[10] = 0; }), u"10"_s);
}

TEST(ValueRefusal, OfATextThatMayBeAnything_TellsItsBeginning)
{
    EXPECT_EQ(SubjectOf([] { ToLong(u""); }), u"''"_s);
    EXPECT_EQ(SubjectOf([] { ToLong(u"a\0\n\u0007b"_s); }), u"'ab'"_s);
    EXPECT_EQ(SubjectOf([] { ToLong(QString(40, u'x')); }), u"'%1'"_s.arg(QString(40, u'x')));
    EXPECT_EQ(SubjectOf([] { ToLong(QString(1'000'000, u'x')); }), u"'%1' ..."_s.arg(QString(40, u'x')));
}

TEST(Concerned, WorkThatIsRefused_TellsWhatItBelongsTo_AfterWhatItKnowsItself)
{
    EXPECT_EQ(SubjectOf([] { Concerning(u"a.txt"_s, [] { ToLong(u"x"); }); }), u"'x'\na.txt"_s);
    EXPECT_EQ(SubjectOf([] { Concerning(u"a.txt"_s, [] { throw RuntimeError(ErrorNumber::Overflow); }); }), u"a.txt"_s);
    EXPECT_EQ(Concerning(u"a.txt"_s, [] { return ToLong(u"7"); }), 7);
}

using RecordRefusalTest = PeopleTable;

TEST_F(RecordRefusalTest, Writing_TellsTheDatabase_AndTheRecordByItsFirstField)
{
    GivenPeople({u"John"_s, u"Mary"_s});
    SqliteFile(FilePath())
        .Execute("CREATE TRIGGER NoUpdate BEFORE UPDATE ON People BEGIN SELECT RAISE(ABORT, ''); END;"
                 "CREATE TRIGGER NoInsert BEFORE INSERT ON People BEGIN SELECT RAISE(ABORT, ''); END;"
                 "CREATE TRIGGER NoDelete BEFORE DELETE ON People BEGIN SELECT RAISE(ABORT, ''); END");
    Recordset people = Open();
    people.MoveNext();
    people.Edit();
    people.Put(u"Name", u"Anne"_s);

    EXPECT_EQ(SubjectOf([&] { people.Update(); }), FilePath() + u"\nRecord A002");
    EXPECT_EQ(SubjectOf([&] { people.Delete(); }), FilePath() + u"\nRecord A002");
    people.AddNew();
    people.Put(u"File", u"A003"_s);
    EXPECT_EQ(SubjectOf([&] { people.Update(); }), FilePath() + u"\nRecord A003");
    people.AddNew();
    people.Put(u"Name", u"Nobody"_s);
    EXPECT_EQ(SubjectOf([&] { people.Update(); }), FilePath() + u"\nA record");
}

TEST_F(RecordRefusalTest, Reading_TellsTheDatabase_AndTheField)
{
    Recordset people = Open();

    EXPECT_EQ(SubjectOf([&] { people.MoveNext(); }), FilePath());
    EXPECT_EQ(SubjectOf([&] { people.Edit(); }), FilePath());
    EXPECT_EQ(SubjectOf([&] { people.Value(u"Nation"); }), u"Nation\n"_s + FilePath());
}

} // namespace
} // namespace lineforge
