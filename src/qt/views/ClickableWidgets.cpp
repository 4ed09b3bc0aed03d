#include "qt/views/ClickableWidgets.h"

#include "qt/events/Keys.h"
#include "qt/style/Outlines.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ScrollBarView.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyleOption>
#include <QWheelEvent>

#include <utility>

namespace lineforge
{

namespace
{
bool IsClick(const QWidget& widget, const QMouseEvent& release)
{
    return release.button() == Qt::LeftButton && widget.rect().contains(release.position().toPoint());
}

// An image as readers see it.
class ImageForReaders : public QAccessibleWidget
{
public:
    explicit ImageForReaders(ImageView& view) : QAccessibleWidget(&view), view_(view) {}

    QAccessible::Role role() const override { return IsButton() ? QAccessible::Button : QAccessible::Graphic; }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (IsButton())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& action) override
    {
        if (action == pressAction())
            QMetaObject::invokeMethod(
                &view_, [view = &view_] { PressUnlessBlocked(*view); }, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(action);
    }

private:
    // Once whoever asks has his answer: a box that comes up would keep him waiting.
    static void PressUnlessBlocked(const ImageView& view)
    {
        if (CanBePressed(view))
            view.Press();
    }
    bool IsButton() const { return view_.focusPolicy() != Qt::NoFocus; }

    ImageView& view_;
};

QAccessibleInterface* ReadableImage(const QString&, QObject* object)
{
    auto* view = dynamic_cast<ImageView*>(object);
    return view ? new ImageForReaders(*view) : nullptr;
}
} // namespace

bool CanBePressed(const QWidget& widget)
{
    const QWidget* asking = QApplication::activeModalWidget();
    return widget.isEnabled() && (!asking || asking == widget.window());
}

void ClientArea::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void ClientArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (IsClick(*this, *event) && !childAt(event->position().toPoint()) && Clicked)
        Clicked();
}

void ClientArea::wheelEvent(QWheelEvent* event)
{
    if (QScrollBar* bar = ScrollBarIn(*this))
        QCoreApplication::sendEvent(bar, event);
    else
        event->ignore();
}

void FrameView::paintEvent(QPaintEvent*)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = title().isEmpty() ? 0 : fontMetrics().height() / 2;
    painter.setPen(OutlineColour(palette()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 3, 3);
    if (title().isEmpty())
        return;

    const int indent = fontMetrics().height() / 2;
    const int gap = indent / 2;
    const QString text = fontMetrics().elidedText(title(), Qt::ElideRight, width() - 2 * (indent + gap));
    const QRect place(indent + gap, 0, fontMetrics().horizontalAdvance(text), fontMetrics().height());
    painter.fillRect(place.adjusted(-gap, 0, gap, 0), palette().brush(QPalette::Window));
    style()->drawItemText(&painter, place, Qt::AlignCenter | Qt::TextHideMnemonic | Qt::TextDontClip, palette(),
                          isEnabled(), text, QPalette::WindowText);
}

void FrameView::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void FrameView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!IsClick(*this, *event) || !Clicked)
        return;
    const QWidget* child = childAt(event->position().toPoint());
    if (!child || qobject_cast<const QLabel*>(child) || dynamic_cast<const ImageView*>(child))
        Clicked();
}

void ButtonView::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (!icon().isNull())
        PaintFocusMark(*this);
}

ImageView::ImageView(QWidget* parent) : QWidget(parent)
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(ReadableImage), true);
    TellReadersAnew(*this);
}

void ImageView::Press() const
{
    if (TakesClicks && TakesClicks())
        Clicked();
}

void ImageView::Show(const QImage& picture)
{
    picture_ = picture;
    scaled_ = {};
    update();
}

void ImageView::paintEvent(QPaintEvent*)
{
    if (size().isEmpty())
        return;
    QPainter painter(this);
    DrawPicture(painter);
    painter.end();
    PaintFocusMark(*this);
}

void ImageView::DrawPicture(QPainter& painter)
{
    if (picture_.isNull())
        return;
    const QSize wanted = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (scaled_.size() != wanted) {
        scaled_ = QPixmap::fromImage(picture_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        scaled_.setDevicePixelRatio(devicePixelRatioF());
    }
    painter.drawPixmap(rect(), scaled_);
}

void ImageView::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(TakesClicks && TakesClicks());
}

void ImageView::mouseReleaseEvent(QMouseEvent* event)
{
    event->setAccepted(TakesClicks && TakesClicks());
    if (event->isAccepted() && IsClick(*this, *event))
        Clicked();
}

void ImageView::keyPressEvent(QKeyEvent* event)
{
    const bool presses = IsPressKey(event->key());
    event->setAccepted(presses);
    if (presses && !event->isAutoRepeat())
        Press();
}

ClickWatcher::ClickWatcher(QWidget* watched, std::function<void()> clicked)
    : QObject(watched), clicked_(std::move(clicked))
{
    watched->installEventFilter(this);
}

// A selection dragged out of the widget ends here as well. The widget itself comes first: a click into what is selected
// takes the selection away.
bool ClickWatcher::eventFilter(QObject* watched, QEvent* event)
{
    auto& widget = static_cast<QWidget&>(*watched);
    if (event->type() != QEvent::MouseButtonRelease || !widget.isEnabled() ||
        static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return false;
    widget.removeEventFilter(this);
    QCoreApplication::sendEvent(&widget, event);
    widget.installEventFilter(this);
    clicked_();
    return true;
}

void ClickByKey(QWidget& field, std::function<void()> clicked)
{
    const auto* keys = new QShortcut(Qt::CTRL | Qt::Key_Space, &field, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(keys, &QShortcut::activated, &field, std::move(clicked));
}

void OnEnter(QWidget& widget, const std::function<void()>& entered)
{
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* key = new QShortcut(enter, &widget, nullptr, nullptr, Qt::WidgetShortcut);
        key->setAutoRepeat(false);
        QObject::connect(key, &QShortcut::activated, &widget, entered);
    }
}

// A click has had its say by the time that this is looked at. One of a set that goes off does so for the one that has
// come on.
void WhenSwitchedUnclicked(QAbstractButton& button, const QProperty<bool>& value, std::function<void()> switched)
{
    const auto look = [&button, &value, switched = std::move(switched)] {
        if (button.isChecked() != value && (button.isChecked() || !button.autoExclusive()))
            switched();
    };
    QObject::connect(&button, &QAbstractButton::toggled, &button, look, Qt::QueuedConnection);
}

} // namespace lineforge
