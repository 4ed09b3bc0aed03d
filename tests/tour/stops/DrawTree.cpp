#include "Failure.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "ToolView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// Middles of boxes and ends of lines, in twips on the map.
constexpr QPoint father{2500, 1500};
constexpr QPoint mother{4500, 1500};
constexpr QPoint son{2500, 3000};
constexpr QPoint daughter{4500, 3000};
constexpr QPoint marriage{3500, 1500};
constexpr QPoint fork{3500, 2300};
constexpr QPoint mistakeBegins{1000, 4200};
constexpr QPoint mistakeEnds{2200, 4900};
constexpr QPoint title{2900, 800};
constexpr QPoint zoneBegins{600, 500};
constexpr QPoint zoneEnds{6000, 3600};
constexpr QPoint zoneTravels{900, 600};

const QString question = u"Closing Graphics Tools"_s;
const QString textQuestion = u"New Text Input"_s;
const QString titleText = u"House of Windsor"_s;

QByteArray FiledMap(const Tour& tour)
{
    return tour.Home.Read(MapFileOf(u'C'));
}

void ExpectInk(Tour& tour, const QString& what, QPoint middle)
{
    constexpr int reach = 60;
    tour.Await(what, [&] {
        return !IsOneColour(
            tour.PictureOf(PlaceOnMap(tour, {middle.x() - reach, middle.y() - reach, 2 * reach, 2 * reach})));
    });
}

void ToolsOpen(Tour& tour)
{
    OpenTools(tour);
}

void BoxesAreDrawn(Tour& tour)
{
    constexpr QPoint toTopEdge{0, -108};
    PressTool(tour, tour.MainForm.Image7);
    for (const QPoint box : {father, mother, son, daughter}) {
        tour.Hands.Click(PointOnMap(tour, box));
        ExpectInk(tour, u"a box where the mouse was"_s, box + toTopEdge);
    }
}

// With Shift a line is level or upright, however the hand shakes; with Ctrl it goes on from the end of the last.
void LinesAreDrawn(Tour& tour)
{
    constexpr QPoint halfBox{310, 0};
    constexpr QPoint sideways{40, 0}; // a hand that shakes
    constexpr QPoint downwards{0, 25};
    constexpr QPoint toBox{0, -110};
    const auto draw = [&](QPoint from, QPoint to, std::initializer_list<Key> held) {
        tour.Hands.Drag(PointOnMap(tour, from), PointOnMap(tour, to), held);
    };
    PressTool(tour, tour.MainForm.Image6);
    draw(father + halfBox, mother - halfBox + QPoint(0, 40), {Key::Shift});
    ExpectInk(tour, u"the line between the parents"_s, marriage);
    draw(marriage, fork + sideways, {Key::Shift});
    draw(mistakeEnds, QPoint(daughter.x(), fork.y()) + downwards, {Key::Shift, Key::Control});
    ExpectInk(tour, u"the line to the daughter's side"_s, QPoint(4000, fork.y()));
    draw(mistakeEnds, daughter + toBox, {Key::Shift, Key::Control});
    ExpectInk(tour, u"the line down to the daughter"_s, QPoint(daughter.x(), 2600));
    draw(fork, QPoint(son.x(), fork.y()), {});
    draw(QPoint(son.x(), fork.y()), son + toBox, {});
    ExpectInk(tour, u"the line down to the son"_s, QPoint(son.x(), 2600));
    draw(mistakeBegins, mistakeEnds, {});
    ExpectInk(tour, u"a line that nobody wants"_s, (mistakeBegins + mistakeEnds) / 2);
}

void TextIsAskedFor(Tour& tour)
{
    PressTool(tour, tour.MainForm.Image9);
    tour.Hands.Click(PointOnMap(tour, title));
    const ScreenWindow box = tour.AwaitWindow(textQuestion);
    const QImage empty = tour.PictureOf(box.Place);
    tour.Hands.Type(titleText);
    tour.Await(u"the text in the box"_s, [&] { return tour.PictureOf(box.Place) != empty; });
}

void TextStands(Tour& tour)
{
    tour.Answer(textQuestion, Key::Return);
    tour.Await(u"the text on the map"_s, [&] {
        return HoldsBlackLetters(tour.PictureOf(PlaceOnMap(tour, {title.x(), title.y() - 50, 1000, 200})));
    });
}

void LineIsDeleted(Tour& tour)
{
    const QPoint middle = (mistakeBegins + mistakeEnds) / 2;
    PressTool(tour, tour.MainForm.Image6);
    PressTool(tour, tour.MainForm.Image5);
    tour.Hands.Click(PointOnMap(tour, middle));
    tour.Await(u"the line to be gone"_s, [&] {
        return IsOneColour(tour.PictureOf(
            PlaceOnMap(tour, {mistakeBegins.x(), mistakeBegins.y(), mistakeEnds.x() - mistakeBegins.x(), 700})));
    });
    PressTool(tour, tour.MainForm.Image6);
}

void ColoursAreOffered(Tour& tour)
{
    tour.Hands.Click(tour.OnMain(tour.MainForm.Image3).center());
    tour.AwaitWindow(u"Select Color"_s);
}

void ColourStays(Tour& tour)
{
    tour.Answer(u"Select Color"_s, Key::Escape);
}

void ZoneIsDrawn(Tour& tour)
{
    PressTool(tour, tour.MainForm.Image2);
    tour.Hands.Drag(PointOnMap(tour, zoneBegins), PointOnMap(tour, zoneEnds));
    ExpectInk(tour, u"the zone's edge"_s, QPoint(zoneBegins.x(), 3000));
}

void ZoneIsMoved(Tour& tour)
{
    const QPoint start{5500, 3300};
    tour.Hands.Drag(PointOnMap(tour, start), PointOnMap(tour, start + zoneTravels));
    tour.Await(u"bare paper where the father's box was"_s, [&] {
        return IsOneColour(tour.PictureOf(PlaceOnMap(tour, {father.x() - 350, father.y() - 150, 500, 300})));
    });
    ExpectInk(tour, u"his box where the zone has gone"_s, father + zoneTravels - QPoint(0, 108));
}

void SavingIsAsked(Tour& tour)
{
    Expect(BoxesOfMap(FiledMap(tour)).empty(), u"nothing saved before the answer"_s);
    tour.Hands.Click(tour.OnMain(tour.MainForm.Image8).center());
    tour.AwaitWindow(question);
}

void TreeIsSaved(Tour& tour)
{
    constexpr std::size_t boxes = 4;
    constexpr qsizetype lines = 6;
    tour.Answer(question, Key::Return);
    tour.Await(u"four boxes in the map file"_s, [&] { return BoxesOfMap(FiledMap(tour)).size() == boxes; });
    Expect(LinesOfMap(FiledMap(tour)) == lines, u"six lines in the map file"_s);
    Expect(FiledMap(tour).contains(titleText.toUtf8()), u"the text in the map file"_s);
    tour.Await(u"the tools to go"_s, [&] { return IsOneColour(tour.PictureOf(tour.OnMain(tour.MainForm.Image2))); });
    for (const FiledBox& box : BoxesOfMap(FiledMap(tour)))
        tour.Await(u"the box again"_s, [&] { return ShowsOutline(tour, box); });
}
} // namespace

Steps DrawTreeStop()
{
    return {{u"tools"_s, ToolsOpen},
            {u"tools-boxes"_s, BoxesAreDrawn},
            {u"tools-lines"_s, LinesAreDrawn},
            {u"tools-text-asked"_s, TextIsAskedFor},
            {u"tools-text"_s, TextStands},
            {u"tools-line-deleted"_s, LineIsDeleted},
            {u"tools-colours"_s, ColoursAreOffered},
            {u"tools-colour-kept"_s, ColourStays},
            {u"tools-zone"_s, ZoneIsDrawn},
            {u"tools-zone-moved"_s, ZoneIsMoved},
            {u"tools-save"_s, SavingIsAsked},
            {u"tree-saved"_s, TreeIsSaved}};
}

} // namespace lineforge::tour
