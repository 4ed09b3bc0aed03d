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
void MoveToEmptyTile(const GalleryWork& work, Image& file, Image& empty, HiddenTile hidden)
{
    const QString name = file.Tag;
    const QString subscript = empty.Tag;
    const GalleryFileName parts = PartsOf(name);
    Integer16& top = work.State.GalleryTop;
    if (IsSubscript(subscript, top + 1)) {
        top += 1;
        ShowEmptyTile(*work.Form5, top);
    }
    file.Tag = parts.Subscript;
    empty.Tag = QString(parts.Stem + subscript + parts.Tail);
    work.Files.Rename(name, empty.Tag);
    if (!IsSubscript(parts.Subscript, top))
        return;
    Image& trailing = work.Form5->Image1[top];
    trailing.Visible = false;
    if (hidden == HiddenTile::TakesItsSubscript)
        trailing.Tag = QString::number(top + 1);
    top -= 1;
}

// Found out before the first of the renames: a swap that stops half way would leave a file under a name that no page
// finds.
void RequireFile(const FileSystem& files, const QString& name)
{
    if (files.Dir(name).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound, files.Resolve(name));
}

// Renames that belong together: the names go back unless all are kept, for under one between no page finds its file.
class Renames
{
public:
    Renames(FileSystem& files, ErrorState& errors) : files_(files), errors_(errors) {}
    ~Renames()
    {
        for (const auto& done : done_)
            errors_.Ignoring([&] { files_.Rename(done.second, done.first); });
    }
    Renames(const Renames&) = delete;
    Renames& operator=(const Renames&) = delete;

    // What is refused may have been done all the same, by a disk that then fails to keep it.
    void Do(const QString& from, const QString& to)
    {
        done_.emplace_front(from, to);
        files_.Rename(from, to);
    }
    void Keep() { done_.clear(); }

private:
    FileSystem& files_;
    ErrorState& errors_;
    std::deque<std::pair<QString, QString>> done_; // the last first
};

void SwapFiles(const GalleryWork& work, Image& source, Image& target)
{
    const QString s = source.Tag;
    const QString d = target.Tag;
    RequireFile(work.Files, d);
    RequireFile(work.Files, s);
    const GalleryFileName ofSource = PartsOf(s);
    const GalleryFileName ofTarget = PartsOf(d);
    const QString temporary = ofTarget.Stem + ofTarget.Subscript + u"Temp" + ofTarget.Tail;
    const QString newSource = ofSource.Stem + ofTarget.Subscript + ofSource.Tail;
    const QString newTarget = ofTarget.Stem + ofSource.Subscript + ofTarget.Tail;
    Renames renames(work.Files, work.Errors);
    renames.Do(d, temporary);
    renames.Do(s, newSource);
    renames.Do(temporary, newTarget);
    renames.Keep();
    source.Tag = newTarget;
    target.Tag = newSource;
}

void ReloadTile(const GalleryWork& work, Image& tile)
{
    tile.Picture = QImage();
    const QString tag = tile.Tag;
    if (const std::optional<GalleryKind> kind = KindOf(tag))
        tile.Picture = LoadTilePicture(work, TilePicturePath(tag, *kind, work.Branch.HomeDir));
}
} // namespace

void RearrangeTiles(const GalleryWork& work, Image& source, Image& target)
{
    work.Screen.Pointer = MousePointer::Hourglass;
    const bool hasSource = !IsEmptyTag(source.Tag);
    const bool hasTarget = !IsEmptyTag(target.Tag);
    if (hasSource && hasTarget)
        SwapFiles(work, source, target);
    else if (hasSource)
        MoveToEmptyTile(work, source, target, HiddenTile::TakesItsSubscript);
    else if (hasTarget)
        MoveToEmptyTile(work, target, source, HiddenTile::KeepsItsTag);
    ReloadTile(work, target);
    ReloadTile(work, source);
    work.Screen.Pointer = MousePointer::Default;
}

} // namespace lineforge
