#pragma once

#include <QList>
#include <QString>

namespace lineforge::makehome
{

enum class GalleryKind { Picture, Sound, Film, Text };

struct GalleryItem {
    QString file;
    GalleryKind kind = GalleryKind::Picture;
    QString what;
    QString caption;
    qsizetype sourceLine = 0;
    QString sourcePath;
};

QList<GalleryItem> ReadGallery(const QString& path);

// The items of one record are numbered in the order in which they are listed.
void MakeGallery(const QList<GalleryItem>& items, const QString& sourceDirectory, const QString& targetDirectory);

} // namespace lineforge::makehome
