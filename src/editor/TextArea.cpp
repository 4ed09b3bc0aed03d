#include "editor/TextArea.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QMimeData>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The toolkit parts lines by the paragraph separator, so that one which belongs to the text needs a stand-in.
constexpr QChar separatorOfText(0xFDD2);

QString FromDocument(QString text)
{
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(separatorOfText, QChar::ParagraphSeparator);
}

// What no file that is opened may hold must not come in by another way.
QString WithoutForeignCodes(QString text)
{
    return text.removeIf([](QChar c) { return c.isNull() || (c >= QChar(0xFDD0) && c <= QChar(0xFDEF)); });
}
} // namespace

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent)
{
    setObjectName(u"Text"_s);
    setAccessibleName(u"Text"_s);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(11);
    setFont(fixed);
    setTabStopDistance(8 * fontMetrics().horizontalAdvance(u' '));
    setFrameShape(NoFrame);
    document()->setDocumentMargin(8);
    // A document that never had a text doesn't tell of the first change that can be undone.
    SetText({});
}

void TextArea::SetText(QString text)
{
    setPlainText(text.replace(QChar::ParagraphSeparator, separatorOfText));
}

QString TextArea::Text() const
{
    return FromDocument(document()->toRawText());
}

QString TextArea::MarkedText() const
{
    return FromDocument(textCursor().selectedText());
}

void TextArea::keyPressEvent(QKeyEvent* event)
{
    // The toolkit would put a separator there that looks like a new line and is none in the file.
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

QMimeData* TextArea::createMimeDataFromSelection() const
{
    auto* marked = new QMimeData;
    marked->setText(MarkedText());
    return marked;
}

void TextArea::insertFromMimeData(const QMimeData* source)
{
    textCursor().insertText(WithoutForeignCodes(source->text()));
    ensureCursorVisible();
}

} // namespace lineforge
