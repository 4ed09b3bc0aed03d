#include "qt/views/RecordBar.h"

#include "platform/store/Recordset.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// To the right, in a square of that side; one that leads to the end meets a bar.
QPainterPath Arrow(bool leadsToEnd, qreal side)
{
    QPainterPath path;
    const qreal bar = leadsToEnd ? side / 6 : 0;
    path.moveTo(0, 0);
    path.lineTo(side - bar, side / 2);
    path.lineTo(0, side);
    path.closeSubpath();
    if (leadsToEnd)
        path.addRect(side - bar, 0, bar, side);
    return path;
}

// Draws its arrow in the colour of the desktop's texts, as large as the bar has room for.
class StepButton : public QToolButton
{
public:
    StepButton(bool isBackward, bool leadsToEnd) : isBackward_(isBackward), leadsToEnd_(leadsToEnd) {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QToolButton::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal side = std::min(width(), height()) * 0.4;
        painter.translate(QRectF(rect()).center());
        if (isBackward_)
            painter.scale(-1, 1);
        painter.translate(-side / 2, -side / 2);
        painter.fillPath(Arrow(leadsToEnd_, side), palette().color(QPalette::ButtonText));
    }

private:
    bool isBackward_;
    bool leadsToEnd_;
};
} // namespace

RecordBar::RecordBar(QWidget* parent, const QString& name, const QString& caption) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    AddButton(*new StepButton(true, true), name + u"First"_s, tr("First record"), StepToFirst);
    AddButton(*new StepButton(true, false), name + u"Previous"_s, tr("Previous record"), StepToPrevious);
    auto* text = new QLabel(caption);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    row->addWidget(text, 1);
    AddButton(*new StepButton(false, false), name + u"Next"_s, tr("Next record"), StepToNext);
    AddButton(*new StepButton(false, true), name + u"Last"_s, tr("Last record"), StepToLast);
}

void RecordBar::AddButton(QAbstractButton& button, const QString& objectName, const QString& text, Step step)
{
    button.setObjectName(objectName);
    button.setAccessibleName(text);
    button.setToolTip(text);
    button.setFocusPolicy(Qt::StrongFocus);
    button.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    layout()->addWidget(&button);
    buttons_ += &button;
    connect(&button, &QAbstractButton::clicked, this, [this, step] {
        if (Stepped)
            Stepped(step);
    });
}

void RecordBar::resizeEvent(QResizeEvent*)
{
    for (QAbstractButton* button : buttons_)
        button->setFixedWidth(height());
}

void StepToFirst(Recordset& records)
{
    records.MoveFirst();
}

void StepToPrevious(Recordset& records)
{
    if (!records.Bof())
        records.MovePrevious();
    if (records.Bof())
        records.MoveFirst();
}

void StepToNext(Recordset& records)
{
    if (!records.Eof())
        records.MoveNext();
    if (records.Eof())
        records.MoveLast();
}

void StepToLast(Recordset& records)
{
    records.MoveLast();
}

} // namespace lineforge
