#include "Ink.h"
#include "MapView.h"
#include "RecordView.h"
#include "SubjectView.h"
#include "stops/Stops.h"

#include <memory>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString subject = u"A004"_s; // shown since the stop before
const QString forename = u"Frederick"_s;
const QString otherForename = u"Fritz"_s;

QImage PictureOfSubjectsBox(const Tour& tour)
{
    return PictureOfBox(tour, BoxOfRecord(BoxesOfMap(tour.Home.Read(MapFileOf(u'A'))), subject));
}

void RecordsButtonShowsRecord(Tour& tour)
{
    constexpr int fewestColours = 50;
    const forms::Form3& form = tour.RecordForm;
    OpenRecords(tour);
    for (const Control* filled :
         std::initializer_list<const Control*>{&form.Label25, &form.Text2, &form.Text3, &form.Text23})
        tour.Await(u"a text in "_s + filled->Name, [&] { return HoldsBlackLetters(PictureOnRecords(tour, *filled)); });
    tour.Await(u"the picture of the subject"_s,
               [&] { return CountColours(PictureOnRecords(tour, form.Image1)) >= fewestColours; });
}

void TypeForename(Tour& tour, const QString& name)
{
    const TextBox& box = tour.RecordForm.Text3;
    const QImage before = PictureOnRecords(tour, box);
    tour.Hands.Click(OnRecords(tour, box).center());
    tour.Hands.Press({Key::Control}, u'a');
    tour.Hands.Type(name);
    tour.Await(u"another forename in its box"_s, [&] { return PictureOnRecords(tour, box) != before; });
}

struct MapBefore {
    QImage Box;
    QImage Panel;
};

void MapShowsTheNewForename(Tour& tour, const MapBefore& before)
{
    ReturnToMap(tour);
    tour.Await(u"another caption in the box"_s, [&] { return PictureOfSubjectsBox(tour) != before.Box; });
    tour.Await(u"another forename beside the map"_s, [&] { return PanelPicture(tour) != before.Panel; });
}

// The old name takes what it covers of the box's outline with it, so that the box isn't quite what it was.
void ForenameIsPutBack(Tour& tour, const MapBefore& before)
{
    const QImage withOtherName = PictureOfSubjectsBox(tour);
    OpenRecords(tour);
    TypeForename(tour, forename);
    ReturnToMap(tour);
    tour.Await(u"the panel as it was"_s, [&] { return PanelPicture(tour) == before.Panel; });
    tour.Await(u"another caption in the box"_s, [&] { return PictureOfSubjectsBox(tour) != withOtherName; });
}
} // namespace

Steps RecordsStop()
{
    const auto before = std::make_shared<MapBefore>();
    return {{u"records"_s,
             [before](Tour& tour) {
                 *before = {PictureOfSubjectsBox(tour), PanelPicture(tour)};
                 RecordsButtonShowsRecord(tour);
             }},
            {u"forename-typed"_s, [](Tour& tour) { TypeForename(tour, otherForename); }},
            {u"forename-on-map"_s, [before](Tour& tour) { MapShowsTheNewForename(tour, *before); }},
            {u"forename-as-before"_s, [before](Tour& tour) { ForenameIsPutBack(tour, *before); }}};
}

} // namespace lineforge::tour
