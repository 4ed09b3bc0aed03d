#include "compare/CompareClipboard.h"

#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

class CompareClipboardTest : public CompareTest
{
protected:
    CompareClipboardTest()
    {
        GivenComparison({{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}},
                         {{u"File", u"A002"}, {u"Surname", u"Brown"}, {u"Forename", u"Ann"}}},
                        {{{u"File", u"B001"}, {u"Surname", u"Smith"}, {u"Forename", u"Jon"}}});
        Search();
    }

    // A release of the mouse with that much selected.
    void Select(TextBox& box, QStringView text)
    {
        box.SelText = text.toString();
        Click(box.Click);
    }
    void Cut() { Click(P.Form6->mnuCut.Click); }
    void Paste() { Click(P.Form6->mnuPaste.Click); }
};

TEST_F(CompareClipboardTest, Copy_PutsTheSelectionOnTheClipboard)
{
    Select(P.Form6->Text2, u"oh");
    Machine.Clipboard.Picture = QImage(2, 2, QImage::Format_RGB32);
    Click(P.Form6->mnuCopy.Click);
    EXPECT_EQ(Machine.Clipboard.Text, u"oh"_s);
    EXPECT_FALSE(Machine.Clipboard.HasPicture());
    EXPECT_EQ(Stored(u'A', "Forename", "A001"), u"John"_s);
}

struct Box {
    const char* Name;
    int Number;
    TextBox forms::Form6::*Member;
    QChar Branch;
    const char* File;
    const char* Field;
};
class BoxTest : public CompareClipboardTest, public testing::WithParamInterface<Box>
{
protected:
    TextBox& TheBox() { return (*P.Form6).*GetParam().Member; }
    std::optional<QString> InDatabase() { return Stored(GetParam().Branch, GetParam().Field, GetParam().File); }
};

TEST_P(BoxTest, Cut_EmptiesTheWholeBoxAndItsField)
{
    Select(TheBox(), u"o");
    EXPECT_EQ(P.Compare.SelBox, GetParam().Number);
    Cut();
    EXPECT_EQ(Machine.Clipboard.Text, u"o"_s);
    EXPECT_EQ(TheBox().Text.value(), QString());
    EXPECT_EQ(InDatabase(), QString());
}

TEST_P(BoxTest, Paste_ReplacesTheWholeBoxAndItsField)
{
    Select(TheBox(), u"");
    Machine.Clipboard.Text = u"Pasted"_s;
    Paste();
    EXPECT_EQ(TheBox().Text.value(), u"Pasted"_s);
    EXPECT_EQ(InDatabase(), u"Pasted"_s);
}

TEST_P(BoxTest, ClickWithoutASelection_LetsCutStoreAnEmptyField)
{
    Select(TheBox(), u"before");
    Select(TheBox(), u"");
    EXPECT_EQ(P.Compare.sSelText, QString());
    Cut();
    EXPECT_EQ(Machine.Clipboard.Text, QString());
    EXPECT_EQ(InDatabase(), QString());
}

// The left cursor has gone on meanwhile; a press that writes nothing shows where.
TEST_P(BoxTest, CutAndPasteOnARecordThatIsNotOnShow_ShowItFirst)
{
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    Machine.Clipboard.Text = u"Pasted"_s;
    Select(TheBox(), u"o");
    Records(P.Form3).MoveNext();
    Paste();
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Surnames(), u"Brown|Smith"_s);
    EXPECT_EQ(Captions(), u"Field:|Field:"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(P.Compare.FieldStep, 0);

    Records(P.Form3).MovePrevious();
    Cut();
    EXPECT_EQ(Machine.Clipboard.Text, u"o"_s);
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    // No field is on show any more.
    const bool isField = GetParam().Field != std::string_view("Surname");
    const std::optional<QString> before = InDatabase();
    Cut();
    EXPECT_EQ(InDatabase(), isField ? before : QString());
}

std::string NameOf(const testing::TestParamInfo<Box>& box)
{
    return box.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Boxes, BoxTest,
                         testing::Values(Box{"CurrentSurname", 1, &forms::Form6::Text1, u'A', "A001", "Surname"},
                                         Box{"CurrentField", 2, &forms::Form6::Text2, u'A', "A001", "Forename"},
                                         Box{"CompareSurname", 3, &forms::Form6::Text3, u'B', "B001", "Surname"},
                                         Box{"CompareField", 4, &forms::Form6::Text4, u'B', "B001", "Forename"}),
                         NameOf);

TEST_F(CompareClipboardTest, NewWindow_KnowsNoBox)
{
    Select(P.Form6->Text1, u"x");
    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    EXPECT_EQ(P.Compare.SelBox, 0);
    Cut();
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"Smith"_s);
}

TEST_F(CompareClipboardTest, CutWithoutABox_OnlyFillsTheClipboard)
{
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    P.Compare.sSelText = u"x"_s;
    Cut();
    EXPECT_EQ(Machine.Clipboard.Text, u"x"_s);
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
}

TEST_F(CompareClipboardTest, PasteOfNoText_OrWithoutABox_DoesNothing)
{
    const auto ours = Rows(u'A');
    Machine.Clipboard.Text = u"x"_s;
    Paste();
    Select(P.Form6->Text2, u"J");
    Machine.Clipboard.Clear();
    Machine.Clipboard.Picture = QImage(2, 2, QImage::Format_RGB32);
    Paste();
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(P.Form6->Text2.Text.value(), u"John"_s);
}

TEST_P(BoxTest, PasteFromAWhollyEmptyClipboard_DoesNothing)
{
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    const QString before = TheBox().Text;
    Select(TheBox(), u"");
    Machine.Clipboard.Clear();
    Paste();
    EXPECT_EQ(TheBox().Text.value(), before);
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
    EXPECT_FALSE(Machine.Clipboard.HasText());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareClipboardTest, WhatIsTyped_IsNotStored)
{
    P.Form6->Text2.Text = u"Typed"_s;
    Reset();
    EXPECT_EQ(Stored(u'A', "Forename", "A001"), u"John"_s);
}

TEST_F(CompareClipboardTest, TextTypedOnTheRecordFormBefore_GivesWayToTheCut)
{
    P.Form3->Text2.Text = u"typed"_s;
    Select(P.Form6->Text1, u"Smith");
    Cut();
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), QString());
    EXPECT_EQ(P.Form3->Text2.Text.value(), QString());
}

TEST_F(CompareClipboardTest, FieldThatIsNone_TakesTheFatalPath)
{
    P.Compare.sCompField = u"Nation"_s;
    P.Form6->Frame5.Caption = u"Field: Nationality"_s;
    Select(P.Form6->Text2, u"x");
    ExpectFatalBox(u"Run-time error '3265':\n\nItem not found in this collection.",
                   u"The records have no such field:\nNation\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    Cut();
    EXPECT_TRUE(ExitCode().has_value());
    EXPECT_EQ(Stored(u'A', "Forename", "A001"), u"John"_s);
}

// The field of the last search is still at hand when the frames name none.
struct Emptied {
    const char* Name;
    void (*Go)(class UnnamedFieldTest& test, Program& p);
    QStringView Captions;
};

class UnnamedFieldTest : public CompareTest, public testing::WithParamInterface<Emptied>
{
public:
    UnnamedFieldTest()
    {
        GivenComparison({{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}},
                         {{u"File", u"A002"}, {u"Surname", u"Brown"}, {u"Forename", u"Ann"}}},
                        {{{u"File", u"B001"}, {u"Surname", u"Smith"}, {u"Forename", u"Jon"}},
                         {{u"File", u"B002"}, {u"Surname", u"Brown"}, {u"Forename", u"Anna"}}});
        P.Form6->Check2.Value = true;
        Search();
        EXPECT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
        GetParam().Go(*this, P);
        EXPECT_EQ(Captions(), GetParam().Captions.toString());
        EXPECT_EQ(P.Compare.sCompField, u"Forename"_s);
        EXPECT_EQ(Texts(), u"|"_s);
        ours = Rows(u'A');
        theirs = Rows(u'B');
    }

    using CompareTest::Click;
    using CompareTest::NextCompare;
    using CompareTest::NextCurrent;
    using CompareTest::Reset;
    using CompareTest::Search;

    void ExpectNothingWritten()
    {
        EXPECT_EQ(Rows(u'A'), ours);
        EXPECT_EQ(Rows(u'B'), theirs);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }

    std::vector<SqliteFile::Row> ours;
    std::vector<SqliteFile::Row> theirs;
};

TEST_P(UnnamedFieldTest, CutAndPaste_ChangeTheBoxAlone)
{
    for (TextBox* box : {&P.Form6->Text2, &P.Form6->Text4}) {
        Click(box->Click);
        Machine.Clipboard.Text = u"Pasted"_s;
        Click(P.Form6->mnuPaste.Click);
        EXPECT_EQ(box->Text.value(), u"Pasted"_s);
        Click(P.Form6->mnuCut.Click);
        EXPECT_EQ(box->Text.value(), QString());
    }
    ExpectNothingWritten();
}

TEST_P(UnnamedFieldTest, CopyAField_IsTold)
{
    for (const bool toCurrent : {false, true}) {
        P.Form6->Option1.Value = !toCurrent;
        P.Form6->Option2.Value = toCurrent;
        Tell(u"Copy Error", u"There is no record to copy across.");
        Click(P.Form6->Command3.Click);
    }
    EXPECT_EQ(Texts(), u"|"_s);
    ExpectNothingWritten();
}

TEST_P(UnnamedFieldTest, NextSearch_NamesOneAgain)
{
    Reset();
    Search();
    Click(P.Form6->Command3.Click);
    EXPECT_EQ(Stored(u'B', "Forename", "B001"), u"John"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, UnnamedFieldTest,
    testing::Values(Emptied{"Reset", [](UnnamedFieldTest& test, Program&) { test.Reset(); }, u"Field|Field"},
                    Emptied{"SteppedByHand",
                            [](UnnamedFieldTest& test, Program&) {
                                test.NextCompare();
                                test.NextCurrent();
                            },
                            u"Field:|Field:"},
                    Emptied{"SteppedByTheBar",
                            [](UnnamedFieldTest& test, Program& p) {
                                test.NextCurrent();
                                CompareRecords(p.Form6).MoveNext();
                                test.Click(p.Form6->Data1.Stepped);
                            },
                            u"Field:|Field:"},
                    Emptied{"EndOfThePair", [](UnnamedFieldTest& test, Program&) { test.Search(); },
                            u"End of Fields this Record|End of Fields this Record"},
                    Emptied{"PressThatWasHeldBack",
                            [](UnnamedFieldTest& test, Program& p) {
                                Records(p.Form3).MoveNext();
                                test.Click(p.Form6->Command3.Click);
                            },
                            u"Field:|Field:"}),
    [](const testing::TestParamInfo<Emptied>& way) { return std::string(way.param.Name); });

} // namespace
} // namespace lineforge
