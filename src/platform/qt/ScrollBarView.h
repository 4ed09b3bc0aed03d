#pragma once

#include "platform/qt/FramePacer.h"

#include <QScrollBar>

#include <functional>

namespace lineforge
{

// An upright scroll bar from 0 to a maximum that its owner may change at any time without telling.
class ScrollBarView : public QScrollBar
{
public:
    ScrollBarView(QWidget* parent, std::function<int()> maximum);

    // Takes a value without telling of a change. However often it comes, painting keeps to the frames of the screen.
    void Show(int value);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<int()> maximum_;
    FramePacer pacer_;
};

// The bar that scrolls what stands directly in a container; null when there is none that can be used.
QScrollBar* ScrollBarIn(const QWidget& container);

// The bar that scrolls a widget: of the nearest container around it that has one.
QScrollBar* ScrollBarAround(const QWidget& widget);

} // namespace lineforge
