#pragma once

#include <QEvent>
#include <QWidget>

namespace lineforge
{

// Counts how often a widget paints itself.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        Paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int Paints = 0;
};

} // namespace lineforge
