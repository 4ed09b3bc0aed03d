#include "qt/WindowTest.h"

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
    TextBox Text3{*this, u"Text3", {150, 1650, 3000, 315}};
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

// What is done, with the cursor at the end, to a box for 12 characters that shows "Featherstonehaugh".
const Entry entriesIntoMore[] = {
    {"Nothing", [](QWidget&) {}, u"Featherstonehaugh"},
    {"Keys", [](QWidget& box) { QTest::keyClicks(&box, u"y"_s); }, u"Featherstonehaugh"},
    {"KeysAtItsBeginning",
     [](QWidget& box) {
         QTest::keyClick(&box, Qt::Key_Home);
         QTest::keyClicks(&box, u"Mc"_s);
     },
     u"Featherstonehaugh"},
    {"Backspace", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Backspace); }, u"Featherstonehaug"},
    {"BackspaceThatIsUndone",
     [](QWidget& box) {
         QTest::keyClick(&box, Qt::Key_Backspace);
         QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
     },
     u"Featherstonehaugh"},
    {"OneLetterForAnother",
     [](QWidget& box) {
         QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
         QTest::keyClicks(&box, u"h"_s);
     },
     u"Featherstonehaugh"},
    {"MoreThanWasSelected",
     [](QWidget& box) {
         QTest::keyClick(&box, Qt::Key_Left, Qt::ShiftModifier);
         Paste(box);
     },
     u"Featherstonehaugs"},
    {"InputMethod", Compose, u"Featherstonehaugh"},
    {"Drop", Drop, u"Featherstonehaugh"},
    {"ReadersDeletion", [](QWidget& box) { Told(box).editableTextInterface()->deleteText(0, 7); }, u"stonehaugh"},
};

class EntryIntoMoreTest : public TextEntryTest, public testing::WithParamInterface<Entry>
{
};
INSTANTIATE_TEST_SUITE_P(Ways, EntryIntoMoreTest, testing::ValuesIn(entriesIntoMore),
                         [](const auto& way) { return std::string(way.param.Name); });

// It comes from elsewhere.
TEST_P(EntryIntoMoreTest, ATextBeyondTheLimit_IsShownWhole_AndLosesNothingThatTheUserLeaves)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        box->Text.Show(u"Featherstonehaugh"_s);
        GetParam().Do(Shown(box->Name));
        EXPECT_EQ(box->Text.value(), GetParam().Left.toString()) << box->Name.toStdString();
    }
}

TEST_F(TextEntryTest, ATextBeyondTheLimit_IsNoEdit_AndTheNextTextHasTheLimitAgain)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        Entered->Source.Edits = 0;
        box->Text.Show(u"Featherstonehaugh"_s);
        ServeEvents();
        EXPECT_EQ(Entered->Source.Edits, 0);
        box->Text.Show(u"Smith"_s);
        QTest::keyClicks(&Shown(box->Name), u"-Featherstonehaugh"_s);
        EXPECT_EQ(box->Text.value(), u"Smith-Feathe"_s) << box->Name.toStdString();
    }
}

// Longer than any box of the toolkit is by itself.
TEST_F(TextEntryTest, ABoxWithoutALimit_TakesATextOfAnyLength)
{
    const QString text(100'000, u'x');
    Entered->Text3.Text.Show(text);
    QTest::keyClicks(&Shown(u"Text3"_s), u"y"_s);
    EXPECT_EQ(Entered->Text3.Text.value(), QString(text + u'y'));
}

// His own place is not that of the cursor, which stands at the end.
TEST_F(TextEntryTest, WhatAReaderEntersTooMuch_IsCutOffThere_InABoxOfSeveralLines)
{
    Entered->Text2.Text.Show(u"Smith, Mary"_s);
    Told(Shown(u"Text2"_s)).editableTextInterface()->insertText(0, u"Jones "_s);
    EXPECT_EQ(Entered->Text2.Text.value(), u"JSmith, Mary"_s);
}

TEST_P(EveryEntryTest, ALockedBox_TakesNothing_AndIsToldToBeReadOnly)
{
    for (TextBox* box : {&Entered->Text1, &Entered->Text2}) {
        box->Text.Show(u"Smith"_s);
        box->Locked = true;
        QWidget& shown = Shown(box->Name);
        GetParam().Do(shown);
        EXPECT_EQ(box->Text.value(), u"Smith"_s) << box->Name.toStdString();
        EXPECT_EQ(Told(shown).text(QAccessible::Value), u"Smith"_s) << box->Name.toStdString();
        EXPECT_EQ(Entered->Source.Edits, 0) << box->Name.toStdString();
        EXPECT_TRUE(Told(shown).state().readOnly) << box->Name.toStdString();

        box->Locked = false;
        EXPECT_FALSE(Told(shown).state().readOnly) << box->Name.toStdString();
        QTest::keyClicks(&Shown(box->Name), u"y"_s);
        EXPECT_EQ(box->Text.value(), u"Smithy"_s) << box->Name.toStdString();
    }
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
