#include "platform/files/MediaSignature.h"
#include "qt/media/SoundFile.h"

#include <QtEndian>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace lineforge::fuzz
{
namespace
{

// A run in which it doesn't hold is a finding.
void Require(bool holds)
{
    if (!holds)
        std::abort();
}

template <class Integer>
QByteArray Number(Integer number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& kind, const QByteArray& content)
{
    return kind + Number(static_cast<quint32>(content.size())) + content + QByteArray(content.size() % 2, '\0');
}

// The file that has just these samples.
QByteArray FileOf(const SoundFile& sound)
{
    const int frame = sound.Channels * sound.BitsASample / 8;
    const QByteArray format = Number(quint16{1}) + Number(static_cast<quint16>(sound.Channels)) +
                              Number(static_cast<quint32>(sound.SamplesASecond)) +
                              Number(static_cast<quint32>(sound.SamplesASecond) * static_cast<quint32>(frame)) +
                              Number(static_cast<quint16>(frame)) + Number(static_cast<quint16>(sound.BitsASample));
    return Chunk("RIFF", "WAVE" + Chunk("fmt ", format) + Chunk("data", sound.Samples));
}

bool AreSame(const SoundFile& a, const SoundFile& b)
{
    return a.SamplesASecond == b.SamplesASecond && a.Channels == b.Channels && a.BitsASample == b.BitsASample &&
           a.Samples == b.Samples;
}

// What a player is handed: it divides by all of it, and reads no further than the samples.
void RequirePlayable(const SoundFile& sound, const QByteArray& file)
{
    Require(sound.SamplesASecond > 0 && sound.Channels > 0 && sound.Channels <= 8);
    Require(sound.BitsASample == 8 || sound.BitsASample == 16 || sound.BitsASample == 32);
    Require(!sound.Samples.isEmpty() && file.contains(sound.Samples));
    Require(sound.Milliseconds() >= 0 && sound.Milliseconds() <= sound.Samples.size() * 1000);
}

// What is left of a sound that was cut off is its beginning.
void RequireBeginning(const QByteArray& part, const SoundFile& whole)
{
    std::optional<SoundFile> cut = ParseSound(part);
    if (!cut)
        return;
    Require(whole.Samples.startsWith(cut->Samples));
    cut->Samples = whole.Samples;
    Require(AreSame(*cut, whole));
}

void UseSound(const QByteArray& file)
{
    const std::optional<SoundFile> sound = ParseSound(file);
    if (!sound)
        return;
    Require(BeginsAsMedia(file));
    RequirePlayable(*sound, file);
    const std::optional<SoundFile> again = ParseSound(FileOf(*sound));
    Require(again && AreSame(*again, *sound));
    for (const qsizetype part : {file.size() - 1, file.size() / 2, qsizetype{44}})
        RequireBeginning(file.first(std::min(part, file.size())), *sound);
}

// The first bytes alone tell it, and no list of addresses passes, whatever it goes on with.
void UseBeginning(const QByteArray& file)
{
    constexpr qsizetype told = 16;
    Require(BeginsAsMedia(file) == BeginsAsMedia(file.first(std::min(told, file.size()))));
    for (const char* list : {"#EXTM3U", "\xEF\xBB\xBF#EXTM3U", "[playlist]", "http://", "<asx ", "<?xml "})
        Require(!BeginsAsMedia(QByteArray(list + file)));
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the file of a sound or film: what is let through to a player begins as one, and a sound that we play
// ourselves is a whole one, the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge::fuzz;

    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    UseBeginning(file);
    UseSound(file);
    return 0;
}
