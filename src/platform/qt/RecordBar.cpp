#include "platform/qt/RecordBar.h"

#include "platform/Recordset.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace lineforge
{

using namespace Qt::StringLiterals;

RecordBar::RecordBar(QWidget* parent, const QString& name, const QString& caption) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    AddButton(name + u"First"_s, tr("First record"), QStyle::SP_MediaSkipBackward, StepToFirst);
    AddButton(name + u"Previous"_s, tr("Previous record"), QStyle::SP_MediaSeekBackward, StepToPrevious);
    auto* text = new QLabel(caption);
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    row->addWidget(text, 1);
    AddButton(name + u"Next"_s, tr("Next record"), QStyle::SP_MediaSeekForward, StepToNext);
    AddButton(name + u"Last"_s, tr("Last record"), QStyle::SP_MediaSkipForward, StepToLast);
}

void RecordBar::AddButton(const QString& objectName, const QString& text, int icon, Step step)
{
    auto* button = new QToolButton;
    button->setObjectName(objectName);
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    layout()->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, step] {
        if (Stepped)
            Stepped(step);
    });
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
