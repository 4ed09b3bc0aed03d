#include "qt/media/PlayerView.h"

#include "platform/drawing/TransportFaces.h"
#include "qt/views/AccessibleName.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int buttonMargin = 2;     // pixels
constexpr int focusMark = 2;        // pixels
constexpr int smallestButton = 24;  // pixels
constexpr double unusableInk = 0.4; // how much is left of a face that can't be pressed

struct ButtonKind {
    TransportSymbol Symbol;
    QStringView Command; // also the word for it
};

constexpr ButtonKind buttonKinds[] = {{TransportSymbol::ToStart, u"Rewind"},
                                      {TransportSymbol::Forward, u"Play"},
                                      {TransportSymbol::Pause, u"Pause"},
                                      {TransportSymbol::Step, u"Step"},
                                      {TransportSymbol::Stop, u"Stop"}};

// Shows one of the faces that the record scanner's buttons have.
class FaceButton : public QAbstractButton
{
public:
    FaceButton(QWidget* parent, TransportSymbol symbol)
        : QAbstractButton(parent), up_(DrawTransportFace(symbol, false)), down_(DrawTransportFace(symbol, true))
    {
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const int side = std::min(width(), height()) - 2 * buttonMargin;
        QRect place(0, 0, side, side);
        place.moveCenter(rect().center());
        if (!isEnabled())
            painter.setOpacity(unusableInk);
        const QSize dots = place.size() * devicePixelRatioF();
        painter.drawImage(place, (isDown() ? down_ : up_).scaled(dots, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        if (hasFocus())
            DrawFocusMark(painter, place);
    }

private:
    void DrawFocusMark(QPainter& painter, const QRect& face) const
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight).darker(), focusMark));
        painter.drawRoundedRect(QRectF(face), face.width() / 8.0, face.width() / 8.0);
    }

    QImage up_;
    QImage down_;
};

QString Clock(int milliseconds)
{
    const int seconds = milliseconds / 1000;
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}
} // namespace

FilmView::FilmView(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void FilmView::Show(const QImage& picture)
{
    picture_ = picture;
    Describe();
}

void FilmView::SetRun(bool hasRun)
{
    if (std::exchange(hasRun_, hasRun) != hasRun)
        Describe();
}

void FilmView::Describe()
{
    setAccessibleDescription(LacksPicture() ? tr("This film's picture can't be shown here.") : QString());
    update();
}

void FilmView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (LacksPicture()) {
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, accessibleDescription());
        return;
    }
    QRect place(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture_);
}

PlayerView::PlayerView(QWidget* parent, const QString& name, int screenHeight)
    : QWidget(parent), screenHeight_(screenHeight)
{
    if (screenHeight > 0) {
        film_ = new FilmView(this);
        film_->setObjectName(name + u"Screen"_s);
        film_->setAccessibleName(tr("Film"));
        TakeFor(*film_, QAccessible::Animation);
    }
    time_ = new QLabel(this);
    time_->setObjectName(name + u"Time"_s);
    time_->setAlignment(Qt::AlignCenter);
    AddButtons(name);
    SetUsable(false);
}

void PlayerView::AddButtons(const QString& name)
{
    for (const ButtonKind& kind : buttonKinds) {
        auto* button = new FaceButton(this, kind.Symbol);
        button->setObjectName(name + kind.Command);
        button->setAccessibleName(kind.Command.toString());
        button->setToolTip(kind.Command.toString());
        connect(button, &QAbstractButton::clicked, this, [this, command = kind.Command] {
            if (Pressed)
                Pressed(command);
        });
        buttons_.push_back(button);
    }
}

void PlayerView::SetUsable(bool usable)
{
    for (QAbstractButton* button : buttons_)
        button->setEnabled(usable);
    if (film_ && !usable)
        film_->SetRun(false);
}

void PlayerView::ShowFilm(const QImage& picture)
{
    if (film_)
        film_->Show(picture);
}

void PlayerView::ShowTime(int position, int length)
{
    if (film_ && position > 0)
        film_->SetRun(true);
    time_->setText(length > 0 ? PlayingTime(position, length) : QString());
}

void PlayerView::resizeEvent(QResizeEvent*)
{
    const int screen = std::min(screenHeight_, height());
    const int letters = time_->fontMetrics().height();
    const int smallestRow = smallestButton + 2 * buttonMargin;
    const int spare = height() - screen - letters - smallestRow;
    const bool hasTime = spare >= 0;
    // Where there is room for it, the time touches neither film nor buttons.
    const int timeHeight = letters + std::clamp(spare, 0, letters / 3);
    const int row = screen + (hasTime ? timeHeight : 0);
    if (film_)
        film_->setGeometry(0, 0, width(), screen);
    time_->setVisible(hasTime);
    time_->setGeometry(0, screen, width(), timeHeight);
    const int count = static_cast<int>(buttons_.size());
    for (int index = 0; index < count; ++index) {
        const int left = width() * index / count;
        buttons_[index]->setGeometry(left, row, width() * (index + 1) / count - left, height() - row);
    }
}

QString PlayingTime(int position, int length)
{
    return Clock(position) + u" / "_s + Clock(length);
}

} // namespace lineforge
