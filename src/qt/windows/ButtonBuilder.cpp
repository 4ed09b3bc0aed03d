#include "qt/windows/ButtonBuilder.h"

#include "qt/style/ButtonLook.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace lineforge
{

namespace
{
// The toolkit itself would leave one of a set on, and would switch off others that the program means to be on.
void Show(QRadioButton& button, bool on)
{
    button.setAutoExclusive(false);
    button.setChecked(on);
    button.setAutoExclusive(true);
}

void Choose(const OptionButton& chosen, const Container& container)
{
    for (Control* control : container.Controls())
        if (auto* option = dynamic_cast<OptionButton*>(control))
            option->Value = option == &chosen;
    Fire(chosen.Click);
}

template <class Caption>
void FollowCaption(const BuildSite& site, QWidget* widget, const Control& control, Caption& caption)
{
    const QString otherwise = BorrowedName(control, *site.Container);
    site.Bindings.Follow(caption, [widget, &caption, otherwise] {
        const QString spoken = SpokenCaption(caption.value());
        widget->setAccessibleName(spoken.isEmpty() ? otherwise : spoken);
    });
}
} // namespace

void BuildWidget(const BuildSite& site, Button& button)
{
    auto* view = new ButtonView(site.Parent);
    view->setAutoDefault(true); // so that Enter presses it, too
    site.Bindings.Follow(button.Caption, [view, &button] { view->setText(button.Caption); });
    view->setIconSize(site.Scale.ToPixels(Size{button.Width, button.Height}));
    site.Bindings.Follow(button.Picture, [view, &button] { ShowOnButton(*view, button.Picture); });
    site.Bindings.Follow(button.BackColor, [view, &button] { ColourButton(*view, button.BackColor); });
    QObject::connect(view, &QPushButton::clicked, view, [gate = site.Gate, view, &button] {
        if (CanBePressed(*view))
            gate->Run(button.Click);
    });
    if (button.AccessKey != 0)
        view->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(button.AccessKey)));
    FollowCaption(site, view, button, button.Caption);
    site.Dress(view, button);
}

void BuildWidget(const BuildSite& site, CheckBox& box)
{
    auto* view = new QCheckBox(site.Parent);
    site.Bindings.Follow(box.Caption, [view, &box] { view->setText(box.Caption); });
    site.Bindings.Follow(box.Value, [view, &box] { view->setChecked(box.Value); });
    const auto click = [gate = site.Gate, view, &box] {
        gate->Run([view, &box] {
            box.Value = view->isChecked();
            Fire(box.Click);
        });
    };
    QObject::connect(view, &QCheckBox::clicked, view, click);
    WhenSwitchedUnclicked(*view, box.Value, click);
    FollowCaption(site, view, box, box.Caption);
    site.Dress(view, box);
}

void BuildWidget(const BuildSite& site, OptionButton& option)
{
    auto* view = new QRadioButton(site.Parent);
    site.Bindings.Follow(option.Caption, [view, &option] { view->setText(option.Caption); });
    site.Bindings.Follow(option.Value, [view, &option] { Show(*view, option.Value); });
    const auto click = [gate = site.Gate, view, &option, &container = *site.Container] {
        Show(*view, true); // where the program has switched on two, the toolkit has just switched this one off
        gate->Run([&option, &container] { Choose(option, container); });
    };
    QObject::connect(view, &QRadioButton::clicked, view, click);
    WhenSwitchedUnclicked(*view, option.Value, click);
    FollowCaption(site, view, option, option.Caption);
    site.Dress(view, option);
}

} // namespace lineforge
