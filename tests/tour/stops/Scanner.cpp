#include "Failure.h"
#include "RecordView.h"
#include "SubjectView.h"
#include "stops/Stops.h"

#include <memory>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
struct RecordBefore {
    QImage Number;
    QImage FastForward;
    QImage Stop;
    QImage Panel; // beside the map
};

void FastForwardIsPressed(Tour& tour, RecordBefore& before)
{
    const forms::Form3& form = tour.RecordForm;
    before.Panel = PanelPicture(tour);
    OpenRecords(tour);
    before.Number = PictureOnRecords(tour, form.Label25);
    before.FastForward = PictureOnRecords(tour, form.Picture1);
    before.Stop = PictureOnRecords(tour, form.Picture3);
    tour.Hands.Click(OnRecords(tour, form.Picture1).center());
    tour.Await(u"the button to be down"_s, [&] { return PictureOnRecords(tour, form.Picture1) != before.FastForward; });
    tour.Await(u"the stop button to come up"_s, [&] { return PictureOnRecords(tour, form.Picture3) != before.Stop; });
    tour.Await(u"another record"_s, [&] { return PictureOnRecords(tour, form.Label25) != before.Number; });
}

void ScanEndsByItself(Tour& tour, const RecordBefore& before)
{
    const forms::Form3& form = tour.RecordForm;
    tour.Await(u"the stop button to be down"_s, [&] { return PictureOnRecords(tour, form.Picture3) == before.Stop; });
    const QImage last = PictureOnRecords(tour, form.Label25);
    Expect(last != before.Number, u"another record than at the start"_s);
}

void MapShowsTheLastSubject(Tour& tour, const RecordBefore& before)
{
    ReturnToMap(tour);
    tour.Await(u"another subject beside the map"_s, [&] { return PanelPicture(tour) != before.Panel; });
}
} // namespace

Steps ScannerStop()
{
    const auto before = std::make_shared<RecordBefore>();
    return {{u"scanner-runs"_s, [before](Tour& tour) { FastForwardIsPressed(tour, *before); }},
            {u"scanner-at-the-end"_s, [before](Tour& tour) { ScanEndsByItself(tour, *before); }},
            {u"last-subject"_s, [before](Tour& tour) { MapShowsTheLastSubject(tour, *before); }}};
}

} // namespace lineforge::tour
