#include "qt/Dialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

namespace lineforge
{

NextDialog::NextDialog(std::function<void(QDialog&)> meet) : meet_(std::move(meet))
{
    connect(&timer_, &QTimer::timeout, this, &NextDialog::Look);
    timer_.start(1);
}

NextDialog::~NextDialog()
{
    EXPECT_TRUE(met_) << "no dialog came";
}

void NextDialog::Look()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || met_)
        return;
    timer_.stop();
    met_ = true;
    meet_(*dialog);
}

AnsweringUser::AnsweringUser()
{
    connect(&timer_, &QTimer::timeout, this, &AnsweringUser::Look);
    timer_.start(1);
}

QStringList AnsweringUser::Told()
{
    return std::exchange(told_, {});
}

void AnsweringUser::Look()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog)
        return;
    const QMessageBox& box = AsMessageBox(*dialog);
    told_ += box.windowTitle() + QStringLiteral(": ") + box.text();
    PressKey(*dialog, Qt::Key_Escape);
}

QMessageBox& AsMessageBox(QDialog& dialog)
{
    auto* box = qobject_cast<QMessageBox*>(&dialog);
    if (!box) {
        ADD_FAILURE() << "the dialog is no message box";
        std::abort();
    }
    return *box;
}

void Press(QMessageBox& box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

void PressKey(QDialog& dialog, Qt::Key key)
{
    QTest::keyClick(&dialog, key);
}

} // namespace lineforge
