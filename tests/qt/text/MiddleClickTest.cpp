#include "qt/WindowTest.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct TwoBoxes : Form {
    TwoBoxes() : Form(u"TwoBoxes", u"Two boxes", {6000, 3000}) {}

    TextBox Text1{*this, u"Text1", {150, 150, 3000, 315}, 12};
    TextBox Text2{*this, u"Text2", {150, 600, 3000, 900}, 12};
};

// What the user has selected anywhere comes into a box by a click of the middle button, at that place.
class MiddleClickTest : public WindowTest
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QGuiApplication::clipboard()->supportsSelection());
        QGuiApplication::clipboard()->setText(u"Jo "_s, QClipboard::Selection);
        Boxes->Visible = true;
    }

    void ClickBeforeText(const TextBox& box)
    {
        auto& shown = Find<QWidget>(*Boxes, box.Name);
        auto* lines = qobject_cast<QPlainTextEdit*>(&shown);
        QWidget& target = lines ? *lines->viewport() : shown;
        QTest::mouseClick(&target, Qt::MiddleButton, {}, {1, target.fontMetrics().height() / 2});
    }

    Window<TwoBoxes> Boxes{System()};
};

TEST_F(MiddleClickTest, IsAnEdit_InABoxOfOneLineAndOfSeveral)
{
    for (TextBox* box : {&Boxes->Text1, &Boxes->Text2}) {
        box->Text.Show(u"Smith"_s);
        ClickBeforeText(*box);
        EXPECT_EQ(box->Text.value(), u"Jo Smith"_s) << box->Name.toStdString();
    }
}

TEST_F(MiddleClickTest, ALockedBox_TakesNothing)
{
    for (TextBox* box : {&Boxes->Text1, &Boxes->Text2}) {
        box->Text.Show(u"Smith"_s);
        box->Locked = true;
        ClickBeforeText(*box);
        EXPECT_EQ(box->Text.value(), u"Smith"_s) << box->Name.toStdString();
    }
}

} // namespace
} // namespace lineforge
