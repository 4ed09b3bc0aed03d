#include "BranchList.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "RecordView.h"
#include "SubjectView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString branch = u"House of Windsor"_s;
const QString existing = u"A004"_s; // of another branch

std::vector<FiledBox> FiledBoxes(const Tour& tour)
{
    return BoxesOfMap(tour.Home.Read(MapFileOf(u'C')));
}

ScreenWindow ShowOptions(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuTreeGraphics, tour.MainForm.mnuMapSubject);
    return tour.AwaitFront(tour.MappingForm.Caption);
}

void ClickOption(Tour& tour, const ScreenWindow& options, const Control& control)
{
    const QRect place = tour.PlaceOf(options, tour.MappingForm, control);
    tour.Hands.Click(QPoint(place.left() + place.height() / 2, place.center().y()));
}

void TakeOptions(Tour& tour, const ScreenWindow& options)
{
    ClickOption(tour, options, tour.MappingForm.Command1);
    tour.AwaitGone(options);
}

// The box at that row of the file, by a double click.
void MapBox(Tour& tour, std::size_t row, const QString& file)
{
    tour.Hands.DoubleClick(CentreOf(tour, FiledBoxes(tour).at(row)));
    tour.Await(u"the number "_s + file + u" in the map file"_s, [&] { return FiledBoxes(tour).at(row).File == file; });
}

void TypeInto(Tour& tour, const TextBox& box, const QString& text)
{
    AwaitPaintedRecords(tour);
    tour.Hands.Click(OnRecords(tour, box).center());
    tour.Hands.Type(text);
    tour.Await(u"a text in "_s + box.Name, [&] { return HoldsBlackLetters(PictureOnRecords(tour, box)); });
}

void NewRecordIsChosen(Tour& tour)
{
    const ScreenWindow options = ShowOptions(tour);
    const QImage before = tour.PictureOf(options.Place);
    ClickOption(tour, options, tour.MappingForm.Option4);
    tour.Await(u"a gender to be chosen"_s, [&] { return tour.PictureOf(options.Place) != before; });
}

void FirstSubjectIsWritten(Tour& tour)
{
    TakeOptions(tour, tour.AwaitWindow(tour.MappingForm.Caption));
    MapBox(tour, 0, u"C001"_s);
    tour.Await(u"the blank portrait of the new subject"_s, [&] { return tour.Home.Has(u"LfgDat_C/C001Sub.jpg"_s); });
    TypeInto(tour, tour.RecordForm.Text3, u"George"_s);
    TypeInto(tour, tour.RecordForm.Text2, u"Windsor"_s);
}

void FirstSubjectIsOnTheMap(Tour& tour)
{
    ReturnToMap(tour);
    const FiledBox box = FiledBoxes(tour).at(0);
    tour.Await(u"the number in the box"_s, [&] { return ShowsNumber(tour, box); });
    tour.Await(u"the forename in the box"_s, [&] { return ShowsForename(tour, box); });
    tour.Await(u"the portrait"_s, [&] { return !IsOneColour(tour.PictureOf(tour.OnMain(tour.MainForm.Image1))); });
}

void SecondSubject(Tour& tour)
{
    const ScreenWindow options = ShowOptions(tour);
    ClickOption(tour, options, tour.MappingForm.Option5);
    TakeOptions(tour, options);
    MapBox(tour, 1, u"C002"_s);
    TypeInto(tour, tour.RecordForm.Text3, u"Mary"_s);
    ReturnToMap(tour);
    tour.Await(u"the forename in the second box"_s, [&] { return ShowsForename(tour, FiledBoxes(tour).at(1)); });
}

void ExistingRecordIsChosen(Tour& tour)
{
    const ScreenWindow options = ShowOptions(tour);
    ClickOption(tour, options, tour.MappingForm.Option3);
    const QImage before = tour.PictureOf(options.Place);
    tour.Hands.Click(tour.PlaceOf(options, tour.MappingForm, tour.MappingForm.Text1).center());
    tour.Hands.Type(existing);
    tour.Await(u"the number in its field"_s, [&] { return tour.PictureOf(options.Place) != before; });
}

// The map comes to the front by itself, with the record's form open behind it.
void ExistingRecordIsMapped(Tour& tour)
{
    TakeOptions(tour, tour.AwaitWindow(tour.MappingForm.Caption));
    MapBox(tour, 2, existing);
    const FiledBox box = FiledBoxes(tour).at(2);
    tour.Await(u"the number in the third box"_s, [&] { return ShowsNumber(tour, box); });
    tour.Await(u"the forename of another branch in it"_s, [&] { return ShowsForename(tour, box); });
}

void ExistingRecordIsShown(Tour& tour)
{
    OpenRecords(tour);
    tour.Await(u"his forename"_s, [&] { return HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Text3)); });
    ReturnToMap(tour);
}

void TreeIsReopened(Tour& tour)
{
    const ScreenWindow list = OpenBranchList(tour);
    tour.Hands.DoubleClick(PlaceOfBranch(tour, list, tour.Home.BranchNames().indexOf(branch)).center());
    tour.AwaitGone(list);
    tour.AwaitWindow(TitleOfBranch(branch));
    const std::vector<FiledBox> boxes = FiledBoxes(tour);
    for (const FiledBox& box : boxes)
        tour.Await(u"the box of "_s + box.File, [&] { return ShowsOutline(tour, box); });
    for (const std::size_t row : {0u, 1u, 2u})
        tour.Await(u"the forename of "_s + boxes[row].File, [&] { return ShowsForename(tour, boxes[row]); });
}
} // namespace

Steps MapSubjectsStop()
{
    return {{u"mapping-options"_s, NewRecordIsChosen},
            {u"mapping-first-record"_s, FirstSubjectIsWritten},
            {u"mapping-first-on-map"_s, FirstSubjectIsOnTheMap},
            {u"mapping-second"_s, SecondSubject},
            {u"mapping-existing-options"_s, ExistingRecordIsChosen},
            {u"mapping-existing"_s, ExistingRecordIsMapped},
            {u"mapping-existing-returned"_s, ExistingRecordIsShown},
            {u"tree-reopened"_s, TreeIsReopened}};
}

} // namespace lineforge::tour
