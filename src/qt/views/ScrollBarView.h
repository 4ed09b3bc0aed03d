#pragma once

#include "qt/style/FramePacer.h"

#include <QScrollBar>

namespace lineforge
{

// An upright scroll bar from 0 on, which follows values that come faster than a screen can show them.
class ScrollBarView : public QScrollBar
{
public:
    explicit ScrollBarView(QWidget* parent);

    // However often they come, painting keeps to the frames of the screen.
    // Takes a value without telling of a change.
    void Show(int value);
    // A value beyond it becomes the maximum, which is a change.
    void TakeMaximum(int maximum);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintWithNextFrame();

    FramePacer pacer_;
};

// The bar that scrolls what stands directly in a container; null when there is none that can be used.
QScrollBar* ScrollBarIn(const QWidget& container);

// The bar that scrolls a widget: of the nearest container around it that has one.
QScrollBar* ScrollBarAround(const QWidget& widget);

} // namespace lineforge
