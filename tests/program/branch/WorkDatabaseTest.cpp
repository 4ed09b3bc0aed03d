#include "program/branch/WorkDatabase.h"

#include "support/BranchBuilder.h"
#include "support/ProgramTest.h"
#include "support/SqliteFile.h"

#include <QFile>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class WorkDatabaseTest : public ProgramTest
{
protected:
    WorkDatabaseTest() { WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}}); }

    // A record whose every field holds the field's own name.
    static std::vector<FieldText> RecordOfFieldNames()
    {
        std::vector<FieldText> fields;
        for (const QString& field : RecordFields())
            fields.emplace_back(field, field == u"File" ? u"A001"_s : field);
        return fields;
    }

    BranchBuilder Branch{Home, u'A'};
};

TEST_F(WorkDatabaseTest, Opening_StandsOnTheFirstRow_AndKeepsTheWholePath)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}}).Build();

    OpenWorkDatabase(P);

    EXPECT_EQ(P.Branch.sDbaseName.toLower(), Home.Path(Branch.DatabaseFile()).toLower());
    EXPECT_EQ(P.Form3->Data1.DatabaseName, P.Branch.sDbaseName);
    EXPECT_EQ(P.Form3->Data1.RecordSource, u"Tree99"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(WorkDatabaseTest, ImportedBranch_KeepsTheOrdinaryNameOfItsFile)
{
    P.Branch.WorkDir = Branch.InDirectory(u"Import_A").Row({{u"File", u"A001"}}).Build();

    OpenWorkDatabase(P);

    EXPECT_EQ(P.Branch.sDbaseName.toLower(), Home.Path(u"Import_A/LfgDat_A.mdb").toLower());
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(WorkDatabaseTest, PrefixSpeltInAnotherCase_IsTheSameFile)
{
    Branch.Row({{u"File", u"A001"}}).Build();
    QFile::rename(Home.Path(Branch.DatabaseFile()), Home.Path(u"LfgDat_A/Lfgdat_a.MDB"));
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");

    OpenWorkDatabase(P);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(WorkDatabaseTest, OpeningAgain_GoesBackToTheFirstRow)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}}).Build();
    OpenWorkDatabase(P);
    Records(P.Form3).MoveLast();

    OpenWorkDatabase(P);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(WorkDatabaseTest, RecordsBeforeAnyOpening_AreRefused)
{
    EXPECT_EQ(RefusalOf([&] { Records(P.Form3); }), ErrorNumber::ObjectNotSet);
}

TEST_F(WorkDatabaseTest, RefusedOpening_KeepsTheRecordsThatWereOpen)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Build();
    OpenWorkDatabase(P);
    P.Branch.WorkDir = Home.Path(u"LfgDat_B");

    EXPECT_EQ(RefusalOf([&] { OpenWorkDatabase(P); }), ErrorNumber::DatabaseNotFound);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(WorkDatabaseTest, EmptyTable_IsBeforeItsFirstAndBehindItsLastRow_AndHasNoFieldToRead)
{
    P.Branch.WorkDir = Branch.Build();

    OpenWorkDatabase(P);

    EXPECT_TRUE(Records(P.Form3).Bof());
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(RefusalOf([&] { Records(P.Form3).Value(u"File"); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(WorkDatabaseTest, RecordNumbers_AreFoundInAnyCase)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}, {u"Forename", u"Mary"}}).Build();
    OpenWorkDatabase(P);

    EXPECT_TRUE(Records(P.Form3).Seek(u"File", u"a002"_s));
    EXPECT_EQ(Records(P.Form3).Text(u"Forename"), u"Mary"_s);
}

TEST_F(WorkDatabaseTest, WalkToTheEnd_StandsBehindTheLastRow_AndABookmarkBringsItBack)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}}).Build();
    OpenWorkDatabase(P);
    Records(P.Form3).MoveNext();
    P.Record.SavedBookmark = Records(P.Form3).GetBookmark();

    EXPECT_FALSE(Records(P.Form3).Seek(u"File", u"A009"_s));
    EXPECT_TRUE(Records(P.Form3).Eof());

    Records(P.Form3).SetBookmark(P.Record.SavedBookmark);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(WorkDatabaseTest, EditInABoundBox_IsWrittenWhenTheRowIsLeft)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}}).Build();
    OpenWorkDatabase(P);

    P.Form3->Text3.Text = u"John"_s;
    Records(P.Form3).MoveNext();

    EXPECT_EQ(SqliteFile(Home.Path(Branch.DatabaseFile())).Value("SELECT Forename FROM Tree99 WHERE File = 'A001'"),
              u"John"_s);
}

TEST_F(WorkDatabaseTest, UnloadedRecordForm_ClosesTheDatabase_AndTouchingItMakesAnother)
{
    P.Branch.WorkDir = Branch.Row({{u"File", u"A001"}}).Build();
    OpenWorkDatabase(P);

    P.Form3.Unload();

    EXPECT_EQ(SqliteFile(Home.Path(Branch.DatabaseFile())).Try("BEGIN EXCLUSIVE; COMMIT"), 0);
    EXPECT_EQ(RefusalOf([&] { Records(P.Form3); }), ErrorNumber::ObjectNotSet);
    OpenWorkDatabase(P);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

struct BoundField {
    QStringView Field;
    TextBox forms::Form3::*Box;
    int MaxLength;
    Label forms::Form3::*Title;
    QStringView Caption;
};

void PrintTo(const BoundField& field, std::ostream* out)
{
    PrintTo(field.Field, out);
}

class RecordFormFieldTest : public WorkDatabaseTest, public testing::WithParamInterface<BoundField>
{
};

TEST_P(RecordFormFieldTest, Box_ShowsItsFieldBesideItsTitle_AndLimitsWhatIsTyped)
{
    P.Branch.WorkDir = Branch.Row(RecordOfFieldNames()).Build();

    OpenWorkDatabase(P);

    forms::Form3& form = *P.Form3;
    EXPECT_EQ((form.*GetParam().Box).Text.value(), GetParam().Field);
    EXPECT_EQ((form.*GetParam().Box).MaxLength, GetParam().MaxLength);
    EXPECT_EQ((form.*GetParam().Title).Caption.value(), GetParam().Caption);
    EXPECT_LT(std::abs((form.*GetParam().Title).Top - (form.*GetParam().Box).Top), 60);
    EXPECT_LT((form.*GetParam().Title).Left, (form.*GetParam().Box).Left);
}

using F3 = forms::Form3;

INSTANTIATE_TEST_SUITE_P(
    Fields, RecordFormFieldTest,
    testing::Values(BoundField{u"Surname", &F3::Text2, 30, &F3::Label2, u"Surname"},
                    BoundField{u"Forename", &F3::Text3, 30, &F3::Label3, u"Forenames"},
                    BoundField{u"BirthDate", &F3::Text4, 30, &F3::Label4, u"BirthDate"},
                    BoundField{u"BirthPlace", &F3::Text5, 100, &F3::Label5, u"BirthPlace"},
                    BoundField{u"Gender", &F3::Text23, 30, &F3::Label13, u"Gender"},
                    BoundField{u"Nationality", &F3::Text1, 0, &F3::Label22, u"Nationality"},
                    BoundField{u"Spouse", &F3::Text6, 100, &F3::Label6, u"Spouse"},
                    BoundField{u"SpouseRec", &F3::Text24, 30, &F3::Label14, u"Spouse Rec"},
                    BoundField{u"FatherRec", &F3::Text21, 30, &F3::Label20, u"Father Rec"},
                    BoundField{u"MotherRec", &F3::Text22, 30, &F3::Label21, u"Mother Rec"},
                    BoundField{u"Children", &F3::Text7, 100, &F3::Label7, u"Children"},
                    BoundField{u"PrevChildren", &F3::Text18, 100, &F3::Label17, u"Prev.Children"},
                    BoundField{u"Partner", &F3::Text17, 30, &F3::Label16, u"Partner"},
                    BoundField{u"Maiden", &F3::Text16, 30, &F3::Label15, u"Maiden Name"},
                    BoundField{u"Wedding", &F3::Text19, 100, &F3::Label18, u"Wedd.Place"},
                    BoundField{u"WedDate", &F3::Text20, 100, &F3::Label19, u"Wedding Date"},
                    BoundField{u"Education", &F3::Text8, 100, &F3::Label8, u"Education"},
                    BoundField{u"Profession", &F3::Text9, 100, &F3::Label9, u"Profession"},
                    BoundField{u"Deceased", &F3::Text10, 100, &F3::Label10, u"Deceased"},
                    BoundField{u"Notes", &F3::Text11, 255, &F3::Label11, u"Notes(2)"},
                    BoundField{u"Medical", &F3::Text12, 255, &F3::Label1, u"Notes(1)"},
                    BoundField{u"BirthCertificate", &F3::Text13, 30, &F3::Label26, u"Birth Cert."},
                    BoundField{u"MarriageCertificate", &F3::Text14, 30, &F3::Label27, u"Marriage Cert."},
                    BoundField{u"DeathCertificate", &F3::Text15, 30, &F3::Label28, u"Death Cert."}));

TEST_F(WorkDatabaseTest, RecordNumber_StandsInALabelBesideItsTitle)
{
    P.Branch.WorkDir = Branch.Row(RecordOfFieldNames()).Build();

    OpenWorkDatabase(P);

    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A001"_s);
    EXPECT_EQ(P.Form3->Label12.Caption.value(), u"Data Rec"_s);
}

struct PanelLabel {
    QStringView Field;
    Label forms::Form1::*Shown;
};

void PrintTo(const PanelLabel& label, std::ostream* out)
{
    PrintTo(label.Field, out);
}

class SubjectLabelTest : public WorkDatabaseTest, public testing::WithParamInterface<PanelLabel>
{
};

TEST_P(SubjectLabelTest, LabelBesideTheMap_FollowsTheCurrentRecord)
{
    P.Branch.WorkDir =
        Branch.Row(RecordOfFieldNames()).Row({{u"File", u"A002"}, {GetParam().Field, u"second"}}).Build();
    OpenWorkDatabase(P);
    Label& label = (*P.Form1).*GetParam().Shown;
    EXPECT_EQ(label.Caption.value(), GetParam().Field);

    Records(P.Form3).MoveNext();

    EXPECT_EQ(label.Caption.value(), u"second"_s);
}

using F1 = forms::Form1;

INSTANTIATE_TEST_SUITE_P(Labels, SubjectLabelTest,
                         testing::Values(PanelLabel{u"Forename", &F1::Label9}, PanelLabel{u"Surname", &F1::Label10},
                                         PanelLabel{u"BirthDate", &F1::Label11}, PanelLabel{u"Deceased", &F1::Label12},
                                         PanelLabel{u"Spouse", &F1::Label14}, PanelLabel{u"Maiden", &F1::Label15},
                                         PanelLabel{u"Gender", &F1::Label17}));

} // namespace
} // namespace lineforge
