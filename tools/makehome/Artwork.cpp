#include "Artwork.h"

#include "Files.h"
#include "Icons.h"
#include "Portrait.h"
#include "Sound.h"
#include "VectorIcon.h"

#include <QDir>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int windowIconEdge = 256;

}

void MakeArtwork(const QString& dataDirectory, const QString& targetDirectory)
{
    MakeDirectory(targetDirectory);
    const QDir data(dataDirectory);
    const QDir target(targetDirectory);
    WriteJpeg(target.filePath(u"Tree99.jpg"_s), BlankPortrait());
    WriteBytes(target.filePath(u"LfgOpen.wav"_s), ChimeSound());
    WriteBytes(target.filePath(u"click.wav"_s), ClickSound());
    WriteBmp(target.filePath(u"GalAud.bmp"_s), SoundClipIcon());
    WriteBmp(target.filePath(u"GalVid.bmp"_s), FilmClipIcon());
    WriteBmp(target.filePath(u"GalTxt.bmp"_s), TextFileIcon());
    WriteBmp(target.filePath(u"Save-Dwn.bmp"_s), PressedExitButton());
    WritePng(target.filePath(u"lineforge.png"_s), VectorIcon(data.filePath(u"lineforge.svg"_s), windowIconEdge));
    WritePng(target.filePath(u"Notepad.png"_s), VectorIcon(data.filePath(u"notepad.svg"_s), windowIconEdge));
}

} // namespace lineforge::makehome
