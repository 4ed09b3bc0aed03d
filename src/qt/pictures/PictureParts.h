#pragma once

#include "platform/canvas/PictureBox.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/Scale.h"

#include <QAccessible>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace lineforge
{

class KeyboardPointer;

// What stands on a picture, as readers meet it: children of the picture that no widget stands for. Readers who have met
// them are told what comes and goes, and what is called otherwise, once the picture has come to rest. The part below
// the keyboard pointer has the focus; pressing one double-clicks it.
class PictureParts : public QObject
{
public:
    PictureParts(QWidget& view, const PictureBox& picture, const Scale& scale, std::shared_ptr<const Gate> gate);
    ~PictureParts() override;

    void Follow(KeyboardPointer& pointer);
    void PictureChanged();

    int Count();
    // Null for an index or a number that isn't there, and off all parts.
    QAccessibleInterface* Child(int index);
    QAccessibleInterface* ChildAt(QPoint pixel);
    // -1 for what is none of the parts.
    int IndexOf(const QAccessibleInterface* child);
    const PicturePart* Find(int number);
    // The part that has the focus.
    QAccessibleInterface* Focused();

    QWidget& View() { return view_; }
    QRect PixelsOf(const PicturePart& part) const { return scale_.ToPixels(part.Place); }
    // Both wait until whoever asks has his answer.
    void PressSoon(int number);
    void FocusSoon(int number);

private:
    const std::vector<PicturePart>& Parts();
    void Refresh();
    void Forget(int number);
    QAccessibleInterface* InterfaceOf(int number);
    const PicturePart* At(QPoint pixel);
    void PointerMoved();
    void TellFocus();

    QWidget& view_;
    const PictureBox& picture_;
    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    QPointer<KeyboardPointer> pointer_;

    std::vector<PicturePart> parts_;
    bool isStale_ = true;
    bool isMet_ = false;
    QTimer rest_;
    QHash<int, QAccessible::Id> interfaces_; // by the parts' numbers
    std::optional<int> focused_;
    bool isFocusUntold_ = false;
};

} // namespace lineforge
