#include "map/subjects/SubjectPanel.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

struct PanelField {
    QString Field;
    Label forms::Form1::*Shown;
};

void PrintTo(const PanelField& field, std::ostream* out)
{
    *out << qUtf8Printable(field.Field);
}

class SubjectPanelTest : public MapTest
{
};

class SubjectFieldTest : public SubjectPanelTest, public WithParamInterface<PanelField>
{
protected:
    SubjectFieldTest()
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {GetParam().Field, u"first"}})
                      .Row({{u"File", u"A002"}, {GetParam().Field, u"second"}})
                      .Row({{u"File", u"A003"}}));
    }

    QString Shown() { return ((*P.Form1).*GetParam().Shown).Caption; }
};

TEST_P(SubjectFieldTest, BoundLabel_FollowsTheCurrentRecord)
{
    EXPECT_EQ(Shown(), u"first"_s);

    Records(P.Form3).MoveNext();
    EXPECT_EQ(Shown(), u"second"_s);

    Records(P.Form3).MoveNext();
    EXPECT_EQ(Shown(), QString());
}

TEST_P(SubjectFieldTest, Fill_CopiesTheBoxOfTheRecordForm)
{
    Records(P.Form3).MoveNext();

    FillSubjectLabels(P.Form1, P.Form3);

    EXPECT_EQ(Shown(), u"second"_s);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, SubjectFieldTest,
    Values(PanelField{u"Forename"_s, &forms::Form1::Label9}, PanelField{u"Surname"_s, &forms::Form1::Label10},
           PanelField{u"BirthDate"_s, &forms::Form1::Label11}, PanelField{u"Deceased"_s, &forms::Form1::Label12},
           PanelField{u"Spouse"_s, &forms::Form1::Label14}, PanelField{u"Maiden"_s, &forms::Form1::Label15},
           PanelField{u"Gender"_s, &forms::Form1::Label17}));

// What a command leaves in the panel.
struct Emptied {
    EmptiedBy Command;
    QStringView MaidenName;
    QStringView Gender;
    QStringView Frame;
};

void PrintTo(const Emptied& emptied, std::ostream* out)
{
    constexpr const char* commands[] = {"NewBranch", "BranchWithoutRecords", "CloseBranch", "DeleteBranch"};
    *out << commands[static_cast<int>(emptied.Command)];
}

class EmptiedPanelTest : public SubjectPanelTest, public WithParamInterface<Emptied>
{
};

TEST_P(EmptiedPanelTest, HoldsNoPicture_AndOnlyTheTextsThatTheCommandLeaves)
{
    forms::Form1& form = *P.Form1;
    for (Label* label :
         {&form.Label9, &form.Label10, &form.Label11, &form.Label12, &form.Label14, &form.Label15, &form.Label17})
        label->Caption = u"kept"_s;
    form.Frame1.Caption = u"Ref  A001"_s;
    form.Image1.Picture = QImage(1, 1, QImage::Format_RGB32);

    EmptySubjectPanel(*P.Form1, GetParam().Command);

    for (const Label* label : {&form.Label9, &form.Label10, &form.Label11, &form.Label12, &form.Label14})
        EXPECT_EQ(label->Caption.value(), QString());
    EXPECT_EQ(form.Label15.Caption.value(), GetParam().MaidenName.toString());
    EXPECT_EQ(form.Label17.Caption.value(), GetParam().Gender.toString());
    EXPECT_EQ(form.Frame1.Caption.value(), GetParam().Frame.toString());
    EXPECT_TRUE(form.Image1.Picture.value().isNull());
}

INSTANTIATE_TEST_SUITE_P(Commands, EmptiedPanelTest,
                         Values(Emptied{EmptiedBy::NewBranch, u"kept", u"kept", u""},
                                Emptied{EmptiedBy::BranchWithoutRecords, u"kept", u"", u"Ref  "},
                                Emptied{EmptiedBy::CloseBranch, u"kept", u"", u"Ref  "},
                                Emptied{EmptiedBy::DeleteBranch, u"", u"", u""}));

TEST_F(SubjectPanelTest, Picture_OfTheRecord_IsShown)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red));
    P.Record.sPicFile = u"A001Sub.Jpg"_s;

    LoadSubjectPicture(P, P.Form1->Image1);

    const QImage shown = P.Form1->Image1.Picture;
    ASSERT_FALSE(shown.isNull());
    EXPECT_GT(qRed(shown.pixel(5, 5)), 240);
    EXPECT_LT(qBlue(shown.pixel(5, 5)), 20);
}

TEST_F(SubjectPanelTest, Picture_Missing_IsFileNotFound_AndThePanelKeepsWhatItShows)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red));
    P.Record.sPicFile = u"A001Sub.Jpg"_s;
    LoadSubjectPicture(P, P.Form1->Image1);
    const QImage shown = P.Form1->Image1.Picture;

    P.Record.sPicFile = u"A002Sub.Jpg"_s;
    EXPECT_EQ(RefusalOf([&] { LoadSubjectPicture(P, P.Form1->Image1); }), ErrorNumber::FileNotFound);

    EXPECT_TRUE(P.Form1->Image1.Picture.value() == shown);
}

TEST_F(SubjectPanelTest, Picture_ThatIsNone_IsInvalidPicture)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    Home.WriteFile(u"LfgDat_A/A001Sub.jpg", "no picture");
    P.Record.sPicFile = u"A001Sub.Jpg"_s;

    EXPECT_EQ(RefusalOf([&] { LoadSubjectPicture(P, P.Form1->Image1); }), ErrorNumber::InvalidPicture);
}

TEST_F(SubjectPanelTest, PictureMissing_IsToldWithItsName)
{
    P.Record.sPicFile = u"A001Sub.Jpg"_s;
    Prompts.Expect(u"Image not Present", u"Searched Image File for A001Sub.Jpg", Buttons::Information);

    TellPictureMissing(P.Record, P.Prompts);
}

} // namespace
} // namespace lineforge
