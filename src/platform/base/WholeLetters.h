#pragma once

#include <QStringView>

namespace lineforge
{

// Whether a cut before that character takes a letter apart that is stored as two. Half of one can't be stored.
inline bool SplitsLetter(QStringView text, qsizetype at)
{
    return at > 0 && at < text.size() && text[at - 1].isHighSurrogate() && text[at].isLowSurrogate();
}

} // namespace lineforge
