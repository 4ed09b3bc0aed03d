#include "qt/windows/BuildSite.h"

#include "qt/views/AccessibleName.h"

namespace lineforge
{

void BuildSite::Dress(QWidget* widget, Control& control) const
{
    widget->setToolTip(control.ToolTipText.toHtmlEscaped());
    Dress(widget, control, [widget, &control, scale = Scale] {
        widget->setGeometry(scale.ToPixels(Rectangle{control.Left, control.Top, control.Width, control.Height}));
    });
}

void BuildSite::Dress(QWidget* widget, Control& control, const std::function<void()>& place) const
{
    widget->setObjectName(control.Name);
    place();
    for (QProperty<int>* length : {&control.Left, &control.Top, &control.Width, &control.Height})
        Bindings.Watch(*length, place);
    Bindings.Follow(control.Visible, [widget, &control] { widget->setVisible(control.Visible); });
    Bindings.Follow(control.Enabled, [widget, &control] { widget->setEnabled(control.Enabled); });
}

void BuildSite::NameForReaders(QWidget* widget, const Control& control) const
{
    const auto name = [widget, &control, &container = *Container] {
        const QString spoken = BorrowedName(control, container);
        widget->setAccessibleName(spoken);
        widget->setAccessibleDescription(spoken == control.ToolTipText ? QString() : control.ToolTipText);
    };
    name();
    if (Frame)
        Bindings.Watch(Frame->Caption, name);
}

} // namespace lineforge
