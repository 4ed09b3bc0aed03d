#include "check/GalleryCheck.h"

#include "check/LeftoverCheck.h"
#include "check/PictureCheck.h"
#include "gallery/GalleryFile.h"
#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/MediaSignature.h"

#include <QHash>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype keyLength = 5; // a record's number and "_"

// The gallery of a branch on its way through its files.
class Gallery
{
public:
    Gallery(Home& home, const Branch& branch, const QString& directory)
        : home_(home), branch_(branch), directory_(directory)
    {
    }

    void Check(const QString& name)
    {
        const GalleryFileName parts = PartsOf(name);
        if (parts.Stem.size() != keyLength || !parts.Stem.endsWith(u'_'))
            return Tell(Kind::StrangeFile, name, u"this file belongs to no record"_s);
        const QString record = parts.Stem.chopped(1);
        if (branch_.Records && !branch_.Numbers.contains(Folded(record)))
            Tell(Kind::GalleryFile, name, u"the file of a record that isn't there"_s, record);
        if (parts.Tail.startsWith(u"Temp"))
            Tell(Kind::GalleryFile, name,
                 u"left by a swap of two tiles that was cut off; tile "_s + parts.Subscript + u" was its own before",
                 record);
        else
            CheckTile(name, record);
        CheckKind(name, record);
    }

private:
    void Tell(Kind kind, const QString& name, const QString& text, const QString& record = {})
    {
        home_.Add(kind, PathOf(name), text, record);
    }

    QString PathOf(const QString& name) const { return directory_ + PathSeparator + name; }

    void CheckTile(const QString& name, const QString& record)
    {
        const std::optional<int> tile = TileOf(name);
        if (!tile || *tile < 1 || *tile > LastSubscript) {
            Tell(Kind::GalleryFile, name, u"there is no tile for this file; tiles go from 01 to 98"_s, record);
            return;
        }
        QString& holder = holders_[{Folded(record), *tile}];
        if (!holder.isEmpty())
            Tell(Kind::GalleryFile, holder, u"hidden by "_s + name + u", which stands on the same tile", record);
        holder = name;
    }

    void CheckKind(const QString& name, const QString& record)
    {
        const std::optional<GalleryKind> kind = KindOf(name);
        if (!kind)
            Tell(Kind::GalleryFile, name, u"no gallery shows a file of this ending, nor this record's others with it"_s,
                 record);
        else if (*kind == GalleryKind::Picture)
            RequirePicture(home_, Kind::GalleryFile, PathOf(name), record);
        else if (home_.RequireReadable(PathOf(name)) && *kind != GalleryKind::Text && !IsMediaFile(PathOf(name)))
            Tell(Kind::GalleryFile, name, u"no sound or film that can be played"_s, record);
    }

    static std::optional<int> TileOf(const QString& name)
    {
        try {
            return SubscriptOf(name);
        } catch (const RuntimeError&) {
            return {};
        }
    }

    Home& home_;
    const Branch& branch_;
    QString directory_;
    QHash<std::pair<QString, int>, QString> holders_; // of a record's tile: the file that has been met last
};
} // namespace

void CheckGallery(Home& home, const Branch& branch)
{
    const QString directory = home.Files.Resolve(GalleryDirectory(branch.Path));
    if (!Home::Stands(directory)) {
        home.Add(Kind::WithoutGallery, directory, u"there is no directory for a gallery"_s);
        return;
    }
    Gallery gallery(home, branch, directory);
    for (const QString& name : home.FilesOf(directory)) {
        if (IsLeftover(name))
            continue;
        ++home.Report.Seen.GalleryFiles;
        gallery.Check(name);
    }
}

} // namespace lineforge::check
