#include "RecordView.h"

#include "Ink.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString title = u"Lineforge Victoria and Albert Records."_s;
}

ScreenWindow OpenRecords(Tour& tour)
{
    tour.Hands.Click(tour.OnMain(tour.MainForm.Command1).center());
    return AwaitPaintedRecords(tour);
}

ScreenWindow AwaitPaintedRecords(Tour& tour)
{
    const ScreenWindow records = tour.AwaitFront(title);
    // On a busy machine a window is there before anything is seen in it.
    tour.Await(u"the form to be painted"_s,
               [&] { return HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Label12)); });
    return records;
}

ScreenWindow AwaitRecords(Tour& tour)
{
    return tour.AwaitWindow(title);
}

void ReturnToMap(Tour& tour)
{
    const ScreenWindow records = AwaitRecords(tour);
    tour.Hands.Click(OnRecords(tour, tour.RecordForm.Command2).center());
    tour.AwaitGone(records);
}

QRect OnRecords(Tour& tour, const Control& control)
{
    return tour.PlaceOf(AwaitRecords(tour), tour.RecordForm, control);
}

QImage PictureOnRecords(Tour& tour, const Control& control)
{
    return tour.PictureOf(OnRecords(tour, control));
}

} // namespace lineforge::tour
