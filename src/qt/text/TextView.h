#pragma once

#include "platform/controls/Controls.h"

#include <QPlainTextEdit>

#include <functional>

namespace lineforge
{

// A box for several lines with a limit to its characters. Tab goes on to the next control.
class TextView : public QPlainTextEdit
{
public:
    // 0 for no limit.
    TextView(QWidget* parent, int maxLength);

    // Shows a text, whole even beyond the limit, without calling that an edit.
    void Show(const QString& text);

    // In the text as it was shown, with its own line ends.
    QString SelectedText() const;
    int SelectionStart() const;
    void SetCaret(int position);
    // Makes a stretch of it stand out; nothing any more for one of no length.
    void Mark(TextRange range);

    // The text as it stands, after the user has changed it.
    std::function<void(const QString& text)> Edited;

private:
    int OwnPosition(int position) const;
    void TakeEdit();
    void CutToLimit();

    int limit_;
    int longest_;    // for as long as the user works in the text that was shown
    QString before_; // the text, until it is changed
    bool cutting_ = false;
    bool hasCarriageReturns_ = false;
};

} // namespace lineforge
