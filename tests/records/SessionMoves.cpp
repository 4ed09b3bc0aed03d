#include "compare/Sides.h"
#include "program/branch/WorkDatabase.h"
#include "records/RecordSearch.h"
#include "records/SessionPlayer.h"
#include "records/SessionView.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using forms::Form3;
using forms::Form6;
using Session = LiteralSession;

const QStringList typedTexts{u""_s,       u"Smith"_s, u"jones"_s, u"Anne"_s,          u"John"_s, u"Male"_s,
                             u"Female"_s, u"Paris"_s, u"A001"_s,  u"O'Hara, [x\ny"_s, u"Zoë"_s};

QString OneOfTyped(Session& session)
{
    return typedTexts[session.Dice(static_cast<int>(typedTexts.size()))];
}

// ---- when a move can be made

bool Always(const Session& session)
{
    return session.HasBranch;
}
bool WithoutBranch(const Session& session)
{
    return session.IsMapVisible && !session.HasBranch;
}
bool OnMap(const Session& session)
{
    return session.IsMapVisible;
}
bool OnRecords(const Session& session)
{
    return session.IsFormVisible;
}
bool WithBar(const Session& session)
{
    return session.IsFormVisible && session.IsBarEnabled;
}
bool WithScanner(const Session& session)
{
    return session.IsFormVisible && session.AreTransportsEnabled && session.AreTransportsVisible;
}
bool WhileScanning(const Session& session)
{
    return session.IsTimerOn;
}
bool OnGallery(const Session& session)
{
    return session.IsGalleryVisible;
}
bool WithCompareButton(const Session& session)
{
    return session.IsMapVisible && session.IsCompareButtonVisible;
}
bool OnComparison(const Session& session)
{
    return session.IsCompareVisible;
}
bool OnEmptyComparison(const Session& session)
{
    return session.IsCompareVisible && !session.Compare.IsOpen();
}
bool OnFullComparison(const Session& session)
{
    return session.IsCompareVisible && session.Compare.IsOpen();
}

// ---- moves without a choice

MoveKind Command(const QString& name, int weight, bool (*isPossible)(const Session&), void (Session::*inModel)(),
                 const std::function<void(Program& p)>& inProgram)
{
    return {name, weight, isPossible, [=](Session&) {
                return SessionMove{{}, [inModel](Session& session) { (session.*inModel)(); }, inProgram};
            }};
}

// Behind the menu of the record form, which is opened first.
MoveKind EditEntry(const QString& name, int weight, void (Session::*inModel)(), MenuItem Form3::*entry)
{
    return {name, weight, OnRecords, [=](Session&) {
                return SessionMove{{},
                                   [inModel](Session& session) {
                                       session.OpenRecordMenu();
                                       (session.*inModel)();
                                   },
                                   [entry](Program& p) {
                                       Fire(p.Form3->mnuEdit.Click);
                                       Fire(((*p.Form3).*entry).Click);
                                   }};
            }};
}

MoveKind ClipEntry(const QString& name, int weight, void (Session::*inModel)(), MenuItem Form3::*entry)
{
    MoveKind kind = EditEntry(name, weight, inModel, entry);
    kind.KeepsSelection = true;
    return kind;
}

template <class Control>
MoveKind Compared(const QString& name, int weight, bool (*isPossible)(const Session&), void (Session::*inModel)(),
                  Control Form6::*control)
{
    return Command(name, weight, isPossible, inModel, [control](Program& p) { Fire(((*p.Form6).*control).Click); });
}

MoveKind MovingCompared(const QString& name, int weight, bool (*isPossible)(const Session&), void (Session::*inModel)(),
                        Button Form6::*button)
{
    return Command(name, weight, isPossible, inModel, [button](Program& p) { Fire(((*p.Form6).*button).Click); });
}

// ---- branches

void ChooseInList(Program& p, QChar letter)
{
    p.Form8->List1.SetText(Session::NameOf(letter));
    Fire(p.Form8->Command1.Click);
}

SessionMove OpenBranch(Session& session)
{
    const QChar letter = u"AAABBC"[session.Dice(6)];
    return {letter, [letter](Session& s) { s.OpenBranch(letter); },
            [letter](Program& p) {
                Fire(p.Form1->Open.Click);
                ChooseInList(p, letter);
            }};
}

SessionMove DoubleClick(Session& session)
{
    const int x = 1000 + 700 * session.Dice(7) + session.Dice(700);
    const int y = 600 + session.Dice(240);
    return {u"at %1,%2"_s.arg(x).arg(y), [x, y](Session& s) { s.DoubleClick(x, y); },
            [x, y](Program& p) {
                p.Mouse.DownX = x;
                p.Mouse.DownY = y;
                Fire(p.Form1->Picture1.DblClick);
            }};
}

// Another program makes a branch refuse changes of its records, or takes that back.
SessionMove Refuse(Session& session)
{
    const QChar letter = u"AB"[session.Dice(2)];
    const LiteralBranch& branch = session.Branches.at(letter);
    const bool refuses = !branch.RefusesChanges;
    const bool deletions = session.Dice(2) == 0;
    const QString database = session.DatabaseOf(letter);
    return {refuses ? u"begins in "_s + letter : u"ends in "_s + letter,
            [=](Session& s) {
                s.Branches.at(letter).RefusesChanges = refuses;
                s.Branches.at(letter).RefusesDeletions = refuses && deletions;
            },
            [=](Program& p) {
                if (p.Form3.IsLoaded() && p.Form3->Data1.IsOpen())
                    Records(p.Form3).Rest();
                if (p.Form6.IsLoaded() && p.Form6->Data1.IsOpen())
                    CompareRecords(p.Form6).Rest();
                SqliteFile file(database);
                for (const QByteArray event : {"UPDATE", "INSERT", "DELETE"}) {
                    if (refuses && (event != "DELETE" || deletions))
                        file.Execute("CREATE TRIGGER No" + event + " BEFORE " + event +
                                     " ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
                    else
                        file.Execute("DROP TRIGGER IF EXISTS No" + event);
                }
            }};
}

// ---- the record form

SessionMove Type(Session& session)
{
    // Most of all what the map shows, or keeps when the branch is closed: forename, maiden name, gender.
    constexpr int ofMap[] = {2, 15, 22};
    const int any = session.Dice(24);
    const FieldBox& box = FieldBoxes()[static_cast<std::size_t>(session.Dice(2) == 0 ? any : ofMap[any % 3])];
    const QString text = OneOfTyped(session);
    return {u"'%1' in %2"_s.arg(text, box.Field), [=](Session& s) { s.Type(box.Field, text); },
            [=](Program& p) { ((*p.Form3).*box.Box).Text = text; }};
}

int Direction(Session& session)
{
    constexpr int directions[] = {-2, -1, 1, 2};
    return directions[session.Dice(4)];
}

void StepBy(Recordset& records, int direction)
{
    if (direction == -2)
        records.MoveFirst();
    if (direction == 2)
        records.MoveLast();
    if (direction == -1 && !records.Bof())
        records.MovePrevious();
    if (direction == -1 && records.Bof())
        records.MoveFirst();
    if (direction == 1 && !records.Eof())
        records.MoveNext();
    if (direction == 1 && records.Eof())
        records.MoveLast();
}

SessionMove StepByBar(Session& session)
{
    const int direction = Direction(session);
    return {QString::number(direction), [direction](Session& s) { s.StepByBar(direction); },
            [direction](Program& p) { StepBy(Records(p.Form3), direction); }};
}

SessionMove StartScan(Session& session)
{
    constexpr int modes[] = {1, 2, 4, 5};
    const int mode = modes[session.Dice(4)];
    return {QString::number(mode), [mode](Session& s) { s.StartScan(mode); },
            [mode](Program& p) { Fire(((*p.Form3).*Form3::Transport[static_cast<std::size_t>(mode - 1)]).Click); }};
}

SessionMove SearchRecords(Session& session)
{
    const auto search = static_cast<Session::Search>(session.Dice(4));
    return {QString::number(static_cast<int>(search)), [search](Session& s) { s.SearchBy(search); },
            [search](Program& p) {
                constexpr MenuItem Form3::*entries[] = {&Form3::mnuSearchDataRef, &Form3::mnuSearchSurName,
                                                        &Form3::mnuSearchBirthPlace, &Form3::mnuSearchWord};
                Fire(p.Form3->mnuSearch.Click);
                Fire(((*p.Form3).*entries[static_cast<int>(search)]).Click);
            }};
}

SessionMove ClickBox(Session& session)
{
    const int number = 2 + session.Dice(18);
    const FieldBox& box = FieldBoxes()[static_cast<std::size_t>(number - 1)];
    const QString text = session.Shown.value(box.Field).value_or(QString());
    const int start = session.Dice(static_cast<int>(text.size()) + 1);
    const QString selection = text.mid(start, session.Dice(4));
    return {u"%1, '%2' from %3"_s.arg(QString::number(number), selection, QString::number(start)),
            [=](Session& s) { s.ClickBox(number, start, selection); },
            [=](Program& p) {
                TextBox& clicked = (*p.Form3).*box.Box;
                clicked.SelStart = start;
                clicked.SelText = selection;
                Fire(clicked.Click);
            }};
}

// ---- the comparison

SessionMove OpenCompare(Session& session)
{
    const QChar letter = u"BBBBAC"[session.Dice(6)];
    const bool isCancelled = session.Dice(8) == 0;
    return {isCancelled ? u"none"_s : QString(letter),
            [=](Session& s) { isCancelled ? s.CancelCompare() : s.OpenCompare(letter); },
            [=](Program& p) {
                Fire(p.Form6->mnuOpen.Click);
                if (p.Branch.UsingAlternate == 1)
                    return;
                if (isCancelled)
                    Fire(p.Form8->Command2.Click);
                else
                    ChooseInList(p, letter);
            }};
}

SessionMove TickKey(Session& session)
{
    const int key = session.Dice(3);
    return {QString::number(key), [key](Session& s) { s.Press(key); },
            [key](Program& p) {
                constexpr CheckBox Form6::*boxes[] = {&Form6::Check1, &Form6::Check2, &Form6::Check3};
                CheckBox& box = (*p.Form6).*boxes[key];
                box.Value = !box.Value;
            }};
}

SessionMove Next(Session& session)
{
    const bool isCompare = session.Dice(2) == 0;
    return {isCompare ? u"compare"_s : u"current"_s, [isCompare](Session& s) { s.Next(isCompare); },
            [isCompare](Program& p) { Fire(isCompare ? p.Form6->Command5.Click : p.Form6->Command6.Click); }};
}

SessionMove StepCompare(Session& session)
{
    const int direction = Direction(session);
    return {QString::number(direction), [direction](Session& s) { s.StepCompareByBar(direction); },
            [direction](Program& p) {
                StepBy(CompareRecords(p.Form6), direction);
                Fire(p.Form6->Data1.Stepped);
            }};
}

constexpr TextBox Form6::*compareBoxes[] = {&Form6::Text1, &Form6::Text2, &Form6::Text3,
                                            &Form6::Text4, &Form6::Text5, &Form6::Text6};

SessionMove TypeInComparison(Session& session)
{
    const int number = 1 + session.Dice(6);
    const QString text = OneOfTyped(session);
    return {u"%1, '%2'"_s.arg(QString::number(number), text), [=](Session& s) { s.TypeInBox(number, text); },
            [=](Program& p) { ((*p.Form6).*compareBoxes[number - 1]).Text = text; }};
}

SessionMove ClickInComparison(Session& session)
{
    const int number = 1 + session.Dice(4);
    const QString selection = OneOfTyped(session);
    return {u"%1, '%2'"_s.arg(QString::number(number), selection),
            [=](Session& s) { s.ClickCompareBox(number, selection); },
            [=](Program& p) {
                TextBox& box = (*p.Form6).*compareBoxes[number - 1];
                box.SelText = selection;
                Fire(box.Click);
            }};
}

std::vector<MoveKind> MovesOfMapAndGallery()
{
    return {
        {u"open"_s, 2, OnMap, OpenBranch},
        {u"open"_s, 80, WithoutBranch, OpenBranch},
        Command(u"close"_s, 1, OnMap, &Session::CloseBranch, [](Program& p) { Fire(p.Form1->mnuCloseDB.Click); }),
        {u"double click"_s, 8, OnMap, DoubleClick},
        Command(u"Records"_s, 8, OnMap, &Session::ShowRecords, [](Program& p) { Fire(p.Form1->Command1.Click); }),
        Command(u"View Records"_s, 2, OnMap, &Session::ShowRecords,
                [](Program& p) { Fire(p.Form1->mnuViewRecs.Click); }),
        Command(u"Gallery on the map"_s, 3, OnMap, &Session::PressGalleryOnMap,
                [](Program& p) { Fire(p.Form1->Command2.Click); }),
        Command(u"Tree on the gallery"_s, 8, OnGallery, &Session::LeaveGalleryForTree,
                [](Program& p) { Fire(p.Form5->Command1.Click); }),
        Command(u"Records on the gallery"_s, 8, OnGallery, &Session::LeaveGalleryForRecords,
                [](Program& p) { Fire(p.Form5->Command2.Click); }),
        {u"refusal"_s, 2, Always, Refuse},
    };
}

std::vector<MoveKind> MovesOfRecords()
{
    return {
        Command(u"Tree"_s, 5, OnRecords, &Session::PressTree, [](Program& p) { Fire(p.Form3->Command2.Click); }),
        Command(u"frame"_s, 1, OnRecords, &Session::PressTree, [](Program& p) { Fire(p.Form3->CloseByFrame); }),
        Command(u"Gallery"_s, 2, OnRecords, &Session::PressGalleryOnRecords,
                [](Program& p) { Fire(p.Form3->Command1.Click); }),
        Command(u"enlarge"_s, 1, OnRecords, &Session::Enlarge, [](Program& p) { Fire(p.Form3->Image1.Click); }),
        {u"type"_s, 14, OnRecords, Type},
        {u"bar"_s, 6, WithBar, StepByBar},
        {u"scan"_s, 5, WithScanner, StartScan},
        Command(u"stop"_s, 3, WithScanner, &Session::StopScan, [](Program& p) { Fire(p.Form3->Picture3.Click); }),
        Command(u"tick"_s, 30, WhileScanning, &Session::Tick, [](Program& p) { Fire(p.Form3->Timer1.Tick); }),
        {u"search"_s, 8, OnRecords, SearchRecords},
        Command(u"first record"_s, 1, Always, &Session::ShowFirstRecord,
                [](Program& p) { ShowFirstRecord(p, p.Scratch); }),
        EditEntry(u"add"_s, 4, &Session::AddRecord, &Form3::mnuAdd),
        EditEntry(u"delete"_s, 6, &Session::DeleteRecord, &Form3::mnuDelete),
        EditEntry(u"subject picture"_s, 2, &Session::ChangePicture, &Form3::mnuSubPicture),
        EditEntry(u"transfer"_s, 6, &Session::Transfer, &Form3::MnuRecTransfer),
        {u"click"_s, 4, OnRecords, ClickBox},
        ClipEntry(u"cut"_s, 3, &Session::Cut, &Form3::mnuCut),
        ClipEntry(u"copy"_s, 2, &Session::Copy, &Form3::mnuCopy),
        ClipEntry(u"paste"_s, 3, &Session::Paste, &Form3::mnuPaste),
        ClipEntry(u"copy record"_s, 2, &Session::CopyRecord, &Form3::mnuCopyRecToClip),
    };
}

std::vector<MoveKind> MovesOfComparison()
{
    return {
        Command(u"Compare Records"_s, 4, OnMap, &Session::OpenComparison,
                [](Program& p) { Fire(p.Form1->mnuComp.Click); }),
        Command(u"Compare"_s, 2, WithCompareButton, &Session::ReturnToComparison,
                [](Program& p) { Fire(p.Form1->Command5.Click); }),
        Compared(u"Tree of the comparison"_s, 2, OnComparison, &Session::ShowTree, &Form6::Command4),
        Compared(u"Exit Compare"_s, 1, OnComparison, &Session::CloseComparison, &Form6::mnuClose),
        {u"Open Compare"_s, 5, OnEmptyComparison, OpenCompare},
        {u"Open Compare"_s, 1, OnComparison, OpenCompare},
        {u"key"_s, 4, OnComparison, TickKey},
        Command(u"other direction"_s, 3, OnComparison, &Session::TurnDirection,
                [](Program& p) {
                    p.Form6->Option1.Value = !p.Form6->Option1.Value;
                    p.Form6->Option2.Value = !p.Form6->Option1.Value;
                }),
        MovingCompared(u"Search"_s, 25, OnFullComparison, &Session::SearchPairs, &Form6::Command1),
        MovingCompared(u"Search"_s, 1, OnComparison, &Session::SearchPairs, &Form6::Command1),
        MovingCompared(u"Reset"_s, 5, OnComparison, &Session::Reset, &Form6::Command2),
        {u"next"_s, 6, OnComparison, Next},
        {u"compare bar"_s, 3, OnFullComparison, StepCompare},
        Compared(u"Copy a Field"_s, 5, OnComparison, &Session::CopyField, &Form6::Command3),
        Compared(u"Copy all Fields"_s, 3, OnComparison, &Session::CopyAllFields, &Form6::Command7),
        MovingCompared(u"Append"_s, 3, OnComparison, &Session::Append, &Form6::Command8),
        {u"type in comparison"_s, 2, OnComparison, TypeInComparison},
        {u"click in comparison"_s, 4, OnComparison, ClickInComparison},
        Compared(u"copy in comparison"_s, 1, OnComparison, &Session::CopyCompare, &Form6::mnuCopy),
        Compared(u"cut in comparison"_s, 3, OnComparison, &Session::CutCompare, &Form6::mnuCut),
        Compared(u"paste in comparison"_s, 3, OnComparison, &Session::PasteCompare, &Form6::mnuPaste),
    };
}
} // namespace

const std::vector<MoveKind>& LastMoveKinds()
{
    static const std::vector<MoveKind> kinds{
        Command(
            u"close"_s, 1, [](const Session&) { return true; }, &Session::CloseBranch,
            [](Program& p) { Fire(p.Form1->mnuCloseDB.Click); }),
        Command(u"exit"_s, 1, OnRecords, &Session::Exit, [](Program& p) { Fire(p.Form3->mnuExit.Click); }),
    };
    return kinds;
}

const std::vector<MoveKind>& MoveKinds()
{
    static const std::vector<MoveKind> kinds = [] {
        std::vector<MoveKind> all;
        for (const std::vector<MoveKind>& some : {MovesOfMapAndGallery(), MovesOfRecords(), MovesOfComparison()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return kinds;
}

} // namespace lineforge
