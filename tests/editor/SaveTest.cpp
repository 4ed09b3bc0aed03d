#include "editor/EditorTest.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStatusBar>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr auto ok = QMessageBox::Ok;
constexpr auto yes = QMessageBox::Yes;
constexpr auto no = QMessageBox::No;

using SaveTest = EditorTest;

TEST_F(SaveTest, Typing_MarksTheTitle_AndSavingTakesTheMarkAway)
{
    OpenFile(u"a.txt", "old");
    Type(u"new "_s);
    EXPECT_TRUE(IsModified());
    Choose(u"Save"_s);
    EXPECT_FALSE(IsModified());
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "new old"_ba);
    EXPECT_EQ(Editor.statusBar()->currentMessage(), u"Saved."_s);
}

TEST_F(SaveTest, UndoBackToWhatIsSaved_TakesTheMarkAway)
{
    OpenFile(u"a.txt", "old");
    Type(u"new"_s);
    Choose(u"Undo"_s);
    EXPECT_FALSE(IsModified());
}

class SameFileTest : public EditorTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(SameFileTest, FileSavedUnchanged_IsTheSameByteForByte)
{
    OpenFile(u"a.txt", GetParam());
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), GetParam());
}

TEST_P(SameFileTest, FileTypedInto_KeepsAllTheRest)
{
    OpenFile(u"a.txt", GetParam());
    Area().moveCursor(QTextCursor::End);
    Type(u"!"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), GetParam() + "!");
}

INSTANTIATE_TEST_SUITE_P(Files, SameFileTest,
                         testing::Values(""_ba, "a\r\nb\r\n"_ba, "a\nb\n"_ba, "a\rb\r"_ba, "\xEF\xBB\xBFmark\n"_ba,
                                         "caf\xC3\xA9 \xF0\x9F\x8C\xB3\n"_ba, "caf\xE9 \x80\r\n"_ba,
                                         "no\xC2\xA0"
                                         "break \xE2\x80\xA8 \xE2\x80\xA9 \xEF\xBF\xBC end"_ba,
                                         "form\x0C"
                                         "feed\ttab"_ba));

TEST_F(SaveTest, NewLines_EndLikeTheOthers)
{
    OpenFile(u"unix.txt", "a\nb");
    Type(u"x\n"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"unix.txt"), "x\na\nb"_ba);
}

TEST_F(SaveTest, MixedLineEnds_BecomeTheFirstKind)
{
    OpenFile(u"a.txt", "a\nb\r\nc");
    EXPECT_EQ(Shown(u"LineEnds"_s), u"LF (mixed)"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "a\nb\nc"_ba);
    EXPECT_EQ(Shown(u"LineEnds"_s), u"LF"_s);
}

TEST_F(SaveTest, TextThatDoesNotFitWindows1252_BecomesUtf8_AndThatIsTold)
{
    OpenFile(u"a.txt", "caf\xE9");
    Area().insertPlainText(u"\u4E2D"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "\xE4\xB8\xAD"
                                       "caf\xC3\xA9"_ba);
    EXPECT_EQ(Shown(u"Encoding"_s), u"UTF-8"_s);
    EXPECT_EQ(Editor.statusBar()->currentMessage(),
              u"Saved as UTF-8, because Windows-1252 can't hold all of the text."_s);
}

TEST_F(SaveTest, CharacterOfTheMarkAtTheBeginning_IsKeptBehindAMark)
{
    OpenFile(u"a.txt", "old");
    Area().insertPlainText(u"\uFEFF"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "\xEF\xBB\xBF\xEF\xBB\xBFold"_ba);
    EXPECT_EQ(Shown(u"Encoding"_s), u"UTF-8 with mark"_s);
    EXPECT_EQ(Editor.statusBar()->currentMessage(), u"Saved."_s);
}

TEST_F(SaveTest, ReadOnlyFile_IsTold_AndTextAndFileStay)
{
    const QString path = OpenFile(u"a.txt", "old");
    Home.MakeReadOnly(u"a.txt");
    Type(u"new"_s);
    const NextDialog next(Answering(ok, u"The text couldn't be saved as\n"_s + path + u"\n\nThe file is read-only."_s));
    Choose(u"Save"_s);
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Area().Text(), u"newold"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
}

TEST_F(SaveTest, ReadOnlyDirectory_IsTold_AndTextAndFileStay)
{
    OpenFile(u"kept/a.txt", "old");
    Home.MakeReadOnly(u"kept");
    Type(u"new"_s);
    {
        const NextDialog next(Answering(ok, u"Its directory is read-only."_s));
        Choose(u"Save"_s);
    }
    Home.MakeWritable(u"kept");
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Home.ReadFile(u"kept/a.txt"), "old"_ba);
}

TEST_F(SaveTest, DirectoryThatTookTheName_IsTold_AndTheTextStays)
{
    const QString path = OpenFile(u"a.txt", "old");
    ASSERT_TRUE(QFile::remove(path));
    Home.MakeDirectory(u"a.txt");
    Type(u"new"_s);
    const NextDialog next(Answering(ok, u"A directory has that name."_s));
    Choose(u"Save"_s);
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Area().Text(), u"newold"_s);
}

TEST_F(SaveTest, FileDeletedByAnother_IsMadeAgain)
{
    const QString path = OpenFile(u"a.txt", "old");
    ASSERT_TRUE(QFile::remove(path));
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
}

TEST_F(SaveTest, DirectoryThatIsGone_IsTold)
{
    OpenFile(u"deep/a.txt", "old");
    ASSERT_TRUE(QDir(Home.Path(u"deep")).removeRecursively());
    const NextDialog next(Answering(ok, u"There is no such directory."_s));
    Choose(u"Save"_s);
}

TEST_F(SaveTest, FileChangedByAnother_IsOverwrittenOnlyWhenTheUserSaysYes)
{
    const QString path = OpenFile(u"a.txt", "old");
    Type(u"mine "_s);
    Home.WriteFile(u"a.txt", "theirs");
    {
        const NextDialog next(Answering(no, u"Another program has changed this file since it was opened:\n"_s + path));
        Choose(u"Save"_s);
    }
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "theirs"_ba);
    EXPECT_TRUE(IsModified());
    {
        const NextDialog next(Answering(yes, u"Overwrite those changes?"_s));
        Choose(u"Save"_s);
    }
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "mine old"_ba);
    EXPECT_FALSE(IsModified());
    Type(u"x"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "mine xold"_ba);
}

TEST_F(SaveTest, FileWrittenByAnotherWithTheSameBytes_HasNotChanged)
{
    OpenFile(u"a.txt", "old");
    Home.WriteFile(u"a.txt", "old");
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
}

TEST_F(SaveTest, PermissionsOfTheFile_Stay)
{
    const QString path = OpenFile(u"a.txt", "old");
    const auto permissions = QFile::Permissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    ASSERT_TRUE(QFile::setPermissions(path, permissions));
    Choose(u"Save"_s);
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
    EXPECT_EQ(QFile::permissions(path) & all, permissions);
}
} // namespace

} // namespace lineforge
