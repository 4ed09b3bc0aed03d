#include "shell/ShellTest.h"

namespace lineforge
{
namespace
{

class MainWindowTest : public ShellTest
{
protected:
    MainWindowTest()
    {
        GivenRegistry();
        StartProgram(P);
    }

    static Rectangle PlaceOf(const Control& control)
    {
        return {control.Left, control.Top, control.Width, control.Height};
    }

    static Control* Find(const Container& container, QStringView name)
    {
        for (Control* control : container.Controls()) {
            if (control->Name == name)
                return control;
            if (const auto* inner = dynamic_cast<const Container*>(control))
                if (Control* found = Find(*inner, name))
                    return found;
        }
        return nullptr;
    }

    static QString CaptionOf(const Control& control)
    {
        if (const auto* label = dynamic_cast<const Label*>(&control))
            return label->Caption;
        if (const auto* button = dynamic_cast<const Button*>(&control))
            return button->Caption;
        if (const auto* frame = dynamic_cast<const Frame*>(&control))
            return frame->Caption;
        return {};
    }

    static void Flatten(const std::vector<MenuItem*>& items, int depth, QStringList& lines)
    {
        for (const MenuItem* item : items) {
            const QString name = item->Caption == u"-" ? QString() : item->Name + u' ';
            lines += QString(depth * 2, u' ') + name + item->Caption;
            Flatten(item->Items, depth + 1, lines);
        }
    }
};

struct PlacedControl {
    QStringView Name;
    Rectangle Place;
    QStringView Caption = {};
};

void PrintTo(const PlacedControl& control, std::ostream* out)
{
    PrintTo(control.Name, out);
}

class PlacedControlTest : public MainWindowTest, public testing::WithParamInterface<PlacedControl>
{
};

TEST_P(PlacedControlTest, Control_StandsAtItsPlaceWithItsCaption)
{
    const Control* control = Find(*P.Form1, GetParam().Name);

    ASSERT_TRUE(control);
    EXPECT_EQ(PlaceOf(*control), GetParam().Place);
    EXPECT_EQ(CaptionOf(*control), GetParam().Caption);
}

INSTANTIATE_TEST_SUITE_P(Controls, PlacedControlTest,
                         testing::Values(PlacedControl{u"Picture1", {0, 0, 8415, 12750}},
                                         PlacedControl{u"VScroll1", {8400, 0, 255, 7455}},
                                         PlacedControl{u"Command5", {8760, 120, 975, 375}, u"Compare"},
                                         PlacedControl{u"Command1", {9840, 120, 975, 375}, u"Records"},
                                         PlacedControl{u"Command2", {10920, 120, 855, 375}, u"Gallery"},
                                         PlacedControl{u"Frame1", {8760, 720, 3015, 2775}, u"Ref  "},
                                         PlacedControl{u"Image1", {120, 240, 2775, 2415}}));

TEST_F(MainWindowTest, Map_IsWhite_ItsFontArial825)
{
    EXPECT_EQ(P.Form1->Picture1.BackColor, White);
    EXPECT_EQ(P.Form1->Picture1.Font, (TextFont{u"Arial"_s, 8.25}));
}

TEST_F(MainWindowTest, ScrollBar_GoesTo8000_InStepsOf100And1500_AndMovesTheMap)
{
    EXPECT_EQ(P.Form1->VScroll1.Max.value(), 8000);
    EXPECT_EQ(P.Form1->VScroll1.SmallChange, 100);
    EXPECT_EQ(P.Form1->VScroll1.LargeChange, 1500);

    P.Form1->VScroll1.Value = 1500;
    P.Form1->VScroll1.Change();

    EXPECT_EQ(P.Form1->Picture1.Top, -1500);
}

TEST_F(MainWindowTest, Marker_HasItsSize_AndIsHiddenOnTheMap)
{
    EXPECT_EQ(P.Form1->Shape1.Width, 135);
    EXPECT_EQ(P.Form1->Shape1.Height, 255);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Picture1.Controls().front(), &P.Form1->Shape1);
}

struct FramedControl {
    QStringView Frame;
    QStringView FrameCaption;
    QStringList Content; // "name caption", in the order in which they stand there
};

void PrintTo(const FramedControl& frame, std::ostream* out)
{
    PrintTo(frame.Frame, out);
}

class FrameTest : public MainWindowTest, public testing::WithParamInterface<FramedControl>
{
};

TEST_P(FrameTest, Frame_HoldsItsControls_InsideItself)
{
    const auto* frame = dynamic_cast<const Frame*>(Find(*P.Form1, GetParam().Frame));
    ASSERT_TRUE(frame);

    QStringList content;
    for (const Control* control : frame->Controls()) {
        content += QString(control->Name + u' ' + CaptionOf(*control)).trimmed();
        EXPECT_GE(control->Left, 0);
        EXPECT_GE(control->Top, 0);
        EXPECT_LE(control->Left + control->Width, frame->Width) << qUtf8Printable(control->Name);
        EXPECT_LE(control->Top + control->Height, frame->Height) << qUtf8Printable(control->Name);
    }

    EXPECT_EQ(frame->Caption.value(), GetParam().FrameCaption);
    EXPECT_EQ(content, GetParam().Content);
    EXPECT_LE(frame->Left + frame->Width, P.Form1->Client.Width);
    EXPECT_LE(frame->Top + frame->Height, P.Form1->Client.Height);
}

INSTANTIATE_TEST_SUITE_P(Frames, FrameTest,
                         testing::Values(FramedControl{u"Frame1", u"Ref  ", {u"Image1"_s}},
                                         FramedControl{u"Frame2",
                                                       u"Tree Co-ordinates",
                                                       {u"Label6 Reference"_s, u"Text8"_s, u"Label7 Mouse 'X'"_s,
                                                        u"Text9"_s, u"Label8 Mouse 'Y'"_s, u"Text10"_s}},
                                         FramedControl{u"Frame3",
                                                       u"Heredity Lineage Indicater",
                                                       {u"Label18 Surname :"_s, u"Text1"_s, u"Command3 View"_s,
                                                        u"Command4 Clear"_s}}));

TEST_F(MainWindowTest, ToolFrame_StandsRightOfTheMap)
{
    const Control* tools = Find(*P.Form1, u"Frame4");

    ASSERT_TRUE(tools);
    EXPECT_GE(tools->Left, 8655);
}

struct SubjectLabel {
    QStringView Name;
    QStringView Title; // of the fixed label on its left; empty for none
};

void PrintTo(const SubjectLabel& label, std::ostream* out)
{
    PrintTo(label.Name, out);
}

class SubjectLabelPlaceTest : public MainWindowTest, public testing::WithParamInterface<SubjectLabel>
{
};

TEST_P(SubjectLabelPlaceTest, Label_StandsRightOfTheMap_BesideItsTitle)
{
    const Control* label = Find(*P.Form1, GetParam().Name);
    ASSERT_TRUE(label);
    EXPECT_GE(label->Left, 8655);
    EXPECT_EQ(CaptionOf(*label), QString());

    const Control* title = nullptr;
    for (const Control* control : P.Form1->Controls())
        if (control != label && control->Top == label->Top && dynamic_cast<const Label*>(control))
            title = control;
    EXPECT_EQ(title ? CaptionOf(*title) : QString(), GetParam().Title);
    if (title) {
        EXPECT_LE(title->Left + title->Width, label->Left);
    }
}

INSTANTIATE_TEST_SUITE_P(Labels, SubjectLabelPlaceTest,
                         testing::Values(SubjectLabel{u"Label9", u""}, SubjectLabel{u"Label10", u""},
                                         SubjectLabel{u"Label11", u"Birthdate"}, SubjectLabel{u"Label12", u"Deceased"},
                                         SubjectLabel{u"Label14", u"Spouse"}, SubjectLabel{u"Label15", u"Maiden Name"},
                                         SubjectLabel{u"Label17", u"Gender"}));

TEST_F(MainWindowTest, Menus_StandInTheirOrder_WithTheirCaptionsAndAccessKeys)
{
    QStringList menus;
    Flatten(P.Form1->Menus, 0, menus);

    const QString expected = uR"(mnuFile &File
  New &New
  Open &Open
  -
  mnuAddBkMark &Add BookMark
  mnuClrList Clear Bookmarks
  mnuTreePrint Print
    mnuPrinterSetUp Printer &Setup
    mnuPrint Print &Branch
    mnuPrintPage Print Pa&ge
    mnuPrintRecord Print &Record
    mnuPrinList Print Bookmarks
  -
  mnuMainCopy Copy
    mnuBackup Make Bac&kup
    mnuTxtFileList Bookmark List
    mnuTxtDBase Database
  -
  mnuExport &Export
    mnuExpSub Database and Gallery
    mnuExpGedcom Ged File
  mnuImport Import
    mnuImpSub Database and Gallery
    mnuImpGedcom Ged File
  -
  mnuCloseDB Close DataBase
  mnuExit E&xit
mnuEdit &Edit
  mnuCopy &Copy
  mnuPaste &Paste
  -
  mnuDataBase &Database
    mnuViewRecs View Records
    mnuComp Compare Records
  -
  mnuDel Delete
    mnuDelSub Delete Dbase and Galleries
mnuTreeGraphics Tree Graphics
  mnuTreeTools &TreeTools
  mnuMapSubject &Map Subject
  mnuRemap ReMapSubject
mnuHelp &Help
  mnuConts Contents
  MnuAbout About)"_s;
    EXPECT_EQ(menus, expected.split(u'\n'));
}

} // namespace
} // namespace lineforge
