#pragma once

#include <QLabel>

namespace lineforge
{

// A text within its place: one line, cut with an ellipsis where it is too long, or as many lines as the place is high
// for. What was cut is told by the tool tip. The text is never taken for markup.
class LabelView : public QLabel
{
public:
    explicit LabelView(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool IsOneLine() const;
};

} // namespace lineforge
