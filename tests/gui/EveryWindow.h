#pragma once

#include "gui/ProgramWindowTest.h"

#include <ostream>

namespace lineforge
{

// A window of the program, and how it gets on the screen with something in it.
struct ProgramWindow {
    const char* Name;
    Form& (*Open)(Program& p);
};

inline std::ostream& operator<<(std::ostream& out, const ProgramWindow& window)
{
    return out << window.Name;
}

inline std::string NameOf(const testing::TestParamInfo<ProgramWindow>& info)
{
    return info.param.Name;
}

// The parts of which the toolkit makes up a widget of ours have no name of their own.
inline bool IsOurs(const QWidget& widget)
{
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith(QStringLiteral("qt_"));
}

namespace every_window
{
template <class FormType>
Form& Shown(Window<FormType>& window)
{
    window->Show();
    return *window;
}

inline Form& MapWithTools(Program& p)
{
    p.Form1->mnuTreeTools.Click();
    return *p.Form1;
}

inline Form& EnlargedPicture(Program& p)
{
    p.Form1->Command1.Click();
    p.Form3->Image1.Click();
    return *p.Form2;
}

inline Form& RecordForm(Program& p)
{
    p.Form1->Command1.Click();
    return *p.Form3;
}

inline Form& Gallery(Program& p)
{
    p.Form1->Command2.Click();
    return *p.Form5;
}

inline Form& SoundPlayer(Program& p)
{
    Gallery(p);
    p.Form5->Picture1.Visible = true;
    p.Form5->MMControl1.Visible = true;
    return *p.Form5;
}

inline Form& FilmPlayer(Program& p)
{
    Gallery(p);
    p.Form5->Picture2.Visible = true;
    p.Form5->MMControl2.Visible = true;
    return *p.Form5;
}

inline Form& BranchList(Program& p)
{
    p.Form1->Open.Click();
    return *p.Form8;
}

inline Form& Comparison(Program& p)
{
    p.Form1->mnuComp.Click();
    p.Form6->mnuOpen.Click();
    p.Form8->List1.SetText(QStringLiteral("Jones"));
    p.Form8->Command1.Click();
    return *p.Form6;
}

inline Form& GedcomFile(Program& p)
{
    p.Form1->mnuExpGedcom.Click();
    p.Form12->Command1.Click();
    return *p.Form12;
}

inline Form& Conversion(Program& p)
{
    p.Form11->Picture1.Print(QStringLiteral("HEAD OF FAMILY"));
    return Shown(p.Form11);
}

inline constexpr ProgramWindow all[] = {
    {"Form1", [](Program& p) -> Form& { return *p.Form1; }},
    {"Form1WithTools", MapWithTools},
    {"Form2", EnlargedPicture},
    {"Form3", RecordForm},
    {"Form4", [](Program& p) -> Form& { return Shown(p.Form4); }},
    {"Form5", Gallery},
    {"Form5WithSound", SoundPlayer},
    {"Form5WithFilm", FilmPlayer},
    {"Form6", Comparison},
    {"Form7", [](Program& p) -> Form& { return Shown(p.Form7); }},
    {"Form8", BranchList},
    {"form9", [](Program& p) -> Form& { return Shown(p.form9); }},
    {"Form11", Conversion},
    {"Form12", GedcomFile},
};

// Those with menus.
inline constexpr ProgramWindow withMenus[] = {
    {"Form1", [](Program& p) -> Form& { return *p.Form1; }},
    {"Form2", EnlargedPicture},
    {"Form3", RecordForm},
    {"Form5", Gallery},
    {"Form6", Comparison},
};
} // namespace every_window

// "Smiths", which the windows are opened on, and "Jones" to compare it with.
inline void BuildTwoBranches(TemporaryHome& home)
{
    BranchBuilder(home, u'A')
        .Row({{u"File", u"A001"},
              {u"Forename", u"John"},
              {u"Surname", u"Smith"},
              {u"BirthDate", u"3 May 1871"},
              {u"Gender", u"Male"},
              {u"Notes", u"Born in York"}})
        .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}})
        .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,")
        .Picture(u"A001", Qt::gray)
        .Picture(u"A002", Qt::gray)
        .Gallery({{QStringLiteral("A001_01.jpg"), PictureBytes(Qt::red, {400, 300})},
                  {QStringLiteral("A001_02.jpg"), PictureBytes(Qt::blue, {300, 400})}})
        .Build();
    BranchBuilder(home, u'B')
        .Row({{u"File", u"B001"}, {u"Forename", u"Jon"}, {u"Surname", u"Smythe"}, {u"Notes", u"Born in Leeds"}})
        .Picture(u"B001", Qt::gray)
        .Build();
    WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
}

// All windows of the program in turn, with two branches to work on.
class EveryWindowTest : public ProgramWindowTest, public testing::WithParamInterface<ProgramWindow>
{
protected:
    EveryWindowTest()
    {
        BuildTwoBranches(Home);
        OpenBranch(QStringLiteral("Smiths"));
    }

    // The window of this turn, with the keyboard.
    Form& OpenForm()
    {
        Form& form = GetParam().Open(P);
        ServeEvents();
        Activate(form);
        return form;
    }
    QWidget& Open() { return ViewOf(OpenForm()); }
};

} // namespace lineforge
