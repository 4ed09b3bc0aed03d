#include "gui/ProgramWindowTest.h"
#include "support/SqliteFile.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Two branches side by side, opened by menu and list.
class CompareWindowTest : public ProgramWindowTest
{
protected:
    CompareWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}, {u"Notes", u"Born in York"}})
            .Picture(u"A001", Qt::red)
            .Build();
        BranchBuilder(Home, u'B')
            .Row({{u"File", u"B001"}, {u"Surname", u"Smythe"}, {u"Forename", u"Jon"}, {u"Notes", u"Born in Leeds"}})
            .Row({{u"File", u"B002"}, {u"Surname", u"Brown"}, {u"Forename", u"Ann"}})
            .Picture(u"B001", Qt::blue)
            .Picture(u"B002", Qt::blue)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        OpenBranch(u"Smiths"_s);
        P.Form1->mnuComp.Click();
        P.Form6->mnuOpen.Click();
        P.Form8->List1.SetText(u"Jones"_s);
        P.Form8->Command1.Click();
        ServeEvents();
        Activate(*P.Form6);
    }

    void Press(const QString& name)
    {
        QTest::mouseClick(&Find<QPushButton>(*P.Form6, name), Qt::LeftButton);
        ServeEvents();
    }
    QPlainTextEdit& Lines(const QString& name) { return Find<QPlainTextEdit>(*P.Form6, name); }
    QString MarkedIn(const QString& name)
    {
        const QList<QTextEdit::ExtraSelection> marks = Lines(name).extraSelections();
        return marks.isEmpty() ? QString() : marks.first().cursor.selectedText();
    }
    QColor Light() { return Find<QPushButton>(*P.Form6, u"Command1"_s).palette().color(QPalette::Button); }
};

TEST_F(CompareWindowTest, EverythingFitsIntoItsPlace)
{
    const QWidget& client = *Find<QWidget>(*P.Form6, u"Frame1"_s).parentWidget();
    for (const QWidget* widget : ViewOf(*P.Form6).findChildren<QWidget*>())
        if (widget->isVisible() && widget->parentWidget() == &client) {
            EXPECT_TRUE(client.rect().contains(widget->geometry())) << widget->objectName().toStdString();
        }
    for (const QPushButton* button : ViewOf(*P.Form6).findChildren<QPushButton*>()) {
        EXPECT_TRUE(button->parentWidget()->rect().contains(button->geometry())) << button->text().toStdString();
        EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + 8, button->width())
            << button->text().toStdString();
    }
}

TEST_F(CompareWindowTest, DifferenceStandsOut_AndTheButtonSaysThatItWasFound)
{
    EXPECT_EQ(Lines(u"Text2"_s).toPlainText(), u"Smith"_s);
    EXPECT_EQ(MarkedIn(u"Text2"_s), u"ith"_s);
    EXPECT_EQ(MarkedIn(u"Text4"_s), u"ythe"_s);
    EXPECT_EQ(Light(), QColor(0, 200, 0));
    Press(u"Command1"_s);
    Press(u"Command1"_s);
    EXPECT_EQ(MarkedIn(u"Text2"_s), u"h"_s);
    Press(u"Command1"_s);
    EXPECT_EQ(Lines(u"Text4"_s).toPlainText(), u"Born in Leeds"_s);
    EXPECT_EQ(MarkedIn(u"Text2"_s), u"York"_s);
    EXPECT_EQ(MarkedIn(u"Text4"_s), u"Leeds"_s);
}

TEST_F(CompareWindowTest, Reset_TakesTheMarksAway)
{
    Press(u"Command2"_s);
    EXPECT_EQ(MarkedIn(u"Text2"_s), QString());
    EXPECT_EQ(Light(), QColor(0, 220, 0));
}

TEST_F(CompareWindowTest, CopyAField_TakesTheDirectionThatIsChosen)
{
    QTest::mouseClick(&Find<QRadioButton>(*P.Form6, u"Option2"_s), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(&Find<QRadioButton>(*P.Form6, u"Option1"_s), Qt::LeftButton, {}, QPoint(8, 8));
    Press(u"Command3"_s);
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_B/LfgDat_B.mdb")).Value("SELECT Surname FROM Tree99 WHERE File = 'B001'"),
              u"Smith"_s);
    EXPECT_EQ(MarkedIn(u"Text2"_s), QString());
}

TEST_F(CompareWindowTest, RecordBar_MovesTheComparedSideByHand)
{
    QTest::mouseClick(&Find<QToolButton>(*P.Form6, u"Data1Next"_s), Qt::LeftButton);
    ServeEvents();
    EXPECT_EQ(P.Form6->Label9.Caption.value(), u"B002"_s);
    EXPECT_EQ(P.Form6->Label4.Caption.value(), u"A001"_s);
}

TEST_F(CompareWindowTest, SelectionMadeByKeys_IsCutAfterAClickByKeys)
{
    QPlainTextEdit& field = Lines(u"Text2"_s);
    field.setFocus();
    QTest::keyClick(ViewOf(*P.Form6).windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(ViewOf(*P.Form6).windowHandle(), Qt::Key_Space, Qt::ControlModifier);

    P.Form6->mnuCopy.Click();

    EXPECT_EQ(P.Clipboard.GetText(), u"Smith"_s);
}

TEST_F(CompareWindowTest, SelectionMadeByTheMouse_IsWhatCutPutsOnTheClipboard)
{
    QPlainTextEdit& box = Lines(u"Text2"_s);
    box.selectAll();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::ShiftModifier, box.viewport()->rect().bottomRight());
    ServeEvents();
    EXPECT_EQ(P.Compare.SelBox, 2);
    P.Form6->mnuCut.Click();
    EXPECT_EQ(box.toPlainText(), QString());
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT Surname FROM Tree99 WHERE File = 'A001'"),
              QString());
}

TEST_F(CompareWindowTest, Tree_LeavesTheWindowOpen_AndCompareBringsItBack)
{
    Press(u"Command4"_s);
    EXPECT_TRUE(ViewOf(*P.Form1).isVisible());
    EXPECT_TRUE(Find<QPushButton>(*P.Form1, u"Command5"_s).isVisible());
    QTest::mouseClick(&Find<QPushButton>(*P.Form1, u"Command5"_s), Qt::LeftButton);
    EXPECT_TRUE(ViewOf(*P.Form6).isVisible());
}

TEST_F(CompareWindowTest, Frame_ClosesTheComparison)
{
    ViewOf(*P.Form6).close();
    ServeEvents();
    EXPECT_FALSE(P.Form6.IsLoaded());
    EXPECT_FALSE(Find<QPushButton>(*P.Form1, u"Command5"_s).isVisible());
}

} // namespace
} // namespace lineforge
