#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class QAbstractButton;

namespace lineforge
{

class Recordset;

// The four buttons of a data control with its caption between them.
class RecordBar : public QWidget
{
public:
    // Buttons are called `name` + "First", "Previous", "Next", "Last".
    RecordBar(QWidget* parent, const QString& name, const QString& caption);

    using Step = void (*)(Recordset& records);
    // A button wants another record.
    std::function<void(Step step)> Stepped;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddButton(QAbstractButton& button, const QString& objectName, const QString& text, Step step);

    QList<QAbstractButton*> buttons_;
};

// Each stops quietly at the ends: the current record stays.
void StepToFirst(Recordset& records);
void StepToPrevious(Recordset& records);
void StepToNext(Recordset& records);
void StepToLast(Recordset& records);

} // namespace lineforge
