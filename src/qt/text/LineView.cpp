#include "qt/text/LineView.h"

#include "platform/base/WholeLetters.h"

#include <QScopedValueRollback>

namespace lineforge
{

LineView::LineView(QWidget* parent, int maxLength) : QLineEdit(parent), limit_(maxLength)
{
    setMaxLength(LongestText(limit_, 0));
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!isShowing_ && !TakesHalfALetter() && Edited)
            Edited(text);
    });
}

// The toolkit takes just so many characters of what is pasted. The change that takes the half away again is the edit.
bool LineView::TakesHalfALetter()
{
    const QString shown = text();
    const int at = cursorPosition();
    if (at == 0 || at > shown.size() || !shown[at - 1].isHighSurrogate() || SplitsLetter(shown, at))
        return false;
    setSelection(at - 1, 1);
    del();
    return true;
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
