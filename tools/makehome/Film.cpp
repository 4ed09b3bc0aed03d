#include "Film.h"

#include "Files.h"
#include "Riff.h"

#include <algorithm>

namespace lineforge::makehome
{

namespace
{

constexpr quint32 hasIndex = 0x10;
constexpr quint32 keyFrame = 0x10;

struct Reel {
    QList<QByteArray> frames;
    quint32 width = 0;
    quint32 height = 0;
    quint32 framesPerSecond = 0;
    quint32 largest = 0;

    quint32 Count() const { return static_cast<quint32>(frames.size()); }
};

void WriteMainHeader(Riff& riff, const Reel& reel)
{
    riff.BeginChunk("avih");
    riff.U32(1000000 / reel.framesPerSecond);
    riff.U32(reel.largest * reel.framesPerSecond);
    riff.U32(0);
    riff.U32(hasIndex);
    riff.U32(reel.Count());
    riff.U32(0);
    riff.U32(1);
    riff.U32(reel.largest);
    riff.U32(reel.width);
    riff.U32(reel.height);
    for (int reserved = 0; reserved < 4; ++reserved) {
        riff.U32(0);
    }
    riff.End();
}

void WriteStreamHeader(Riff& riff, const Reel& reel)
{
    riff.BeginChunk("strh");
    riff.Tag("vids");
    riff.Tag("MJPG");
    riff.U32(0);
    riff.U16(0);
    riff.U16(0);
    riff.U32(0);
    riff.U32(1);
    riff.U32(reel.framesPerSecond);
    riff.U32(0);
    riff.U32(reel.Count());
    riff.U32(reel.largest);
    riff.U32(0xFFFFFFFFU);
    riff.U32(0);
    riff.U16(0);
    riff.U16(0);
    riff.U16(static_cast<quint16>(reel.width));
    riff.U16(static_cast<quint16>(reel.height));
    riff.End();
}

void WriteStreamFormat(Riff& riff, const Reel& reel)
{
    riff.BeginChunk("strf");
    riff.U32(40);
    riff.U32(reel.width);
    riff.U32(reel.height);
    riff.U16(1);
    riff.U16(24);
    riff.Tag("MJPG");
    riff.U32(reel.width * reel.height * 3);
    for (int unused = 0; unused < 4; ++unused) {
        riff.U32(0);
    }
    riff.End();
}

void WriteHeaders(Riff& riff, const Reel& reel)
{
    riff.BeginList("LIST", "hdrl");
    WriteMainHeader(riff, reel);
    riff.BeginList("LIST", "strl");
    WriteStreamHeader(riff, reel);
    WriteStreamFormat(riff, reel);
    riff.End();
    riff.End();
}

QList<quint32> WriteFrames(Riff& riff, const Reel& reel)
{
    QList<quint32> offsets;
    riff.BeginList("LIST", "movi");
    // Index entries count from the "movi" tag, which BeginList has just written.
    const qsizetype origin = riff.Position() - 4;
    for (const QByteArray& frame : reel.frames) {
        offsets.append(static_cast<quint32>(riff.Position() - origin));
        riff.BeginChunk("00dc");
        riff.Bytes(frame);
        riff.End();
    }
    riff.End();
    return offsets;
}

void WriteIndex(Riff& riff, const Reel& reel, const QList<quint32>& offsets)
{
    riff.BeginChunk("idx1");
    for (qsizetype index = 0; index < offsets.size(); ++index) {
        riff.Tag("00dc");
        riff.U32(keyFrame);
        riff.U32(offsets[index]);
        riff.U32(static_cast<quint32>(reel.frames[index].size()));
    }
    riff.End();
}

} // namespace

QByteArray FilmFile(const QList<QImage>& frames, int framesPerSecond)
{
    Reel reel;
    reel.width = static_cast<quint32>(frames.first().width());
    reel.height = static_cast<quint32>(frames.first().height());
    reel.framesPerSecond = static_cast<quint32>(framesPerSecond);
    for (const QImage& frame : frames) {
        const QByteArray bytes = JpegBytes(frame);
        reel.largest = std::max(reel.largest, static_cast<quint32>(bytes.size()));
        reel.frames.append(bytes);
    }
    Riff riff;
    riff.BeginList("RIFF", "AVI ");
    WriteHeaders(riff, reel);
    const QList<quint32> offsets = WriteFrames(riff, reel);
    WriteIndex(riff, reel, offsets);
    riff.End();
    return riff.Result();
}

} // namespace lineforge::makehome
