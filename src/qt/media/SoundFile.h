#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace lineforge
{

// The samples of a WAV file of plain, uncompressed sound.
struct SoundFile {
    int SamplesASecond = 0;
    int Channels = 0;
    int BitsASample = 0; // 8 without sign, 16 or 32 with it
    QByteArray Samples;

    int Milliseconds() const;
};

// Nothing when there is no such sound.
[[nodiscard]] std::optional<SoundFile> ParseSound(const QByteArray& file);
[[nodiscard]] std::optional<SoundFile> ReadSound(const QString& path);

} // namespace lineforge
