#include "qt/text/TextPanelView.h"

#include <QAccessibleWidget>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The panel as readers see it: a text of many lines that can't be edited. Offsets are those of the whole text.
class TextPanelForReaders : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit TextPanelForReaders(TextPanelView& view) : QAccessibleWidget(&view, QAccessible::EditableText), view_(view)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = state.multiLine = state.selectableText = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? view_.Lines().join(u'\n') : QAccessibleWidget::text(kind);
    }

    QString text(int start, int end) const override { return TextBetween(view_.Lines(), At(start), At(end)); }
    int characterCount() const override { return Offset(EndOf(view_.Lines())); }
    QString attributes(int, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

    int selectionCount() const override { return view_.Selection().IsEmpty() ? 0 : 1; }
    void selection(int index, int* start, int* end) const override
    {
        const bool isThere = index == 0 && selectionCount() == 1;
        *start = isThere ? Offset(view_.Selection().First()) : 0;
        *end = isThere ? Offset(view_.Selection().Last()) : 0;
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void setSelection(int, int start, int end) override { view_.Select({At(start), At(end)}); }
    int cursorPosition() const override { return Offset(view_.Selection().Caret); }
    void setCursorPosition(int offset) override { setSelection(0, offset, offset); }

    QRect characterRect(int offset) const override
    {
        return view_.PlaceOf(At(offset)).translated(view_.mapToGlobal(QPoint(0, 0)));
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        const QPoint inView = view_.mapFromGlobal(point);
        return view_.rect().contains(inView) ? Offset(view_.PositionAt(inView)) : -1;
    }
    void scrollToSubstring(int start, int) override { view_.Reveal(At(start).Line); }

private:
    TextPosition At(int offset) const { return PositionOf(view_.Lines(), offset); }
    int Offset(TextPosition position) const { return static_cast<int>(OffsetOf(view_.Lines(), position)); }

    TextPanelView& view_;
};

QAccessibleInterface* ReadablePanel(const QString&, QObject* object)
{
    auto* view = dynamic_cast<TextPanelView*>(object);
    return view ? new TextPanelForReaders(*view) : nullptr;
}
} // namespace

void ServeReadersOfPanels()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(ReadablePanel), true);
}

} // namespace lineforge
