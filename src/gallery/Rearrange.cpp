#include "gallery/Rearrange.h"

#include "forms/Form5.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryTile.h"
#include "platform/base/Number.h"

#include <deque>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool IsSubscript(const QString& tag, int value)
{
    return NumberIn(tag).value_or(0) == value;
}

enum class HiddenTile { TakesItsSubscript, KeepsItsTag };

// The trailing empty tile goes when the highest file has gone. What its tag then says differs with the direction of
// the drop; nothing reads it before the tile is shown again.
void MoveToEmptyTile(Program& p, Image& file, Image& empty, HiddenTile hidden)
{
    const QString name = file.Tag;
    const QString subscript = empty.Tag;
    const GalleryFileName parts = PartsOf(name);
    Integer16& top = p.Gallery.GalleryTop;
    if (IsSubscript(subscript, top + 1)) {
        top += 1;
        ShowEmptyTile(p, top);
    }
    file.Tag = parts.Subscript;
    empty.Tag = QString(parts.Stem + subscript + parts.Tail);
    p.Files.Rename(name, empty.Tag);
    if (!IsSubscript(parts.Subscript, top))
        return;
    Image& trailing = p.Form5->Image1[top];
    trailing.Visible = false;
    if (hidden == HiddenTile::TakesItsSubscript)
        trailing.Tag = QString::number(top + 1);
    top -= 1;
}

// Found out before the first of the renames: a swap that stops half way would leave a file under a name that no page
// finds.
void RequireFile(const Program& p, const QString& name)
{
    if (p.Files.Dir(name).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound, p.Files.Resolve(name));
}

// Renames that belong together: the names go back unless all are kept, for under one between no page finds its file.
class Renames
{
public:
    explicit Renames(Program& p) : p_(p) {}
    ~Renames()
    {
        for (const auto& done : done_)
            p_.Errors.Ignoring([&] { p_.Files.Rename(done.second, done.first); });
    }
    Renames(const Renames&) = delete;
    Renames& operator=(const Renames&) = delete;

    // What is refused may have been done all the same, by a disk that then fails to keep it.
    void Do(const QString& from, const QString& to)
    {
        done_.emplace_front(from, to);
        p_.Files.Rename(from, to);
    }
    void Keep() { done_.clear(); }

private:
    Program& p_;
    std::deque<std::pair<QString, QString>> done_; // the last first
};

void SwapFiles(Program& p, Image& source, Image& target)
{
    const QString s = source.Tag;
    const QString d = target.Tag;
    RequireFile(p, d);
    RequireFile(p, s);
    const GalleryFileName ofSource = PartsOf(s);
    const GalleryFileName ofTarget = PartsOf(d);
    const QString temporary = ofTarget.Stem + ofTarget.Subscript + u"Temp" + ofTarget.Tail;
    const QString newSource = ofSource.Stem + ofTarget.Subscript + ofSource.Tail;
    const QString newTarget = ofTarget.Stem + ofSource.Subscript + ofTarget.Tail;
    Renames renames(p);
    renames.Do(d, temporary);
    renames.Do(s, newSource);
    renames.Do(temporary, newTarget);
    renames.Keep();
    source.Tag = newTarget;
    target.Tag = newSource;
}

void ReloadTile(Program& p, Image& tile)
{
    tile.Picture = QImage();
    const QString tag = tile.Tag;
    if (const std::optional<GalleryKind> kind = KindOf(tag))
        tile.Picture = LoadTilePicture(p, TilePicturePath(tag, *kind, p.Branch.HomeDir));
}
} // namespace

void RearrangeTiles(Program& p, Image& source, Image& target)
{
    p.Screen.Pointer = MousePointer::Hourglass;
    const bool hasSource = !IsEmptyTag(source.Tag);
    const bool hasTarget = !IsEmptyTag(target.Tag);
    if (hasSource && hasTarget)
        SwapFiles(p, source, target);
    else if (hasSource)
        MoveToEmptyTile(p, source, target, HiddenTile::TakesItsSubscript);
    else if (hasTarget)
        MoveToEmptyTile(p, target, source, HiddenTile::KeepsItsTag);
    ReloadTile(p, target);
    ReloadTile(p, source);
    p.Screen.Pointer = MousePointer::Default;
}

} // namespace lineforge
