#include "Menus.h"

#include "Failure.h"
#include "Ink.h"

#include <algorithm>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int border = 3; // pixels around what a menu or its bar shows

std::size_t IndexOf(const std::vector<MenuItem*>& items, const MenuItem& item)
{
    const auto found = std::ranges::find(items, &item);
    Expect(found != items.end(), u"the entry "_s + item.Name + u" in its menu"_s);
    return static_cast<std::size_t>(found - items.begin());
}

QString Plain(const MenuItem& item)
{
    return QString(item.Caption).remove(u'&');
}

QRect Inside(const QRect& place)
{
    return place.adjusted(border, border, -border, -border);
}

// One stretch of rows for each entry or separator; none while the menu isn't to be seen. How far a letter is from the
// line under it, is the font's matter.
std::vector<Stretch> RowsOf(const Tour& tour, const ScreenWindow& popup, const MenuItem& menu)
{
    const QImage picture = tour.PictureOf(Inside(popup.Place));
    for (const int gap : {2, 3, 4})
        if (std::vector<Stretch> rows = InkedRows(picture, gap); rows.size() == menu.Items.size())
            return rows;
    return {};
}
} // namespace

QRect PlaceInMenuBar(Tour& tour, const MenuItem& menu)
{
    constexpr double points = 8;
    const int blankBetweenWords = tour.Places.Pixels().FontPixels(points) / 2;
    const std::vector<MenuItem*>& menus = tour.MainForm.Menus;
    const QRect window = tour.MainWindow().Place;
    const QRect bar = Inside(QRect(window.topLeft(), QSize(window.width(), tour.MenuBarHeight())));
    // What has covered it may just have gone.
    std::vector<Stretch> captions;
    tour.Await(u"%1 menus in the menu bar"_s.arg(menus.size()), [&] {
        captions = InkedColumns(tour.PictureOf(bar), blankBetweenWords);
        return captions.size() == menus.size();
    });
    const Stretch& caption = captions[IndexOf(menus, menu)];
    return QRect(bar.x() + caption.First, bar.y(), caption.Length(), bar.height());
}

// The next key comes only when the menu that it is meant for is there.
void OpenMenusByKeys(Tour& tour, const QString& keys)
{
    std::size_t open = 0;
    for (const QChar key : keys) {
        if (open++ == 0)
            tour.Hands.Press({Key::Alt}, key);
        else
            tour.Hands.Press({}, key);
        tour.Await(u"%1 menus open"_s.arg(open), [&] { return tour.Screen.Popups().size() == open; });
    }
}

ScreenWindow AwaitMenu(Tour& tour, const MenuItem& menu)
{
    std::vector<ScreenWindow> popups;
    tour.Await(u"the menu \"%1\""_s.arg(Plain(menu)), [&] {
        popups = tour.Screen.Popups();
        return popups.size() == 1 && !RowsOf(tour, popups.front(), menu).empty();
    });
    return popups.front();
}

ScreenWindow OpenMenu(Tour& tour, const MenuItem& menu)
{
    tour.Hands.Click(PlaceInMenuBar(tour, menu).center());
    return AwaitMenu(tour, menu);
}

QRect PlaceInMenu(Tour& tour, const ScreenWindow& popup, const MenuItem& menu, const MenuItem& entry)
{
    const std::vector<Stretch> rows = RowsOf(tour, popup, menu);
    Expect(!rows.empty(), u"%1 rows in the menu"_s.arg(menu.Items.size()));
    const Stretch& row = rows[IndexOf(menu.Items, entry)];
    const QRect inside = Inside(popup.Place);
    return QRect(inside.x(), inside.y() + row.First, inside.width(), row.Length());
}

void Choose(Tour& tour, const MenuItem& menu, const MenuItem& submenu, const MenuItem& entry)
{
    const ScreenWindow popup = OpenMenu(tour, menu);
    tour.Hands.Click(PlaceInMenu(tour, popup, menu, submenu).center());
    std::optional<ScreenWindow> inner;
    tour.Await(u"the menu \"%1\""_s.arg(Plain(submenu)), [&] {
        for (const ScreenWindow& window : tour.Screen.Popups())
            if (window.Id != popup.Id && !RowsOf(tour, window, submenu).empty())
                inner = window;
        return inner.has_value();
    });
    tour.Hands.Click(PlaceInMenu(tour, *inner, submenu, entry).center());
    tour.AwaitGone(popup);
}

void Choose(Tour& tour, const MenuItem& menu, const MenuItem& entry)
{
    const ScreenWindow popup = OpenMenu(tour, menu);
    tour.Hands.Click(PlaceInMenu(tour, popup, menu, entry).center());
    tour.AwaitGone(popup);
}

} // namespace lineforge::tour
