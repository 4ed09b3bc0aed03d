#include "editor/EditorTest.h"

#include <QDir>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr auto save = QMessageBox::Save;
constexpr auto discard = QMessageBox::Discard;
constexpr auto cancel = QMessageBox::Cancel;

// What leaves a text: closing, a new one, opening another.
struct LeaveTest : EditorTest {
    void SetUp() override
    {
        OpenFile(u"a.txt", "old");
        Type(u"new"_s);
    }
    const QString question_ = u"The text of a.txt has been changed."_s;
};

TEST_F(LeaveTest, UnchangedText_IsLeftWithoutAsking)
{
    Choose(u"Save"_s);
    Choose(u"New"_s);
    EXPECT_EQ(Editor.windowTitle(), u"Untitled[*] - Lineforge Editor"_s);
    EXPECT_TRUE(Editor.close());
    EXPECT_FALSE(Editor.isVisible());
}

TEST_F(LeaveTest, Close_Saved_WritesAndCloses)
{
    const NextDialog next(Answering(save, question_));
    EXPECT_TRUE(Editor.close());
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
}

TEST_F(LeaveTest, Close_Discarded_ClosesAndWritesNothing)
{
    const NextDialog next(Answering(discard, question_));
    EXPECT_TRUE(Editor.close());
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
}

TEST_F(LeaveTest, Close_Cancelled_StaysAsItIs)
{
    const NextDialog next(Answering(cancel, question_));
    EXPECT_FALSE(Editor.close());
    EXPECT_TRUE(Editor.isVisible());
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Area().Text(), u"newold"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
}

TEST_F(LeaveTest, Close_EscapedIsCancelled_AndEnterSaves)
{
    {
        const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
        EXPECT_FALSE(Editor.close());
    }
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Return); });
    EXPECT_TRUE(Editor.close());
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
}

TEST_F(LeaveTest, Exit_AsksLikeClosing)
{
    const NextDialog next(Answering(cancel, question_));
    Choose(u"Exit"_s);
    EXPECT_TRUE(Editor.isVisible());
}

TEST_F(LeaveTest, CloseWhenTheSavingFails_KeepsTheWindowAndTheText)
{
    ASSERT_TRUE(QDir(Home.Path()).remove(u"a.txt"_s));
    Home.MakeDirectory(u"a.txt");
    std::unique_ptr<NextDialog> second;
    const NextDialog first([&](QDialog& dialog) {
        second = std::make_unique<NextDialog>(Answering(QMessageBox::Ok, u"A directory has that name."_s));
        Press(AsMessageBox(dialog), save);
    });
    EXPECT_FALSE(Editor.close());
    EXPECT_TRUE(Editor.isVisible());
    EXPECT_TRUE(IsModified());
    EXPECT_EQ(Area().Text(), u"newold"_s);
}

TEST_F(LeaveTest, New_Saved_WritesAndIsEmpty)
{
    const NextDialog next(Answering(save, question_));
    Choose(u"New"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
    EXPECT_EQ(Area().Text(), QString());
    EXPECT_EQ(Editor.windowTitle(), u"Untitled[*] - Lineforge Editor"_s);
    EXPECT_EQ(Shown(u"LineEnds"_s), u"CR LF"_s);
}

TEST_F(LeaveTest, New_Discarded_IsEmpty)
{
    const NextDialog next(Answering(discard, question_));
    Choose(u"New"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
    EXPECT_EQ(Area().Text(), QString());
    EXPECT_FALSE(IsModified());
}

TEST_F(LeaveTest, New_Cancelled_StaysAsItIs)
{
    const NextDialog next(Answering(cancel, question_));
    Choose(u"New"_s);
    EXPECT_EQ(Area().Text(), u"newold"_s);
    EXPECT_TRUE(IsModified());
}

struct LeaveByOpenTest : LeaveTest {
    void OpenAfter(QMessageBox::StandardButton button)
    {
        const QString other = Home.WriteFile(u"b.txt", "other");
        std::unique_ptr<NextDialog> second;
        const NextDialog first([&](QDialog& dialog) {
            if (button != cancel)
                second = std::make_unique<NextDialog>(Naming(other));
            Answering(button, question_)(dialog);
        });
        Choose(u"Open"_s);
    }
};

TEST_F(LeaveByOpenTest, Open_Saved_WritesAndOpens)
{
    OpenAfter(save);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
    EXPECT_EQ(Area().Text(), u"other"_s);
}

TEST_F(LeaveByOpenTest, Open_Discarded_OpensAndWritesNothing)
{
    OpenAfter(discard);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "old"_ba);
    EXPECT_EQ(Area().Text(), u"other"_s);
}

TEST_F(LeaveByOpenTest, Open_Cancelled_StaysAsItIs)
{
    OpenAfter(cancel);
    EXPECT_EQ(Area().Text(), u"newold"_s);
    EXPECT_TRUE(IsModified());
}

TEST_F(EditorTest, CloseOfAnUntitledText_WhoseNamingIsCancelled_StaysOpen)
{
    Type(u"typed"_s);
    std::unique_ptr<NextDialog> second;
    const NextDialog first([&](QDialog& dialog) {
        second = std::make_unique<NextDialog>([](QDialog& naming) { PressKey(naming, Qt::Key_Escape); });
        Answering(save, u"The text of Untitled has been changed."_s)(dialog);
    });
    EXPECT_FALSE(Editor.close());
    EXPECT_EQ(Area().Text(), u"typed"_s);
}
} // namespace

} // namespace lineforge
