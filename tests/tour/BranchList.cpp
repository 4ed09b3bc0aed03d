#include "BranchList.h"

#include "Ink.h"
#include "Menus.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int frame = 3; // pixels around what a list shows

QRect InsideOfList(const Tour& tour, const ScreenWindow& list)
{
    return tour.PlaceOf(list, tour.ListForm, tour.ListForm.List1).adjusted(frame, frame, -frame, -frame);
}

std::vector<Stretch> RowsOf(const Tour& tour, const ScreenWindow& list)
{
    constexpr int lettersOfOneLine = 2;
    return InkedRows(tour.PictureOf(InsideOfList(tour, list)), lettersOfOneLine);
}
} // namespace

ScreenWindow AwaitBranchList(Tour& tour, qsizetype branches)
{
    ScreenWindow list = tour.AwaitWindow(tour.ListForm.Caption);
    tour.Await(u"%1 branches in the list"_s.arg(branches),
               [&] { return static_cast<qsizetype>(RowsOf(tour, list).size()) == branches; });
    return list;
}

QRect PlaceOfBranch(const Tour& tour, const ScreenWindow& list, qsizetype index)
{
    const QRect inside = InsideOfList(tour, list);
    const Stretch row = RowsOf(tour, list).at(static_cast<std::size_t>(index));
    return QRect(inside.x(), inside.y() + row.First, inside.width(), row.Length());
}

QPoint PlaceOfButton(const Tour& tour, const ScreenWindow& list, const Button& button)
{
    return tour.PlaceOf(list, tour.ListForm, button).center();
}

ScreenWindow OpenBranchList(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.Open);
    return AwaitBranchList(tour, tour.Home.BranchNames().size());
}

QString TitleOfBranch(const QString& name)
{
    return u"Lineforge "_s + name + u" Tree Branch."_s;
}

} // namespace lineforge::tour
