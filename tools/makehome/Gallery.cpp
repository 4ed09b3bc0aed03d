#include "Gallery.h"

#include "Failure.h"
#include "Files.h"
#include "Film.h"
#include "GalleryArt.h"
#include "Sound.h"
#include "Yacht.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

GalleryKind ReadKind(const GalleryItem& item, const QString& word)
{
    static const QHash<QString, GalleryKind> kinds{{u"picture"_s, GalleryKind::Picture},
                                                   {u"sound"_s, GalleryKind::Sound},
                                                   {u"film"_s, GalleryKind::Film},
                                                   {u"text"_s, GalleryKind::Text}};
    if (!kinds.contains(word)) {
        throw FailureAt(item.sourcePath, item.sourceLine, u"a gallery holds no \"%1\""_s.arg(word));
    }
    return kinds.value(word);
}

QString Extension(GalleryKind kind)
{
    switch (kind) {
    case GalleryKind::Picture:
        return u"jpg"_s;
    case GalleryKind::Sound:
        return u"wav"_s;
    case GalleryKind::Film:
        return u"avi"_s;
    case GalleryKind::Text:
        break;
    }
    return u"txt"_s;
}

void MakePicture(const GalleryItem& item, const QString& target)
{
    const QImage picture = GalleryPicture(item.what, item.caption);
    if (picture.isNull()) {
        throw FailureAt(item.sourcePath, item.sourceLine, u"there is no drawing \"%1\""_s.arg(item.what));
    }
    WriteJpeg(target, picture);
}

void MakeSound(const GalleryItem& item, const QString& target)
{
    const QByteArray tune = TuneSound(item.caption, item.what.toInt());
    if (tune.isEmpty()) {
        throw FailureAt(item.sourcePath, item.sourceLine, u"expected beats per minute and notes"_s);
    }
    WriteBytes(target, tune);
}

void MakeFilm(const GalleryItem& item, const QString& target)
{
    if (item.what != "yacht"_L1) {
        throw FailureAt(item.sourcePath, item.sourceLine, u"there is no film \"%1\""_s.arg(item.what));
    }
    constexpr int framesPerSecond = 12;
    constexpr int frameCount = 30;
    QList<QImage> frames;
    for (int frame = 0; frame < frameCount; ++frame) {
        frames.append(YachtScene(QSize(160, 120), static_cast<double>(frame) / frameCount));
    }
    WriteBytes(target, FilmFile(frames, framesPerSecond));
}

void MakeText(const GalleryItem& item, const QString& sourceDirectory, const QString& target)
{
    QStringList lines = ReadLines(QDir(sourceDirectory).filePath(item.what));
    while (!lines.isEmpty() && lines.last().isEmpty()) {
        lines.removeLast();
    }
    WriteCrLfLines(target, lines);
}

} // namespace

QList<GalleryItem> ReadGallery(const QString& path)
{
    static const QRegularExpression pattern(u"^([A-Z]\\d{3}) (\\w+) (\\S+)(?: (.+))?$"_s);
    QList<GalleryItem> items;
    qsizetype number = 0;
    for (const QString& rawLine : ReadLines(path)) {
        ++number;
        const QString line = rawLine.simplified();
        if (line.isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        const QRegularExpressionMatch match = pattern.match(line);
        if (!match.hasMatch()) {
            throw FailureAt(path, number, u"this is no gallery item: %1"_s.arg(line));
        }
        GalleryItem item;
        item.sourcePath = path;
        item.sourceLine = number;
        item.file = match.captured(1);
        item.kind = ReadKind(item, match.captured(2));
        item.what = match.captured(3);
        item.caption = match.captured(4);
        items.append(item);
    }
    return items;
}

void MakeGallery(const QList<GalleryItem>& items, const QString& sourceDirectory, const QString& targetDirectory)
{
    MakeDirectory(targetDirectory);
    QHash<QString, int> counts;
    for (const GalleryItem& item : items) {
        const int number = ++counts[item.file];
        const QString name =
            u"%1_%2.%3"_s.arg(item.file).arg(number, 2, 10, QLatin1Char('0')).arg(Extension(item.kind));
        const QString target = QDir(targetDirectory).filePath(name);
        switch (item.kind) {
        case GalleryKind::Picture:
            MakePicture(item, target);
            break;
        case GalleryKind::Sound:
            MakeSound(item, target);
            break;
        case GalleryKind::Film:
            MakeFilm(item, target);
            break;
        case GalleryKind::Text:
            MakeText(item, sourceDirectory, target);
            break;
        }
    }
}

} // namespace lineforge::makehome
