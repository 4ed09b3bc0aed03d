#pragma once

#include <QScrollBar>

#include <functional>

namespace lineforge
{

// An upright scroll bar from 0 to a maximum that its owner may change at any time without telling.
class ScrollBarView : public QScrollBar
{
public:
    ScrollBarView(QWidget* parent, std::function<int()> maximum);

    // Shows a value without telling of a change.
    void Show(int value);

protected:
    bool event(QEvent* event) override;

private:
    std::function<int()> maximum_;
};

} // namespace lineforge
