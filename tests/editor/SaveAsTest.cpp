#include "editor/EditorTest.h"

#include <QFileDialog>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr auto ok = QMessageBox::Ok;
constexpr auto yes = QMessageBox::Yes;
constexpr auto no = QMessageBox::No;

struct SaveAsTest : EditorTest {
    // Saves under a name; the box that comes then is met.
    void SaveAsAndMeet(QStringView name, const std::function<void(QDialog&)>& meet)
    {
        std::unique_ptr<NextDialog> second;
        const NextDialog first([&](QDialog& dialog) {
            second = std::make_unique<NextDialog>(meet);
            Naming(Home.Path(name))(dialog);
        });
        Choose(u"SaveAs"_s);
    }
    void SaveAs(QStringView name)
    {
        const NextDialog next(Naming(Home.Path(name)));
        Choose(u"SaveAs"_s);
    }
};

TEST_F(SaveAsTest, NewText_IsSavedWithCrLfUnderTheNameGiven)
{
    Type(u"a\nb"_s);
    Area().insertPlainText(u"\u00E9"_s);
    const NextDialog next(Naming(Home.Path(u"my notes.txt")));
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"my notes.txt"), "a\r\nb\xC3\xA9"_ba);
    EXPECT_EQ(Editor.windowTitle(), u"my notes.txt[*] - Lineforge Editor"_s);
    EXPECT_FALSE(IsModified());
}

TEST_F(SaveAsTest, NameOfANewTextWithoutEnding_GetsOne)
{
    Type(u"a"_s);
    SaveAs(u"notes");
    EXPECT_EQ(Home.ReadFile(u"notes.txt"), "a"_ba);
}

TEST_F(SaveAsTest, OtherName_LeavesTheFirstFile_AndIsTheFileFromNowOn)
{
    OpenFile(u"a.txt", "old\n");
    Type(u"new"_s);
    SaveAs(u"b.txt");
    Type(u"!"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old\n"_ba);
    EXPECT_EQ(Home.ReadFile(u"b.txt"), "new!old\n"_ba);
    EXPECT_EQ(Editor.windowTitle(), u"b.txt[*] - Lineforge Editor"_s);
}

TEST_F(SaveAsTest, PresentNameAndDirectory_AreProposed)
{
    const QString path = OpenFile(u"a.txt", "old");
    const NextDialog next([&path](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).selectedFiles(), QStringList(path));
        dialog.reject();
    });
    Choose(u"SaveAs"_s);
}

TEST_F(SaveAsTest, Cancelled_ChangesNothing)
{
    Type(u"typed"_s);
    const Tree before = Home.Snapshot();
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    Choose(u"SaveAs"_s);
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(SaveAsTest, StandingFile_StaysWhenTheUserSaysNo)
{
    Home.WriteFile(u"b.txt", "precious");
    Type(u"typed"_s);
    SaveAsAndMeet(u"b.txt", Answering(no, u"This file exists already:\n"_s + Home.Path(u"b.txt")));
    EXPECT_EQ(Home.ReadFile(u"b.txt"), "precious"_ba);
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Editor.windowTitle(), u"Untitled[*] - Lineforge Editor"_s);
}

TEST_F(SaveAsTest, StandingFile_IsReplacedWhenTheUserSaysYes)
{
    Home.WriteFile(u"b.txt", "precious");
    Type(u"typed"_s);
    SaveAsAndMeet(u"b.txt", Answering(yes, u"Replace it?"_s));
    EXPECT_EQ(Home.ReadFile(u"b.txt"), "typed"_ba);
}

TEST_F(SaveAsTest, StandingFileInOtherCase_IsAskedForToo)
{
    Home.WriteFile(u"B.TXT", "precious");
    Type(u"typed"_s);
    SaveAsAndMeet(u"b.txt", Answering(no, Home.Path(u"B.TXT")));
    EXPECT_EQ(Home.ReadFile(u"B.TXT"), "precious"_ba);
    EXPECT_FALSE(Home.Exists(u"b.txt"));
}

TEST_F(SaveAsTest, PathBelowAFile_IsTold_AndTheTextKeepsItsFile)
{
    OpenFile(u"a.txt", "old");
    Home.WriteFile(u"file", "x");
    Type(u"new"_s);
    SaveAsAndMeet(u"file/b.txt", Answering(ok, u"There is no such directory."_s));
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Editor.windowTitle(), u"a.txt[*] - Lineforge Editor"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
}

TEST_F(SaveAsTest, EncodingAndLineEnds_GoAlong)
{
    OpenFile(u"a.txt", "caf\xE9\n");
    SaveAs(u"b.txt");
    EXPECT_EQ(Home.ReadFile(u"b.txt"), "caf\xE9\n"_ba);
}
} // namespace

} // namespace lineforge
