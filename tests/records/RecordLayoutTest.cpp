#include "records/RecordTest.h"

#include <QRect>
#include <QSet>

namespace lineforge
{
namespace
{

struct FieldBox {
    TextBox forms::Form3::*Box;
    const char* Field;
    Label forms::Form3::*Caption;
    QStringView Text;
    int Limit;
    bool TellsSelection;
};

using F = forms::Form3;

const FieldBox fieldBoxes[] = {
    {&F::Text1, "Nationality", &F::Label22, u"Nationality", 0, false},
    {&F::Text2, "Surname", &F::Label2, u"Surname", 30, true},
    {&F::Text3, "Forename", &F::Label3, u"Forenames", 30, true},
    {&F::Text4, "BirthDate", &F::Label4, u"BirthDate", 30, true},
    {&F::Text5, "BirthPlace", &F::Label5, u"BirthPlace", 100, true},
    {&F::Text6, "Spouse", &F::Label6, u"Spouse", 100, true},
    {&F::Text7, "Children", &F::Label7, u"Children", 100, true},
    {&F::Text8, "Education", &F::Label8, u"Education", 100, true},
    {&F::Text9, "Profession", &F::Label9, u"Profession", 100, true},
    {&F::Text10, "Deceased", &F::Label10, u"Deceased", 100, true},
    {&F::Text11, "Notes", &F::Label11, u"Notes(2)", 255, true},
    {&F::Text12, "Medical", &F::Label1, u"Notes(1)", 255, true},
    {&F::Text13, "BirthCertificate", &F::Label26, u"Birth Cert.", 30, true},
    {&F::Text14, "MarriageCertificate", &F::Label27, u"Marriage Cert.", 30, true},
    {&F::Text15, "DeathCertificate", &F::Label28, u"Death Cert.", 30, true},
    {&F::Text16, "Maiden", &F::Label15, u"Maiden Name", 30, true},
    {&F::Text17, "Partner", &F::Label16, u"Partner", 30, true},
    {&F::Text18, "PrevChildren", &F::Label17, u"Prev.Children", 100, true},
    {&F::Text19, "Wedding", &F::Label18, u"Wedd.Place", 100, true},
    {&F::Text20, "WedDate", &F::Label19, u"Wedding Date", 100, false},
    {&F::Text21, "FatherRec", &F::Label20, u"Father Rec", 30, false},
    {&F::Text22, "MotherRec", &F::Label21, u"Mother Rec", 30, false},
    {&F::Text23, "Gender", &F::Label13, u"Gender", 30, false},
    {&F::Text24, "SpouseRec", &F::Label14, u"Spouse Rec", 30, false},
};

void PrintTo(const FieldBox& box, std::ostream* out)
{
    *out << box.Field;
}

class RecordLayoutTest : public RecordTest
{
protected:
    RecordLayoutTest() { GivenRecordForm(); }
    forms::Form3& Form() { return *P.Form3; }
};

class FieldBoxTest : public RecordLayoutTest, public testing::WithParamInterface<FieldBox>
{
protected:
    TextBox& Box() { return (*P.Form3).*GetParam().Box; }
};

TEST_P(FieldBoxTest, ShowsItsFieldAlone)
{
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
        .Execute(QByteArray("UPDATE Tree99 SET ") + GetParam().Field + " = 'only here' WHERE File = 'A002'");
    Records(P.Form3).MoveNext();

    for (const FieldBox& other : fieldBoxes)
        EXPECT_EQ((Form().*other.Box).Text.value() == u"only here"_s, other.Field == GetParam().Field) << other.Field;
}

TEST_P(FieldBoxTest, WritesItsFieldAlone)
{
    Box().Text = u"only here"_s;

    Records(P.Form3).MoveNext();

    for (const FieldBox& other : fieldBoxes)
        EXPECT_EQ(Stored(other.Field) == u"only here"_s, other.Field == GetParam().Field) << other.Field;
}

TEST_P(FieldBoxTest, HasItsLimit)
{
    EXPECT_EQ(Box().MaxLength, GetParam().Limit);
}

TEST_P(FieldBoxTest, HasItsLabelOnItsLeft)
{
    const Label& label = Form().*GetParam().Caption;
    EXPECT_EQ(label.Caption.value(), GetParam().Text.toString());
    EXPECT_LE(label.Left + label.Width, Box().Left);
    EXPECT_LT(Box().Left - (label.Left + label.Width), 150);
    EXPECT_GE(label.Top, Box().Top);
    EXPECT_LT(label.Top, Box().Top + 100);
}

TEST_P(FieldBoxTest, Click_RemembersTheSelection_WhereTheEditMenuKnowsTheBox)
{
    P.Record.sClipText = u"before"_s;
    P.Record.ClipSource = 77;
    Box().SelText = u"selected"_s;

    Fire(Box().Click);

    const int number = QStringView(Box().Name).mid(4).toInt();
    EXPECT_EQ(P.Record.sClipText, GetParam().TellsSelection ? u"selected"_s : u"before"_s);
    EXPECT_EQ(P.Record.ClipSource, GetParam().TellsSelection ? number : 77);
}

INSTANTIATE_TEST_SUITE_P(Boxes, FieldBoxTest, testing::ValuesIn(fieldBoxes),
                         [](const auto& box) { return box.param.Field; });

TEST_F(RecordLayoutTest, NumberOfTheRecord_IsShown_AndNotTyped)
{
    EXPECT_EQ(Form().Label12.Caption.value(), u"Data Rec"_s);
    EXPECT_EQ(Form().Label25.Caption.value(), u"A001"_s);
    Form().Label25.Caption = u"Z999"_s;

    Records(P.Form3).MoveNext();

    EXPECT_EQ(Form().Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(Stored("Forename"), u"John"_s);
}

void List(const std::vector<MenuItem*>& level, const QString& indent, QStringList& lines)
{
    for (const MenuItem* item : level) {
        lines += indent + item->Name + u' ' + item->Caption;
        List(item->Items, indent + u"  ", lines);
    }
}

TEST_F(RecordLayoutTest, Menus_StandInTheirOrder)
{
    QStringList lines;
    List(Form().Menus, {}, lines);

    EXPECT_EQ(lines, (QStringList{
                         u"mnuFile &File"_s,
                         u"  mnuPrint &Print"_s,
                         u"    mnuAddPMark &Add Print BookMark"_s,
                         u"    mnuPrintSetup &Setup"_s,
                         u"    mnuPrinForm &Window"_s,
                         u"    mnuPrinRecord &Record"_s,
                         u"    mnuRecList Record &List"_s,
                         u"      mnuPrList Print List"_s,
                         u"      mnuClrList Clear List"_s,
                         u"    mnuPrinDatabase &Database"_s,
                         u"  mnuDash3 -"_s,
                         u"  mnuExit E&xit"_s,
                         u"mnuEdit &Edit"_s,
                         u"  mnuCut Cu&t"_s,
                         u"  mnuCopy &Copy"_s,
                         u"  mnuCopyRecToClip Copy&Record"_s,
                         u"  mnuPaste &Paste"_s,
                         u"  mnuDash1 -"_s,
                         u"  mnuSubPicture Subject &Picture"_s,
                         u"  mnuAdd &Add New Record"_s,
                         u"  mnuDelete &Delete Record"_s,
                         u"  MnuDash2 -"_s,
                         u"  MnuRecTransfer &Record Transfer"_s,
                         u"mnuSearch &Search By"_s,
                         u"  mnuSearchDataRef Data &Ref"_s,
                         u"  mnuSearchSurName Sur&name"_s,
                         u"  mnuSearchBirthPlace &BirthPlace"_s,
                         u"  mnuSearchWord &Word"_s,
                         u"mnuHelp &Help"_s,
                     }));
}

TEST_F(RecordLayoutTest, Captions_OfButtonsBarAndWindow)
{
    EXPECT_EQ(Form().Command1.Caption.value(), u"Gallery"_s);
    EXPECT_EQ(Form().Command2.Caption.value(), u"Tree"_s);
    EXPECT_EQ(Form().Data1.Caption, u"Lineforge"_s);
    EXPECT_EQ(Form().Data1.RecordSource, u"Tree99"_s);
    EXPECT_EQ(forms::Form3().Caption.value(), u"Family Tree Data"_s);
}

TEST_F(RecordLayoutTest, Data_AreThoseOfTheOpenBranch)
{
    EXPECT_EQ(Form().Data1.DatabaseName, Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
}

QRect PlaceOf(const Control& control)
{
    return {control.Left, control.Top, control.Width, control.Height};
}

TEST_F(RecordLayoutTest, NothingOverlaps_AndAllStandsInTheWindow)
{
    const QRect window(0, 0, Form().Client.Width, Form().Client.Height);
    std::vector<const Control*> seen;
    for (const Control* control : Form().Controls()) {
        if (!control->Visible || PlaceOf(*control).isEmpty())
            continue;
        EXPECT_TRUE(window.contains(PlaceOf(*control))) << qUtf8Printable(control->Name);
        for (const Control* other : seen)
            EXPECT_FALSE(PlaceOf(*control).intersects(PlaceOf(*other)))
                << qUtf8Printable(control->Name) << " and " << qUtf8Printable(other->Name);
        seen.push_back(control);
    }
    EXPECT_GE(seen.size(), 54U);
}

TEST_F(RecordLayoutTest, TransportButtons_StandSideBySideInTheirFrame)
{
    const QRect frame(0, 0, Form().Frame1.Width, Form().Frame1.Height);
    int end = 0;
    for (const auto button : forms::Form3::Transport) {
        const QRect place = PlaceOf(Form().*button);
        EXPECT_TRUE(frame.contains(place));
        EXPECT_GE(place.left(), end);
        end = place.right();
        EXPECT_FALSE((Form().*button).ToolTipText.isEmpty());
    }
}

// The order of the controls is the order in which Tab visits them.
TEST_F(RecordLayoutTest, BoxesFollowEachOtherInReadingOrder)
{
    const Control* before = nullptr;
    int boxes = 0;
    for (const Control* control : Form().Controls()) {
        if (!dynamic_cast<const TextBox*>(control))
            continue;
        ++boxes;
        if (before) {
            const bool isRightOf = control->Top == before->Top && control->Left > before->Left;
            EXPECT_TRUE(isRightOf || control->Top > before->Top)
                << qUtf8Printable(control->Name) << " after " << qUtf8Printable(before->Name);
        }
        before = control;
    }
    EXPECT_EQ(boxes, 24);
}

TEST_F(RecordLayoutTest, AccessKeys_AreAllDifferent_AndNoneIsAMenus)
{
    QSet<QChar> taken;
    for (const MenuItem* menu : Form().Menus)
        taken += menu->Caption[menu->Caption.indexOf(u'&') + 1].toUpper();
    ASSERT_EQ(taken.size(), 4);
    for (const FieldBox& box : fieldBoxes) {
        const QChar key((Form().*box.Box).AccessKey);
        EXPECT_TRUE(key.isLetterOrNumber()) << box.Field;
        EXPECT_FALSE(taken.contains(key)) << box.Field;
        taken += key;
    }
}

} // namespace
} // namespace lineforge
