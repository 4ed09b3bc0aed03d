#include "qt/pictures/PictureView.h"

#include <QAccessibleWidget>

namespace lineforge
{

namespace
{
// A picture as readers see it: its controls first, then what stands on it.
class PictureForReaders : public QAccessibleWidget
{
public:
    explicit PictureForReaders(PictureView& view)
        : QAccessibleWidget(&view, view.HearsMouse() ? QAccessible::Canvas : QAccessible::Grouping),
          parts_(view.Parts())
    {
    }

    int childCount() const override { return Controls() + parts_.Count(); }

    QAccessibleInterface* child(int index) const override
    {
        return index < Controls() ? QAccessibleWidget::child(index) : parts_.Child(index - Controls());
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const int part = parts_.IndexOf(child);
        return part < 0 ? QAccessibleWidget::indexOfChild(child) : Controls() + part;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        QAccessibleInterface* part = parts_.ChildAt(widget()->mapFromGlobal(QPoint(x, y)));
        return part ? part : QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface* focusChild() const override
    {
        QAccessibleInterface* part = parts_.Focused();
        return part ? part : QAccessibleWidget::focusChild();
    }

private:
    int Controls() const { return QAccessibleWidget::childCount(); }

    PictureParts& parts_;
};

QAccessibleInterface* ReadablePicture(const QString&, QObject* object)
{
    auto* view = dynamic_cast<PictureView*>(object);
    return view ? new PictureForReaders(*view) : nullptr;
}
} // namespace

void ServeReadersOfPictures()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(ReadablePicture), true);
}

} // namespace lineforge
