#pragma once

#include <QMessageBox>
#include <QStringList>

#include <functional>
#include <stdexcept>

namespace lineforge
{

// Looks at each dialog that comes up, or to the front again, once it waits for an answer.
class DialogWatch : public QObject
{
public:
    DialogWatch();
    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    virtual void Meet(QDialog& dialog) = 0;

private:
    void LookSoon();
    void Look();
};

// Meets the next dialog that waits for an answer, and fails the test when none has come before it goes. `meet` must end
// the dialog.
class NextDialog : public DialogWatch
{
public:
    explicit NextDialog(std::function<void(QDialog& dialog)> meet);
    ~NextDialog() override;

private:
    void Meet(QDialog& dialog) override;

    std::function<void(QDialog&)> meet_;
    bool met_ = false;
};

// A user who answers every message box as it comes, with the button that Escape presses, and remembers what it said.
class AnsweringUser : public DialogWatch
{
public:
    // Title, colon and text of each box, in their order; forgotten by asking.
    QStringList Told();

private:
    void Meet(QDialog& dialog) override;

    QStringList told_;
};

// The widget of that name in a dialog; a test that looks for another fails and ends.
template <class Widget>
Widget& In(const QDialog& dialog, const QString& name)
{
    auto* found = dialog.findChild<Widget*>(name);
    if (!found)
        throw std::runtime_error("the dialog has no " + name.toStdString());
    return *found;
}

// The dialog as a message box; a test that meets another fails and ends.
QMessageBox& AsMessageBox(QDialog& dialog);
void Press(QMessageBox& box, QMessageBox::StandardButton button);
void PressKey(QDialog& dialog, Qt::Key key);

} // namespace lineforge
