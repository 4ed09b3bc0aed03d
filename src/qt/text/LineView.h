#pragma once

#include "platform/controls/Controls.h"

#include <QLineEdit>

#include <functional>

namespace lineforge
{

// A box for one line with a limit to its characters.
class LineView : public QLineEdit
{
public:
    // 0 for no limit.
    LineView(QWidget* parent, int maxLength);

    // Shows a text, whole even beyond the limit, without calling that an edit. The cursor stays where the user works,
    // and a long text begins with its beginning for everybody else.
    void Show(const QString& text);

    QString SelectedText() const { return selectedText(); }
    int SelectionStart() const { return hasSelectedText() ? selectionStart() : cursorPosition(); }
    void SetCaret(int position) { setCursorPosition(position); }
    // In a single line nothing is marked.
    void Mark(TextRange) {}

    // The text as it stands, after it has been changed by anything but `Show`: by keys and mouse, by the clipboard, by
    // an input method, by whoever works the program for the user.
    std::function<void(const QString& text)> Edited;

private:
    bool TakesHalfALetter();

    int limit_;
    bool isShowing_ = false;
};

} // namespace lineforge
