#include "Failure.h"
#include "Ink.h"
#include "Menus.h"
#include "RecordView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString picture = u"LfgDat_A/A061Sub.jpg"_s; // of the number behind the last of the example

void PressInEditMenu(Tour& tour, QChar entry)
{
    AwaitRecords(tour);
    OpenMenusByKeys(tour, u"e"_s);
    tour.Hands.Press({}, entry);
}

void RecordIsAdded(Tour& tour)
{
    Expect(!tour.Home.Has(picture), u"no record of that number yet"_s);
    PressInEditMenu(tour, u'a');
    tour.Answer(u"New Database Record"_s, Key::Return);
    tour.AwaitWindow(u"New Blank Record Created"_s);
    Expect(tour.Home.Has(picture), u"the blank portrait of the new record"_s);
}

void NewRecordIsShown(Tour& tour)
{
    tour.Answer(u"New Blank Record Created"_s, Key::Return);
    tour.Await(u"its number"_s, [&] { return HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Label25)); });
    tour.Await(u"no surname"_s, [&] { return !HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Text2)); });
}

void RecordIsDeleted(Tour& tour)
{
    PressInEditMenu(tour, u'd');
    tour.Answer(u"Delete Record"_s, Key::Return);
    tour.Answer(u"Deletion of Subject Records"_s, Key::Return);
    tour.Await(u"its picture to go"_s, [&] { return !tour.Home.Has(picture); });
    tour.Await(u"another record"_s, [&] { return HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Text2)); });
    ReturnToMap(tour);
}
} // namespace

Steps AddRecordStop()
{
    return {{u"record-added"_s, RecordIsAdded},
            {u"record-new"_s, NewRecordIsShown},
            {u"record-deleted"_s, RecordIsDeleted}};
}

} // namespace lineforge::tour
