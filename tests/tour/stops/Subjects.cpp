#include "Ink.h"
#include "MapView.h"
#include "SubjectView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QColor blue(0, 0, 255); // of the marker on a man's box

void DoubleClickShowsHim(Tour& tour, const QString& file)
{
    const QImage before = PanelPicture(tour);
    const FiledBox box = BoxOfRecord(BoxesOfMap(tour.Home.Read(MapFileOf(u'A'))), file);
    tour.Hands.DoubleClick(CentreOf(tour, box));
    tour.Await(u"another subject beside the map"_s, [&] { return PanelPicture(tour) != before; });
    tour.Await(u"a picture of the subject"_s, [&] { return ShowsSubjectPicture(tour); });
    tour.Await(u"the marker on box "_s + file, [&] { return ShowsMarker(tour, box, blue); });
}

void DoubleClickShowsSubject(Tour& tour)
{
    DoubleClickShowsHim(tour, u"A002"_s);
}

void DoubleClickShowsSubjectOfSibling(Tour& tour)
{
    DoubleClickShowsHim(tour, u"B013"_s);
}

void DoubleClickReturns(Tour& tour)
{
    DoubleClickShowsHim(tour, u"A004"_s);
}
} // namespace

Steps SubjectsStop()
{
    return {{u"subject"_s, DoubleClickShowsSubject},
            {u"subject-of-other-branch"_s, DoubleClickShowsSubjectOfSibling},
            {u"subject-again-of-this-branch"_s, DoubleClickReturns}};
}

} // namespace lineforge::tour
