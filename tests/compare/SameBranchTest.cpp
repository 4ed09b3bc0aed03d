#include "compare/CompareBranch.h"
#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

// The open branch chosen for the other side as well, so that both cursors stand on one record; and what is typed on the
// record form meanwhile.
class SameBranchTest : public CompareTest
{
protected:
    SameBranchTest()
    {
        GivenBranch(u'A', {{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}},
                           {{u"File", u"A002"}, {u"Surname", u"Jones"}, {u"Forename", u"Mary"}}});
        StartProgram(P);
        Choose(u"Smiths");
        Click(P.Form1->mnuComp.Click);
        ChooseCompare(u"Smiths");
    }

    void TypeSurname(const QString& text) { P.Form3->Text2.Text = text; }
    void Leave()
    {
        Click([this] { Records(P.Form3).MoveLast(); });
    }
    void PasteIntoCompareField(const QString& text)
    {
        P.Form6->Text4.SelText = QString();
        Click(P.Form6->Text4.Click);
        P.Clipboard.Clear();
        P.Clipboard.SetText(text);
        Click(P.Form6->mnuPaste.Click);
    }
    void Copy(Button forms::Form6::*command, bool toCompare)
    {
        P.Form6->Option1.Value = toCompare;
        P.Form6->Option2.Value = !toCompare;
        Click(((*P.Form6).*command).Click);
    }
    std::optional<QString> Surname() { return Stored(u'A', "Surname", "A001"); }
};

TEST_F(SameBranchTest, WhatTheOtherSideStores_IsWhatTheRecordFormGoesOnFrom)
{
    ASSERT_EQ(P.Form3->Text2.Text.value(), u"Smith"_s);

    PasteIntoCompareField(u"Brown"_s);

    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    EXPECT_EQ(P.Form1->Label10.Caption.value(), u"Brown"_s);
    TypeSurname(P.Form3->Text2.Text.value() + u'e');
    Leave();
    EXPECT_EQ(Surname(), u"Browne"_s);
}

TEST_F(SameBranchTest, WhatIsTypedBefore_IsntWrittenOverWhatTheOtherSideStores)
{
    TypeSurname(u"Typed"_s);
    P.Form3->Text4.Text = u"1 May 1901"_s;

    PasteIntoCompareField(u"Brown"_s);
    Leave();

    EXPECT_EQ(Surname(), u"Brown"_s);
    EXPECT_EQ(Stored(u'A', "BirthDate", "A001"), u"1 May 1901"_s);
}

TEST_F(SameBranchTest, CopiedOntoItself_ARecordKeepsWhatIsTypedForIt)
{
    for (Button forms::Form6::*command : {&forms::Form6::Command3, &forms::Form6::Command7})
        for (const bool toCompare : {true, false}) {
            const QString typed = u"Typed %1"_s.arg(toCompare ? 1 : 2);
            TypeSurname(typed);

            Copy(command, toCompare);

            EXPECT_EQ(P.Form3->Text2.Text.value(), typed);
            Leave();
            EXPECT_EQ(Surname(), typed);
            Records(P.Form3).MoveFirst();
        }
}

TEST_F(SameBranchTest, AnotherRecordOnTheOtherSide_LeavesWhatIsTypedPending)
{
    NextCompare();
    ASSERT_EQ(Pair(), u"A001 A002"_s);
    TypeSurname(u"Typed"_s);

    Copy(&forms::Form6::Command7, true);

    EXPECT_EQ(Stored(u'A', "Surname", "A002"), u"Smith"_s);
    EXPECT_EQ(Surname(), u"Smith"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Typed"_s);
    Leave();
    EXPECT_EQ(Surname(), u"Typed"_s);
}

TEST_F(SameBranchTest, BackInTheWindow_BothSidesShowWhatIsTypedMeanwhile)
{
    Click(P.Form6->Command4.Click);
    TypeSurname(u"Typed"_s);

    Click(P.Form1->Command5.Click);

    EXPECT_EQ(Surnames(), u"Typed|Typed"_s);
}

TEST_F(SameBranchTest, NumberThatTheRecordFormHasGivenMeanwhile_IsNotGivenAgain)
{
    ChangeOutside(u'A', "INSERT INTO Tree99 (File) VALUES ('Z001')");
    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    ChooseCompare(u"Smiths");
    Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::blue));
    Prompts.Expect(u"New Database Record", u"Adding a new Record here will not \nbe mapped into the Tree system.",
                   Buttons::InformationOkCancel, Answer::Ok);
    Tell(u"New Blank Record Created", u"New Record Z002 created.");
    Click(P.Form3->mnuAdd.Click);
    // It isn't on show yet.
    Click(P.Form6->Command8.Click);

    for (const QString& number : {u"Z002"_s, u"Z003"_s})
        Tell(u"Append Record to Database.",
             QString(u"This Record will be Appended to the Compare\nDatabase as "_s + number +
                     u" but will not be mapped into\nthe Ancestral Tree Display."));
    Click(P.Form6->Command8.Click);

    QStringList numbers;
    for (const SqliteFile::Row& row : Rows(u'A', "File"))
        numbers += row.front().value_or(QString());
    EXPECT_EQ(numbers, QStringList({u"A001"_s, u"A002"_s, u"Z001"_s, u"Z002"_s, u"Z003"_s}));
}

} // namespace
} // namespace lineforge
