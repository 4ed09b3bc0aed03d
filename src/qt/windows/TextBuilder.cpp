#include "qt/windows/TextBuilder.h"

#include "platform/controls/TextPanel.h"
#include "qt/text/LineView.h"
#include "qt/text/TextPanelView.h"
#include "qt/text/TextView.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/views/LabelView.h"

#include <QShortcut>

namespace lineforge
{

namespace
{
// From the edge of a text box to its text. The toolkit itself leaves these pixels of it free where there is one line.
constexpr int textMargin = 60; // twips
constexpr int ownTextMargin = 2;
// From this many lines on a text box holds several.
constexpr double linesForSeveral = 2.2;

// The family that the design asks for everywhere is only its word for "the usual one".
QFont FontOf(const TextFont& wanted, const QFont& usual, const Scale& scale)
{
    QFont font = wanted.Name == TextFont().Name ? usual : QFont(wanted.Name);
    font.setPixelSize(scale.FontPixels(wanted.Size));
    font.setBold(wanted.Bold);
    font.setItalic(wanted.Italic);
    return font;
}

void AddAccessKey(QWidget* widget, const TextBox& box)
{
    if (box.AccessKey == 0)
        return;
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(box.AccessKey));
    QObject::connect(new QShortcut(keys, widget), &QShortcut::activated, widget,
                     [widget] { widget->setFocus(Qt::ShortcutFocusReason); });
    if (widget->toolTip().isEmpty())
        widget->setToolTip(keys.toString(QKeySequence::NativeText));
}

// Keeps a view of a text box in step with it; clicks come to the widget `clicked`.
template <class View>
void Tie(const BuildSite& site, View* view, QWidget* clicked, TextBox& box)
{
    view->Edited = [gate = site.Gate, view, &box](const QString& text) {
        if (view->isEnabled() && !view->isReadOnly())
            gate->Run([&box, text] { box.Text = text; });
        else if (gate->IsOpen())
            view->Show(box.Text.Shown()); // readers reach a box that no key does
    };
    const auto click = [gate = site.Gate, &box] { gate->Run(box.Click); };
    new ClickWatcher(clicked, click);
    ClickByKey(*view, click);
    const auto keepSelection = [gate = site.Gate, view, &box] {
        if (!gate->IsOpen())
            return;
        box.SelText = view->SelectedText();
        box.SelStart = view->SelectionStart();
    };
    // Showing a text is no event of the widget's, but it moves the caret.
    site.Bindings.Follow(box.Text, [view, &box, keepSelection] {
        view->Show(box.Text.Shown());
        view->Mark(box.Marked);
        keepSelection();
    });
    QObject::connect(view, &View::selectionChanged, view, keepSelection);
    QObject::connect(view, &View::cursorPositionChanged, view, keepSelection);
    site.Bindings.Follow(box.Locked, [view, &box] { view->setReadOnly(box.Locked); });
    box.CaretMoved = [gate = site.Gate, view, &box] {
        if (gate->IsOpen())
            view->SetCaret(box.SelStart);
    };
    site.NameForReaders(view, box);
    site.Dress(view, box);
    AddAccessKey(view, box);
}

void BuildLine(const BuildSite& site, TextBox& box)
{
    auto* line = new LineView(site.Parent, box.MaxLength);
    const int margin = site.Scale.ToPixels(textMargin) - ownTextMargin;
    line->setTextMargins(margin, 0, margin, 0);
    Tie(site, line, line, box);
}

void BuildLines(const BuildSite& site, TextBox& box)
{
    auto* lines = new TextView(site.Parent, box.MaxLength);
    lines->document()->setDocumentMargin(site.Scale.ToPixels(textMargin));
    Tie(site, lines, lines->viewport(), box);
    site.Bindings.Follow(box.Marked, [lines, &box] { lines->Mark(box.Marked); });
}
} // namespace

void BuildWidget(const BuildSite& site, Label& label)
{
    auto* view = new LabelView(site.Parent);
    view->setFont(FontOf(label.Font, view->font(), site.Scale));
    if (label.Centred)
        view->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    site.Bindings.Follow(label.Caption, [view, &label] {
        const QString& text = label.Caption.Shown();
        view->setText(text);
        view->setAccessibleName(text);
    });
    site.Dress(view, label);
}

void BuildWidget(const BuildSite& site, TextBox& box)
{
    const int lineHeight = site.Parent->fontMetrics().lineSpacing();
    if (site.Scale.ToPixels(box.Height) > linesForSeveral * lineHeight)
        BuildLines(site, box);
    else
        BuildLine(site, box);
}

// Its tool tip is nothing but its name: shown, it would stand before the text.
void BuildWidget(const BuildSite& site, TextPanel& panel)
{
    auto* view = new TextPanelView(site.Parent, panel, site.Scale, site.Gate);
    site.NameForReaders(view, panel);
    site.Dress(view, panel, [view] { view->TakePlace(); });
}

} // namespace lineforge
