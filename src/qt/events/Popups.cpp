#include "qt/events/Popups.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace lineforge
{

namespace
{
bool BelongsTo(const QWidget* popup, const QWidget& window)
{
    while (popup && popup != &window)
        popup = popup->parentWidget();
    return popup;
}

// One that the keys have led to has the focus, and gives it back to the field that had it when it is left.
void LeaveMenuBar()
{
    if (auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget())) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &escape);
    }
}
} // namespace

// One that refuses would be asked for ever.
void ClosePopups()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        if (!popup->close())
            return;
    LeaveMenuBar();
}

void ClosePopupsOf(const QWidget& window)
{
    if (BelongsTo(QApplication::activePopupWidget(), window))
        ClosePopups();
}

} // namespace lineforge
