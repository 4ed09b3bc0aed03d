#include "gui/ProgramWindowTest.h"
#include "platform/store/OtherPrograms.h"
#include "program/branch/WorkDatabase.h"
#include "support/Clocks.h"
#include "support/SqliteFile.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// The whole program on real windows, with a branch open in the record form.
class RecordWindowTest : public ProgramWindowTest
{
protected:
    RecordWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Paul"}, {u"Gender", u"Male"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::green)
            .Picture(u"A003", Qt::blue)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        QTest::mouseClick(&Find<QPushButton>(*P.Form1, u"Command1"_s), Qt::LeftButton);
        ServeEvents();
        Activate(*P.Form3);
    }

    QLineEdit& Line(const QString& name) { return Find<QLineEdit>(*P.Form3, name); }
    QPlainTextEdit& Lines(const QString& name) { return Find<QPlainTextEdit>(*P.Form3, name); }
    void Press(const QString& button) { QTest::mouseClick(&Find<QPushButton>(*P.Form3, button), Qt::LeftButton); }
    void PressBar(const QString& button)
    {
        QTest::mouseClick(&Find<QToolButton>(*P.Form3, button), Qt::LeftButton);
        ServeEvents();
    }

    static void Pass(HeldClocks& clocks, std::chrono::milliseconds time)
    {
        clocks.LetPass(time);
        ServeEvents();
    }

    void Type(const QString& box, const QString& text)
    {
        Line(box).setFocus();
        Line(box).selectAll();
        QTest::keyClicks(&Line(box), text);
    }

    QString ShownNumber() { return Find<QLabel>(*P.Form3, u"Label25"_s).text(); }

    QColor ShownColour()
    {
        auto& picture = Find<QWidget>(*P.Form3, u"Image1"_s);
        return picture.grab().toImage().pixelColor(picture.width() / 2, picture.height() / 2);
    }

    std::optional<QString> Stored(const char* field, const char* file = "A001")
    {
        return SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Value(QByteArray("SELECT ") + field + " FROM Tree99 WHERE File = '" + file + "'");
    }
};

TEST_F(RecordWindowTest, DatabaseInUse_AsksOverTheForm_UnderWhichNothingMoves_AndTheTextStays)
{
    P.Databases.Others().Milliseconds = 0;
    Type(u"Text2"_s, u"Brown"_s);
    auto other = std::make_unique<SqliteFile>(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    other->Execute("BEGIN EXCLUSIVE");
    Prompts.Expect(u"Database in use", u"The Database is in use by another program.", Buttons::InformationRetryCancel,
                   Answer::Cancel, [this] {
                       PressBar(u"Data1Last"_s);
                       ViewOf(*P.Form3).grab();
                       EXPECT_EQ(Line(u"Text2"_s).text(), u"Brown"_s);
                   });

    PressBar(u"Data1Next"_s);

    EXPECT_EQ(ShownNumber(), u"A001"_s);
    EXPECT_EQ(Line(u"Text2"_s).text(), u"Brown"_s);
    other.reset();
    PressBar(u"Data1Next"_s);
    EXPECT_EQ(ShownNumber(), u"A002"_s);
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
    EXPECT_EQ(Refusals(), std::vector<int>({3260, 3260}));
}

// An import or another program has brought them.
TEST_F(RecordWindowTest, TextsBeyondTheLimit_KeepAllThatTheUserLeaves)
{
    const QString surname = u"Featherstonehaugh-Cholmondeley-Marjoribanks"_s;
    const QString note(400, u'n');
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Surname", surname);
    Records(P.Form3).Put(u"Notes", note);
    Records(P.Form3).Update();
    ServeEvents();
    EXPECT_EQ(Line(u"Text2"_s).text(), surname);

    for (QWidget* box : {static_cast<QWidget*>(&Line(u"Text2"_s)), static_cast<QWidget*>(&Lines(u"Text11"_s))}) {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, u"XY"_s);
    }
    PressBar(u"Data1Next"_s);

    EXPECT_EQ(Stored("Surname"), QString(u'X' + surname.mid(1)));
    EXPECT_EQ(Stored("Notes"), QString(u'X' + note.mid(1)));
}

TEST_F(RecordWindowTest, WithoutRecords_TheBoxesTakeNoText)
{
    for (int record = 0; record < 3; ++record) {
        Records(P.Form3).Delete();
        Records(P.Form3).MoveFirst();
    }
    ServeEvents();

    QTest::keyClicks(&Line(u"Text2"_s), u"Smith"_s);
    QTest::keyClicks(&Lines(u"Text11"_s), u"a note"_s);

    EXPECT_EQ(Line(u"Text2"_s).text(), QString());
    EXPECT_TRUE(Line(u"Text2"_s).isReadOnly());
    EXPECT_EQ(Lines(u"Text11"_s).toPlainText(), QString());
    EXPECT_TRUE(Lines(u"Text11"_s).isReadOnly());
}

TEST_F(RecordWindowTest, RecordsButton_ShowsTheRecord_WithItsPicture)
{
    EXPECT_TRUE(ViewOf(*P.Form3).isVisible());
    EXPECT_EQ(ShownNumber(), u"A001"_s);
    EXPECT_EQ(Line(u"Text3"_s).text(), u"John"_s);
    EXPECT_EQ(Line(u"Text2"_s).text(), u"Smith"_s);
    EXPECT_GT(ShownColour().red(), 200);
    EXPECT_LT(ShownColour().green(), 60);
}

TEST_F(RecordWindowTest, TextTyped_IsWrittenWhenTheBarMovesOn_AndTheNextRecordIsShown)
{
    Type(u"Text4"_s, u"1 May 1901"_s);
    EXPECT_EQ(Stored("BirthDate"), std::nullopt);

    PressBar(u"Data1Next"_s);

    EXPECT_EQ(Stored("BirthDate"), u"1 May 1901"_s);
    EXPECT_EQ(Stored("BirthDate", "A002"), std::nullopt);
    EXPECT_EQ(ShownNumber(), u"A002"_s);
    EXPECT_EQ(Line(u"Text3"_s).text(), u"Mary"_s);
    EXPECT_EQ(Line(u"Text4"_s).text(), QString());
    PressBar(u"Data1Previous"_s);
    EXPECT_EQ(Line(u"Text4"_s).text(), u"1 May 1901"_s);
    EXPECT_TRUE(Refusals().empty());
}

TEST_F(RecordWindowTest, EveryButtonOfTheBar_WritesWhatWasTyped)
{
    const std::pair<const char*, const char*> steps[] = {
        {"Data1Next", "A001"}, {"Data1Last", "A002"}, {"Data1Previous", "A003"}, {"Data1First", "A002"}};
    int number = 0;
    for (const auto& [button, left] : steps) {
        const QString text = u"note %1"_s.arg(++number);
        Type(u"Text10"_s, text);
        PressBar(QString::fromLatin1(button));
        EXPECT_EQ(Stored("Deceased", left), text) << button;
    }
}

TEST_F(RecordWindowTest, TypingStopsAtTheLimitOfTheField)
{
    Type(u"Text2"_s, QString(40, u'x'));

    EXPECT_EQ(Line(u"Text2"_s).text(), QString(30, u'x'));
    PressBar(u"Data1Next"_s);
    EXPECT_EQ(Stored("Surname"), QString(30, u'x'));
}

TEST_F(RecordWindowTest, NotesHoldSeveralLines)
{
    for (const auto& [box, field] : {std::pair{u"Text12"_s, "Medical"}, std::pair{u"Text11"_s, "Notes"}}) {
        QTest::keyClicks(&Lines(box), u"first"_s);
        QTest::keyClick(&Lines(box), Qt::Key_Return);
        QTest::keyClicks(&Lines(box), u"second"_s);
        PressBar(u"Data1Next"_s);
        EXPECT_EQ(Stored(field), u"first\nsecond"_s);
        EXPECT_EQ(Lines(box).toPlainText(), QString());
        PressBar(u"Data1Previous"_s);
        EXPECT_EQ(Lines(box).toPlainText(), u"first\nsecond"_s);
    }
}

TEST_F(RecordWindowTest, Tab_VisitsAllBoxesInReadingOrder)
{
    QWidget& window = ViewOf(*P.Form3);
    Line(u"Text2"_s).setFocus();
    QStringList visited{u"Text2"_s};
    for (int step = 0; step < 23; ++step) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        visited += window.focusWidget()->objectName();
    }

    EXPECT_EQ(visited, (QStringList{u"Text2"_s,  u"Text3"_s,  u"Text4"_s,  u"Text5"_s,  u"Text23"_s, u"Text1"_s,
                                    u"Text24"_s, u"Text6"_s,  u"Text21"_s, u"Text22"_s, u"Text7"_s,  u"Text18"_s,
                                    u"Text16"_s, u"Text20"_s, u"Text17"_s, u"Text19"_s, u"Text8"_s,  u"Text9"_s,
                                    u"Text10"_s, u"Text12"_s, u"Text11"_s, u"Text13"_s, u"Text14"_s, u"Text15"_s}));
}

TEST_F(RecordWindowTest, AltAndALetter_FocusesItsBox)
{
    QWidget& window = ViewOf(*P.Form3);
    const std::pair<Qt::Key, QString> keys[] = {
        {Qt::Key_U, u"Text2"_s},  {Qt::Key_O, u"Text3"_s},  {Qt::Key_B, u"Text4"_s},  {Qt::Key_L, u"Text5"_s},
        {Qt::Key_N, u"Text23"_s}, {Qt::Key_A, u"Text1"_s},  {Qt::Key_P, u"Text6"_s},  {Qt::Key_Q, u"Text24"_s},
        {Qt::Key_R, u"Text21"_s}, {Qt::Key_M, u"Text22"_s}, {Qt::Key_C, u"Text7"_s},  {Qt::Key_V, u"Text18"_s},
        {Qt::Key_K, u"Text17"_s}, {Qt::Key_I, u"Text16"_s}, {Qt::Key_W, u"Text19"_s}, {Qt::Key_X, u"Text20"_s},
        {Qt::Key_J, u"Text8"_s},  {Qt::Key_Y, u"Text9"_s},  {Qt::Key_D, u"Text10"_s}, {Qt::Key_1, u"Text12"_s},
        {Qt::Key_2, u"Text11"_s}, {Qt::Key_3, u"Text13"_s}, {Qt::Key_4, u"Text14"_s}, {Qt::Key_5, u"Text15"_s},
    };
    for (const auto& [key, box] : keys) {
        Find<QWidget>(*P.Form3, u"Command2"_s).setFocus();
        QTest::keyClick(&window, key, Qt::AltModifier);
        EXPECT_EQ(window.focusWidget()->objectName(), box);
    }
    EXPECT_EQ(Line(u"Text3"_s).text(), u"John"_s);
}

TEST_F(RecordWindowTest, AltAndT_LeadBackToTheTree)
{
    QTest::keyClick(&ViewOf(*P.Form3), Qt::Key_T, Qt::AltModifier);

    // The button is seen going down and up before it acts.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !P.Form3->Visible; }, 10000));
    EXPECT_TRUE(P.Form1->Visible);
}

TEST_F(RecordWindowTest, AltAndG_LeadOnToTheGallery)
{
    QTest::keyClick(&ViewOf(*P.Form3), Qt::Key_G, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([&] { return !P.Form3->Visible; }, 10000));
    EXPECT_TRUE(P.Form5->Visible);
}

TEST_F(RecordWindowTest, FastForward_WalksByTheClock_AndStopsAtTheEnd)
{
    HeldClocks clocks;
    Press(u"Picture1"_s);
    EXPECT_EQ(ShownNumber(), u"A001"_s);

    QStringList seen{ShownNumber()};
    for (int turn = 0; turn < 100 && P.Form3->Timer1.Enabled; ++turn) {
        Pass(clocks, 50ms);
        if (seen.last() != ShownNumber())
            seen += ShownNumber();
    }

    ServeEvents();
    EXPECT_FALSE(P.Form3->Timer1.Enabled);
    EXPECT_EQ(seen, (QStringList{u"A001"_s, u"A002"_s, u"A003"_s}));
    EXPECT_EQ(ShownNumber(), u"A003"_s);
    EXPECT_GT(ShownColour().blue(), 200);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A003"_s);
    EXPECT_EQ(P.Record.RecordScanMode, 3);
}

TEST_F(RecordWindowTest, StopButton_HoldsTheClock)
{
    HeldClocks clocks;
    Press(u"Picture1"_s);
    for (int turn = 0; turn < 100 && ShownNumber() != u"A002"_s; ++turn)
        Pass(clocks, 50ms);
    ASSERT_EQ(ShownNumber(), u"A002"_s);

    Press(u"Picture3"_s);
    Pass(clocks, 600ms);

    EXPECT_EQ(ShownNumber(), u"A002"_s);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
}

TEST_F(RecordWindowTest, WidgetsFollowWhenTheLoopRuns_NotInsideAWalk)
{
    int changes = 0;
    QObject::connect(&Line(u"Text3"_s), &QLineEdit::textChanged, &Line(u"Text3"_s), [&] { ++changes; });
    for (int walk = 0; walk < 20; ++walk)
        for (Records(P.Form3).MoveFirst(); !Records(P.Form3).Eof(); Records(P.Form3).MoveNext())
            EXPECT_EQ(Line(u"Text3"_s).text(), u"John"_s);
    Records(P.Form3).MoveLast();
    EXPECT_EQ(changes, 0);

    ServeEvents();

    EXPECT_EQ(Line(u"Text3"_s).text(), u"Paul"_s);
    EXPECT_EQ(changes, 1);
}

TEST_F(RecordWindowTest, TreeButton_TakesTheTypedNameToTheMap)
{
    Type(u"Text3"_s, u"Anne"_s);

    Press(u"Command2"_s);
    ServeEvents();

    EXPECT_FALSE(ViewOf(*P.Form3).isVisible());
    EXPECT_TRUE(ViewOf(*P.Form1).isVisible());
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Forename].Text(), u"Anne"_s);
    EXPECT_EQ(Find<QLabel>(*P.Form1, u"Label9"_s).text(), u"Anne"_s);
}

TEST_F(RecordWindowTest, FrameClose_HidesTheWindow_AndTheMapIsThere)
{
    Type(u"Text3"_s, u"Anne"_s);

    ViewOf(*P.Form3).close();
    ServeEvents();

    EXPECT_FALSE(ViewOf(*P.Form3).isVisible());
    EXPECT_TRUE(P.Form3->Data1.IsOpen());
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
}

TEST_F(RecordWindowTest, SelectionInABox_IsRememberedByTheClickThatEndsIt)
{
    Line(u"Text2"_s).selectAll();

    QTest::mouseRelease(&Line(u"Text2"_s), Qt::LeftButton, {}, Line(u"Text2"_s).rect().center());

    EXPECT_EQ(P.Record.sClipText, u"Smith"_s);
    EXPECT_EQ(P.Record.ClipSource, 2);
}

TEST_F(RecordWindowTest, EditMenu_TurnsTheBarOff)
{
    auto& bar = Find<QWidget>(*P.Form3, u"Data1"_s);
    ASSERT_TRUE(bar.isEnabled());

    P.Form3->mnuEdit.Click();

    EXPECT_FALSE(bar.isEnabled());
}

} // namespace
} // namespace lineforge
