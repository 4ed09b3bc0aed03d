#pragma once

#include <QByteArrayView>

namespace lineforge
{

// The end of a line, of which there may be one character or two.
constexpr bool IsLineEnd(char character)
{
    return character == '\r' || character == '\n';
}

// Texts of a source: ASCII letters are alike in both cases, every other byte is only like itself.
bool SameBytes(QByteArrayView a, QByteArrayView b);

// A line cut at its places: the level is its first character, the tag begins at the third, whatever stands there. The
// value has the blank that ends it; the rest is what follows.
struct GedFields {
    QByteArrayView Level;
    QByteArrayView Tag;
    QByteArrayView Value;
    QByteArrayView Rest;
};
GedFields FieldsOf(QByteArrayView line);

} // namespace lineforge
