#include "platform/drawing/Thumbnails.h"

#include "platform/base/RuntimeError.h"
#include "platform/drawing/PictureFile.h"

#include <QPromise>
#include <QSemaphore>
#include <QThread>

#include <memory>
#include <optional>

namespace lineforge
{

namespace
{
constexpr unsigned long pollMilliseconds = 2;

// Large pictures wait for each other, so that a page of them takes no more memory at one time than the largest there
// may be. Those that don't tell their size are taken for such.
class Share
{
public:
    explicit Share(QSize picture)
        : taken_(picture.isValid() ? static_cast<int>(qint64{picture.width()} * picture.height() / dotsAPiece) : whole)
    {
        Room().acquire(taken_);
    }
    ~Share() { Room().release(taken_); }
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

private:
    static constexpr int dotsAPiece = 1024;
    static constexpr int whole = MostDots / dotsAPiece;
    static QSemaphore& Room()
    {
        static QSemaphore room(whole);
        return room;
    }

    int taken_;
};

QImage Decode(const QString& file, QSize dots)
{
    std::optional<Share> share;
    const QImage picture = DecodePicture(file, [dots, &share](QSize stored) {
        share.emplace(stored);
        return dots;
    });
    // Not every format tells its size beforehand.
    return picture.size() == dots ? picture : picture.scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// No error may leave a thread of the pool.
QImage DecodeOrNull(const QString& file, QSize dots)
{
    try {
        return Decode(file, dots);
    } catch (const RuntimeError&) {
        return {};
    }
}
} // namespace

Thumbnails::~Thumbnails()
{
    pool_.clear();
}

void Thumbnails::Begin(const Key& key)
{
    const auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    expected_.insert(key, promise->future());
    pool_.start([promise, key] {
        promise->addResult(DecodeOrNull(key.File.Path, key.Dots));
        promise->finish();
    });
}

void Thumbnails::Expect(const FileSystem& files, const QStringList& paths, QSize dots)
{
    pool_.clear();
    expected_.clear();
    for (const QString& path : paths) {
        // Reading what is no plain file might never end.
        if (files.Dir(path).isEmpty())
            continue;
        const Key key{IdentityOf(files.Resolve(path)), dots};
        if (!kept_.contains(key) && !expected_.contains(key))
            Begin(key);
    }
}

QImage Thumbnails::Load(const FileSystem& files, const QString& path, QSize dots,
                        const std::function<void()>& whileWaiting)
{
    const Key key{IdentityOf(files.Resolve(path)), dots};
    if (const QImage* kept = kept_.object(key))
        return *kept;
    if (files.Dir(path).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound, key.File.Path);
    if (!expected_.contains(key))
        Begin(key);
    const QFuture<QImage> coming = expected_.take(key);
    while (!coming.isFinished()) {
        QThread::msleep(pollMilliseconds);
        if (whileWaiting)
            whileWaiting();
    }
    const QImage picture = coming.result();
    if (picture.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture, key.File.Path);
    kept_.insert(key, new QImage(picture), picture.sizeInBytes());
    return picture;
}

} // namespace lineforge
