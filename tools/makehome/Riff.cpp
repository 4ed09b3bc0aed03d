#include "Riff.h"

#include <QtEndian>

namespace lineforge::makehome
{

void Riff::BeginChunk(const char* tag)
{
    Tag(tag);
    m_sizePlaces.append(m_bytes.size());
    U32(0);
}

void Riff::BeginList(const char* kind, const char* tag)
{
    BeginChunk(kind);
    Tag(tag);
}

void Riff::End()
{
    const qsizetype place = m_sizePlaces.takeLast();
    const auto size = static_cast<quint32>(m_bytes.size() - place - 4);
    qToLittleEndian(size, m_bytes.data() + place);
    if (size % 2 != 0) {
        m_bytes.append('\0');
    }
}

void Riff::Tag(const char* tag)
{
    m_bytes.append(tag, 4);
}

void Riff::U16(quint16 value)
{
    char raw[sizeof value];
    qToLittleEndian(value, raw);
    m_bytes.append(raw, sizeof raw);
}

void Riff::U32(quint32 value)
{
    char raw[sizeof value];
    qToLittleEndian(value, raw);
    m_bytes.append(raw, sizeof raw);
}

void Riff::Bytes(const QByteArray& bytes)
{
    m_bytes.append(bytes);
}

qsizetype Riff::Position() const
{
    return m_bytes.size();
}

const QByteArray& Riff::Result() const
{
    return m_bytes;
}

} // namespace lineforge::makehome
