#pragma once

#include <QMessageBox>
#include <QTimer>

#include <functional>

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

// The dialog as a message box; a test that meets another fails and ends.
QMessageBox& AsMessageBox(QDialog& dialog);
void Press(QMessageBox& box, QMessageBox::StandardButton button);
void PressKey(QDialog& dialog, Qt::Key key);

} // namespace lineforge
