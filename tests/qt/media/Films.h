#pragma once

#include "qt/media/Sounds.h"

#include <initializer_list>

namespace lineforge
{

inline QByteArray Numbers(std::initializer_list<quint32> numbers)
{
    QByteArray bytes;
    for (const quint32 number : numbers)
        bytes += LittleEndian(number);
    return bytes;
}

inline QByteArray List(const QByteArray& kind, const QByteArray& content)
{
    return Chunk("LIST", kind + content);
}

// A film of one second whose pictures are in a form that no player knows. Its sound, if it has one, is silence.
inline QByteArray FilmThatNobodyCanSee(bool hasSound = true)
{
    constexpr quint32 pictures = 10;
    constexpr quint32 samples = 8000;
    constexpr quint32 width = 160;
    constexpr quint32 height = 120;
    const QByteArray size = LittleEndian<quint16>(width) + LittleEndian<quint16>(height);
    const auto track = [](const QByteArray& head, const QByteArray& format) {
        return List("strl", Chunk("strh", head) + Chunk("strf", format));
    };
    const QByteArray seen =
        track("vidsZZZZ" + Numbers({0, 0, 0, 1, pictures, 0, pictures, 0, ~0U, 0, 0}) + size,
              Numbers({40, width, height, 1 | 24 << 16}) + "ZZZZ" + Numbers({width * height * 3, 0, 0, 0, 0}));
    const QByteArray heard = !hasSound ? QByteArray()
                                       : track("auds" + Numbers({0, 0, 0, 0, 1, samples, 0, samples, 0, ~0U, 1, 0, 0}),
                                               Numbers({1 | 1 << 16, samples, samples, 1 | 8 << 16}));
    const QByteArray head = Chunk("avih", Numbers({1000000 / pictures, 0, 0, 0x100, pictures, 0, hasSound ? 2U : 1U, 0,
                                                   width, height, 0, 0, 0, 0}));
    QByteArray parts;
    for (quint32 picture = 0; picture < pictures; ++picture)
        parts += Chunk("00dc", QByteArray(200, '\x12')) +
                 (hasSound ? Chunk("01wb", QByteArray(samples / pictures, '\x80')) : QByteArray());
    return Chunk("RIFF", "AVI " + List("hdrl", head + seen + heard) + List("movi", parts));
}

} // namespace lineforge
