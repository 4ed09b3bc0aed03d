#pragma once

#include <QMessageBox>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <stdexcept>

namespace lineforge
{

// Meets the next dialog that waits for an answer, and fails the test when none has come before it goes. `meet` must end
// the dialog.
class NextDialog : public QObject
{
public:
    explicit NextDialog(std::function<void(QDialog& dialog)> meet);
    ~NextDialog() override;

private:
    void Look();

    std::function<void(QDialog&)> meet_;
    QTimer timer_;
    bool met_ = false;
};

// A user who answers every message box as it comes, with the button that Escape presses, and remembers what it said.
class AnsweringUser : public QObject
{
public:
    AnsweringUser();

    // Title, colon and text of each box, in their order; forgotten by asking.
    QStringList Told();

private:
    void Look();

    QTimer timer_;
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
