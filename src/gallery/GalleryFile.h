#pragma once

#include "gallery/GalleryWork.h"

#include <optional>

namespace lineforge
{

// The files of a record's gallery have a name of the record's number, "_", a subscript of two digits and an ending that
// tells their kind: "A001_07.jpg".
enum class GalleryKind { Picture, Sound, Video, Text };

// By the last three characters of a name, a path or a tile's tag, case ignored; nothing for another ending.
std::optional<GalleryKind> KindOf(QStringView name);

// The bitmap beside the program that a tile shows for a kind that is no picture.
QString GalleryIcon(GalleryKind kind);

inline constexpr int LastSubscript = 98;

// "07" of 7.
QString SubscriptText(int subscript);

// With a trailing separator.
QString GalleryDirectory(const QString& workDir);

// What the names of the files of the page's record begin with: its number and "_".
QString GalleryKey(const GalleryState& gallery);

// The names in the page's directory that begin with that key, sorted.
QStringList GalleryFiles(const FileSystem& files, const GalleryState& gallery, const QString& key);

// "A001_", "07" and ".jpg" of a name, a path or a tile's tag, with whatever path stands before. The subscript may be of
// one digit, as a file has it that was moved to an empty tile below 10.
struct GalleryFileName {
    QString Stem;
    QString Subscript;
    QString Tail;
};
GalleryFileName PartsOf(const QString& name);

// The number that stands in characters 6 and 7 of such a name; it may be one digit before the point. Error 13 when it
// is none.
int SubscriptOf(const QString& name);

// Whether a tile with that tag has no file; it holds its subscript then.
bool IsEmptyTag(const QString& tag);

// The file's path for a tile's tag, which holds the bare name since a page build and the whole path since an addition.
QString GalleryPath(const GalleryState& gallery, const QString& tag);

// What a tile shows of a file: the picture itself, or the kind's icon out of that directory, which ends in a separator.
QString TilePicturePath(const QString& file, GalleryKind kind, const QString& icons);

// That picture, at the size of a tile. Error 53 or 481.
QImage LoadTilePicture(const TilePictures& pictures, const QString& path);
// Begins to decode pictures that will be loaded, in this order.
void ExpectTilePictures(const TilePictures& pictures, const QStringList& paths);

} // namespace lineforge
