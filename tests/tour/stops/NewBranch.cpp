#include "Failure.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString name = u"House of Windsor"_s;
const QString directory = u"LfgDat_C"_s;
const QString nameQuestion = u"New Tree Branch name"_s;
constexpr qsizetype aliasEntries = 2;

void NameIsAsked(Tour& tour)
{
    Expect(!tour.Home.Has(directory), u"no third branch yet"_s);
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.New);
    const ScreenWindow question = tour.AwaitWindow(nameQuestion);
    const QImage empty = tour.PictureOf(question.Place);
    tour.Hands.Type(name);
    tour.Await(u"the name in the box"_s, [&] { return tour.PictureOf(question.Place) != empty; });
}

void PlaceIsConfirmed(Tour& tour)
{
    tour.Hands.Press(Key::Return);
    tour.AwaitWindow(name + u" Tree Branch new Directory and Files"_s);
    Expect(!tour.Home.Has(directory), u"nothing made before the answer"_s);
}

void BranchIsMade(Tour& tour)
{
    tour.Hands.Press(Key::Return);
    tour.AwaitWindow(u"Database Empty"_s);
    for (const auto& file : {u"/LfgDat_C.cfg"_s, u"/LfgDat_C.mdb"_s, u"/LfgGal_C"_s})
        Expect(tour.Home.Has(directory + file), u"the new branch's "_s + file);
    Expect(tour.Home.Read(MapFileOf(u'C')) == tour.Home.Read(u"LfgEmpt.~cf"_s), u"an empty map in the new branch"_s);
    Expect(tour.Home.AliasLines().at(aliasEntries).endsWith(name + u"=LfgDat_C,]"_s), u"the new branch in the list"_s);
}

void MapIsEmpty(Tour& tour)
{
    tour.Answer(u"Database Empty"_s, Key::Return);
    tour.Await(u"a blank map"_s, [&] { return IsOneColour(MapPicture(tour)); });
}

void NameInOtherCaseIsTaken(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.New);
    const ScreenWindow question = tour.AwaitWindow(nameQuestion);
    tour.Hands.Type(name.toUpper());
    tour.Hands.Press(Key::Return);
    tour.AwaitGone(question);
    tour.AwaitWindow(u"Duplicate Name entered."_s);
}

void NameIsAskedAgain(Tour& tour)
{
    tour.Answer(u"Duplicate Name entered."_s, Key::Return);
    tour.AwaitWindow(nameQuestion);
}

void CancelMakesNothing(Tour& tour)
{
    tour.Answer(nameQuestion, Key::Escape);
    Expect(!tour.Home.Has(u"LfgDat_D"_s), u"no fourth branch"_s);
    Expect(tour.Home.BranchNames().size() == 3, u"three branches in the list"_s);
}
} // namespace

Steps NewBranchStop()
{
    return {{u"new-branch-name"_s, NameIsAsked},
            {u"new-branch-confirmation"_s, PlaceIsConfirmed},
            {u"new-branch-empty"_s, BranchIsMade},
            {u"new-branch"_s, MapIsEmpty}};
}

Steps DuplicateNameStop()
{
    return {{u"duplicate-name"_s, NameInOtherCaseIsTaken},
            {u"name-asked-again"_s, NameIsAskedAgain},
            {u"name-cancelled"_s, CancelMakesNothing}};
}

} // namespace lineforge::tour
