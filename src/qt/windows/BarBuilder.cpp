#include "qt/windows/BarBuilder.h"

#include "platform/controls/DataControl.h"
#include "qt/media/PlayerView.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/RecordBar.h"
#include "qt/views/ScrollBarView.h"

namespace lineforge
{

// A value that the program sets is a change as well, as one that the user sets is.
void BuildWidget(const BuildSite& site, ScrollBar& bar)
{
    auto* view = new ScrollBarView(site.Parent);
    view->setSingleStep(bar.SmallChange);
    view->setPageStep(bar.LargeChange);
    site.Bindings.Follow(bar.Max, [view, &bar] { view->TakeMaximum(bar.Max); });
    view->Show(bar.Value);
    site.Bindings.Watch(bar.Value, [gate = site.Gate, view, &bar] {
        view->Show(bar.Value);
        gate->Run(bar.Change);
    });
    QObject::connect(view, &QScrollBar::valueChanged, view, [gate = site.Gate, &bar](int value) {
        if (gate->IsOpen())
            bar.Value = value;
    });
    site.NameForReaders(view, bar);
    site.Dress(view, bar);
}

void BuildWidget(const BuildSite& site, MultimediaControl& player)
{
    if (!player.HasPlace())
        return;
    auto* view = new PlayerView(site.Parent, player.Name, site.Scale.ToPixels(player.ScreenHeight));
    view->Pressed = [gate = site.Gate, &player](QStringView command) {
        if (gate->IsOpen())
            player.Command(command);
    };
    site.Bindings.Follow(player.IsOpen, [view, &player] { view->SetUsable(player.IsOpen); });
    site.Bindings.Follow(player.Screen, [view, &player] { view->ShowFilm(player.Screen); });
    const auto showTime = [view, &player] { view->ShowTime(player.Position, player.Length); };
    site.Bindings.Follow(player.Position, showTime);
    site.Bindings.Watch(player.Length, showTime);
    TakeFor(*view, QAccessible::Grouping);
    site.NameForReaders(view, player);
    site.Dress(view, player);
}

void BuildWidget(const BuildSite& site, DataControl& data)
{
    auto* view = new RecordBar(site.Parent, data.Name, data.Caption);
    view->Stepped = [gate = site.Gate, &data](RecordBar::Step step) {
        gate->Run([&data, step] {
            if (!data.IsOpen())
                return;
            step(data.Records());
            Fire(data.Stepped);
        });
    };
    TakeFor(*view, QAccessible::Grouping);
    view->setAccessibleName(data.SpokenName.isEmpty() ? data.Caption : data.SpokenName);
    site.Dress(view, data);
}

} // namespace lineforge
