#pragma once

#include <QByteArray>
#include <QtEndian>

namespace lineforge
{

template <class Integer>
QByteArray LittleEndian(Integer number)
{
    QByteArray bytes(sizeof(Integer), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray Chunk(const QByteArray& kind, const QByteArray& content)
{
    return kind + LittleEndian(static_cast<quint32>(content.size())) + content + QByteArray(content.size() % 2, '\0');
}

// A sound file; `between` stands between the format and the samples.
inline QByteArray WavFile(qint32 samplesASecond, quint16 channels, quint16 bits, const QByteArray& samples,
                          const QByteArray& between = {})
{
    const auto frame = static_cast<quint16>(channels * bits / 8);
    const QByteArray format = LittleEndian<quint16>(1) + LittleEndian(channels) + LittleEndian(samplesASecond) +
                              LittleEndian<qint32>(samplesASecond * frame) + LittleEndian(frame) + LittleEndian(bits);
    const QByteArray content = QByteArray("WAVE") + Chunk("fmt ", format) + between + Chunk("data", samples);
    return QByteArray("RIFF") + LittleEndian(static_cast<quint32>(content.size())) + content;
}

} // namespace lineforge
