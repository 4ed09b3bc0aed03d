#include "editor/EditorTest.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct EditTest : EditorTest {
    bool IsOffered(const QString& command) { return Find<QAction>(command).isEnabled(); }
    void GoTo(int line)
    {
        const NextDialog next([line](QDialog& dialog) {
            dynamic_cast<QInputDialog&>(dialog).setIntValue(line);
            dialog.accept();
        });
        Choose(u"GoToLine"_s);
    }
};

TEST_F(EditTest, UndoAndRedo_GoBackAndForth)
{
    EXPECT_FALSE(IsOffered(u"Undo"_s));
    Type(u"a"_s);
    EXPECT_TRUE(IsOffered(u"Undo"_s));
    EXPECT_FALSE(IsOffered(u"Redo"_s));
    Choose(u"Undo"_s);
    EXPECT_EQ(Area().Text(), QString());
    EXPECT_TRUE(IsOffered(u"Redo"_s));
    Choose(u"Redo"_s);
    EXPECT_EQ(Area().Text(), u"a"_s);
}

TEST_F(EditTest, CutCopyPasteDelete_WorkOnWhatIsMarked)
{
    Area().SetText(u"one"_s);
    for (const QString& command : {u"Cut"_s, u"Copy"_s, u"Delete"_s})
        EXPECT_FALSE(IsOffered(command));
    Choose(u"SelectAll"_s);
    for (const QString& command : {u"Cut"_s, u"Copy"_s, u"Delete"_s})
        EXPECT_TRUE(IsOffered(command));

    Choose(u"Copy"_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"one"_s);
    Choose(u"Delete"_s);
    EXPECT_EQ(Area().Text(), QString());
    Choose(u"Paste"_s);
    Choose(u"Paste"_s);
    EXPECT_EQ(Area().Text(), u"oneone"_s);
    Choose(u"SelectAll"_s);
    Choose(u"Cut"_s);
    EXPECT_EQ(Area().Text(), QString());
    EXPECT_EQ(QApplication::clipboard()->text(), u"oneone"_s);
}

TEST_F(EditTest, Position_FollowsTheCaret)
{
    Type(u"one\ntw"_s);
    EXPECT_EQ(Shown(u"Position"_s), u"Line 2, Column 3"_s);
    Area().moveCursor(QTextCursor::Start);
    EXPECT_EQ(Shown(u"Position"_s), u"Line 1, Column 1"_s);
}

TEST_F(EditTest, GoToLine_PutsTheCaretAtItsBeginning)
{
    Area().SetText(u"one\ntwo\nthree"_s);
    GoTo(3);
    EXPECT_EQ(Shown(u"Position"_s), u"Line 3, Column 1"_s);
}

TEST_F(EditTest, GoToLine_KnowsTheLastLine)
{
    Area().SetText(u"one\ntwo"_s);
    GoTo(99);
    EXPECT_EQ(Shown(u"Position"_s), u"Line 2, Column 1"_s);
}

TEST_F(EditTest, GoToLine_Cancelled_Stays)
{
    Area().SetText(u"one\ntwo"_s);
    const NextDialog next([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setIntValue(2);
        PressKey(dialog, Qt::Key_Escape);
    });
    Choose(u"GoToLine"_s);
    EXPECT_EQ(Shown(u"Position"_s), u"Line 1, Column 1"_s);
}

TEST_F(EditTest, TimeAndDate_AreWrittenInWords)
{
    Area().SetText(u"x"_s);
    Choose(u"SelectAll"_s);
    Choose(u"TimeDate"_s);
    static const QRegularExpression form(
        uR"(^\d\d:\d\d \d{1,2} (January|February|March|April|May|June|July|August|September|October|November|December) \d{4}$)"_s);
    EXPECT_TRUE(form.match(Area().Text()).hasMatch()) << qUtf8Printable(Area().Text());
}

TEST_F(EditTest, UsualKeys_StandInTheMenus)
{
    const QList<std::pair<QString, QString>> keys{{u"New"_s, u"Ctrl+N"_s},       {u"Open"_s, u"Ctrl+O"_s},
                                                  {u"Save"_s, u"Ctrl+S"_s},      {u"SaveAs"_s, u"Ctrl+Shift+S"_s},
                                                  {u"Print"_s, u"Ctrl+P"_s},     {u"Exit"_s, u"Ctrl+Q"_s},
                                                  {u"Undo"_s, u"Ctrl+Z"_s},      {u"Cut"_s, u"Ctrl+X"_s},
                                                  {u"Copy"_s, u"Ctrl+C"_s},      {u"Paste"_s, u"Ctrl+V"_s},
                                                  {u"Delete"_s, u"Del"_s},       {u"Find"_s, u"Ctrl+F"_s},
                                                  {u"FindNext"_s, u"F3"_s},      {u"Replace"_s, u"Ctrl+H"_s},
                                                  {u"GoToLine"_s, u"Ctrl+G"_s},  {u"FindPrevious"_s, u"Shift+F3"_s},
                                                  {u"SelectAll"_s, u"Ctrl+A"_s}, {u"TimeDate"_s, u"F5"_s}};
    for (const auto& [command, key] : keys)
        EXPECT_EQ(Find<QAction>(command).shortcut().toString(QKeySequence::PortableText), key);
}

TEST_F(EditTest, Keys_ReachTheirCommandsFromTheText)
{
    OpenFile(u"a.txt", "one two one");
    QTest::keyClick(&Area(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(Find<QLineEdit>(u"Replacement"_s).isVisible());
    Find<QLineEdit>(u"Sought"_s).setText(u"one"_s);
    QTest::keyClick(&Area(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Area().textCursor().selectionStart(), 8);
    QTest::keyClick(&Area(), Qt::Key_F3);
    EXPECT_EQ(Area().textCursor().selectionStart(), 0);
    QTest::keyClick(&Area(), Qt::Key_Delete);
    EXPECT_EQ(Area().Text(), u" two one"_s);
    QTest::keyClick(&Area(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), " two one"_ba);
    QTest::keyClick(&Area(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Area().Text(), u"one two one"_s);
    EXPECT_TRUE(IsModified());
}

TEST_F(EditTest, NoTwoCommands_ShareAKey)
{
    QStringList keys;
    for (const QAction* command : Editor.findChildren<QAction*>())
        if (!command->shortcut().isEmpty())
            keys += command->shortcut().toString();
    EXPECT_EQ(keys.removeDuplicates(), 0);
}
} // namespace

} // namespace lineforge
