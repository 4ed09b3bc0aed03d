#include "platform/qt/LineView.h"

#include <QScopedValueRollback>

namespace lineforge
{

LineView::LineView(QWidget* parent, int maxLength) : QLineEdit(parent), limit_(maxLength)
{
    setMaxLength(LongestText(limit_, 0));
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
    // Stays while the user works in it: what he takes out of a longer text can be put back.
    if (const int longest = LongestText(limit_, shown.size()); longest != maxLength())
        setMaxLength(longest);
    setText(shown);
    setCursorPosition(cursor);
}

} // namespace lineforge
