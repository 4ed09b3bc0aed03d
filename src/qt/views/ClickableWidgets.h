#pragma once

#include <QGroupBox>
#include <QImage>
#include <QPixmap>
#include <QProperty>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace lineforge
{

// Whether a press would reach the widget: it is enabled, and no box waits for an answer first.
bool CanBePressed(const QWidget& widget);

// The bare area of a window below its menus. A click on anything that stands in it is not a click on it.
class ClientArea : public QWidget
{
public:
    using QWidget::QWidget;
    std::function<void()> Clicked;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // The map has no wheel of its own: the window's scroll bar takes it, wherever the pointer is.
    void wheelEvent(QWheelEvent* event) override;
};

// A titled border, the title in the border's line. Labels and pictures that take no clicks themselves count as part
// of it.
class FrameView : public QGroupBox
{
public:
    using QGroupBox::QGroupBox;
    std::function<void()> Clicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

// A button with a caption or a picture. A picture covers what the style shows of the focus.
class ButtonView : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A picture stretched to the widget, scaled once for each picture and size. One that takes the focus is a button for
// the keyboard and for readers.
class ImageView : public QWidget
{
public:
    explicit ImageView(QWidget* parent);
    void Show(const QImage& picture);
    const QImage& Picture() const { return picture_; }
    // What a click does.
    void Press() const;
    std::function<bool()> TakesClicks;
    std::function<void()> Clicked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void DrawPicture(QPainter& painter);

    QImage picture_;
    QPixmap scaled_;
};

// Tells of clicks on a widget that has a use for the mouse itself.
class ClickWatcher : public QObject
{
public:
    // `watched` is the part that the mouse meets, the owner of the watcher too.
    ClickWatcher(QWidget* watched, std::function<void()> clicked);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> clicked_;
};

// The same by Ctrl and the space bar, for a field of text; what is selected in it stays so.
void ClickByKey(QWidget& field, std::function<void()> clicked);

// Tells of Enter and Return in a widget that has no use for them.
void OnEnter(QWidget& widget, const std::function<void()>& entered);

// Tells when readers have switched a button, which is no click to the toolkit. `value` is what it should show.
void WhenSwitchedUnclicked(QAbstractButton& button, const QProperty<bool>& value, std::function<void()> switched);

} // namespace lineforge
