#include "Ink.h"
#include "Menus.h"
#include "RecordView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString question = u"Search Database"_s;
const QString found = u"Search Word Found"_s;

// By the keys that the menu underlines.
void AskFor(Tour& tour, QChar entry, const QString& text)
{
    AwaitRecords(tour);
    OpenMenusByKeys(tour, u"s"_s);
    tour.Hands.Press({}, entry);
    const ScreenWindow box = tour.AwaitWindow(question);
    const QImage empty = tour.PictureOf(box.Place);
    tour.Hands.Type(text);
    tour.Await(u"the text in the box"_s, [&] { return tour.PictureOf(box.Place) != empty; });
    tour.Hands.Press(Key::Return);
    tour.AwaitGone(box);
}

QImage Number(Tour& tour)
{
    return PictureOnRecords(tour, tour.RecordForm.Label25);
}

void SurnameIsFound(Tour& tour)
{
    OpenRecords(tour);
    AskFor(tour, u'n', u"hesse"_s);
    tour.AwaitWindow(found);
}

void SearchGoesOnAndStops(Tour& tour)
{
    tour.Answer(found, Key::Return);
    tour.Answer(found, Key::Escape);
    tour.Await(u"the surname found"_s,
               [&] { return HoldsBlackLetters(PictureOnRecords(tour, tour.RecordForm.Text2)); });
}

void NumberIsFound(Tour& tour)
{
    const QImage before = Number(tour);
    AskFor(tour, u'r', u"a010"_s);
    tour.Await(u"another number"_s, [&] { return Number(tour) != before; });
}

void BirthPlaceIsFound(Tour& tour)
{
    AskFor(tour, u'b', u"castle"_s);
    tour.Answer(found, Key::Escape);
}

void WordIsNotFound(Tour& tour)
{
    AskFor(tour, u'w', u"xyzzy"_s);
    tour.AwaitWindow(u"Database Result"_s);
}

void FirstRecordAgain(Tour& tour)
{
    tour.Answer(u"Database Result"_s, Key::Return);
    AskFor(tour, u'r', u"A001"_s);
    tour.Await(u"a number"_s, [&] { return HoldsBlackLetters(Number(tour)); });
}
} // namespace

Steps SearchStop()
{
    return {{u"search-surname"_s, SurnameIsFound},      {u"search-surname-ended"_s, SearchGoesOnAndStops},
            {u"search-number"_s, NumberIsFound},        {u"search-birth-place"_s, BirthPlaceIsFound},
            {u"search-word-missing"_s, WordIsNotFound}, {u"search-first-again"_s, FirstRecordAgain}};
}

} // namespace lineforge::tour
