#pragma once

#include <QByteArray>
#include <QList>

namespace lineforge::makehome
{

// Sound and film clips share one container: nested chunks with little-endian sizes, each padded to an even length.
class Riff
{
public:
    void BeginChunk(const char* tag);
    void BeginList(const char* kind, const char* tag);
    void End();

    void Tag(const char* tag);
    void U16(quint16 value);
    void U32(quint32 value);
    void Bytes(const QByteArray& bytes);

    qsizetype Position() const;
    const QByteArray& Result() const;

private:
    QByteArray m_bytes;
    QList<qsizetype> m_sizePlaces;
};

} // namespace lineforge::makehome
