#include "monkey/Sight.h"

#include "monkey/Hands.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "support/Windows.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace lineforge::monkey
{

namespace
{
// What a user has in mind when he takes a window in hand; the rest is decoration.
bool IsUsable(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractScrollArea*>(widget) ||
           widget->objectName().startsWith(u"Image");
}

bool IsTextBox(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || widget->inherits("QPlainTextEdit") ||
           widget->inherits("QTextEdit");
}

bool IsAny(const QWidget*)
{
    return true;
}

QList<QWidget*> ControlsOf(const QWidget& window, bool (*isWanted)(const QWidget*))
{
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && !Seen(*widget).isEmpty() && isWanted(widget))
            controls += widget;
    return controls;
}
} // namespace

QMenuBar* MenuBarOf(const QWidget& window)
{
    auto* bar = window.findChild<QMenuBar*>();
    return bar && bar->isVisible() ? bar : nullptr;
}

QList<QAction*> CommandsOf(const QList<QAction*>& menus)
{
    QList<QAction*> commands;
    for (QAction* action : menus) {
        if (!action->isEnabled())
            continue;
        if (action->menu())
            commands += CommandsOf(action->menu()->actions());
        else if (!action->isSeparator())
            commands += action;
    }
    return commands;
}

bool LeadsTo(QAction* menu, const QString& command)
{
    return std::ranges::any_of(CommandsOf({menu}), [&](const QAction* one) { return one->objectName() == command; });
}

QList<QWidget*> TextBoxesOf(const QWidget& window)
{
    return ControlsOf(window, IsTextBox);
}

bool Sight::HasMenus() const
{
    return std::ranges::any_of(WindowsOnScreen(), [](const QWidget* window) { return MenuBarOf(*window); });
}

bool Sight::HasTextBoxes() const
{
    return std::ranges::any_of(WindowsOnScreen(),
                               [](const QWidget* window) { return !TextBoxesOf(*window).isEmpty(); });
}

bool Sight::HasNoBranch() const
{
    return program_.Branch.WorkDir.isEmpty() && Map() && !ListOfBranches();
}

QWidget* Sight::ListOfBranches() const
{
    if (!program_.Form8.IsLoaded() || !program_.Form8->Visible || program_.Form8->List1.Items.value().isEmpty())
        return nullptr;
    return machine_.Windows().WidgetOf(*program_.Form8)->findChild<QAbstractItemView*>();
}

QWidget* Sight::Map() const
{
    if (!program_.Form1.IsLoaded())
        return nullptr;
    const QWidget* window = machine_.Windows().WidgetOf(*program_.Form1);
    return window && window->isVisible() ? window->findChild<QWidget*>(program_.Form1->Picture1.Name) : nullptr;
}

QWidget& Sight::AnyWindow()
{
    if (QWidget* active = QApplication::activeWindow(); active && active->isVisible() && chance_.Percent(70))
        return *active;
    return *chance_.OneOf(WindowsOnScreen());
}

QWidget& Sight::AnyControl(QWidget& window)
{
    const QList<QWidget*> usable = ControlsOf(window, IsUsable);
    if (!usable.isEmpty() && chance_.Percent(75))
        return *chance_.OneOf(usable);
    const QList<QWidget*> all = ControlsOf(window, IsAny);
    return all.isEmpty() ? window : *chance_.OneOf(all);
}

// Of a list mostly one of its lines.
QPoint Sight::PlaceOn(const QWidget& widget)
{
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget); list && !chance_.OneIn(6))
        if (const int lines = list->model()->rowCount(); lines > 0)
            return list->visualRect(list->model()->index(chance_.Below(lines), 0)).center();
    const QRect seen = Seen(widget);
    if (seen.isEmpty())
        return widget.rect().center();
    return {chance_.Between(seen.left(), seen.right()), chance_.Between(seen.top(), seen.bottom())};
}

QPoint Sight::PlaceOnMap()
{
    constexpr QPoint size(615, 375); // of a box, in twips
    const auto pixels = [this](QPoint twips) {
        return QPoint(machine_.PixelScale().ToPixels(twips.x()), machine_.PixelScale().ToPixels(twips.y()));
    };
    const QWidget& map = *Map();
    const MapState& state = program_.Map;
    QList<QPoint> boxes;
    for (int row = state.BoxArr.First(); row <= state.BoxArr.Last(); ++row) {
        const auto& box = state.BoxArr[row];
        const QPoint corner(box[BoxColumn::X].NumberOr(0), box[BoxColumn::Y].NumberOr(0));
        if (corner.x() != 0 && Seen(map).contains(pixels(corner)))
            boxes += corner;
    }
    if (boxes.isEmpty() || chance_.OneIn(3))
        return PlaceOn(map);
    const QPoint box = chance_.OneOf(boxes);
    const int across = chance_.Below(size.x());
    return pixels(box + QPoint(across, chance_.Below(size.y())));
}

} // namespace lineforge::monkey
