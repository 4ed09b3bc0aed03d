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

QSize DotsOfTile(const Program& p)
{
    const Rectangle tile = forms::Form5::FirstTile;
    return p.Screen.DotsOf({tile.Width, tile.Height});
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

QString GalleryKey(const Program& p)
{
    return p.Gallery.PageRecord + u'_';
}

QStringList GalleryFiles(Program& p, const QString& key)
{
    QStringList names = p.Files.Files(p.Gallery.PageDirectory + u"*");
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

QString GalleryPath(const Program& p, const QString& tag)
{
    return p.Gallery.PageDirectory + tag.sliced(tag.lastIndexOf(PathSeparator) + 1);
}

QString TilePicturePath(const QString& file, GalleryKind kind, const QString& icons)
{
    return kind == GalleryKind::Picture ? file : QString(icons + GalleryIcon(kind));
}

QImage LoadTilePicture(Program& p, const QString& path)
{
    Meanwhile meanwhile(p.Loop);
    return p.Thumbnails.Load(p.Files, path, DotsOfTile(p), [&meanwhile] { meanwhile.KeepPainted(); });
}

void ExpectTilePictures(Program& p, const QStringList& paths)
{
    p.Thumbnails.Expect(p.Files, paths, DotsOfTile(p));
}

} // namespace lineforge
