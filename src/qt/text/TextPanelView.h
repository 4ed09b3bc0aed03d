#pragma once

#include "platform/controls/TextPanel.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/FramePacer.h"
#include "qt/style/Scale.h"
#include "qt/text/TextSelection.h"

#include <QBasicTimer>
#include <QTextLayout>
#include <QWidget>

#include <memory>

namespace lineforge
{

// Shows the lines of a panel that is far taller than a widget can be: it covers what can be seen of the panel in its
// parent, and the panel's top tells how far it is scrolled. Scrolling by wheel, keys and selecting goes to the scroll
// bar beside it, which moves the panel. Only what can be seen is laid out. The text is selected by mouse and keyboard
// and copied; nothing in it is changed.
class TextPanelView : public QWidget
{
public:
    TextPanelView(QWidget* parent, TextPanel& panel, const Scale& scale, std::shared_ptr<const Gate> gate);

    // The panel or the parent has been moved or has another size.
    void TakePlace();

    const QStringList& Lines() const;
    const TextSelection& Selection() const { return selection_; }
    // The caret comes into view.
    void Select(const TextSelection& selection);
    void SelectAll();
    QString SelectedText() const;
    void Copy() const;

    // Scrolls no further than needed.
    void Reveal(qsizetype line);
    // In pixels of the view, also of what lies outside of it.
    QRect PlaceOf(TextPosition position) const;
    TextPosition PositionAt(QPoint point) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void TakeChange();
    void ShowChange();
    int TopOf(qsizetype line) const;
    qsizetype LineAt(int y) const;
    void LayOut(QTextLayout& layout, qsizetype line) const;
    QList<QTextLayout::FormatRange> MarksOf(const QTextLayout& layout, qsizetype line) const;
    void DrawText(QPainter& painter, const QTextLayout& layout, QPointF place, qsizetype line) const;
    void PaintLine(QPainter& painter, qsizetype line);
    void DrawSelectionTo(QPoint point);
    bool ShiftSidewards(int pixels);
    bool MoveCaret(const QKeyEvent& event);
    bool Scroll(QKeyEvent& event);

    TextPanel& panel_;
    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    const int bottomAtFirst_; // twips
    TextSelection selection_;
    int shift_ = 0;  // pixels that lie left of the view
    int widest_ = 0; // pixels of the widest line in view
    QPoint pointer_;
    QBasicTimer scrolling_;
    FramePacer pacer_;
};

// Makes readers know the view's text; once a program is enough.
void ServeReadersOfPanels();

} // namespace lineforge
