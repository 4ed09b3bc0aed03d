#pragma once

#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"

#include <QCache>
#include <QFuture>
#include <QHash>
#include <QImage>
#include <QThreadPool>

#include <functional>

namespace lineforge
{

// Picture files at the very size at which a small control shows them, so that a control keeps no more than it shows.
// They are decoded ahead on all cores and kept, so that a page of pictures seen before comes at once. A file that has
// changed is read again.
class Thumbnails
{
public:
    ~Thumbnails();

    // Begins to decode files that will be asked for, in this order. What was expected before and isn't begun yet is
    // dropped. A file that can't be decoded is passed over here.
    void Expect(const FileSystem& files, const QStringList& paths, QSize dots);

    // The picture, stretched to that size. While it is still being decoded `whileWaiting` is called again and again.
    // Error 53 when the file isn't there, 481 when it is no picture or too large a one.
    QImage Load(const FileSystem& files, const QString& path, QSize dots,
                const std::function<void()>& whileWaiting = {});

private:
    struct Key {
        FileIdentity File;
        QSize Dots;
        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) { return lineforge::qHash(key.File, seed); }
    };
    void Begin(const Key& key);

    static constexpr qsizetype keptBytes = 64 << 20;

    QCache<Key, QImage> kept_{keptBytes};
    // Null for one that can't be decoded.
    QHash<Key, QFuture<QImage>> expected_;
    QThreadPool pool_;
};

} // namespace lineforge
