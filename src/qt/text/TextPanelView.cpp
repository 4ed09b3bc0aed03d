#include "qt/text/TextPanelView.h"

#include "qt/style/Outlines.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ScrollBarView.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int margin = 4;
constexpr qreal endlessWidth = 1'000'000;
// Nobody reads a longer line on the screen; it is copied whole.
constexpr qsizetype shownCharacters = 4000;

// The first value from `low` on that is far enough, or `high`; the bar stays there.
template <class IsFarEnough>
void MoveTo(QScrollBar& bar, int low, int high, const IsFarEnough& isFarEnough)
{
    while (low < high) {
        const int middle = low + (high - low) / 2;
        bar.setValue(middle);
        if (isFarEnough())
            high = middle;
        else
            low = middle + 1;
    }
    bar.setValue(low);
}
} // namespace

TextPanelView::TextPanelView(QWidget* parent, TextPanel& panel, const Scale& scale, std::shared_ptr<const Gate> gate)
    : QWidget(parent), panel_(panel), scale_(scale), gate_(std::move(gate)), bottomAtFirst_(panel.Top + panel.Height),
      pacer_([this] { ShowChange(); })
{
    ServeReadersOfPanels();
    TellReadersAnew(*this);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    parent->installEventFilter(this);
    panel_.Changed = [this, open = gate_] {
        if (open->IsOpen())
            TakeChange();
    };
}

const QStringList& TextPanelView::Lines() const
{
    return panel_.Lines;
}

void TextPanelView::TakePlace()
{
    const QRect panel = scale_.ToPixels(Rectangle{panel_.Left, panel_.Top, panel_.Width, panel_.Height});
    // Scrolled up behind its own end it still fills the place that it was given.
    const int end = std::max(panel.bottom() + 1, scale_.ToPixels(bottomAtFirst_));
    const int top = std::max(0, panel.top());
    setGeometry(panel.left(), top, panel.width(), std::max(0, std::min(end, parentWidget()->height()) - top));
    pacer_.Request();
}

bool TextPanelView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && gate_->IsOpen())
        TakePlace();
    return QWidget::eventFilter(watched, event);
}

void TextPanelView::TakeChange()
{
    if (Lines().isEmpty()) {
        selection_ = {};
        shift_ = 0;
    }
    pacer_.Request();
}

void TextPanelView::ShowChange()
{
    update();
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent changed(this, QAccessible::VisibleDataChanged);
    QAccessible::updateAccessibility(&changed);
}

// Neighbouring lines touch, as everything that touches in twips.
int TextPanelView::TopOf(qsizetype line) const
{
    const double below = static_cast<double>(line) * TextPanel::LineHeight / scale_.TwipsAPixel();
    return static_cast<int>(std::lround(below)) + scale_.ToPixels(panel_.Top) - y();
}

// The nearest one for a point that is on none.
qsizetype TextPanelView::LineAt(int y) const
{
    const double below = static_cast<double>(y - TopOf(0)) * scale_.TwipsAPixel() / TextPanel::LineHeight;
    auto line = static_cast<qsizetype>(std::floor(below));
    if (TopOf(line) > y)
        --line;
    else if (TopOf(line + 1) <= y)
        ++line;
    return std::clamp<qsizetype>(line, 0, std::max<qsizetype>(0, Lines().size() - 1));
}

void TextPanelView::LayOut(QTextLayout& layout, qsizetype line) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setFont(font());
    layout.setText(Lines().value(line).left(shownCharacters));
    layout.beginLayout();
    layout.createLine().setLineWidth(endlessWidth);
    layout.endLayout();
}

QList<QTextLayout::FormatRange> TextPanelView::MarksOf(const QTextLayout& layout, qsizetype line) const
{
    const TextPosition first = selection_.First();
    const TextPosition last = selection_.Last();
    const qsizetype begin = line == first.Line ? first.Column : 0;
    const qsizetype end = std::min(line == last.Line ? last.Column : layout.text().size(), layout.text().size());
    if (line < first.Line || line > last.Line || begin >= end)
        return {};
    QTextLayout::FormatRange mark;
    mark.start = static_cast<int>(begin);
    mark.length = static_cast<int>(end - begin);
    mark.format.setBackground(palette().brush(QPalette::Highlight));
    mark.format.setForeground(palette().brush(QPalette::HighlightedText));
    return {mark};
}

// A font may be higher than a line, which its letters seldom are: a mark ends where the next line begins.
void TextPanelView::DrawText(QPainter& painter, const QTextLayout& layout, QPointF place, qsizetype line) const
{
    QList<QTextLayout::FormatRange> marks = MarksOf(layout, line);
    if (marks.isEmpty())
        return layout.draw(&painter, place);
    const int end = TopOf(line + 1);
    painter.save();
    painter.setClipRect(0, 0, width(), end);
    layout.draw(&painter, place, marks);
    painter.setClipRect(0, end, width(), height() - end);
    marks.first().format.clearBackground();
    layout.draw(&painter, place, marks);
    painter.restore();
}

void TextPanelView::PaintLine(QPainter& painter, qsizetype line)
{
    QTextLayout layout;
    LayOut(layout, line);
    const QPointF place(margin - shift_, TopOf(line));
    const int width = static_cast<int>(std::ceil(layout.lineAt(0).naturalTextWidth()));
    widest_ = std::max(widest_, width);
    DrawText(painter, layout, place, line);
    // The end of a line is selected with the next one's beginning, and shows it where the line is empty.
    if (line >= selection_.First().Line && line < selection_.Last().Line)
        painter.fillRect(QRect(margin - shift_ + width, TopOf(line), fontMetrics().averageCharWidth(),
                               TopOf(line + 1) - TopOf(line)),
                         palette().brush(QPalette::Highlight));
    if (hasFocus() && selection_.IsEmpty() && line == selection_.Caret.Line)
        layout.drawCursor(&painter, place, static_cast<int>(selection_.Caret.Column));
}

void TextPanelView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().brush(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    widest_ = 0;
    for (qsizetype line = LineAt(0); line < Lines().size() && TopOf(line) < height(); ++line)
        PaintLine(painter, line);
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : OutlineColour(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

TextPosition TextPanelView::PositionAt(QPoint point) const
{
    const qsizetype line = LineAt(point.y());
    QTextLayout layout;
    LayOut(layout, line);
    return {line, layout.lineAt(0).xToCursor(point.x() - margin + shift_)};
}

QRect TextPanelView::PlaceOf(TextPosition position) const
{
    QTextLayout layout;
    LayOut(layout, position.Line);
    const auto edge = [&](qsizetype column) {
        return margin - shift_ + static_cast<int>(std::lround(layout.lineAt(0).cursorToX(static_cast<int>(column))));
    };
    const int left = edge(position.Column);
    return {left, TopOf(position.Line), std::max(1, edge(position.Column + 1) - left),
            TopOf(position.Line + 1) - TopOf(position.Line)};
}

void TextPanelView::Reveal(qsizetype line)
{
    QScrollBar* bar = ScrollBarAround(*this);
    if (!bar)
        return;
    const int present = bar->value();
    const auto endsInView = [&] { return TopOf(line + 1) <= height(); };
    const auto beginsAboveView = [&] { return TopOf(line) < 0; };
    if (!endsInView()) {
        MoveTo(*bar, present, bar->maximum(), endsInView);
    } else if (beginsAboveView()) {
        MoveTo(*bar, bar->minimum(), present, beginsAboveView);
        bar->setValue(bar->value() - 1);
    }
}

void TextPanelView::Select(const TextSelection& selection)
{
    selection_ = selection;
    Reveal(selection_.Caret.Line);
    const QRect caret = PlaceOf(selection_.Caret);
    if (caret.left() < margin)
        ShiftSidewards(caret.left() - margin);
    else if (caret.left() > width() - margin)
        ShiftSidewards(caret.left() - width() + margin);
    update();
}

void TextPanelView::SelectAll()
{
    selection_ = {{}, EndOf(Lines())};
    update();
}

QString TextPanelView::SelectedText() const
{
    return TextBetween(Lines(), selection_.First(), selection_.Last());
}

void TextPanelView::Copy() const
{
    if (!selection_.IsEmpty())
        QGuiApplication::clipboard()->setText(SelectedText());
}

bool TextPanelView::ShiftSidewards(int pixels)
{
    const int furthest = std::max(shift_, widest_ + 2 * margin - width());
    const int wanted = std::clamp(shift_ + pixels, 0, std::max(0, furthest));
    const bool isMoved = std::exchange(shift_, wanted) != wanted;
    update();
    return isMoved;
}

void TextPanelView::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(u"&Copy"_s, this, [this] { Copy(); })->setEnabled(!selection_.IsEmpty());
    menu->addAction(u"Select &All"_s, this, [this] { SelectAll(); })->setEnabled(!Lines().isEmpty());
    menu->popup(event->globalPos());
}

void TextPanelView::focusInEvent(QFocusEvent*)
{
    update();
}

void TextPanelView::focusOutEvent(QFocusEvent*)
{
    update();
}

} // namespace lineforge
