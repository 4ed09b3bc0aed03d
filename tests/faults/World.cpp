#include "faults/World.h"

#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"
#include "support/BranchBuilder.h"

#include <QColor>

namespace lineforge::faults
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int leftButton = 1;

void BuildBranch(TemporaryHome& home, QChar letter)
{
    const auto number = [letter](QStringView digits) -> QString { return letter + digits.toString(); };
    BranchBuilder(home, letter)
        .Row({{u"File", number(u"001")},
              {u"Surname", QString(u"Smith "_s + letter)},
              {u"Forename", u"John"},
              {u"FatherRec", number(u"002")}})
        .Row({{u"File", number(u"002")}, {u"Surname", u"Smith"}, {u"Forename", u"Paul"}, {u"Notes", u"Weaver"}})
        .Row({{u"File", number(u"003")}, {u"Surname", u"Jones"}, {u"Forename", QString(u"Mary "_s + letter)}})
        .Boxes(u"1000,500,255,%1,John,2000,500,255,%2,Paul,3000,500,255,0,,"_s.arg(number(u"001"), number(u"002")))
        .Lines(u"1507,817,2307,817,0,")
        .Texts(u"300,150,The Smiths,Arial,8,0,")
        .Picture(number(u"001"), Qt::red)
        .Picture(number(u"002"), Qt::green)
        .Picture(number(u"003"), Qt::blue)
        .Gallery({{QString(number(u"001") + u"_01.jpg"), PictureBytes(Qt::red)},
                  {QString(number(u"001") + u"_02.jpg"), PictureBytes(Qt::blue)}})
        .Build();
}
} // namespace

Answer User::MsgBox(const QString& title, const QString& text, Buttons buttons)
{
    Told += title + u": "_s + text;
    switch (buttons) {
    case Buttons::ErrorYesNo:
    case Buttons::QuestionYesNo:
    case Buttons::QuestionYesNoDefaultNo:
    case Buttons::InformationYesNo:
        return Answer::Yes;
    case Buttons::InformationRetryCancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

World::World(PrintSystem* printer)
    : program_(std::make_unique<Program>(Platform{Machine.Windows, Person, Machine.Loop, Machine.Screen,
                                                  Machine.Clipboard, printer ? *printer : Machine.Printer,
                                                  Machine.Processes, Home.Path() + PathSeparator})),
      P(*program_)
{
    BuildHome();
    InstallHandlers(P);
    P.Branch.HomeDir = P.ExecutableDirectory;
    StartProgram(P);
    Choose(u"Smiths");
}

void World::BuildHome()
{
    WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
    WriteTemplates(Home);
    for (const QStringView file : {u"Tree99.jpg", u"GalAud.bmp", u"GalVid.bmp", u"GalTxt.bmp", u"things/new.jpg"})
        Home.WriteFile(file, PictureBytes(Qt::yellow));
    Home.WriteFile(u"things/new.wav", "RIFFxxxxWAVEfmt ");
    Home.WriteFile(u"things/new.avi", "RIFFxxxxAVI LIST");
    Home.WriteFile(u"things/new.txt", "a text");
    BuildBranch(Home, u'A');
    BuildBranch(Home, u'B');
}

void World::Click(const Event& handler)
{
    RunHandler(P, handler);
}

void World::DoubleClick(Point at)
{
    PictureBox& map = P.Form1->Picture1;
    Click([&] { map.MouseDown(leftButton, 0, at.X, at.Y); });
    Click([&] { map.MouseUp(leftButton, 0, at.X, at.Y); });
    Click(map.DblClick);
    Click([&] { map.MouseUp(leftButton, 0, at.X, at.Y); });
}

void World::Choose(QStringView name)
{
    Click(P.Form1->Open.Click);
    P.Form8->List1.SetText(name.toString());
    Click(P.Form8->Command1.Click);
}

} // namespace lineforge::faults
