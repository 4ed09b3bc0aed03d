#include "BranchList.h"
#include "Failure.h"
#include "Ink.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString otherDatabase = u"LfgDat_B/LfgDat_B.mdb"_s;

ScreenWindow AwaitComparison(Tour& tour)
{
    return tour.AwaitWindow(tour.CompareForm.Caption);
}

QRect OnComparison(Tour& tour, const Control& control)
{
    return tour.PlaceOf(AwaitComparison(tour), tour.CompareForm, control);
}

QImage Picture(Tour& tour, const Control& control)
{
    return tour.PictureOf(OnComparison(tour, control));
}

void Press(Tour& tour, const Control& button)
{
    tour.Hands.Click(OnComparison(tour, button).center());
}

void FirstRecordIsShown(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuEdit, tour.MainForm.mnuDataBase, tour.MainForm.mnuComp);
    AwaitComparison(tour);
    tour.Await(u"the portrait of the current record"_s,
               [&] { return !IsOneColour(Picture(tour, tour.CompareForm.Image1)); });
}

void OtherBranchIsOpened(Tour& tour)
{
    AwaitComparison(tour);
    OpenMenusByKeys(tour, u"f"_s);
    tour.Hands.Press({}, u'm');
    const ScreenWindow list = AwaitBranchList(tour, tour.Home.BranchNames().size());
    tour.Hands.DoubleClick(PlaceOfBranch(tour, list, 1).center());
    tour.AwaitGone(list);
    tour.Await(u"the portrait of the other branch"_s,
               [&] { return !IsOneColour(Picture(tour, tour.CompareForm.Image2)); });
}

void SameSurnameIsFound(Tour& tour)
{
    const QRect box = OnComparison(tour, tour.CompareForm.Check2);
    tour.Hands.Click(QPoint(box.left() + box.height() / 2, box.center().y()));
    const QImage before = Picture(tour, tour.CompareForm.Frame6);
    Press(tour, tour.CompareForm.Command1);
    tour.Await(u"the field that differs"_s, [&] { return Picture(tour, tour.CompareForm.Frame6) != before; });
}

void NextDifferenceIsShown(Tour& tour)
{
    const QImage before = Picture(tour, tour.CompareForm.Frame5);
    Press(tour, tour.CompareForm.Command1);
    tour.Await(u"the next field that differs"_s, [&] { return Picture(tour, tour.CompareForm.Frame5) != before; });
}

void FieldIsCopied(Tour& tour)
{
    const QByteArray before = tour.Home.Read(otherDatabase);
    Press(tour, tour.CompareForm.Command3);
    tour.Await(u"the field in the other database"_s, [&] { return tour.Home.Read(otherDatabase) != before; });
}

void RecordIsAppended(Tour& tour)
{
    const QByteArray before = tour.Home.Read(otherDatabase);
    Press(tour, tour.CompareForm.Command8);
    tour.Answer(u"Append Record to Database."_s, Key::Return);
    tour.Await(u"the record in the other database"_s, [&] { return tour.Home.Read(otherDatabase).contains("Z001"); });
    Expect(!before.contains("Z001"), u"no record of that number before"_s);
}

void ComparisonIsClosed(Tour& tour)
{
    const ScreenWindow window = AwaitComparison(tour);
    OpenMenusByKeys(tour, u"f"_s);
    tour.Hands.Press(Key::Up);
    tour.Hands.Press(Key::Return);
    tour.AwaitGone(window);
}
} // namespace

Steps CompareStop()
{
    return {{u"compare"_s, FirstRecordIsShown},       {u"compare-opened"_s, OtherBranchIsOpened},
            {u"compare-same"_s, SameSurnameIsFound},  {u"compare-next"_s, NextDifferenceIsShown},
            {u"compare-copied"_s, FieldIsCopied},     {u"compare-appended"_s, RecordIsAppended},
            {u"compare-closed"_s, ComparisonIsClosed}};
}

} // namespace lineforge::tour
