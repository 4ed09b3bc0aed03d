#include "gui/qt/WindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>

#include <algorithm>
#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct EntryForm : Form {
    EntryForm() : Form(u"EntryForm", u"Entry", {6000, 3000})
    {
        Text1.Text.Attach(&Source);
        Text2.Text.Attach(&Source);
    }
    ~EntryForm() override
    {
        Text1.Text.Attach(nullptr);
        Text2.Text.Attach(nullptr);
    }

    // A field of a record, which counts how often it is edited.
    struct Field : TextSource {
        void Settle() override {}
        void Edited(const ControlText&) override { ++Edits; }
        void Forget(const ControlText&) override {}
        int Edits = 0;
    };
    Field Source;
    TextBox Text1{*this, u"Text1", {150, 150, 3000, 315}, 12};
    TextBox Text2{*this, u"Text2", {150, 600, 3000, 900}, 12};
};

// How a text gets into a box that shows "Smith", with the cursor behind it.
struct Entry {
    const char* Name;
    void (*Do)(QWidget& box);
    QStringView Left;
};
std::ostream& operator<<(std::ostream& out, const Entry& entry)
{
    return out << entry.Name;
}

QAccessibleInterface& Told(QWidget& box)
{
    return *QAccessible::queryAccessibleInterface(&box);
}

void Compose(QWidget& box)
{
    QInputMethodEvent event;
    event.setCommitString(u"y"_s);
    QCoreApplication::sendEvent(&box, &event);
}

void Drop(QWidget& box)
{
    auto* lines = qobject_cast<QPlainTextEdit*>(&box);
    QWidget& target = lines ? *lines->viewport() : box;
    QMimeData dragged;
    dragged.setText(u"Jo "_s);
    const QPoint begin(1, std::min(target.rect().center().y(), target.fontMetrics().height()));
    QDragEnterEvent enter(begin, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QDropEvent event(begin, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &enter);
    QCoreApplication::sendEvent(&target, &event);
}

void Paste(QWidget& box)
{
    QGuiApplication::clipboard()->setText(u"son"_s);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
}

constexpr Entry entries[] = {
    {"Keys", [](QWidget& box) { QTest::keyClicks(&box, u"y"_s); }, u"Smithy"},
    {"InputMethod", Compose, u"Smithy"},
    {"Drop", Drop, u"Jo Smith"},
    {"Paste", Paste, u"Smithson"},
    {"Cut",
     [](QWidget& box) {
         QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
         QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
     },
     u""},
    {"Undo",
     [](QWidget& box) {
         QTest::keyClicks(&box, u"y"_s);
         QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
     },
     u"Smith"},
    {"ReadersText", [](QWidget& box) { Told(box).setText(QAccessible::Value, u"Jones"_s); }, u"Jones"},
    {"ReadersInsertion", [](QWidget& box) { Told(box).editableTextInterface()->insertText(0, u"Jo "_s); }, u"Jo Smith"},
    {"ReadersDeletion", [](QWidget& box) { Told(box).editableTextInterface()->deleteText(1, 4); }, u"Sh"},
    {"ReadersReplacement", [](QWidget& box) { Told(box).editableTextInterface()->replaceText(0, 5, u"Jones"_s); },
     u"Jones"},
};

class TextEntryTest : public WindowTest
{
protected:
    void SetUp() override { Entered->Visible = true; }

    QWidget& Shown(const QString& name)
    {
        auto& box = Find<QWidget>(*Entered, name);
        Activate(*Entered);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_End);
        Entered->Source.Edits = 0;
        return box;
    }

    Window<EntryForm> Entered{System()};
};

class EveryEntryTest : public TextEntryTest, public testing::WithParamInterface<Entry>
{
};
INSTANTIATE_TEST_SUITE_P(Ways, EveryEntryTest, testing::ValuesIn(entries),
                         [](const auto& way) { return std::string(way.param.Name); });

TEST_P(EveryEntryTest, IsAnEdit_InABoxOfOneLineAndOfSeveral)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        box->Text.Show(u"Smith"_s);
        GetParam().Do(Shown(box->Name));
        EXPECT_EQ(box->Text.value(), GetParam().Left.toString()) << box->Name.toStdString();
        EXPECT_GT(Entered->Source.Edits, 0) << box->Name.toStdString();
    }
}

TEST_F(TextEntryTest, ATextThatIsLongerThanTheBox_IsShownAsFarAsItGoes_AndIsNoEdit)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        Entered->Source.Edits = 0;
        box->Text.Show(u"Featherstonehaugh"_s);
        ServeEvents();
        EXPECT_EQ(box->Text.value(), u"Featherstonehaugh"_s);
        EXPECT_EQ(Entered->Source.Edits, 0);
    }
    EXPECT_EQ(Find<QLineEdit>(*Entered, u"Text1"_s).text(), u"Featherstone"_s);
}

TEST_F(TextEntryTest, ReadersPutNothingIntoABoxThatIsDisabled)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        box->Text.Show(u"Smith"_s);
        QWidget& shown = Shown(box->Name);
        box->Enabled = false;
        Told(shown).setText(QAccessible::Value, u"Jones"_s);
        EXPECT_EQ(box->Text.value(), u"Smith"_s);
        EXPECT_EQ(Told(shown).text(QAccessible::Value), u"Smith"_s);
        EXPECT_EQ(Entered->Source.Edits, 0);
    }
}

} // namespace
} // namespace lineforge
