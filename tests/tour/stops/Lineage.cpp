#include "Failure.h"
#include "MapView.h"
#include "SubjectView.h"
#include "stops/Stops.h"

#include <memory>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString surname = u"hesse"_s;
const QColor green(0, 128, 0);

bool IsFramed(const Tour& tour, const QString& file)
{
    return ShowsFrame(tour, BoxOfRecord(BoxesOfMap(tour.Home.Read(MapFileOf(u'A'))), file), green);
}

void ViewFramesTheMen(Tour& tour)
{
    tour.Hands.Click(tour.OnMain(tour.MainForm.Text1).center());
    tour.Hands.Type(surname);
    tour.Hands.Click(tour.OnMain(tour.MainForm.Command3).center());
    for (const auto& man : {u"A008"_s, u"A041"_s, u"A042"_s})
        tour.Await(u"a green frame around box "_s + man, [&] { return IsFramed(tour, man); });
    Expect(!IsFramed(tour, u"A045"_s), u"no frame around a woman of the line"_s);
    Expect(!IsFramed(tour, u"A004"_s), u"no frame around a man of another"_s);
}

void ClearTakesTheFramesAway(Tour& tour, const QImage& before)
{
    tour.Hands.Click(tour.OnMain(tour.MainForm.Command4).center());
    tour.Await(u"the map as it was"_s, [&] { return MapPicture(tour) == before; });
}
} // namespace

Steps LineageStop()
{
    const auto before = std::make_shared<QImage>();
    return {{u"lineage"_s,
             [before](Tour& tour) {
                 *before = MapPicture(tour);
                 ViewFramesTheMen(tour);
             }},
            {u"lineage-cleared"_s, [before](Tour& tour) { ClearTakesTheFramesAway(tour, *before); }}};
}

} // namespace lineforge::tour
