#include "qt/text/TextView.h"

#include "platform/base/WholeLetters.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QColor markColour(255, 214, 102);
}

TextView::TextView(QWidget* parent, int maxLength)
    : QPlainTextEdit(parent), limit_(maxLength), longest_(LongestText(maxLength, 0))
{
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, &TextView::TakeEdit);
}

void TextView::Show(const QString& text)
{
    const QSignalBlocker quiet(this);
    hasCarriageReturns_ = text.contains(u"\r\n"_s);
    QString shown = text;
    shown.remove(u'\r');
    if (shown == toPlainText())
        return;
    longest_ = LongestText(limit_, shown.size());
    setPlainText(shown);
    before_ = shown;
}

QString TextView::SelectedText() const
{
    QString text = textCursor().selectedText();
    text.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
    return text.replace(QChar::ParagraphSeparator, hasCarriageReturns_ ? u"\r\n"_s : u"\n"_s);
}

int TextView::SelectionStart() const
{
    const int start = textCursor().selectionStart();
    const qsizetype breaks = hasCarriageReturns_ ? toPlainText().left(start).count(u'\n') : 0;
    return start + static_cast<int>(breaks);
}

int TextView::OwnPosition(int position) const
{
    const QString own = toPlainText();
    if (!hasCarriageReturns_)
        return std::min(position, static_cast<int>(own.size()));
    int at = 0;
    for (int told = 0; at < own.size(); ++at) {
        told += own[at] == u'\n' ? 2 : 1;
        if (told > position)
            break;
    }
    return at;
}

void TextView::SetCaret(int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(OwnPosition(position));
    setTextCursor(cursor);
}

void TextView::Mark(TextRange range)
{
    if (range.Length == 0) {
        setExtraSelections({});
        return;
    }
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(OwnPosition(range.Start));
    mark.cursor.setPosition(OwnPosition(range.Start + range.Length), QTextCursor::KeepAnchor);
    mark.format.setBackground(markColour);
    mark.format.setForeground(Qt::black);
    setExtraSelections({mark});
}

// The text is kept with the line ends that it came with.
void TextView::TakeEdit()
{
    if (cutting_)
        return;
    CutToLimit();
    before_ = toPlainText();
    QString text = before_;
    if (hasCarriageReturns_)
        text.replace(u'\n', u"\r\n"_s);
    if (Edited)
        Edited(text);
}

// What is too much is taken off the end of what has just come in, wherever the cursor is: a reader enters his text
// without it. It ends before what stood at the end already.
void TextView::CutToLimit()
{
    const QString text = toPlainText();
    const int excess = static_cast<int>(text.size()) - longest_;
    if (excess <= 0)
        return;
    const auto stayed = std::mismatch(before_.rbegin(), before_.rend(), text.rbegin(), text.rend()).first;
    const int end = static_cast<int>(text.size() - (stayed - before_.rbegin()));
    const QScopedValueRollback<bool> cutting(cutting_, true);
    QTextCursor cursor(document());
    cursor.joinPreviousEditBlock();
    const int cut = end - excess;
    cursor.setPosition(SplitsLetter(text, cut) ? cut - 1 : cut);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.endEditBlock();
}

} // namespace lineforge
