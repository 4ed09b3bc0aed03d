#include "gallery/GalleryFile.h"

#include "forms/Form5.h"
#include "platform/base/Number.h"
#include "platform/base/Text.h"
#include "program/branch/BranchPaths.h"
#include "program/ui/Meanwhile.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int keyLength = 5;
constexpr int subscriptLength = 2;

struct Ending {
    QStringView Text;
    GalleryKind Kind;
};
constexpr Ending endings[] = {
    {u"jpg", GalleryKind::Picture}, {u"bmp", GalleryKind::Picture}, {u"wav", GalleryKind::Sound},
    {u"avi", GalleryKind::Video},   {u"txt", GalleryKind::Text},
};

QSize DotsOfTile(const Screen& screen)
{
    const Rectangle tile = forms::Form5::FirstTile;
    return screen.DotsOf({tile.Width, tile.Height});
}
} // namespace

std::optional<GalleryKind> KindOf(QStringView name)
{
    for (const Ending& ending : endings)
        if (SameText(name.right(ending.Text.size()), ending.Text))
            return ending.Kind;
    return std::nullopt;
}

QString GalleryIcon(GalleryKind kind)
{
    switch (kind) {
    case GalleryKind::Sound:
        return u"GalAud.bmp"_s;
    case GalleryKind::Video:
        return u"GalVid.bmp"_s;
    case GalleryKind::Text:
        return u"GalTxt.bmp"_s;
    case GalleryKind::Picture:
        break;
    }
    return {};
}

QString SubscriptText(int subscript)
{
    return QString::number(subscript).rightJustified(subscriptLength, u'0');
}

QString GalleryDirectory(const QString& workDir)
{
    return workDir + PathSeparator + GalleryName(BranchLetter(workDir)) + PathSeparator;
}

QString GalleryKey(const GalleryState& gallery)
{
    return gallery.PageRecord + u'_';
}

QStringList GalleryFiles(const FileSystem& files, const GalleryState& gallery, const QString& key)
{
    QStringList names = files.Files(gallery.PageDirectory + u"*");
    names.removeIf([&key](const QString& name) { return !SameText(QStringView(name).left(keyLength), key); });
    return names;
}

GalleryFileName PartsOf(const QString& name)
{
    const qsizetype start = std::min<qsizetype>(name.lastIndexOf(PathSeparator) + 1 + keyLength, name.size());
    const int digits = QStringView(name).mid(start, subscriptLength).endsWith(u'.') ? 1 : subscriptLength;
    return {name.first(start), name.mid(start, digits), name.mid(start + digits)};
}

int SubscriptOf(const QString& name)
{
    return ToLong(PartsOf(name).Subscript);
}

bool IsEmptyTag(const QString& tag)
{
    return tag.size() <= subscriptLength;
}

QString GalleryPath(const GalleryState& gallery, const QString& tag)
{
    return gallery.PageDirectory + tag.sliced(tag.lastIndexOf(PathSeparator) + 1);
}

QString TilePicturePath(const QString& file, GalleryKind kind, const QString& icons)
{
    return kind == GalleryKind::Picture ? file : QString(icons + GalleryIcon(kind));
}

QImage LoadTilePicture(const TilePictures& pictures, const QString& path)
{
    Meanwhile meanwhile(pictures.Loop);
    return pictures.Thumbnails.Load(pictures.Files, path, DotsOfTile(pictures.Screen),
                                    [&meanwhile] { meanwhile.KeepPainted(); });
}

void ExpectTilePictures(const TilePictures& pictures, const QStringList& paths)
{
    pictures.Thumbnails.Expect(pictures.Files, paths, DotsOfTile(pictures.Screen));
}

} // namespace lineforge
