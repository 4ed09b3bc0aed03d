#pragma once

#include <QPlainTextEdit>

namespace lineforge
{

// The field that a text is written in. It gives back every character that it was given, which the toolkit's own field
// doesn't: that one turns some separators and blanks into others.
class TextArea : public QPlainTextEdit
{
public:
    explicit TextArea(QWidget* parent = nullptr);

    // Lines end with a line feed. A text that is set starts anew: unmodified, nothing to undo.
    void SetText(QString text);
    QString Text() const;

    // What is marked, lines ending with a line feed.
    QString MarkedText() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace lineforge
