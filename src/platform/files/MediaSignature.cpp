#include "platform/files/MediaSignature.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace lineforge
{

namespace
{
// Bytes that stand at a place, and for some families others at another.
struct Signature {
    QByteArrayView First;
    qsizetype FirstPlace = 0;
    QByteArrayView Second = {};
    qsizetype SecondPlace = 0;
};

template <std::size_t Size>
constexpr QByteArrayView Bytes(const char (&bytes)[Size])
{
    return {bytes, static_cast<qsizetype>(Size - 1)};
}

constexpr Signature signatures[] = {
    {Bytes("RIFF"), 0, Bytes("WAVE"), 8},
    {Bytes("RIFX"), 0, Bytes("WAVE"), 8},
    {Bytes("RF64"), 0, Bytes("WAVE"), 8},
    {Bytes("RIFF"), 0, Bytes("AVI "), 8},
    {Bytes("FORM"), 0, Bytes("AIF"), 8},
    {Bytes(".snd")},
    {Bytes("OggS")},
    {Bytes("fLaC")},
    {Bytes("caff")},
    {Bytes("wvpk")},
    {Bytes("#!AMR")},
    {Bytes("ID3")},
    {Bytes("ftyp"), 4},
    {Bytes("moov"), 4},
    {Bytes("mdat"), 4},
    {Bytes("wide"), 4}, // which a film may leave free before its parts
    {Bytes("free"), 4},
    {Bytes("skip"), 4},
    {Bytes("pnot"), 4},
    {Bytes("\x1A\x45\xDF\xA3")},                 // Matroska
    {Bytes("\x30\x26\xB2\x75\x8E\x66\xCF\x11")}, // ASF
    {Bytes("\0\0\1\xBA")},                       // MPEG
    {Bytes("\0\0\1\xB3")},
    {Bytes("FLV\1")},
};

bool StandsAt(QByteArrayView bytes, QByteArrayView part, qsizetype place)
{
    return bytes.size() >= place + part.size() && bytes.sliced(place, part.size()) == part;
}

// The frames of an MPEG sound follow each other from the first byte on, without a head before them.
bool IsSoundFrame(QByteArrayView bytes)
{
    constexpr unsigned char sync = 0xE0;
    return bytes.size() >= 2 && bytes[0] == '\xFF' && (static_cast<unsigned char>(bytes[1]) & sync) == sync &&
           bytes[1] != '\xFF' && bytes[1] != '\xFE'; // neither padding nor the mark of a text
}
} // namespace

bool BeginsAsMedia(QByteArrayView beginning)
{
    return IsSoundFrame(beginning) || std::ranges::any_of(signatures, [&](const Signature& signature) {
               return StandsAt(beginning, signature.First, signature.FirstPlace) &&
                      StandsAt(beginning, signature.Second, signature.SecondPlace);
           });
}

bool IsMediaFile(const QString& path)
{
    constexpr qint64 told = 16;
    // Opening what is no file may wait for ever.
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QFile::ReadOnly) && BeginsAsMedia(file.read(told));
}

} // namespace lineforge
