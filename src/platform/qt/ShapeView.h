#pragma once

#include <QColor>
#include <QWidget>

namespace lineforge
{

// The outline of an upright oval, which the mouse goes through.
class ShapeView : public QWidget
{
public:
    ShapeView(QWidget* parent, int penPixels, bool filled);
    void SetColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
    int penPixels_;
    bool filled_;
};

} // namespace lineforge
