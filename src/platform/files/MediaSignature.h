#pragma once

#include <QByteArrayView>
#include <QString>

namespace lineforge
{

// Whether bytes are how a file of sound or film begins, of any family that players know, whatever the file is called.
// A text never is, not even one that players take for a list of addresses to play from.
bool BeginsAsMedia(QByteArrayView beginning);

// The same of a file; false as well for one that can't be read.
bool IsMediaFile(const QString& path);

} // namespace lineforge
