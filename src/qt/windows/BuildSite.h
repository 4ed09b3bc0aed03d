#pragma once

#include "platform/controls/Controls.h"
#include "qt/events/Bindings.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/Scale.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace lineforge
{

// Where a widget is built and by what it is kept in step with its control, and what all kinds have in common.
struct BuildSite {
    // Name, tool tip, place, being visible and enabled.
    void Dress(QWidget* widget, Control& control) const;
    // The same for a widget that finds its place itself, without the tool tip.
    void Dress(QWidget* widget, Control& control, const std::function<void()>& place) const;
    // What it is called when it is read aloud.
    void NameForReaders(QWidget* widget, const Control& control) const;

    lineforge::Scale Scale;
    std::shared_ptr<const lineforge::Gate> Gate;
    lineforge::Bindings& Bindings;
    const lineforge::Container* Container = nullptr; // whose controls are built
    lineforge::Frame* Frame = nullptr;               // that they stand in, if in any
    QWidget* Parent = nullptr;
};

} // namespace lineforge
