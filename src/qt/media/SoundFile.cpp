#include "qt/media/SoundFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace lineforge
{

namespace
{
constexpr qsizetype headBytes = 12;
constexpr qsizetype chunkHeadBytes = 8;
constexpr qsizetype formatBytes = 16;
constexpr int plainSamples = 1;
constexpr qint64 mostBytes = 64 << 20; // of a click or a tune, far more than any lasts

template <class Integer>
Integer NumberAt(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<Integer>(bytes.constData() + at);
}

bool TakeFormat(const QByteArray& chunk, SoundFile& sound)
{
    if (chunk.size() < formatBytes || NumberAt<quint16>(chunk, 0) != plainSamples)
        return false;
    sound.Channels = NumberAt<quint16>(chunk, 2);
    sound.SamplesASecond = NumberAt<qint32>(chunk, 4);
    sound.BitsASample = NumberAt<quint16>(chunk, 14);
    const bool knownBits = sound.BitsASample == 8 || sound.BitsASample == 16 || sound.BitsASample == 32;
    return knownBits && sound.Channels > 0 && sound.Channels <= 8 && sound.SamplesASecond > 0;
}
} // namespace

int SoundFile::Milliseconds() const
{
    const qint64 bytesASecond = qint64{SamplesASecond} * Channels * (BitsASample / 8);
    const qint64 length = bytesASecond == 0 ? 0 : Samples.size() * 1000 / bytesASecond;
    return static_cast<int>(std::min<qint64>(length, std::numeric_limits<int>::max()));
}

std::optional<SoundFile> ParseSound(const QByteArray& file)
{
    if (file.size() < headBytes || !file.startsWith("RIFF") || file.sliced(8, 4) != "WAVE")
        return std::nullopt;
    SoundFile sound;
    qsizetype at = headBytes;
    while (at + chunkHeadBytes <= file.size()) {
        const QByteArray kind = file.sliced(at, 4);
        const auto told = static_cast<qsizetype>(NumberAt<quint32>(file, at + 4));
        at += chunkHeadBytes;
        // A file that was cut off still plays as far as it goes.
        const qsizetype size = std::min(told, file.size() - at);
        if (kind == "fmt " && !TakeFormat(file.sliced(at, size), sound))
            return std::nullopt;
        if (kind == "data") {
            sound.Samples = file.sliced(at, size);
            break;
        }
        at += size + size % 2;
    }
    if (sound.Channels == 0 || sound.Samples.isEmpty())
        return std::nullopt;
    return sound;
}

std::optional<SoundFile> ReadSound(const QString& path)
{
    QFile file(path);
    // Opening what is no file may wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > mostBytes)
        return std::nullopt;
    return ParseSound(file.readAll());
}

} // namespace lineforge
