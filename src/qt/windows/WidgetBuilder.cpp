#include "qt/windows/WidgetBuilder.h"

#include "platform/canvas/PictureBox.h"
#include "platform/controls/DataControl.h"
#include "platform/controls/TextPanel.h"
#include "qt/media/PlayerView.h"
#include "qt/pictures/DraggableImage.h"
#include "qt/pictures/KeyboardPointer.h"
#include "qt/pictures/PictureView.h"
#include "qt/style/ButtonLook.h"
#include "qt/text/LineView.h"
#include "qt/text/TextPanelView.h"
#include "qt/text/TextView.h"
#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/views/DirectoryView.h"
#include "qt/views/LabelView.h"
#include "qt/views/RecordBar.h"
#include "qt/views/ScrollBarView.h"
#include "qt/views/ShapeView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int thinnestOutline = 2;
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

void Select(QListWidget& list, int index)
{
    const QSignalBlocker quiet(list);
    list.setCurrentRow(index >= 0 && index < list.count() ? index : -1);
}

int SelectedRow(const QListWidget& list)
{
    const QList<QListWidgetItem*> selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.first());
}

// The toolkit itself would leave one of a set on, and would switch off others that the program means to be on.
void Show(QRadioButton& button, bool on)
{
    button.setAutoExclusive(false);
    button.setChecked(on);
    button.setAutoExclusive(true);
}

void Choose(const OptionButton& chosen, const Container& container)
{
    for (Control* control : container.Controls())
        if (auto* option = dynamic_cast<OptionButton*>(control))
            option->Value = option == &chosen;
    Fire(chosen.Click);
}
} // namespace

WidgetBuilder::WidgetBuilder(const Scale& scale, std::shared_ptr<const Gate> gate, Bindings& bindings)
    : scale_(scale), gate_(std::move(gate)), bindings_(bindings)
{
}

void WidgetBuilder::Build(const Container& container, QWidget* parent)
{
    const Container* outerContainer = std::exchange(container_, &container);
    QWidget* outerParent = std::exchange(parent_, parent);
    for (Control* control : container.Controls())
        control->Accept(*this);
    container_ = outerContainer;
    parent_ = outerParent;
    for (QObject* child : parent->children())
        if (auto* shape = dynamic_cast<ShapeView*>(child))
            shape->raise();
}

void WidgetBuilder::FollowChildren(Container& container, QWidget* parent)
{
    container.Added = [gate = gate_, scale = scale_, &container, parent](Control& control) {
        if (!gate->IsOpen())
            return;
        // What follows the control goes with its widget, not with the window.
        auto bindings = std::make_shared<Bindings>();
        WidgetBuilder builder(scale, gate, *bindings);
        builder.container_ = &container;
        builder.parent_ = parent;
        control.Accept(builder);
        if (auto* widget = parent->findChild<QWidget*>(control.Name, Qt::FindDirectChildrenOnly)) {
            QObject::connect(widget, &QObject::destroyed, widget, [bindings] {});
            widget->raise();
        }
    };
    container.Removed = [gate = gate_, parent](Control& control) {
        if (gate->IsOpen())
            delete parent->findChild<QWidget*>(control.Name, Qt::FindDirectChildrenOnly);
    };
}

void WidgetBuilder::AddAccessKey(QWidget* widget, const TextBox& box)
{
    if (box.AccessKey == 0)
        return;
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(box.AccessKey));
    QObject::connect(new QShortcut(keys, widget), &QShortcut::activated, widget,
                     [widget] { widget->setFocus(Qt::ShortcutFocusReason); });
    if (widget->toolTip().isEmpty())
        widget->setToolTip(keys.toString(QKeySequence::NativeText));
}

void WidgetBuilder::Dress(QWidget* widget, Control& control)
{
    widget->setToolTip(control.ToolTipText.toHtmlEscaped());
    Dress(widget, control, [widget, &control, scale = scale_] {
        widget->setGeometry(scale.ToPixels(Rectangle{control.Left, control.Top, control.Width, control.Height}));
    });
}

void WidgetBuilder::Dress(QWidget* widget, Control& control, const std::function<void()>& place)
{
    widget->setObjectName(control.Name);
    place();
    for (QProperty<int>* length : {&control.Left, &control.Top, &control.Width, &control.Height})
        bindings_.Watch(*length, place);
    bindings_.Follow(control.Visible, [widget, &control] { widget->setVisible(control.Visible); });
    bindings_.Follow(control.Enabled, [widget, &control] { widget->setEnabled(control.Enabled); });
}

void WidgetBuilder::NameForReaders(QWidget* widget, const Control& control)
{
    const auto name = [widget, &control, &container = *container_] {
        const QString spoken = BorrowedName(control, container);
        widget->setAccessibleName(spoken);
        widget->setAccessibleDescription(spoken == control.ToolTipText ? QString() : control.ToolTipText);
    };
    name();
    if (frame_)
        bindings_.Watch(frame_->Caption, name);
}

template <class Caption>
void WidgetBuilder::FollowCaption(QWidget* widget, const Control& control, Caption& caption)
{
    const QString otherwise = BorrowedName(control, *container_);
    bindings_.Follow(caption, [widget, &caption, otherwise] {
        const QString spoken = SpokenCaption(caption.value());
        widget->setAccessibleName(spoken.isEmpty() ? otherwise : spoken);
    });
}

void WidgetBuilder::Visit(Label& label)
{
    auto* view = new LabelView(parent_);
    view->setFont(FontOf(label.Font, view->font(), scale_));
    if (label.Centred)
        view->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    bindings_.Follow(label.Caption, [view, &label] {
        const QString& text = label.Caption.Shown();
        view->setText(text);
        view->setAccessibleName(text);
    });
    Dress(view, label);
}

void WidgetBuilder::Visit(TextBox& box)
{
    const int lineHeight = parent_->fontMetrics().lineSpacing();
    if (scale_.ToPixels(box.Height) > linesForSeveral * lineHeight)
        VisitLines(box);
    else
        VisitLine(box);
}

void WidgetBuilder::VisitLine(TextBox& box)
{
    auto* line = new LineView(parent_, box.MaxLength);
    const int margin = scale_.ToPixels(textMargin) - ownTextMargin;
    line->setTextMargins(margin, 0, margin, 0);
    Tie(line, line, box);
}

void WidgetBuilder::VisitLines(TextBox& box)
{
    auto* lines = new TextView(parent_, box.MaxLength);
    lines->document()->setDocumentMargin(scale_.ToPixels(textMargin));
    Tie(lines, lines->viewport(), box);
    bindings_.Follow(box.Marked, [lines, &box] { lines->Mark(box.Marked); });
}

template <class View>
void WidgetBuilder::Tie(View* view, QWidget* clicked, TextBox& box)
{
    view->Edited = [gate = gate_, view, &box](const QString& text) {
        if (view->isEnabled() && !view->isReadOnly())
            gate->Run([&box, text] { box.Text = text; });
        else if (gate->IsOpen())
            view->Show(box.Text.Shown()); // readers reach a box that no key does
    };
    const auto click = [gate = gate_, &box] { gate->Run(box.Click); };
    new ClickWatcher(clicked, click);
    ClickByKey(*view, click);
    const auto keepSelection = [gate = gate_, view, &box] {
        if (!gate->IsOpen())
            return;
        box.SelText = view->SelectedText();
        box.SelStart = view->SelectionStart();
    };
    // Showing a text is no event of the widget's, but it moves the caret.
    bindings_.Follow(box.Text, [view, &box, keepSelection] {
        view->Show(box.Text.Shown());
        view->Mark(box.Marked);
        keepSelection();
    });
    QObject::connect(view, &View::selectionChanged, view, keepSelection);
    QObject::connect(view, &View::cursorPositionChanged, view, keepSelection);
    bindings_.Follow(box.Locked, [view, &box] { view->setReadOnly(box.Locked); });
    box.CaretMoved = [gate = gate_, view, &box] {
        if (gate->IsOpen())
            view->SetCaret(box.SelStart);
    };
    NameForReaders(view, box);
    Dress(view, box);
    AddAccessKey(view, box);
}

void WidgetBuilder::Visit(Button& button)
{
    auto* view = new ButtonView(parent_);
    view->setAutoDefault(true); // so that Enter presses it, too
    bindings_.Follow(button.Caption, [view, &button] { view->setText(button.Caption); });
    view->setIconSize(scale_.ToPixels(Size{button.Width, button.Height}));
    bindings_.Follow(button.Picture, [view, &button] { ShowOnButton(*view, button.Picture); });
    bindings_.Follow(button.BackColor, [view, &button] { ColourButton(*view, button.BackColor); });
    QObject::connect(view, &QPushButton::clicked, view, [gate = gate_, view, &button] {
        if (CanBePressed(*view))
            gate->Run(button.Click);
    });
    if (button.AccessKey != 0)
        view->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(button.AccessKey)));
    FollowCaption(view, button, button.Caption);
    Dress(view, button);
}

void WidgetBuilder::Visit(CheckBox& box)
{
    auto* view = new QCheckBox(parent_);
    bindings_.Follow(box.Caption, [view, &box] { view->setText(box.Caption); });
    bindings_.Follow(box.Value, [view, &box] { view->setChecked(box.Value); });
    const auto click = [gate = gate_, view, &box] {
        gate->Run([view, &box] {
            box.Value = view->isChecked();
            Fire(box.Click);
        });
    };
    QObject::connect(view, &QCheckBox::clicked, view, click);
    WhenSwitchedUnclicked(*view, box.Value, click);
    FollowCaption(view, box, box.Caption);
    Dress(view, box);
}

void WidgetBuilder::Visit(OptionButton& option)
{
    auto* view = new QRadioButton(parent_);
    bindings_.Follow(option.Caption, [view, &option] { view->setText(option.Caption); });
    bindings_.Follow(option.Value, [view, &option] { Show(*view, option.Value); });
    const auto click = [gate = gate_, view, &option, &container = *container_] {
        Show(*view, true); // where the program has switched on two, the toolkit has just switched this one off
        gate->Run([&option, &container] { Choose(option, container); });
    };
    QObject::connect(view, &QRadioButton::clicked, view, click);
    WhenSwitchedUnclicked(*view, option.Value, click);
    FollowCaption(view, option, option.Caption);
    Dress(view, option);
}

void WidgetBuilder::Visit(Frame& frame)
{
    auto* view = new FrameView(parent_);
    bindings_.Follow(frame.Caption, [view, &frame] { view->setTitle(frame.Caption); });
    view->Clicked = [gate = gate_, &frame] { gate->Run(frame.Click); };
    bindings_.Follow(frame.Caption, [view, &frame] {
        view->setAccessibleName(frame.SpokenName.isEmpty() ? SpokenCaption(frame.Caption) : frame.SpokenName);
    });
    Dress(view, frame);
    Frame* outer = std::exchange(frame_, &frame);
    Build(frame, view);
    frame_ = outer;
}

void WidgetBuilder::Visit(ListBox& list)
{
    auto* view = new QListWidget(parent_);
    view->setUniformItemSizes(true);
    view->setSpacing(1);
    bindings_.Follow(list.Items, [view, &list] {
        const QSignalBlocker quiet(view);
        view->clear();
        view->addItems(list.Items);
        Select(*view, list.ListIndex);
    });
    bindings_.Follow(list.ListIndex, [view, &list] { Select(*view, list.ListIndex); });
    QObject::connect(view, &QListWidget::itemSelectionChanged, view, [gate = gate_, view, &list] {
        gate->Run([view, &list] { list.ListIndex = SelectedRow(*view); });
    });
    QObject::connect(view, &QListWidget::itemDoubleClicked, view, [gate = gate_, &list] { gate->Run(list.DblClick); });
    OnEnter(*view, [gate = gate_, view, &list] {
        if (SelectedRow(*view) >= 0)
            gate->Run(list.DblClick);
    });
    NameForReaders(view, list);
    Dress(view, list);
}

void WidgetBuilder::Visit(DriveList& list)
{
    auto* view = new QComboBox(parent_);
    bindings_.Follow(list.Drives, [view, &list] {
        view->clear();
        view->addItems(list.Drives);
        view->setCurrentText(list.Drive);
    });
    bindings_.Follow(list.Drive, [view, &list] { view->setCurrentText(list.Drive); });
    QObject::connect(view, &QComboBox::textActivated, view, [gate = gate_, &list](const QString& drive) {
        gate->Run([&list, drive] { list.Choose(drive); });
    });
    NameForReaders(view, list);
    Dress(view, list);
    // Readers are told what is chosen in the place of a name, and look for the label.
    if (const Label* label = LabelOf(list, *container_))
        parent_->findChild<QLabel*>(label->Name, Qt::FindDirectChildrenOnly)->setBuddy(view);
}

void WidgetBuilder::Visit(DirectoryList& list)
{
    auto* view = new DirectoryView(parent_);
    bindings_.Follow(list.Path, [view, &list] { view->ShowDirectory(list.Path); });
    view->Clicked = [gate = gate_, &list] { gate->Run(list.Click); };
    view->Chosen = [gate = gate_, &list](const QString& directory) {
        gate->Run([&list, directory] { list.GoTo(directory); });
    };
    NameForReaders(view, list);
    Dress(view, list);
}

void WidgetBuilder::Visit(Image& image)
{
    if (image.Draggable)
        return VisitDraggable(image);
    auto* view = new ImageView(parent_);
    bindings_.Follow(image.Picture, [view, &image] { view->Show(image.Picture); });
    view->TakesClicks = [gate = gate_, &image] { return gate->IsOpen() && image.Click; };
    view->Clicked = [gate = gate_, &image] { gate->Run(image.Click); };
    // A click leaves the focus where the user works.
    if (image.Click)
        view->setFocusPolicy(Qt::TabFocus);
    NameForReaders(view, image);
    Dress(view, image);
}

void WidgetBuilder::VisitDraggable(Image& image)
{
    auto* view = new DraggableImage(parent_, image);
    bindings_.Follow(image.Picture, [view, &image] { view->Show(image.Picture); });
    view->Dropped = [gate = gate_, &image](DraggableImage& source) {
        gate->Run([&image, dropped = &source.Control()] {
            if (image.DragDrop)
                image.DragDrop(*dropped);
        });
    };
    view->Moved = [gate = gate_, scale = scale_, &image](QPoint topLeft) {
        if (gate->IsOpen())
            image.Move({scale.ToTwips(topLeft.x()), scale.ToTwips(topLeft.y())});
    };
    Dress(view, image);
    bindings_.Follow(image.Tag, [view] { view->TakeTag(); });
    view->LieBelowThoseThere();
}

void WidgetBuilder::Visit(Shape& shape)
{
    const int pen = std::max(thinnestOutline, scale_.ToPixels(shape.BorderWidth * designTwipsAPixel));
    auto* view = new ShapeView(parent_, shape, pen);
    bindings_.Follow(shape.BorderColor, [view, &shape] { view->SetColour(ToQColor(shape.BorderColor)); });
    TakeFor(*view, QAccessible::Graphic);
    NameForReaders(view, shape);
    Dress(view, shape);
}

// A value that the program sets is a change as well, as one that the user sets is.
void WidgetBuilder::Visit(ScrollBar& bar)
{
    auto* view = new ScrollBarView(parent_);
    view->setSingleStep(bar.SmallChange);
    view->setPageStep(bar.LargeChange);
    bindings_.Follow(bar.Max, [view, &bar] { view->TakeMaximum(bar.Max); });
    view->Show(bar.Value);
    bindings_.Watch(bar.Value, [gate = gate_, view, &bar] {
        view->Show(bar.Value);
        gate->Run(bar.Change);
    });
    QObject::connect(view, &QScrollBar::valueChanged, view, [gate = gate_, &bar](int value) {
        if (gate->IsOpen())
            bar.Value = value;
    });
    NameForReaders(view, bar);
    Dress(view, bar);
}

void WidgetBuilder::Visit(Timer&) {}

void WidgetBuilder::Visit(MultimediaControl& player)
{
    if (!player.HasPlace())
        return;
    auto* view = new PlayerView(parent_, player.Name, scale_.ToPixels(player.ScreenHeight));
    view->Pressed = [gate = gate_, &player](QStringView command) {
        if (gate->IsOpen())
            player.Command(command);
    };
    bindings_.Follow(player.IsOpen, [view, &player] { view->SetUsable(player.IsOpen); });
    bindings_.Follow(player.Screen, [view, &player] { view->ShowFilm(player.Screen); });
    const auto showTime = [view, &player] { view->ShowTime(player.Position, player.Length); };
    bindings_.Follow(player.Position, showTime);
    bindings_.Watch(player.Length, showTime);
    TakeFor(*view, QAccessible::Grouping);
    NameForReaders(view, player);
    Dress(view, player);
}

// Its tool tip is nothing but its name: shown, it would stand before the text.
void WidgetBuilder::Visit(TextPanel& panel)
{
    auto* view = new TextPanelView(parent_, panel, scale_, gate_);
    NameForReaders(view, panel);
    Dress(view, panel, [view] { view->TakePlace(); });
}

void WidgetBuilder::Visit(PictureBox& picture)
{
    auto* view = new PictureView(parent_, picture, scale_, gate_);
    NameForReaders(view, picture);
    Dress(view, picture);
    Frame* outer = std::exchange(frame_, nullptr);
    Build(picture, view);
    frame_ = outer;
    if (picture.MouseDown)
        view->Parts().Follow(*new KeyboardPointer(*view));
    FollowChildren(picture, view);
}

void WidgetBuilder::Visit(DataControl& data)
{
    auto* view = new RecordBar(parent_, data.Name, data.Caption);
    view->Stepped = [gate = gate_, &data](RecordBar::Step step) {
        gate->Run([&data, step] {
            if (!data.IsOpen())
                return;
            step(data.Records());
            Fire(data.Stepped);
        });
    };
    TakeFor(*view, QAccessible::Grouping);
    view->setAccessibleName(data.SpokenName.isEmpty() ? data.Caption : data.SpokenName);
    Dress(view, data);
}

} // namespace lineforge
