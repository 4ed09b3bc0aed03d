#include "map/MapPlayer.h"

#include "map/subjects/EnterBranch.h"
#include "shell/handlers/InstallHandlers.h"

// A play's beginning, and what is done beside pressing on the map.
namespace lineforge
{

using namespace Qt::StringLiterals;
using forms::Form1;
using forms::Form7;

namespace
{
const QStringList boxLists{
    u"300,300,0,A001,Chris,1300,300,255,A002,Jane,2100,1500,0,0,,300,2500,0,A009,Gone,1200,2500,255,B001,,"_s,
    u"300,300,0,0,,"_s, u"0,0,0,"_s,
    u"300,300,0,A001,,1300,300,65280,A001,,2100,1500,0,0,,2100,2400,0,C001,,1200,1200,0,,,"_s,
    u"400,400,0,a002,,900,450,0,B002,,here,900,0,A001,,2000,there,0,0,,0,2000,0,A002,,1500,1500,0,0,,"_s};
const QStringList lineLists{
    u"500,1000,1500,1000,0,1500,1000,1500,2000,255,1500,2000,2500,2000,0,100,100,2800,2900,65280,"_s, u"0,0,0,"_s,
    u"500,1000,1500,1000,0,0,700,900,700,255,900,700,900,1900,255,"_s};
const QStringList textLists{u"300,1300,One,Arial,8,0,1800,400,Two,Courier,10,255,1000,2600,Three,Arial,8,0,"_s,
                            u"0,0,0,"_s,
                            u"300,1300,One,Courier,9,0,0,400,Two,Courier,10,255,here,2600,Three,Arial,8,0,"_s};

// The arrays know nothing of the picture's size, and a small one is painted sooner.
void MakeSmall(Program& p, int side)
{
    p.Form1->Picture1.Width = side;
    p.Form1->Picture1.Height = side;
    p.Form1->Picture1.Font = {};
}
} // namespace

Answer DecidedPrompts::MsgBox(const QString& title, const QString& text, Buttons)
{
    Told += title + u'|' + QString(text).replace(home_, u"<home>"_s);
    if (title == u"Closing Graphics Tools")
        return Next.Saves ? Answer::Yes : Answer::No;
    if (title == u"New Subject Mapping")
        return Next.ChangesPicture ? Answer::Yes : Answer::No;
    if (title == u"Subject re Position")
        return Next.Begins ? Answer::Ok : Answer::Cancel;
    if (title == u"Data link Transfer")
        return Next.Selects ? Answer::Ok : Answer::Cancel;
    return Answer::Ok;
}

QString DecidedPrompts::InputBox(const QString&, const QString&)
{
    return Next.Text;
}

std::optional<Colour> DecidedPrompts::PickColour(Colour)
{
    return Next.ChosenColour;
}

std::optional<TextFont> DecidedPrompts::PickFont(const TextFont&)
{
    if (!Next.ChosenFont)
        return {};
    return TextFont{Next.ChosenFont->Name, Next.ChosenFont->Size, true};
}

std::optional<QString> DecidedPrompts::OpenFile(const FileQuestion&)
{
    return Next.ChoosesPicture ? std::optional<QString>(home_ + u"Tree99.jpg") : std::nullopt;
}

std::optional<QString> DecidedPrompts::SaveFile(const FileQuestion&)
{
    ADD_FAILURE() << "no file is to be saved";
    return {};
}

void DecidedPrompts::PickPrinter()
{
    ADD_FAILURE() << "no printer is to be chosen";
}

void DecidedPrompts::ShowHelp(const QString&)
{
    ADD_FAILURE() << "no help is to be shown";
}

MapPlayer::MapPlayer(unsigned seed, SecondProgram& painter)
    : random_(seed), painter_(painter), ofA_(Some({{u"A001"_s, u"Christopher"_s, u"Male"_s},
                                                   {u"A002"_s, u"Jane"_s, u"Female"_s},
                                                   {u"A003"_s, u"Kim"_s, u""_s}})),
      ofB_(Some({{u"B001"_s, u"Tom"_s, u"Male"_s}, {u"B002"_s, u"Ann, Eve"_s, u"Female"_s}})), model_(ofA_, ofB_),
      boxes_(AnyOf(boxLists)), lines_(AnyOf(lineLists)), texts_(AnyOf(textLists))
{
    Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::yellow));
    WriteAliasList(Home, {});
    InstallHandlers(P);
    P.Branch.HomeDir = P.ExecutableDirectory;
    MakeSmall(P, side);
    MakeSmall(painter_.P, side);
    P.Form1->MMControl1.Act = [this](QStringView) { ++sounds_; };
    BuildBranch(u'A', ofA_);
    BuildBranch(u'B', ofB_);
    Open();
    model_.OpenBranch(boxes_, lines_, texts_);
}

// False when model and program differ; `Log` tells the way there.
bool MapPlayer::Step()
{
    Decide();
    Act();
    Compare();
    return difference_.isEmpty();
}

MapPlayer::RecordList MapPlayer::Some(const RecordList& records)
{
    return OneIn(6) ? RecordList() : records;
}

void MapPlayer::BuildBranch(QChar letter, const RecordList& records)
{
    BranchBuilder branch(Home, letter);
    for (const MapModel::Record& record : records) {
        branch.Row({{u"File", record.File}, {u"Forename", record.Forename}, {u"Gender", record.Gender}});
        Home.WriteFile(QString(u"LfgDat_%1/%2Sub.jpg"_s.arg(letter).arg(record.File)), PictureBytes(Qt::yellow));
    }
    if (letter == u'A')
        branch.Boxes(boxes_).Lines(lines_).Texts(texts_);
    branch.Build();
}

void MapPlayer::Open()
{
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");
    OpenWorkDatabase(P);
    PutMapAway(P);
    DrawBranchMap(P);
    P.Form3.Load();
}

void MapPlayer::Decide()
{
    static const QStringList texts{u""_s, u"The Smiths"_s, u"x"_s, u"1801 - 1870"_s, u"[Lines]"_s, u"Smith, Jo"_s};
    static const std::optional<unsigned> colours[] = {{}, 0U, 0x0000FFU, 0xFF8000U, 0xFFFFFFU};
    static const std::optional<MapModel::Font> fonts[] = {
        {}, MapModel::Font{}, MapModel::Font{u"Arial"_s, 14.25}, MapModel::Font{u"Courier"_s, 10}};
    MapModel::Answers& next = model_.Next;
    next.Text = texts[OneIn(12) ? 5 : Any(0, 4)];
    next.ChosenColour = colours[Any(0, 4)];
    next.ChosenFont = fonts[Any(0, 3)];
    next.Saves = OneIn(2);
    next.ChangesPicture = OneIn(2);
    next.ChoosesPicture = OneIn(2);
    next.Begins = !OneIn(6);
    next.Selects = !OneIn(6);
    prompts_.Next = next;
}

void MapPlayer::Act()
{
    if (P.Tools.ToolMode == ToolsOpen)
        ActWithTools();
    else
        ActOnTheMap();
}

void MapPlayer::ActWithTools()
{
    const int what = Any(1, 100);
    if (what <= 30)
        PressButton();
    else if (what <= 90)
        MakeGesture();
    else if (what <= 93)
        Exit();
    else if (what <= 94)
        Do(
            u"tree menu"_s, [&] { P.Form1->mnuTreeGraphics.Click(); }, [&] { model_.OpenTreeMenu(); });
    else if (what <= 95)
        OpenTools();
    else if (what <= 96)
        MapSubject();
    else if (what <= 97)
        GoToRecordsAndBack();
    else if (what <= 98)
        View();
    else
        Clear();
}

void MapPlayer::ActOnTheMap()
{
    const int what = Any(1, 100);
    if (what <= 30)
        OpenTools();
    else if (what <= 40)
        MapSubjectOnBox();
    else if (what <= 45)
        MapSubject();
    else if (what <= 65)
        DoubleClick(AnyPress());
    else if (what <= 75)
        MoveSubject();
    else if (what <= 80)
        Remap();
    else if (what <= 88)
        GoToRecordsAndBack();
    else if (what <= 95)
        MakeGesture();
    else if (P.Form1->Image8.Visible)
        OneIn(2) ? Exit() : Clear();
    else if (what <= 97 && P.Branch.UsingAlternate == 0)
        Do(
            u"open again"_s, [&] { Open(); }, [&] { model_.OpenAgain(); });
    else
        MoveCursor();
}

void MapPlayer::MapSubjectOnBox()
{
    MapSubject();
    DoubleClick(AnyGripOfBox());
    if (OneIn(2))
        GoToRecordsAndBack();
}

void MapPlayer::Remap()
{
    Do(
        u"remap"_s,
        [&] {
            P.Form1->mnuTreeGraphics.Click();
            P.Form1->mnuRemap.Click();
        },
        [&] { model_.Remap(); });
}

// The first double click chooses the old box, the second the new one, beside all of them now and then.
void MapPlayer::MoveSubject()
{
    Remap();
    DoubleClick(AnyGripOfBox());
    if (OneIn(3))
        DoubleClick(AnyPoint());
    DoubleClick(AnyGripOfBox());
}

void MapPlayer::MoveCursor()
{
    if (Records(P.Form3).HasRow() && OneIn(2))
        Do(
            u"next record"_s, [&] { Records(P.Form3).MoveNext(); }, [&] { model_.StepToNextRecord(); });
    else
        Do(
            u"search"_s, [&] { Records(P.Form3).Seek(u"File", u"nobody"_s); }, [&] { model_.SearchInVain(); });
}

void MapPlayer::OpenTools()
{
    Do(
        u"tree tools"_s,
        [&] {
            P.Form1->mnuTreeGraphics.Click();
            P.Form1->mnuTreeTools.Click();
        },
        [&] {
            model_.OpenTreeMenu();
            model_.OpenTools();
        });
}

void MapPlayer::Exit()
{
    Do(
        u"exit %1"_s.arg(model_.Next.Saves), [&] { P.Form1->Image8.Click(); }, [&] { model_.PressImage(8); });
}

void MapPlayer::View()
{
    P.Form1->Text1.Text = u"Nobody"_s;
    Do(
        u"view"_s, [&] { P.Form1->Command3.Click(); }, [&] { model_.PressView(); });
}

void MapPlayer::Clear()
{
    Do(
        u"clear"_s, [&] { P.Form1->Command4.Click(); }, [&] { model_.PressClear(); });
}

void MapPlayer::PressButton()
{
    constexpr std::pair<int, Image Form1::*> buttons[] = {
        {2, &Form1::Image2}, {3, &Form1::Image3}, {4, &Form1::Image4}, {5, &Form1::Image5}, {6, &Form1::Image6},
        {7, &Form1::Image7}, {9, &Form1::Image9}, {2, &Form1::Image2}, {5, &Form1::Image5}};
    const auto [image, button] = buttons[Any(0, 8)];
    Do(
        u"image %1"_s.arg(image), [&] { ((*P.Form1).*button).Click(); }, [&] { model_.PressImage(image); });
}

void MapPlayer::MapSubject()
{
    static const QStringList numbers{u"A001"_s, u"a002"_s, u"A009"_s, u"A01"_s, u"B001"_s,
                                     u"b002"_s, u"B009"_s, u"B,01"_s, u"A[02"_s};
    MapModel::Mapping mapping;
    mapping.Option = Any(0, 2);
    mapping.Number = mapping.Option == 0 ? u""_s : numbers[Any(0, 8)];
    mapping.Gender = OneIn(3) ? u"Female"_s : u"Male"_s;
    mapping.SelectsPicture = OneIn(4);
    Do(
        u"map %1 %2"_s.arg(mapping.Option).arg(mapping.Number), [&] { AnswerForm7(mapping); },
        [&] { model_.MapSubject(mapping); });
}

void MapPlayer::AnswerForm7(const MapModel::Mapping& mapping)
{
    constexpr OptionButton Form7::*options[] = {&Form7::Option1, &Form7::Option2, &Form7::Option3};
    P.Form1->mnuTreeGraphics.Click();
    P.Form1->mnuMapSubject.Click();
    Form7& form = *P.Form7;
    (form.*options[mapping.Option]).Click();
    form.Text1.Text = mapping.Number;
    form.Option4.Value = mapping.Gender == u"Male";
    form.Option5.Value = mapping.Gender == u"Female";
    form.Option6.Value = !mapping.SelectsPicture;
    form.Option7.Value = mapping.SelectsPicture;
    form.Command1.Click();
}

void MapPlayer::GoToRecordsAndBack()
{
    static const QStringList names{u"Jo"_s, u"Jo, An"_s, u"Maximilian"_s, u"[x"_s, u"Mary Louise"_s, u"jane"_s};
    // After a mapping the record form is there already.
    if (P.Tools.MapCursorMode != MapCursor::Mapping || OneIn(3))
        Do(
            u"records %1"_s.arg(model_.Next.Saves), [&] { P.Form1->Command1.Click(); }, [&] { model_.PressRecords(); });
    const std::optional<QString> typed =
        Records(P.Form3).HasRow() && OneIn(2) ? std::optional(names[Any(0, 5)]) : std::nullopt;
    Do(
        u"tree %1"_s.arg(typed.value_or(u"-"_s)),
        [&] {
            if (typed)
                P.Form3->Text3.Text = *typed;
            P.Form3->Command2.Click();
        },
        [&] { model_.PressTree(typed); });
}

} // namespace lineforge
