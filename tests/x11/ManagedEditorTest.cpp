#include "editor/EditorTest.h"
#include "x11/Hands.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The text editor, closed by the frame that a window manager has put around it.
class ManagedEditorTest : public EditorTest
{
protected:
    ManagedEditorTest()
    {
        OpenFile(u"a.txt", "old");
        EXPECT_TRUE(User.ComesToFront(Editor));
    }

    // Whether it asks, with that for an answer.
    bool AsksWhenClosed(QMessageBox::StandardButton answer)
    {
        bool isAsked = false;
        const NextDialog next([&](QDialog& dialog) {
            isAsked = true;
            Answering(answer, u"The text of a.txt has been changed."_s)(dialog);
        });
        User.AskToClose(Editor);
        return Hands::Await([&] { return isAsked; });
    }

    Hands User;
};

TEST_F(ManagedEditorTest, ATextThatIsNotStored_IsAskedFor_BeforeTheWindowGoes)
{
    User.Type(u"new"_s);
    ASSERT_TRUE(Hands::Await([this] { return Area().Text() == u"newold"; }));
    EXPECT_TRUE(AsksWhenClosed(QMessageBox::Cancel));
    EXPECT_TRUE(User.ComesToFront(Editor));
    EXPECT_TRUE(IsModified());
    EXPECT_TRUE(AsksWhenClosed(QMessageBox::Save));
    EXPECT_TRUE(Hands::Await([this] { return !Editor.isVisible(); }));
    EXPECT_EQ(Home.ReadFile(u"a.txt"), "newold"_ba);
}

TEST_F(ManagedEditorTest, AStoredText_GoesUnasked)
{
    User.AskToClose(Editor);
    EXPECT_TRUE(Hands::Await([this] { return !Editor.isVisible(); }));
}

} // namespace
} // namespace lineforge
