#include "qt/Dialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <utility>

namespace lineforge
{

DialogWatch::DialogWatch()
{
    qApp->installEventFilter(this);
    LookSoon();
}

bool DialogWatch::eventFilter(QObject* object, QEvent* event)
{
    if ((event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) && qobject_cast<QDialog*>(object))
        LookSoon();
    return false;
}

// When the loop that waits for the answer is entered, and what had waited before is done.
void DialogWatch::LookSoon()
{
    QTimer::singleShot(0, this, &DialogWatch::Look);
}

void DialogWatch::Look()
{
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        Meet(*dialog);
}

NextDialog::NextDialog(std::function<void(QDialog&)> meet) : meet_(std::move(meet)) {}

NextDialog::~NextDialog()
{
    EXPECT_TRUE(met_) << "no dialog came";
}

void NextDialog::Meet(QDialog& dialog)
{
    if (std::exchange(met_, true))
        return;
    meet_(dialog);
}

QStringList AnsweringUser::Told()
{
    return std::exchange(told_, {});
}

void AnsweringUser::Meet(QDialog& dialog)
{
    const QMessageBox& box = AsMessageBox(dialog);
    told_ += box.windowTitle() + QStringLiteral(": ") + box.text();
    PressKey(dialog, Qt::Key_Escape);
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
