#include "platform/qt/LineView.h"

#include <QScopedValueRollback>

namespace lineforge
{

LineView::LineView(QWidget* parent, int maxLength) : QLineEdit(parent)
{
    if (maxLength > 0)
        setMaxLength(maxLength);
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!isShowing_ && Edited)
            Edited(text);
    });
}

void LineView::Show(const QString& shown)
{
    if (text() == shown)
        return;
    const QScopedValueRollback<bool> showing(isShowing_, true);
    const int cursor = hasFocus() ? cursorPosition() : 0;
    setText(shown);
    setCursorPosition(cursor);
}

} // namespace lineforge
